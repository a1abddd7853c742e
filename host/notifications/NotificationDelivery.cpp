#include "notifications/NotificationDelivery.h"

#include "core/AutoNotifyService.h"
#include "notifications/letterFile.h"
#include "notifications/notificationText.h"
#include "services/DeliveryState.h"
#include "services/Rows.h"
#include "utilities/Clock.h"
#include "utilities/RunTimeError.h"
#include "utilities/dateText.h"

#include <random>

namespace qncal::host {

namespace {

void setSent(Rows& row)
{
    setDeliveryState(row, DeliveryState::sent);
    row.set("SentDate", defaultDateText(now()));
    row.set("LastError", {});
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
    for (const std::int32_t id : openNotifications(*database_)) {
        if (auto task = planDelivery(database_, id))
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
    for (const std::int32_t id : openNotifications(*database_)) {
        if (auto task = planDelivery(database_, id)) {
            act(*task);
            deliveries.push_back(std::move(task->delivery));
        }
    }
    return deliveries;
}

void NotificationDelivery::act(DeliveryTask& task)
{
    switch (task.delivery.step) {
    case DeliveryStep::attempt:
        if (!task.delivery.reason.empty())
            return fail(task.delivery, task.delivery.reason);
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

void NotificationDelivery::sendMail(DeliveryTask& task)
{
    Delivery& delivery = task.delivery;
    if (!means_.mail)
        return setStep(delivery, DeliveryStep::later, "no mail server is set");
    if (!trouble_.empty())
        return setStep(delivery, DeliveryStep::later, "the mail server is not there");
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
void NotificationDelivery::writeLetter(DeliveryTask& task)
{
    Delivery& delivery = task.delivery;
    if (means_.letterFolder.empty())
        return setStep(delivery, DeliveryStep::byHand);
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
        Rows row = Rows::change(*database_, notificationByKey(delivery.id));
        if (row.isEmpty() || deliveryStateOf(row) != DeliveryState::waiting)
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
        setDeliveryState(row, DeliveryState::sending);
        row.close();
    }
    // A read throws when the writes before it cannot be stored: nothing leaves that is not on record.
    if (Rows::read(*database_, notificationByKey(delivery.id)).isEmpty())
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
    Rows row = Rows::change(*database_, notificationByKey(delivery.id));
    if (row.isEmpty() || deliveryStateOf(row) == DeliveryState::sent)
        return;
    const Date moment = now();
    row.set("Recipient", delivery.recipient);
    row.set("Attempts", std::to_string(delivery.attempts));
    row.set("AttemptDate", defaultDateText(moment));
    row.set("NextAttemptDate", defaultDateText(nextAttempt(moment, delivery.attempts)));
    row.set("LastError", reason);
    setDeliveryState(row, DeliveryState::waiting);
    row.close();
}

void NotificationDelivery::noteSent(Delivery& delivery)
{
    setStep(delivery, DeliveryStep::sent);
    Rows row = Rows::change(*database_, notificationByKey(delivery.id));
    if (row.isEmpty())
        return;
    row.set("Recipient", delivery.recipient);
    row.set("Attempts", std::to_string(delivery.attempts));
    setSent(row);
    row.close();
}

void NotificationDelivery::close(const Delivery& delivery, DeliveryState state)
{
    Rows row = Rows::change(*database_, notificationByKey(delivery.id));
    if (row.isEmpty() || deliveryStateOf(row) == DeliveryState::sent)
        return;
    setDeliveryState(row, state);
    row.set("LastError", delivery.reason);
    row.close();
}

Settlement NotificationDelivery::canSettle(std::int32_t id) const
{
    const Rows row = Rows::read(*database_, notificationByKey(id));
    if (row.isEmpty())
        return Settlement::noSuch;
    if (deliveryStateOf(row) == DeliveryState::sent)
        return Settlement::sentAlready;
    return isUnderWay(row, now()) ? Settlement::beingSent : Settlement::done;
}

Settlement NotificationDelivery::markSent(std::int32_t id)
{
    const Settlement settlement = canSettle(id);
    if (settlement != Settlement::done)
        return settlement;
    Rows row = Rows::change(*database_, notificationByKey(id));
    setSent(row);
    row.close();
    return settlement;
}

Settlement NotificationDelivery::tryAgain(std::int32_t id)
{
    const Settlement settlement = canSettle(id);
    if (settlement != Settlement::done)
        return settlement;
    Rows row = Rows::change(*database_, notificationByKey(id));
    setDeliveryState(row, DeliveryState::waiting);
    row.set("NextAttemptDate", {});
    row.close();
    return settlement;
}

} // namespace qncal::host
