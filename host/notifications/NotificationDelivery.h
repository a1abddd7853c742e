#pragma once

#include "core/DatabaseService.h"
#include "notifications/MailTransport.h"
#include "services/DeliveryState.h"
#include "services/notifiedItem.h"

#include <filesystem>
#include <memory>
#include <vector>

namespace qncal::host {

/// What delivery does, or did, with one notification.
enum class DeliveryStep : std::uint8_t {
    attempt,   ///< an e-mail to send or a letter to write
    byHand,    ///< a fax or a call, for a person to do
    later,     ///< waiting to be tried again, or being sent at this moment
    sent,      ///< also: the letter is written
    failed,    ///< will be tried again
    tooLate,   ///< the item has begun
    cancelled, ///< the item is gone
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
    /// Why it failed, comes later, is too late, cancelled or unknown.
    std::string reason;
};

/// Tells clients about the items ahead of them: sends e-mails, writes letters, and lists faxes and calls, which people
/// make.
///
/// A notification is sent once. Each attempt is on record before it begins: an attempt that nobody ended, because the
/// process died, has an unknown outcome and is for a person to look at. A failure is tried again after a while that
/// grows with the attempts, until the item begins; about what has begun nobody is told any more.
///
/// One process delivers at a time. Failures of the database are thrown as `RunTimeError`.
class NotificationDelivery {
public:
    /// An attempt that is older than this was left behind by a process that died.
    static constexpr int attemptLimitMinutes = 15;

    struct Means {
        /// None leaves the e-mails waiting. Must outlive the delivery.
        MailTransport* mail = nullptr;
        MailAddress sender;
        /// Where letters are written; empty leaves them waiting.
        std::filesystem::path letterFolder;
    };

    NotificationDelivery(std::shared_ptr<DatabaseService> database, Means means)
        : database_(std::move(database)), means_(std::move(means))
    {
    }

    /// What `run` would do, in the order of the days; changes nothing.
    std::vector<Delivery> plan() const;
    /// Does it, and says what became of each.
    std::vector<Delivery> run();

    /// Notes that a person has faxed, called, or seen that an unknown one arrived. False when it was sent already or
    /// there is no such notification.
    bool markSent(std::int32_t id);
    /// Lets one that failed or is of unknown outcome be tried again at once. False when it was sent already or there
    /// is no such notification.
    bool tryAgain(std::int32_t id);

    /// Five minutes after the first attempt, then four times as long each time, at most a day.
    static Date nextAttempt(Date lastAttempt, std::int32_t attempts);

private:
    void readState(DeliveryState state, Date moment, std::vector<Delivery>& deliveries) const;
    void act(Delivery& delivery);
    void sendMail(Delivery& delivery);
    void writeLetter(Delivery& delivery);
    /// Puts the attempt on record; gives its message id, empty when the row has changed since it was read.
    std::string beginAttempt(const Delivery& delivery);
    void endAttempt(Delivery& delivery, const MailResult& result);
    void fail(Delivery& delivery, const std::string& reason);
    void close(const Delivery& delivery, DeliveryState state);

    std::shared_ptr<DatabaseService> database_;
    Means means_;
};

} // namespace qncal::host
