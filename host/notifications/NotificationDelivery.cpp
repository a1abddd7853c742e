#include "notifications/NotificationDelivery.h"

#include "core/AutoNotifyService.h"
#include "notifications/Correspondent.h"
#include "notifications/letterFile.h"
#include "notifications/notificationText.h"
#include "services/Rows.h"
#include "utilities/Clock.h"
#include "utilities/dateText.h"

#include <algorithm>
#include <random>

namespace qncal::host {

namespace {

constexpr std::int64_t secondsPerMinute = 60;

std::string byKey(std::int32_t id)
{
    return "SELECT ClientNotification.* FROM ClientNotification WHERE ClientNotificationID=" + std::to_string(id) + ";";
}

std::string numberOf(DeliveryState state) { return std::to_string(static_cast<std::int32_t>(state)); }

DeliveryState stateOf(const Rows& row) { return static_cast<DeliveryState>(row.integer("DeliveryState", 0)); }

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

/// What is to be done with a waiting notification whose day has come.
void planWaiting(Delivery& delivery, const Rows& row, Date moment)
{
    if (delivery.item.kind == enumLocalCalendarUnknownItem)
        return setStep(delivery, DeliveryStep::cancelled, "the item is gone");
    if (delivery.item.start <= moment)
        return setStep(delivery, DeliveryStep::tooLate,
                       "the item began on " + formatDate(delivery.item.start, "mmm d, yyyy \"at\" h:nn am/pm"));
    if (delivery.channel == AutoNotifyService::fax || delivery.channel == AutoNotifyService::phone)
        return setStep(delivery, DeliveryStep::byHand, {});
    const Variant next = row.field("NextAttemptDate");
    if (!next.isNull() && next.toDate() > moment)
        return setStep(delivery, DeliveryStep::later,
                       row.text("LastError") + "; next attempt " + formatDate(next.toDate(), "mmm d, yyyy h:nn am/pm"));
    setStep(delivery, DeliveryStep::attempt, {});
}

void planSending(Delivery& delivery, const Rows& row, Date moment)
{
    const Variant begun = row.field("AttemptDate");
    const auto limit = NotificationDelivery::attemptLimitMinutes * secondsPerMinute;
    if (!begun.isNull() && begun.toDate().addSeconds(limit) > moment)
        return setStep(delivery, DeliveryStep::later, "it is being sent");
    setStep(delivery, DeliveryStep::unknown, "an attempt was begun and not ended");
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
    if (!database_->isConnected())
        return deliveries;
    const Date moment = now();
    for (const DeliveryState state : {DeliveryState::sending, DeliveryState::unknown, DeliveryState::waiting})
        readState(state, moment, deliveries);
    return deliveries;
}

void NotificationDelivery::readState(DeliveryState state, Date moment, std::vector<Delivery>& deliveries) const
{
    const std::string tomorrow = database_->getSQLDate(moment.dateOnly().addDays(1));
    for (Rows row = Rows::read(*database_, "SELECT ClientNotification.* FROM ClientNotification WHERE DeliveryState = "
                                               + numberOf(state) + " AND NotificationDate < #" + tomorrow
                                               + "# AND NotificationSent = False ORDER BY NotificationDate, "
                                                 "ClientNotificationID;");
         !row.atEnd(); row.moveNext()) {
        Delivery delivery{row.integer("ClientNotificationID"), row.integer("NotificationType", 0)};
        const auto [kind, itemID] = itemOf(row);
        if (kind != enumLocalCalendarUnknownItem)
            delivery.item = readNotifiedItem(*database_, kind, itemID).value_or(NotifiedItem{});
        const Correspondent client = readClient(*database_, delivery.item.client);
        delivery.client = client.name;
        delivery.person = client.person;
        delivery.attempts = row.integer("Attempts", 0);
        if (delivery.channel == AutoNotifyService::email)
            delivery.recipient = client.email;
        else if (delivery.channel == AutoNotifyService::fax)
            delivery.recipient = client.fax;
        else if (delivery.channel == AutoNotifyService::phone)
            delivery.recipient = client.phone;

        if (state == DeliveryState::waiting)
            planWaiting(delivery, row, moment);
        else if (state == DeliveryState::sending)
            planSending(delivery, row, moment);
        else
            setStep(delivery, DeliveryStep::unknown, row.text("LastError"));
        deliveries.push_back(std::move(delivery));
    }
}

std::vector<Delivery> NotificationDelivery::run()
{
    std::vector<Delivery> deliveries = plan();
    for (Delivery& delivery : deliveries)
        act(delivery);
    return deliveries;
}

void NotificationDelivery::act(Delivery& delivery)
{
    switch (delivery.step) {
    case DeliveryStep::attempt:
        return delivery.channel == AutoNotifyService::letter ? writeLetter(delivery) : sendMail(delivery);
    case DeliveryStep::tooLate:
        return close(delivery, DeliveryState::tooLate);
    case DeliveryStep::cancelled:
        return close(delivery, DeliveryState::cancelled);
    case DeliveryStep::unknown:
        return close(delivery, DeliveryState::unknown);
    default:
        break;
    }
}

void NotificationDelivery::sendMail(Delivery& delivery)
{
    if (!means_.mail)
        return setStep(delivery, DeliveryStep::later, "no mail server is set");
    if (delivery.recipient.empty())
        return fail(delivery, "the client has no e-mail address");
    if (!isMailAddress(delivery.recipient))
        return fail(delivery, "the client's e-mail address is none");
    const std::string messageID = beginAttempt(delivery);
    if (messageID.empty())
        return setStep(delivery, DeliveryStep::later, "it has been changed meanwhile");
    const Correspondent client = readClient(*database_, delivery.item.client);
    const NotificationText text = notificationText(delivery.item, client, readFirm(*database_));
    const MailMessage message{means_.sender, {client.person.empty() ? client.name : client.person, delivery.recipient},
                              text.subject,  plainText(text),
                              messageID,     now()};
    endAttempt(delivery, means_.mail->send(message));
}

/// Written over when it is there already: the file, unlike a message, can be made twice without anybody noticing.
void NotificationDelivery::writeLetter(Delivery& delivery)
{
    if (means_.letterFolder.empty())
        return setStep(delivery, DeliveryStep::byHand, {});
    const Correspondent client = readClient(*database_, delivery.item.client);
    if (client.name.empty())
        return fail(delivery, "the client is gone");
    const Correspondent firm = readFirm(*database_);
    const std::filesystem::path file = means_.letterFolder / ("letter-" + std::to_string(delivery.id) + ".html");
    delivery.recipient = file.string();
    if (const std::string why =
            writeLetterFile(file, letterDocument(notificationText(delivery.item, client, firm), client, firm, now()));
        !why.empty())
        return fail(delivery, why);
    markSent(delivery.id);
    setStep(delivery, DeliveryStep::sent, {});
}

std::string NotificationDelivery::beginAttempt(const Delivery& delivery)
{
    std::string messageID;
    {
        Rows row = Rows::change(*database_, byKey(delivery.id));
        if (row.isEmpty() || stateOf(row) != DeliveryState::waiting || row.boolean("NotificationSent"))
            return {};
        messageID = row.text("MessageID");
        if (messageID.empty())
            messageID = newMessageID(delivery.id, means_.sender.address);
        row.set("MessageID", messageID);
        row.set("Recipient", delivery.recipient);
        row.set("Attempts", std::to_string(delivery.attempts + 1));
        row.set("AttemptDate", defaultDateText(now()));
        row.set("DeliveryState", numberOf(DeliveryState::sending));
        row.close();
    }
    // A read throws when the writes before it cannot be stored: nothing leaves that is not on record.
    const Rows row = Rows::read(*database_, byKey(delivery.id));
    return !row.isEmpty() && stateOf(row) == DeliveryState::sending ? messageID : std::string();
}

void NotificationDelivery::endAttempt(Delivery& delivery, const MailResult& result)
{
    if (result.outcome == MailResult::Outcome::failed)
        return fail(delivery, result.reason);
    ++delivery.attempts;
    if (result.outcome == MailResult::Outcome::sent) {
        markSent(delivery.id);
        return setStep(delivery, DeliveryStep::sent, {});
    }
    setStep(delivery, DeliveryStep::unknown, result.reason);
    close(delivery, DeliveryState::unknown);
}

void NotificationDelivery::fail(Delivery& delivery, const std::string& reason)
{
    ++delivery.attempts;
    setStep(delivery, DeliveryStep::failed, reason);
    Rows row = Rows::change(*database_, byKey(delivery.id));
    if (row.isEmpty() || row.boolean("NotificationSent"))
        return;
    const Date moment = now();
    row.set("Attempts", std::to_string(delivery.attempts));
    row.set("AttemptDate", defaultDateText(moment));
    row.set("NextAttemptDate", defaultDateText(nextAttempt(moment, delivery.attempts)));
    row.set("LastError", reason);
    row.set("DeliveryState", numberOf(DeliveryState::waiting));
    row.close();
}

void NotificationDelivery::close(const Delivery& delivery, DeliveryState state)
{
    Rows row = Rows::change(*database_, byKey(delivery.id));
    if (row.isEmpty())
        return;
    row.set("DeliveryState", numberOf(state));
    row.set("LastError", delivery.reason);
    row.close();
}

bool NotificationDelivery::markSent(std::int32_t id)
{
    Rows row = Rows::change(*database_, byKey(id));
    if (row.isEmpty() || row.boolean("NotificationSent"))
        return false;
    row.set("NotificationSent", booleanText(true));
    row.set("DeliveryState", numberOf(DeliveryState::sent));
    row.set("SentDate", defaultDateText(now()));
    row.set("LastError", {});
    row.close();
    return true;
}

bool NotificationDelivery::tryAgain(std::int32_t id)
{
    Rows row = Rows::change(*database_, byKey(id));
    if (row.isEmpty() || row.boolean("NotificationSent"))
        return false;
    row.set("DeliveryState", numberOf(DeliveryState::waiting));
    row.set("NextAttemptDate", {});
    row.close();
    return true;
}

Date NotificationDelivery::nextAttempt(Date lastAttempt, std::int32_t attempts)
{
    constexpr std::int64_t longest = 24 * 60;
    std::int64_t minutes = 5;
    for (std::int32_t i = 1; i < attempts && minutes < longest; ++i)
        minutes *= 4;
    return lastAttempt.addSeconds(std::min(minutes, longest) * secondsPerMinute);
}

} // namespace qncal::host
