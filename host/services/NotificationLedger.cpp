#include "services/NotificationLedger.h"

#include "items/modHolidayCtrl.h"
#include "services/DeliveryState.h"
#include "services/Rows.h"
#include "services/notifiedItem.h"
#include "utilities/dateText.h"

namespace qncal::host {

namespace {

NotifiedItem itemOf(DatabaseService& database, std::int16_t kind, std::int32_t itemID)
{
    return readNotifiedItem(database, static_cast<enumLocalCalendarItemType>(kind), itemID).value_or(NotifiedItem{});
}

bool mayHaveBeenSent(const Rows& row) { return row.boolean("NotificationSent"); }

/// A row that came too late, or whose item had gone, gets its chance anew with every save of the item.
void rearm(Rows& row)
{
    const DeliveryState state = deliveryStateOf(row);
    if (state != DeliveryState::tooLate && state != DeliveryState::cancelled)
        return;
    setDeliveryState(row, DeliveryState::waiting);
    row.set("LastError", {});
}

/// An item that moves to before the day of its notification takes it along, to the last working day before it.
void keepAhead(Rows& row, const NotifiedItem& item)
{
    const Variant date = row.field("NotificationDate");
    if (item.id < 0 || item.start == noDate || date.isNull() || date.toDate() <= item.start)
        return;
    const Date dayBefore = item.start.dateOnly().addDays(-1);
    row.set("NotificationDate", defaultDateText(modHolidayCtrl::adjustDateToFridayIfWeekendOrHoliday(dayBefore)));
}

void setClient(Rows& row, const ItemClient& client)
{
    row.set("CompanyIDNum", std::to_string(client.companyID));
    row.set("ContactIDNum", std::to_string(client.contactID));
}

} // namespace

bool NotificationLedger::notificationExists(std::int16_t kind, std::int32_t itemID, std::uint8_t channel)
{
    return getNotificationID(kind, itemID, channel) >= 0;
}

/// The row for the item's client; one that was not sent yet will do for any client, see `linkNotification`.
std::int32_t NotificationLedger::getNotificationID(std::int16_t kind, std::int32_t itemID, std::uint8_t channel)
{
    const std::string column(itemColumn(kind));
    const ItemClient client = itemOf(*database_, kind, itemID).client;
    std::int32_t found = -1;
    for (Rows row = Rows::read(*database_, "SELECT ClientNotification.* FROM ClientNotification WHERE " + column + "="
                                               + std::to_string(itemID) + " AND NotificationType="
                                               + std::to_string(channel) + " ORDER BY ClientNotificationID;");
         !row.atEnd(); row.moveNext()) {
        const ItemClient rowClient{row.integer("CompanyIDNum"), row.integer("ContactIDNum")};
        if (rowClient == client)
            return row.integer("ClientNotificationID");
        // Rows of a database that kept no client count for any.
        if (!mayHaveBeenSent(row) || !rowClient.exists())
            found = row.integer("ClientNotificationID");
    }
    return found;
}

std::int32_t NotificationLedger::createEmailNotification(std::int16_t kind, std::int32_t itemID, Date date,
                                                         std::int32_t, std::int32_t, std::int32_t)
{
    return create(kind, itemID, email, date);
}

std::int32_t NotificationLedger::createFaxNotification(std::int16_t kind, std::int32_t itemID, Date date, std::int32_t,
                                                       std::int32_t, std::int32_t)
{
    return create(kind, itemID, fax, date);
}

std::int32_t NotificationLedger::createPhoneNotification(std::int16_t kind, std::int32_t itemID, Date date,
                                                         std::int32_t, std::int32_t, std::int32_t)
{
    return create(kind, itemID, phone, date);
}

std::int32_t NotificationLedger::createLetterNotification(std::int16_t kind, std::int32_t itemID, Date date,
                                                          std::int32_t, std::int32_t, std::int32_t)
{
    return create(kind, itemID, letter, date);
}

void NotificationLedger::linkNotification(std::int16_t kind, std::int32_t notificationID, std::int32_t itemID)
{
    const std::string_view column = itemColumn(kind);
    Rows row = Rows::change(*database_, notificationByKey(notificationID));
    if (row.isEmpty())
        return;
    row.set(column, std::to_string(itemID));
    if (!mayHaveBeenSent(row)) {
        const NotifiedItem item = itemOf(*database_, kind, itemID);
        setClient(row, item.client);
        keepAhead(row, item);
        rearm(row);
    }
    row.close();
}

void NotificationLedger::setEmailNotificationDate(std::int16_t, std::int16_t, std::int32_t notificationID, Date date,
                                                  std::int32_t)
{
    setDate(notificationID, date);
}

void NotificationLedger::setFaxNotificationDate(std::int16_t, std::int16_t, std::int32_t notificationID, Date date,
                                                std::int32_t)
{
    setDate(notificationID, date);
}

void NotificationLedger::setPhoneNotificationDate(std::int16_t, std::int16_t, std::int32_t notificationID, Date date,
                                                  std::int32_t)
{
    setDate(notificationID, date);
}

void NotificationLedger::setLetterNotificationDate(std::int16_t, std::int16_t, std::int32_t notificationID, Date date,
                                                   std::int32_t)
{
    setDate(notificationID, date);
}

void NotificationLedger::deleteNotification(std::int32_t notificationID)
{
    Rows row = Rows::change(*database_, notificationByKey(notificationID));
    if (!row.isEmpty() && !mayHaveBeenSent(row))
        row.deleteCurrent();
    row.close();
}

std::int32_t NotificationLedger::create(std::int16_t kind, std::int32_t itemID, std::uint8_t channel, Date date)
{
    const std::string_view column = itemColumn(kind);
    const ItemClient client = itemOf(*database_, kind, itemID).client;
    return addRow(*database_, "ClientNotification",
                  {{column, std::to_string(itemID)},
                   {"NotificationType", std::to_string(channel)},
                   {"NotificationDate", defaultDateText(date)},
                   {"NotificationSent", booleanText(false)},
                   {"CompanyIDNum", std::to_string(client.companyID)},
                   {"ContactIDNum", std::to_string(client.contactID)}});
}

void NotificationLedger::setDate(std::int32_t notificationID, Date date)
{
    Rows row = Rows::change(*database_, notificationByKey(notificationID));
    if (row.isEmpty())
        return;
    row.set("NotificationDate", defaultDateText(date));
    rearm(row);
    row.close();
}

} // namespace qncal::host
