#include "core/RecordSet.h"
#include "core/ServiceRegistry.h"
#include "items/clsCalendarItem.h"
#include "items/itemQueries.h"
#include "items/modDatabaseFunctions.h"
#include "items/modHolidayCtrl.h"

#include <array>

// The notifications that an item's client gets ahead of it: one at most for each channel.

namespace qncal {

namespace {

struct Channel {
    std::uint8_t bit;
    std::int32_t (AutoNotifyService::*create)(std::int16_t, std::int32_t, Date, std::int32_t, std::int32_t,
                                              std::int32_t);
    void (AutoNotifyService::*setDate)(std::int16_t, std::int16_t, std::int32_t, Date, std::int32_t);
};

constexpr std::array<Channel, 4> channels{{
    {AutoNotifyService::email, &AutoNotifyService::createEmailNotification,
     &AutoNotifyService::setEmailNotificationDate},
    {AutoNotifyService::fax, &AutoNotifyService::createFaxNotification, &AutoNotifyService::setFaxNotificationDate},
    {AutoNotifyService::phone, &AutoNotifyService::createPhoneNotification,
     &AutoNotifyService::setPhoneNotificationDate},
    {AutoNotifyService::letter, &AutoNotifyService::createLetterNotification,
     &AutoNotifyService::setLetterNotificationDate},
}};

constexpr std::int16_t appointmentCode = 1;
constexpr std::int16_t taskCode = 2;

std::int32_t notificationID(std::int16_t kind, std::int32_t itemID, const Channel& channel)
{
    return statement([&] { return autoNotifyService().getNotificationID(kind, itemID, channel.bit); });
}

void removeNotification(std::int16_t kind, std::int32_t itemID, const Channel& channel)
{
    const std::int32_t id = notificationID(kind, itemID, channel);
    if (id >= 0)
        statement([&] { autoNotifyService().deleteNotification(id); });
}

/// The notification that is there, or a new one on the last working day at or before the date.
std::int32_t ensureNotification(std::int16_t kind, std::int32_t itemID, const Channel& channel, Date notifiedDate)
{
    if (statement([&] { return autoNotifyService().notificationExists(kind, itemID, channel.bit); })) {
        const std::int32_t id = notificationID(kind, itemID, channel);
        statement([&] { autoNotifyService().linkNotification(kind, id, itemID); });
        return id;
    }
    const Date date = modHolidayCtrl::adjustDateToFridayIfWeekendOrHoliday(notifiedDate);
    return statement([&] { return (autoNotifyService().*channel.create)(kind, itemID, date, -1, -1, -1); });
}

void moveNotification(std::int16_t kind, std::int16_t itemCode, const Channel& channel, std::int32_t id, Date date)
{
    statement([&] { (autoNotifyService().*channel.setDate)(kind, itemCode, id, date, -1); });
    statement([&] { autoNotifyService().refreshNotification(kind); });
}

} // namespace

void clsCalendarItem::scheduleAutoNotifications()
{
    routine("Vestrel.exe-clsCalendarItem-scheduleAutoNotifications", [&] {
        const auto kindNumber = static_cast<std::int16_t>(calendarItemType());
        for (const Channel& channel : channels) {
            if ((record_.notifyType & channel.bit) == 0) {
                removeNotification(kindNumber, itemID_, channel);
                continue;
            }
            const std::int32_t id = ensureNotification(kindNumber, itemID_, channel, record_.notifiedDate);
            if (!showNotificationWindow_)
                continue;
            if (calendarItemType() == enumLocalCalendarAppointmentItem) {
                moveNotification(kindNumber, appointmentCode, channel, id, record_.notifiedDate);
            } else if (calendarItemType() == enumLocalCalendarTaskItem) {
                // Asked, and either answer leads to the same two calls: that is meant.
                modDatabaseFunctions::isThisTaskAssociatedWithIndependentScheduleEntry(itemID_);
                moveNotification(kindNumber, taskCode, channel, id, record_.notifiedDate);
            }
        }
    });
}

void clsCalendarItem::checkToCancelAutoNotifications(bool keepSent)
{
    routine("Vestrel.exe-clsCalendarItem-checkToCancelAutoNotifications", [&] {
        if (isDatabaseConnected())
            deleteClientNotificationsOfItem(calendarItemType(), itemID_, keepSent);
    });
}

} // namespace qncal
