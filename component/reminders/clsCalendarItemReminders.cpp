#include "core/RecordSet.h"
#include "core/routineScope.h"
#include "items/clsCalendarItem.h"
#include "items/itemQueries.h"

// Where the item meets its popup reminders and client notifications.

namespace qncal {

void clsCalendarItem::checkToCancelPopups(bool keepCompleted)
{
    routine("Vestrel.exe-clsCalendarItem-checkToCancelPopups", [&] {
        if (isDatabaseConnected())
            deleteRemindersOfItem(calendarItemType(), itemID_, keepCompleted);
    });
}

void clsCalendarItem::checkToCancelAutoNotifications(bool keepSent)
{
    routine("Vestrel.exe-clsCalendarItem-checkToCancelAutoNotifications", [&] {
        if (isDatabaseConnected())
            deleteClientNotificationsOfItem(calendarItemType(), itemID_, keepSent);
    });
}

void clsCalendarItem::schedulePopupReminderForItem()
{
    routine("Vestrel.exe-clsCalendarItem-schedulePopupReminderForItem", [] {});
}

void clsCalendarItem::scheduleAutoNotifications()
{
    routine("Vestrel.exe-clsCalendarItem-scheduleAutoNotifications", [] {});
}

} // namespace qncal
