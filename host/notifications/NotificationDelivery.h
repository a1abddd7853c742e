#pragma once

#include "core/DatabaseService.h"
#include "notifications/Correspondent.h"
#include "notifications/DeliveryLock.h"
#include "notifications/MailTransport.h"
#include "services/DeliveryState.h"
#include "services/notifiedItem.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace qncal::host {

class Rows;

/// What delivery does, or did, with one notification.
enum class DeliveryStep : std::uint8_t {
    attempt,   ///< an e-mail to send or a letter to write
    byHand,    ///< a fax or a call, for a person to do
    later,     ///< waiting to be tried again, or being sent at this moment
    sent,      ///< also: the letter is written
    failed,    ///< will be tried again
    tooLate,   ///< the item has begun
    cancelled, ///< the item is gone, or another notification tells the same
    unknown,   ///< may have been sent; nobody sends it again unless told to
};

/// A notification whose day has come.
struct Delivery {
    std::int32_t id = -1;
    std::int32_t channel = 0;
    NotifiedItem item;
    DeliveryStep step = DeliveryStep::later;
    /// Who gets it: the client, and the person there.
    std::string client;
    std::string person;
    /// The e-mail address, the number of fax or telephone, or the file of the letter.
    std::string recipient;
    std::int32_t attempts = 0;
    /// Why it failed, comes later, is too late, cancelled or unknown, and what a person lacks to do it by hand.
    std::string reason;
};

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
    /// An attempt that is older than this was left behind by a process that died.
    static constexpr int attemptLimitMinutes = 15;

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

    /// What `run` would do with all the means, those under way or of unknown outcome first, then in the order of the
    /// days; changes nothing.
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

    /// Five minutes after the first attempt, then four times as long each time, at most a day.
    static Date nextAttempt(Date lastAttempt, std::int32_t attempts);

private:
    /// A delivery and whom it goes to.
    struct Task {
        Delivery delivery;
        std::optional<Correspondent> client;
    };

    std::vector<std::int32_t> openNotifications() const;
    /// Nothing when it is settled or deleted.
    std::optional<Task> examine(std::int32_t id) const;
    void planWaiting(Task& task, const Rows& row) const;
    void act(Task& task);
    void sendMail(Task& task);
    void writeLetter(Task& task);
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
