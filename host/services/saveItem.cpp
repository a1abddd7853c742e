#include "services/saveItem.h"

namespace qncal::host {

namespace {

/// A save does this for appointments; for tasks and time entries it is left to the host.
void scheduleOtherKinds(clsCalendarItem& item)
{
    if (item.calendarItemType() == enumLocalCalendarAppointmentItem)
        return;
    if (item.Remind())
        item.schedulePopupReminderForItem();
    else
        item.checkToCancelPopups(true);
    if (item.notifyType() != 0)
        item.scheduleAutoNotifications();
    else
        item.checkToCancelAutoNotifications(true);
}

} // namespace

bool saveItem(clsCalendarItem& item)
{
    const bool isNew = item.itemID() < 1;
    if (!item.saveCalendarItem() || (isNew && !item.saveCalendarItem()))
        return false;
    scheduleOtherKinds(item);
    return true;
}

void notifyTheDayBefore(clsCalendarItem& item) { item.notifiedDate(item.DateFrom().addDays(-1)); }

} // namespace qncal::host
