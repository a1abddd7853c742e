#pragma once

#include <cstdint>
#include <string>

namespace qncal::host {

class Rows;

/// What became of a notification: the numbers of the column `DeliveryState`. `NotificationSent` is True in `sending`,
/// `sent` and `unknown`: what may have been sent counts as sent for everybody who cancels notifications.
enum class DeliveryState : std::int32_t {
    waiting = 0,
    sending = 1,   ///< an attempt has begun; when nobody ends it, its outcome is unknown
    sent = 2,      ///< or written, or called, as the channel has it
    tooLate = 3,   ///< the item had begun before the client could be told
    unknown = 4,   ///< the message may have been sent: somebody has to look
    cancelled = 5, ///< the item is gone, or another notification tells the same
};

/// The SELECT of a row of `ClientNotification`.
std::string notificationByKey(std::int32_t id);

/// What another host has sent has no state of ours and counts as `sent`.
DeliveryState deliveryStateOf(const Rows& row);
/// Writes the state with the mark that belongs to it.
void setDeliveryState(Rows& row, DeliveryState state);

} // namespace qncal::host
