#include "notifications/NotificationDelivery.h"

#include "core/AutoNotifyService.h"
#include "notifications/letterFile.h"
#include "notifications/notificationText.h"
#include "services/NotificationLedger.h"
#include "services/Rows.h"
#include "utilities/Clock.h"
#include "utilities/RunTimeError.h"
#include "utilities/dateText.h"

#include <algorithm>
#include <random>

namespace qncal::host {

namespace {

constexpr std::int64_t secondsPerMinute = 60;
constexpr std::int64_t longestWaitMinutes = 24 * 60;

std::string byKey(std::int32_t id)
{
    return "SELECT ClientNotification.* FROM ClientNotification WHERE ClientNotificationID=" + std::to_string(id) + ";";
}

std::string numberOf(DeliveryState state) { return std::to_string(static_cast<std::int32_t>(state)); }

/// What another host has sent has no state of ours.
DeliveryState stateOf(const Rows& row)
{
    const auto state = static_cast<DeliveryState>(row.integer("DeliveryState", 0));
    return state == DeliveryState::waiting && row.boolean("NotificationSent") ? DeliveryState::sent : state;
}

/// The kind and the id of a row's item; an unknown kind when the row has none.
std::pair<enumLocalCalendarItemType, std::int32_t> itemOf(const Rows& row)
{
    for (const auto kind : {enumLocalCalendarAppointmentItem, enumLocalCalendarTaskItem, enumLocalCalendarDocketItem}) {
        if (const std::int32_t id = row.integer(itemColumn(kind)); id >= 0)
            return {kind, id};
    }
    return {enumLocalCalendarUnknownItem, -1};
}

void setStep(Delivery& delivery, DeliveryStep step, std::string reason)
{
    delivery.step = step;
    delivery.reason = std::move(reason);
}

void setState(Rows& row, DeliveryState state)
{
    const bool mayHaveBeenSent =
        state == DeliveryState::sending || state == DeliveryState::sent || state == DeliveryState::unknown;
    row.set("NotificationSent", booleanText(mayHaveBeenSent));
    row.set("DeliveryState", numberOf(state));
}

void setSent(Rows& row)
{
    setState(row, DeliveryState::sent);
    row.set("SentDate", defaultDateText(now()));
    row.set("LastError", {});
}

/// An attempt of the future was begun before the clock was put back.
bool isUnderWay(const Rows& row, Date moment)
{
    const Variant begun = row.field("AttemptDate");
    const auto limit = NotificationDelivery::attemptLimitMinutes * secondsPerMinute;
    return stateOf(row) == DeliveryState::sending && !begun.isNull() && begun.toDate() <= moment
           && begun.toDate().addSeconds(limit) > moment;
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
    if (!delivery.recipient.empty() || delivery.channel == AutoNotifyService::letter)
        return {};
    if (delivery.channel == AutoNotifyService::email)
        return "the client has no e-mail address";
    return delivery.channel == AutoNotifyService::fax ? "the client has no fax number"
                                                      : "the client has no telephone number";
}

/// Unique among all messages of all machines: the sender's domain says whose they are.
std::string newMessageID(std::int32_t notification, const std::string& sender)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::random_device device;
    std::string id = "notification-" + std::to_string(notification) + ".";
    for (int i = 0; i < 24; ++i)
        id += digits[device() % digits.size()];
    const std::size_t at = sender.find('@');
    return id + (at == std::string::npos ? "@localhost" : sender.substr(at));
}

} // namespace

std::vector<Delivery> NotificationDelivery::plan() const
{
    std::vector<Delivery> deliveries;
    for (const std::int32_t id : openNotifications()) {
        if (auto task = examine(id))
            deliveries.push_back(std::move(task->delivery));
    }
    return deliveries;
}

std::vector<Delivery> NotificationDelivery::run(const DeliveryLock& lock)
{
    if (!lock.isHeld())
        throw RunTimeError(errorNumber::invalidProcedureCall, "Notifications are delivered under the lock alone");
    trouble_.clear();
    std::vector<Delivery> deliveries;
    for (const std::int32_t id : openNotifications()) {
        if (auto task = examine(id)) {
            act(*task);
            deliveries.push_back(std::move(task->delivery));
        }
    }
    return deliveries;
}

std::vector<std::int32_t> NotificationDelivery::openNotifications() const
{
    std::vector<std::int32_t> ids;
    if (!database_->isConnected())
        return ids;
    const std::string tomorrow = database_->getSQLDate(today().addDays(1));
    for (const DeliveryState state : {DeliveryState::sending, DeliveryState::unknown, DeliveryState::waiting}) {
        for (Rows row = Rows::read(*database_, "SELECT ClientNotification.* FROM ClientNotification WHERE "
                                               "DeliveryState = "
                                                   + numberOf(state) + " AND NotificationDate < #" + tomorrow
                                                   + "# ORDER BY NotificationDate, ClientNotificationID;");
             !row.atEnd(); row.moveNext()) {
            if (stateOf(row) == state)
                ids.push_back(row.integer("ClientNotificationID"));
        }
    }
    return ids;
}

std::optional<NotificationDelivery::Task> NotificationDelivery::examine(std::int32_t id) const
{
    const Rows row = Rows::read(*database_, byKey(id));
    if (row.isEmpty())
        return std::nullopt;
    Task task;
    Delivery& delivery = task.delivery;
    delivery.id = id;
    delivery.channel = row.integer("NotificationType", 0);
    delivery.attempts = row.integer("Attempts", 0);
    if (const auto [kind, itemID] = itemOf(row); kind != enumLocalCalendarUnknownItem)
        delivery.item = readNotifiedItem(*database_, kind, itemID).value_or(NotifiedItem{});
    task.client = readClient(*database_, delivery.item.client);
    if (task.client) {
        delivery.client = task.client->name;
        delivery.person = task.client->person;
        delivery.recipient = addressFor(delivery.channel, *task.client);
    }

    switch (stateOf(row)) {
    case DeliveryState::waiting:
        planWaiting(task, row);
        return task;
    case DeliveryState::sending:
        if (isUnderWay(row, now()))
            setStep(delivery, DeliveryStep::later, "it is being sent");
        else
            setStep(delivery, DeliveryStep::unknown, "an attempt was begun and not ended");
        return task;
    case DeliveryState::unknown:
        setStep(delivery, DeliveryStep::unknown, row.text("LastError"));
        return task;
    default:
        return std::nullopt;
    }
}

/// What is to be done with a waiting notification whose day has come.
void NotificationDelivery::planWaiting(Task& task, const Rows& row) const
{
    Delivery& delivery = task.delivery;
    const Date moment = now();
    if (delivery.item.kind == enumLocalCalendarUnknownItem)
        return setStep(delivery, DeliveryStep::cancelled, "the item is gone");
    if (delivery.item.start <= moment)
        return setStep(delivery, DeliveryStep::tooLate,
                       "the item began on " + formatDate(delivery.item.start, "mmm d, yyyy \"at\" h:nn am/pm"));
    // Two programs that save an item at the same moment may both have made a row.
    const std::int32_t valid = NotificationLedger(database_).getNotificationID(
        static_cast<std::int16_t>(delivery.item.kind), delivery.item.id, static_cast<std::uint8_t>(delivery.channel));
    if (valid != delivery.id)
        return setStep(delivery, DeliveryStep::cancelled, "notification " + std::to_string(valid) + " tells the same");
    if (delivery.channel == AutoNotifyService::fax || delivery.channel == AutoNotifyService::phone)
        return setStep(delivery, DeliveryStep::byHand, obstacle(delivery, task.client));
    const Variant next = row.field("NextAttemptDate");
    const bool waits = !next.isNull()
                       && next.toDate() > moment
                       // Further ahead only since the clock was put back.
                       && next.toDate() <= moment.addSeconds(longestWaitMinutes * secondsPerMinute)
                       && row.text("Recipient") == delivery.recipient;
    if (waits)
        return setStep(delivery, DeliveryStep::later,
                       row.text("LastError") + "; next attempt " + formatDate(next.toDate(), "mmm d, yyyy h:nn am/pm"));
    setStep(delivery, DeliveryStep::attempt, {});
}

void NotificationDelivery::act(Task& task)
{
    switch (task.delivery.step) {
    case DeliveryStep::attempt:
        if (const std::string why = obstacle(task.delivery, task.client); !why.empty())
            return fail(task.delivery, why);
        return task.delivery.channel == AutoNotifyService::letter ? writeLetter(task) : sendMail(task);
    case DeliveryStep::tooLate:
        return close(task.delivery, DeliveryState::tooLate);
    case DeliveryStep::cancelled:
        return close(task.delivery, DeliveryState::cancelled);
    case DeliveryStep::unknown:
        return close(task.delivery, DeliveryState::unknown);
    default:
        break;
    }
}

void NotificationDelivery::sendMail(Task& task)
{
    Delivery& delivery = task.delivery;
    if (!means_.mail)
        return setStep(delivery, DeliveryStep::later, "no mail server is set");
    if (!trouble_.empty())
        return setStep(delivery, DeliveryStep::later, "the mail server is not there");
    if (!isMailAddress(delivery.recipient))
        return fail(delivery, "the client's e-mail address is none");
    const std::string messageID = beginAttempt(delivery);
    if (messageID.empty())
        return setStep(delivery, DeliveryStep::later, "it has been changed meanwhile");
    const NotificationText text = notificationText(delivery.item, *task.client, readFirm(*database_));
    const std::string& name = task.client->person.empty() ? task.client->name : task.client->person;
    endAttempt(delivery,
               means_.mail->send(
                   {means_.sender, {name, delivery.recipient}, text.subject, plainText(text), messageID, now()}));
}

/// Written over when it is there already: the file, unlike a message, can be made twice without anybody noticing.
void NotificationDelivery::writeLetter(Task& task)
{
    Delivery& delivery = task.delivery;
    if (means_.letterFolder.empty())
        return setStep(delivery, DeliveryStep::byHand, {});
    const Correspondent firm = readFirm(*database_);
    const std::filesystem::path file = means_.letterFolder / ("letter-" + std::to_string(delivery.id) + ".html");
    const NotificationText text = notificationText(delivery.item, *task.client, firm);
    if (const std::string why = writeLetterFile(file, letterDocument(text, *task.client, firm, now())); !why.empty())
        return fail(delivery, why);
    ++delivery.attempts;
    delivery.recipient = file.string();
    noteSent(delivery);
}

std::string NotificationDelivery::beginAttempt(const Delivery& delivery)
{
    std::string messageID;
    {
        Rows row = Rows::change(*database_, byKey(delivery.id));
        if (row.isEmpty() || stateOf(row) != DeliveryState::waiting)
            return {};
        messageID = row.text("MessageID");
        if (messageID.empty())
            messageID = newMessageID(delivery.id, means_.sender.address);
        row.set("MessageID", messageID);
        row.set("Recipient", delivery.recipient);
        row.set("CompanyIDNum", std::to_string(delivery.item.client.companyID));
        row.set("ContactIDNum", std::to_string(delivery.item.client.contactID));
        row.set("Attempts", std::to_string(delivery.attempts + 1));
        row.set("AttemptDate", defaultDateText(now()));
        setState(row, DeliveryState::sending);
        row.close();
    }
    // A read throws when the writes before it cannot be stored: nothing leaves that is not on record.
    if (Rows::read(*database_, byKey(delivery.id)).isEmpty())
        return {};
    if (means_.secureRecord)
        means_.secureRecord();
    return messageID;
}

void NotificationDelivery::endAttempt(Delivery& delivery, const MailResult& result)
{
    switch (result.outcome) {
    case MailResult::Outcome::sent:
        ++delivery.attempts;
        return noteSent(delivery);
    case MailResult::Outcome::unreachable:
        trouble_ = result.reason;
        return fail(delivery, result.reason);
    case MailResult::Outcome::failed:
        return fail(delivery, result.reason);
    case MailResult::Outcome::unknown:
        ++delivery.attempts;
        setStep(delivery, DeliveryStep::unknown, result.reason);
        return close(delivery, DeliveryState::unknown);
    }
}

void NotificationDelivery::fail(Delivery& delivery, const std::string& reason)
{
    ++delivery.attempts;
    setStep(delivery, DeliveryStep::failed, reason);
    Rows row = Rows::change(*database_, byKey(delivery.id));
    if (row.isEmpty() || stateOf(row) == DeliveryState::sent)
        return;
    const Date moment = now();
    row.set("Recipient", delivery.recipient);
    row.set("Attempts", std::to_string(delivery.attempts));
    row.set("AttemptDate", defaultDateText(moment));
    row.set("NextAttemptDate", defaultDateText(nextAttempt(moment, delivery.attempts)));
    row.set("LastError", reason);
    setState(row, DeliveryState::waiting);
    row.close();
}

void NotificationDelivery::noteSent(Delivery& delivery)
{
    setStep(delivery, DeliveryStep::sent, {});
    Rows row = Rows::change(*database_, byKey(delivery.id));
    if (row.isEmpty())
        return;
    row.set("Recipient", delivery.recipient);
    row.set("Attempts", std::to_string(delivery.attempts));
    setSent(row);
    row.close();
}

void NotificationDelivery::close(const Delivery& delivery, DeliveryState state)
{
    Rows row = Rows::change(*database_, byKey(delivery.id));
    if (row.isEmpty() || stateOf(row) == DeliveryState::sent)
        return;
    setState(row, state);
    row.set("LastError", delivery.reason);
    row.close();
}

Settlement NotificationDelivery::canSettle(std::int32_t id) const
{
    const Rows row = Rows::read(*database_, byKey(id));
    if (row.isEmpty())
        return Settlement::noSuch;
    if (stateOf(row) == DeliveryState::sent)
        return Settlement::sentAlready;
    return isUnderWay(row, now()) ? Settlement::beingSent : Settlement::done;
}

Settlement NotificationDelivery::markSent(std::int32_t id)
{
    const Settlement settlement = canSettle(id);
    if (settlement != Settlement::done)
        return settlement;
    Rows row = Rows::change(*database_, byKey(id));
    setSent(row);
    row.close();
    return settlement;
}

Settlement NotificationDelivery::tryAgain(std::int32_t id)
{
    const Settlement settlement = canSettle(id);
    if (settlement != Settlement::done)
        return settlement;
    Rows row = Rows::change(*database_, byKey(id));
    setState(row, DeliveryState::waiting);
    row.set("NextAttemptDate", {});
    row.close();
    return settlement;
}

Date NotificationDelivery::nextAttempt(Date lastAttempt, std::int32_t attempts)
{
    std::int64_t minutes = 5;
    for (std::int32_t i = 1; i < attempts && minutes < longestWaitMinutes; ++i)
        minutes *= 4;
    return lastAttempt.addSeconds(std::min(minutes, longestWaitMinutes) * secondsPerMinute);
}

} // namespace qncal::host
