#include "firmcal-desktop/settingsCommands.h"

#include "common/statusFields.h"
#include "core/openForKind.h"
#include "firmcal-desktop/MainWindow.h"
#include "items/clsCalendarItem.h"
#include "qt/convert.h"
#include "qt/windows/ColourSchemesForm.h"

#include <QMenu>

namespace qncal::desktop {

void openStatusFields(MainWindow& window)
{
    window.host().settings().openChangeApptStatusFieldsForm(viewOfKind(window.kind()));
}

void openStatusOptions(MainWindow& window, int number)
{
    const firmcal::StatusFields statuses = firmcal::statusFields(window.host().database(), window.kind());
    window.host().settings().openApptStatusOptionsForm(viewOfKind(window.kind()),
                                                       statuses[static_cast<std::size_t>(number - 1)].name,
                                                       static_cast<std::int16_t>(number));
}

void openCustomFields(MainWindow& window)
{
    clsCalendarItem item;
    item.calendarItemType(window.kind());
    item.openApptCustomFieldsForm();
}

void openColourSchemes(MainWindow& window) { host::ColourSchemesForm().open(window.kind()); }

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
