#include "services/NotificationRows.h"

#include "core/enumerations.h"
#include "services/Rows.h"
#include "utilities/RunTimeError.h"

namespace qncal::host {

namespace {

constexpr std::string_view keyField = "ClientNotificationID";
constexpr std::string_view channelField = "NotificationType";
constexpr std::string_view dateField = "NotificationDate";

std::string_view itemField(std::int16_t kind)
{
    switch (kind) {
    case enumLocalCalendarAppointmentItem:
        return "AppointmentNum";
    case enumLocalCalendarTaskItem:
        return "TaskNum";
    case enumLocalCalendarDocketItem:
        return "DocketNum";
    default:
        throw RunTimeError(errorNumber::invalidProcedureCall,
                           "No notifications for items of kind " + std::to_string(kind));
    }
}

std::string rowByKey(std::int32_t notificationID)
{
    return "SELECT ClientNotification.* FROM ClientNotification WHERE " + std::string(keyField) + "="
           + std::to_string(notificationID) + ";";
}

} // namespace

bool NotificationRows::notificationExists(std::int16_t kind, std::int32_t itemID, std::uint8_t channel)
{
    return getNotificationID(kind, itemID, channel) >= 0;
}

std::int32_t NotificationRows::getNotificationID(std::int16_t kind, std::int32_t itemID, std::uint8_t channel)
{
    const Rows rows =
        Rows::read(*database_, "SELECT ClientNotification.ClientNotificationID FROM ClientNotification WHERE "
                                   + std::string(itemField(kind)) + "=" + std::to_string(itemID) + " AND "
                                   + std::string(channelField) + "=" + std::to_string(channel) + ";");
    return rows.isEmpty() ? -1 : rows.integer(keyField);
}

std::int32_t NotificationRows::createEmailNotification(std::int16_t kind, std::int32_t itemID, Date date, std::int32_t,
                                                       std::int32_t, std::int32_t)
{
    return create(kind, itemID, email, date);
}

std::int32_t NotificationRows::createFaxNotification(std::int16_t kind, std::int32_t itemID, Date date, std::int32_t,
                                                     std::int32_t, std::int32_t)
{
    return create(kind, itemID, fax, date);
}

std::int32_t NotificationRows::createPhoneNotification(std::int16_t kind, std::int32_t itemID, Date date, std::int32_t,
                                                       std::int32_t, std::int32_t)
{
    return create(kind, itemID, phone, date);
}

std::int32_t NotificationRows::createLetterNotification(std::int16_t kind, std::int32_t itemID, Date date, std::int32_t,
                                                        std::int32_t, std::int32_t)
{
    return create(kind, itemID, letter, date);
}

void NotificationRows::linkNotification(std::int16_t kind, std::int32_t notificationID, std::int32_t itemID)
{
    set(notificationID, itemField(kind), std::to_string(itemID));
}

void NotificationRows::setEmailNotificationDate(std::int16_t, std::int16_t, std::int32_t notificationID, Date date,
                                                std::int32_t)
{
    set(notificationID, dateField, defaultDateText(date));
}

void NotificationRows::setFaxNotificationDate(std::int16_t, std::int16_t, std::int32_t notificationID, Date date,
                                              std::int32_t)
{
    set(notificationID, dateField, defaultDateText(date));
}

void NotificationRows::setPhoneNotificationDate(std::int16_t, std::int16_t, std::int32_t notificationID, Date date,
                                                std::int32_t)
{
    set(notificationID, dateField, defaultDateText(date));
}

void NotificationRows::setLetterNotificationDate(std::int16_t, std::int16_t, std::int32_t notificationID, Date date,
                                                 std::int32_t)
{
    set(notificationID, dateField, defaultDateText(date));
}

void NotificationRows::deleteNotification(std::int32_t notificationID)
{
    Rows rows = Rows::change(*database_, rowByKey(notificationID));
    if (!rows.isEmpty())
        rows.deleteCurrent();
    rows.close();
}

std::int32_t NotificationRows::create(std::int16_t kind, std::int32_t itemID, std::uint8_t channel, Date date)
{
    return addRow(*database_, "ClientNotification",
                  {{itemField(kind), std::to_string(itemID)},
                   {channelField, std::to_string(channel)},
                   {dateField, defaultDateText(date)},
                   {"NotificationSent", booleanText(false)}});
}

void NotificationRows::set(std::int32_t notificationID, std::string_view field, const std::string& value)
{
    Rows rows = Rows::change(*database_, rowByKey(notificationID));
    if (!rows.isEmpty())
        rows.set(field, value);
    rows.close();
}

} // namespace qncal::host
