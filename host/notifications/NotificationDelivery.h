#pragma once

#include "core/DatabaseService.h"
#include "notifications/DeliveryLock.h"
#include "notifications/MailTransport.h"
#include "notifications/deliveryPlan.h"
#include "services/DeliveryState.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

namespace qncal::host {

/// What became of a person's word on a notification.
enum class Settlement : std::uint8_t {
    done,
    sentAlready,
    beingSent, ///< at this moment; ask again when it has ended
    noSuch,
};

/// Tells clients about the items ahead of them: sends e-mails, writes letters, and lists faxes and calls, which people
/// make.
///
/// A notification is sent once. Each attempt is on record before it begins: an attempt that nobody ended, because the
/// process died, has an unknown outcome and is for a person to look at. A failure is tried again after a while that
/// grows with the attempts, or at once when the client's address has changed, until the item begins; about what has
/// begun nobody is told any more.
///
/// Item and client are read when their turn comes, so that a change during a long run counts. Failures of the database
/// are thrown as `RunTimeError`.
class NotificationDelivery {
public:
    struct Means {
        /// None leaves the e-mails waiting. Must outlive the delivery.
        MailTransport* mail = nullptr;
        MailAddress sender;
        /// Where letters are written; empty leaves them for people to write.
        std::filesystem::path letterFolder;
        /// Called when an attempt is on record, before it begins: makes the record outlast a loss of power.
        std::function<void()> secureRecord;
    };

    NotificationDelivery(std::shared_ptr<DatabaseService> database, Means means)
        : database_(std::move(database)), means_(std::move(means))
    {
    }

    /// What `run` would do with all the means; changes nothing.
    std::vector<Delivery> plan() const;
    /// Does it, and says what became of each. When the mail server is not there, the other e-mails wait for the next
    /// run. One process delivers at a time: throws `RunTimeError` 5 without the lock.
    std::vector<Delivery> run(const DeliveryLock& lock);

    /// What `markSent` and `tryAgain` would say.
    Settlement canSettle(std::int32_t id) const;
    /// Notes that a person has faxed, called, or seen that an unknown one arrived.
    Settlement markSent(std::int32_t id);
    /// Lets one that failed or is of unknown outcome be tried again at once.
    Settlement tryAgain(std::int32_t id);

private:
    void act(DeliveryTask& task);
    void sendMail(DeliveryTask& task);
    void writeLetter(DeliveryTask& task);
    /// Puts the attempt on record; gives its message id, empty when the row has changed since it was read.
    std::string beginAttempt(const Delivery& delivery);
    void endAttempt(Delivery& delivery, const MailResult& result);
    void fail(Delivery& delivery, const std::string& reason);
    void noteSent(Delivery& delivery);
    void close(const Delivery& delivery, DeliveryState state);

    std::shared_ptr<DatabaseService> database_;
    Means means_;
    /// The mail server's trouble in this run.
    std::string trouble_;
};

} // namespace qncal::host
