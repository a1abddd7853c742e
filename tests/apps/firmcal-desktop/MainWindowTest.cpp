#include "apps/firmcal-desktop/DesktopTest.h"

#include "common/Failure.h"
#include "core/routineScope.h"
#include "utilities/RunTimeError.h"

#include <QComboBox>
#include <QLabel>
#include <QMenu>

namespace qncal::test {
namespace {

using desktop::AgendaModel;

struct MainWindowTest : DesktopTest {
    QString week() { return widget<QLabel>(window, "week").text(); }
    QString state() { return widget<QLabel>(window, "state").text(); }
    QString heading(int day) { return agenda().model()->index(day, 0).data().toString(); }
    int shown() { return static_cast<AgendaModel*>(agenda().model())->itemCount(); }
    QModelIndex cell(AgendaModel::Column column) { return agenda().currentIndex().siblingAtColumn(column); }
};

TEST_F(MainWindowTest, ShowsTheAppointmentsOfThisWeekByDay)
{
    EXPECT_EQ(week(), "Mar 30 \u2013 Apr 5, 2026");
    ASSERT_EQ(agenda().model()->rowCount(), 7);
    EXPECT_EQ(heading(0), "Monday, March 30");
    EXPECT_EQ(heading(1), "Tuesday, March 31 (today)");
    EXPECT_TRUE(heading(4).contains("Good Friday"));
    EXPECT_GT(shown(), 0);
    EXPECT_EQ(state(), QString("%1 appointments").arg(shown()));
    goToFirstItem();
    picture(window, "desktop");
}

TEST_F(MainWindowTest, TheCountStaysWhenAMenuIsOpened)
{
    QStatusTipEvent noTip((QString()));
    QCoreApplication::sendEvent(&window, &noTip);
    EXPECT_TRUE(state().endsWith("appointments"));
    EXPECT_TRUE(widget<QLabel>(window, "state").isVisible());
}

TEST_F(MainWindowTest, AnItemHasItsOwnColours)
{
    const std::int32_t id = goToFirstItem();
    const auto brush = cell(AgendaModel::subjectColumn).data(Qt::BackgroundRole).value<QBrush>();
    const int colour = brush.color().red() | brush.color().green() << 8 | brush.color().blue() << 16;
    EXPECT_EQ(std::to_string(colour), ofAppointment(id, "BackColour"));
    EXPECT_EQ(cell(AgendaModel::subjectColumn).data().toString().toStdString(), ofAppointment(id, "Subject"));
}

TEST_F(MainWindowTest, AnItemHasTheIconsOfItsStatuses)
{
    const std::int32_t id = goToFirstItem();
    host::Rows row = host::Rows::change(
        *database, "SELECT Appointments.* FROM Appointments WHERE AppointmentID=" + std::to_string(id) + ";");
    for (const char* status : {"Status1", "Status2", "Status3", "Status4", "Status5"})
        row.set(status,
                std::string_view(status) == "Status2" || std::string_view(status) == "Status5" ? "True" : "False");
    row.close();
    press(Qt::Key_F5);
    EXPECT_EQ(cell(AgendaModel::statusColumn).data(Qt::ToolTipRole).toString(), "Cancelled, Important");
    const auto icons = cell(AgendaModel::statusColumn).data(Qt::DecorationRole).value<QPixmap>();
    EXPECT_EQ(icons.width(), 2 * icons.height() + 3);
    agenda().setCurrentIndex({});
    picture(window, "desktop-statuses");
}

TEST_F(MainWindowTest, TheKeysWalkTheWeeks)
{
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(week(), "Apr 6 \u2013 Apr 12, 2026");
    press(Qt::Key_T, Qt::ControlModifier);
    EXPECT_EQ(week(), "Mar 30 \u2013 Apr 5, 2026");
    chooseFromMenu(Qt::Key_V, {Qt::Key_P});
    EXPECT_EQ(week(), "Mar 23 \u2013 Mar 29, 2026");
}

TEST_F(MainWindowTest, TheKindIsSwitched)
{
    press(Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(window.kind(), enumLocalCalendarTaskItem);
    EXPECT_TRUE(action("tasks").isChecked());
    EXPECT_FALSE(action("appointments").isChecked());
    EXPECT_TRUE(state().endsWith("task" + QString(shown() == 1 ? "" : "s")));
    picture(window, "desktop-tasks");
    chooseFromMenu(Qt::Key_V, {Qt::Key_E});
    EXPECT_EQ(window.kind(), enumLocalCalendarDocketItem);
}

TEST_F(MainWindowTest, TheListOfUsersRestrictsTheItems)
{
    const int all = shown();
    auto& users = widget<QComboBox>(window, "users");
    users.setFocus();
    int ofUsers = 0;
    for (int user = 1; user < users.count(); ++user) {
        QTest::keyClick(&users, Qt::Key_Down);
        EXPECT_EQ(users.currentIndex(), user);
        ofUsers += shown();
    }
    EXPECT_EQ(ofUsers, all);
    EXPECT_LT(shown(), all);
}

TEST_F(MainWindowTest, WithoutAnItemUnderTheCursorItsCommandsAreOff)
{
    EXPECT_FALSE(action("deleteItem").isEnabled());
    EXPECT_FALSE(action("bestTime").isEnabled());
    goToFirstItem();
    EXPECT_TRUE(action("deleteItem").isEnabled());
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_FALSE(action("deleteItem").isEnabled()) << "the item is not in that week";
}

TEST_F(MainWindowTest, EveryEntryHasAnAccessKeyOfItsOwnInItsMenu)
{
    for (const QMenu* menu : window.findChildren<QMenu*>()) {
        QStringList keys;
        for (const QAction* entry : menu->actions()) {
            if (entry->isSeparator())
                continue;
            const QString text = entry->text();
            const auto mark = text.indexOf('&');
            ASSERT_GE(mark, 0) << text.toStdString();
            keys += text.mid(mark + 1, 1).toLower();
        }
        EXPECT_EQ(keys.removeDuplicates(), 0) << menu->objectName().toStdString();
    }
}

TEST_F(MainWindowTest, WhatTheComponentKeepsToItselfIsTold)
{
    goToFirstItem();
    database->close();
    whenAsked([](QMessageBox& box) { EXPECT_FALSE(box.text().isEmpty()); });
    action("bestTime").trigger();
}

TEST_F(MainWindowTest, WhatWasReportedOnTheWayToAFailureIsNotToldLater)
{
    whenAsked([](QMessageBox& box) { EXPECT_EQ(box.text(), "refused"); });
    const auto report = [] {
        routine("report", false, []() -> bool { throw RunTimeError(errorNumber::invalidProcedureCall, "on the way"); });
    };
    window.attempt([&] {
        report();
        throw firmcal::Failure("refused");
    });
    EXPECT_NO_THROW(host.errors().throwIfReported());
    report();
    EXPECT_THROW(host.errors().throwIfReported(), firmcal::Failure) << "what comes after is told";
}

TEST_F(MainWindowTest, AStepToAnotherWeekReadsTheAgendaOnce)
{
    int reads = 0;
    QObject::connect(agenda().model(), &QAbstractItemModel::rowsAboutToBeRemoved, &window, [&reads] { ++reads; });
    press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(reads, 1);
    press(Qt::Key_2, Qt::ControlModifier);
    EXPECT_EQ(reads, 2);
    press(Qt::Key_F5);
    EXPECT_EQ(reads, 3);
    QMetaObject::invokeMethod(&widget<QMenu>(window, "statusOptions"), "aboutToShow");
    EXPECT_EQ(reads, 3) << "opening a menu";
}

TEST_F(MainWindowTest, TheAboutBoxIsClosedByEscape)
{
    whenAsked([](QMessageBox& box) {
        EXPECT_TRUE(box.text().contains("FirmCal"));
        QTest::keyClick(&box, Qt::Key_Escape);
    });
    chooseFromMenu(Qt::Key_H, {Qt::Key_A});
}

} // namespace
} // namespace qncal::test
