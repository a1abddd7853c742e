#pragma once

#include "demo/demoFirm.h"
#include "firmcal-desktop/AgendaModel.h"
#include "firmcal-desktop/MainWindow.h"
#include "firmcal-desktop/ReminderTimer.h"
#include "host/qt/WindowHand.h"
#include "services/Rows.h"
#include "utilities/Clock.h"

#include <QTreeView>

namespace qncal::test {

/// The main window over the demo firm on Tuesday, 31 March 2026, 8:30.
class DesktopTest : public testing::Test, protected WindowHand {
protected:
    static std::shared_ptr<host::SqliteDatabase> demoFirm()
    {
        std::shared_ptr<host::SqliteDatabase> database = host::SqliteDatabase::openInMemory();
        host::HostEnvironment host({.database = database});
        host::fillDemoFirm(host, {.companies = 15, .contacts = 40, .items = 250});
        return database;
    }

    DesktopTest()
    {
        window.show();
        bringToFront(window);
    }

    QTreeView& agenda() { return widget<QTreeView>(window, "agenda"); }
    QAction& action(const char* name)
    {
        auto* found = window.findChild<QAction*>(name);
        if (!found)
            throw std::logic_error(std::string("no such action: ") + name);
        return *found;
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        bringToFront(window);
        QTest::keyClick(&window, key, modifiers);
    }
    /// Opens a menu by its access key and chooses an entry by its own.
    void chooseFromMenu(Qt::Key menu, std::initializer_list<Qt::Key> entries)
    {
        press(menu, Qt::AltModifier);
        for (const Qt::Key entry : entries) {
            QWidget* popup = QApplication::activePopupWidget();
            ASSERT_TRUE(popup) << "the menu is not open";
            QTest::keyClick(popup, entry);
        }
    }
    /// Moves the cursor to the first item that is shown.
    std::int32_t goToFirstItem()
    {
        auto& model = static_cast<desktop::AgendaModel&>(*agenda().model());
        for (int day = 0; day < model.rowCount(); ++day) {
            if (const QModelIndex item = model.index(0, 0, model.index(day, 0)); item.isValid()) {
                agenda().setCurrentIndex(item);
                return *model.itemID(item);
            }
        }
        throw std::logic_error("no item is shown");
    }
    /// A field of the first row of a SELECT as text; "no row" without one.
    std::string value(const std::string& select, std::string_view column)
    {
        const host::Rows row = host::Rows::read(*database, select);
        return row.isEmpty() ? "no row" : row.text(column);
    }
    std::string ofAppointment(std::int32_t id, std::string_view column)
    {
        return value("SELECT Appointments.* FROM Appointments WHERE AppointmentID=" + std::to_string(id) + ";", column);
    }
    std::string ofFields(std::string_view column) { return value("SELECT CustomFields.* FROM CustomFields;", column); }

    Date present = Date::of(2026, 3, 31, 8, 30);
    ClockOverride clock{[this] { return present; }};
    std::shared_ptr<host::SqliteDatabase> database = demoFirm();
    desktop::DesktopHost host{database};
    desktop::MainWindow window{host};
};

} // namespace qncal::test
