#include "services/DeliveryState.h"

#include "services/Rows.h"
#include "utilities/numberText.h"

namespace qncal::host {

std::string notificationByKey(std::int32_t id)
{
    return "SELECT ClientNotification.* FROM ClientNotification WHERE ClientNotificationID=" + std::to_string(id) + ";";
}

DeliveryState deliveryStateOf(const Rows& row)
{
    const auto state = static_cast<DeliveryState>(row.integer("DeliveryState", 0));
    return state == DeliveryState::waiting && row.boolean("NotificationSent") ? DeliveryState::sent : state;
}

void setDeliveryState(Rows& row, DeliveryState state)
{
    const bool mayHaveBeenSent =
        state == DeliveryState::sending || state == DeliveryState::sent || state == DeliveryState::unknown;
    row.set("NotificationSent", booleanText(mayHaveBeenSent));
    row.set("DeliveryState", std::to_string(static_cast<std::int32_t>(state)));
}

} // namespace qncal::host
