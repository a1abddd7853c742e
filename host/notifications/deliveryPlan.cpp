#include "notifications/deliveryPlan.h"

#include "core/AutoNotifyService.h"
#include "notifications/MailMessage.h"
#include "services/DeliveryState.h"
#include "services/NotificationLedger.h"
#include "services/Rows.h"
#include "services/addMinutes.h"
#include "utilities/Clock.h"
#include "utilities/dateText.h"

#include <algorithm>

namespace qncal::host {

namespace {

constexpr std::int64_t attemptLimitMinutes = 15;
constexpr std::int64_t longestWaitMinutes = 24 * 60;

/// The kind and the id of a row's item; an unknown kind when the row has none.
std::pair<enumLocalCalendarItemType, std::int32_t> itemOf(const Rows& row)
{
    for (const auto kind : {enumLocalCalendarAppointmentItem, enumLocalCalendarTaskItem, enumLocalCalendarDocketItem}) {
        if (const std::int32_t id = row.integer(itemColumn(kind)); id >= 0)
            return {kind, id};
    }
    return {enumLocalCalendarUnknownItem, -1};
}

/// Which of its addresses a client is reached at. Empty for letters, which need more than one line.
std::string addressFor(std::int32_t channel, const Correspondent& client)
{
    switch (channel) {
    case AutoNotifyService::email:
        return client.email;
    case AutoNotifyService::fax:
        return client.fax;
    case AutoNotifyService::phone:
        return client.phone;
    default:
        return {};
    }
}

/// What keeps anybody from telling the client; empty when nothing does.
std::string obstacle(const Delivery& delivery, const std::optional<Correspondent>& client)
{
    if (!client)
        return delivery.item.client.exists() ? "the client is gone" : "the item has no client";
    const bool isEmail = delivery.channel == AutoNotifyService::email;
    if (!delivery.recipient.empty())
        return !isEmail || isMailAddress(delivery.recipient) ? "" : "the client's e-mail address cannot be one";
    if (delivery.channel == AutoNotifyService::letter)
        return {};
    if (isEmail)
        return "the client has no e-mail address";
    return delivery.channel == AutoNotifyService::fax ? "the client has no fax number"
                                                      : "the client has no telephone number";
}

/// What is to be done with a waiting notification whose day has come.
void planWaiting(DeliveryTask& task, const Rows& row, const std::shared_ptr<DatabaseService>& database)
{
    Delivery& delivery = task.delivery;
    const Date moment = now();
    if (delivery.item.kind == enumLocalCalendarUnknownItem)
        return setStep(delivery, DeliveryStep::cancelled, "the item is gone");
    if (delivery.item.start <= moment)
        return setStep(delivery, DeliveryStep::tooLate,
                       "the item began on " + formatDate(delivery.item.start, "mmm d, yyyy \"at\" h:nn am/pm"));
    // Two programs that save an item at the same moment may both have made a row.
    const std::int32_t valid = NotificationLedger(database).getNotificationID(
        static_cast<std::int16_t>(delivery.item.kind), delivery.item.id, static_cast<std::uint8_t>(delivery.channel));
    if (valid != delivery.id)
        return setStep(delivery, DeliveryStep::cancelled, "notification " + std::to_string(valid) + " tells the same");
    if (delivery.channel == AutoNotifyService::fax || delivery.channel == AutoNotifyService::phone)
        return setStep(delivery, DeliveryStep::byHand, obstacle(delivery, task.client));
    const Variant next = row.field("NextAttemptDate");
    const bool waits = !next.isNull()
                       && next.toDate() > moment
                       // Further ahead only since the clock was put back.
                       && next.toDate() <= addMinutes(moment, longestWaitMinutes)
                       && row.text("Recipient") == delivery.recipient;
    if (waits)
        return setStep(delivery, DeliveryStep::later,
                       row.text("LastError") + "; next attempt " + formatDate(next.toDate(), "mmm d, yyyy h:nn am/pm"));
    setStep(delivery, DeliveryStep::attempt, obstacle(delivery, task.client));
}

} // namespace

std::vector<std::int32_t> openNotifications(DatabaseService& database)
{
    std::vector<std::int32_t> ids;
    if (!database.isConnected())
        return ids;
    const std::string tomorrow = database.getSQLDate(today().addDays(1));
    for (const DeliveryState state : {DeliveryState::sending, DeliveryState::unknown, DeliveryState::waiting}) {
        const std::string condition = "DeliveryState = " + std::to_string(static_cast<std::int32_t>(state))
                                      + " AND NotificationDate < #" + tomorrow + "#"
                                      + (state == DeliveryState::waiting ? " AND NotificationSent = False" : "");
        for (Rows row = Rows::read(database, "SELECT ClientNotification.* FROM ClientNotification WHERE " + condition
                                                 + " ORDER BY NotificationDate, ClientNotificationID;");
             !row.atEnd(); row.moveNext())
            ids.push_back(row.integer("ClientNotificationID"));
    }
    return ids;
}

std::optional<DeliveryTask> planDelivery(const std::shared_ptr<DatabaseService>& database, std::int32_t id)
{
    const Rows row = Rows::read(*database, notificationByKey(id));
    if (row.isEmpty())
        return std::nullopt;
    DeliveryTask task;
    Delivery& delivery = task.delivery;
    delivery.id = id;
    delivery.channel = row.integer("NotificationType", 0);
    delivery.attempts = row.integer("Attempts", 0);
    if (const auto [kind, itemID] = itemOf(row); kind != enumLocalCalendarUnknownItem)
        delivery.item = readNotifiedItem(*database, kind, itemID).value_or(NotifiedItem{});
    task.client = readClient(*database, delivery.item.client);
    if (task.client) {
        delivery.client = task.client->name;
        delivery.person = task.client->person;
        delivery.recipient = addressFor(delivery.channel, *task.client);
    }

    switch (deliveryStateOf(row)) {
    case DeliveryState::waiting:
        planWaiting(task, row, database);
        return task;
    case DeliveryState::sending:
        delivery.recipient = row.text("Recipient");
        if (isUnderWay(row, now()))
            setStep(delivery, DeliveryStep::later, "it is being sent");
        else
            setStep(delivery, DeliveryStep::unknown, "an attempt was begun and not ended");
        return task;
    case DeliveryState::unknown:
        delivery.recipient = row.text("Recipient");
        setStep(delivery, DeliveryStep::unknown, row.text("LastError"));
        return task;
    default:
        return std::nullopt;
    }
}

void setStep(Delivery& delivery, DeliveryStep step, std::string reason)
{
    delivery.step = step;
    delivery.reason = std::move(reason);
}

// An attempt of the future was begun before the clock was put back.
bool isUnderWay(const Rows& row, Date moment)
{
    const Variant begun = row.field("AttemptDate");
    return deliveryStateOf(row) == DeliveryState::sending && !begun.isNull() && begun.toDate() <= moment
           && addMinutes(begun.toDate(), attemptLimitMinutes) > moment;
}

Date nextAttempt(Date lastAttempt, std::int32_t attempts)
{
    std::int64_t minutes = 5;
    for (std::int32_t i = 1; i < attempts && minutes < longestWaitMinutes; ++i)
        minutes *= 4;
    return addMinutes(lastAttempt, std::min(minutes, longestWaitMinutes));
}

} // namespace qncal::host
