#pragma once

#include "core/DatabaseService.h"
#include "notifications/Correspondent.h"
#include "services/notifiedItem.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
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

void setStep(Delivery& delivery, DeliveryStep step, std::string reason = {});

/// A delivery and whom it goes to.
struct DeliveryTask {
    Delivery delivery;
    /// Nobody when the client is gone, or the item has none.
    std::optional<Correspondent> client;
};

/// The notifications whose day has come and that are not settled: those under way or of unknown outcome first, then
/// in the order of the days.
std::vector<std::int32_t> openNotifications(DatabaseService& database);

/// What is to be done with a notification at this moment. Nothing when it is settled or deleted.
std::optional<DeliveryTask> planDelivery(const std::shared_ptr<DatabaseService>& database, std::int32_t id);

/// True for an attempt that may still come to its end; an older one was left behind by a process that died.
bool isUnderWay(const Rows& row, Date moment);

/// Five minutes after the first attempt, then four times as long each time, at most a day.
Date nextAttempt(Date lastAttempt, std::int32_t attempts);

} // namespace qncal::host
