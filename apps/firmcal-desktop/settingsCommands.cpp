#include "firmcal-desktop/settingsCommands.h"

#include "common/statusFields.h"
#include "firmcal-desktop/ColourSchemesForm.h"
#include "firmcal-desktop/MainWindow.h"
#include "items/clsCalendarItem.h"
#include "qt/convert.h"

#include <QMenu>

namespace qncal::desktop {

namespace {

/// Views and kinds share their numbers.
enumFormDayTimerType viewOf(const MainWindow& window) { return static_cast<enumFormDayTimerType>(window.kind()); }

} // namespace

void openStatusFields(MainWindow& window) { window.host().settings().openChangeApptStatusFieldsForm(viewOf(window)); }

void openStatusOptions(MainWindow& window, int number)
{
    const firmcal::StatusFields statuses = firmcal::statusFields(window.host().database(), window.kind());
    window.host().settings().openApptStatusOptionsForm(
        viewOf(window), statuses[static_cast<std::size_t>(number - 1)].name, static_cast<std::int16_t>(number));
}

void openCustomFields(MainWindow& window)
{
    clsCalendarItem item;
    item.calendarItemType(window.kind());
    item.openApptCustomFieldsForm();
}

void openColourSchemes(MainWindow& window) { ColourSchemesForm().open(window.kind()); }

void fillWithStatuses(QMenu& menu, MainWindow& window)
{
    const auto fill = [&menu, &window] {
        menu.clear();
        int number = 0;
        for (const firmcal::StatusField& status : firmcal::statusFields(window.host().database(), window.kind())) {
            ++number;
            QString name = status.name.empty() ? QObject::tr("(no name)") : host::toQt(status.name);
            name.replace("&", "&&");
            QAction* action = menu.addAction(QStringLiteral("&%1  %2...").arg(QString::number(number), name));
            action->setObjectName(QStringLiteral("statusOptions%1").arg(number));
            QObject::connect(action, &QAction::triggered, &window, [&window, number] {
                window.perform([&window, number] { openStatusOptions(window, number); });
            });
        }
    };
    // An empty menu would not come up by its access key.
    fill();
    QObject::connect(&menu, &QMenu::aboutToShow, &window, [&window, fill] { window.attempt(fill); });
}

} // namespace qncal::desktop
