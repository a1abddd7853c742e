#include "firmcal/itemRowJson.h"

#include "common/itemKind.h"
#include "common/valueText.h"
#include "services/ClientDropDown.h"

#include <nlohmann/json.hpp>

namespace qncal::firmcal {

nlohmann::ordered_json rowJson(const ItemRow& row, host::ClientDropDown& clients)
{
    return {{"kind", kindWord(row.kind)},
            {"itemID", row.id},
            {"DateFrom", dayText(row.date)},
            {"TimeFrom", timeText(row.timeFrom)},
            {"TimeTo", timeText(row.timeTo)},
            {"Subject", row.subject},
            {"userIDNum", row.userID},
            {"user", clients.getUserName(row.userID)},
            {"companyIDNum", row.companyID},
            {"contactIDNum", row.contactID},
            {"client", clientName(clients, row.companyID, row.contactID)}};
}

} // namespace qncal::firmcal
