#pragma once

#include "core/DatabaseService.h"
#include "core/enumerations.h"
#include "utilities/Date.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace qncal::host {
class ClientDropDown;
}

namespace qncal::firmcal {

/// Which items a list shows. What is not set does not restrict.
struct ItemFilter {
    std::vector<enumLocalCalendarItemType> kinds;
    std::optional<Date> from;
    std::optional<Date> to;
    std::optional<std::int32_t> userID;
    std::optional<std::int32_t> companyID;
    std::optional<std::int32_t> contactID;
    /// A text that the subject contains.
    std::string subject;
    /// The archive of tasks instead of the items themselves.
    bool archived = false;
};

/// An item as it stands in a list.
struct ItemRow {
    enumLocalCalendarItemType kind = enumLocalCalendarUnknownItem;
    std::int32_t id = -1;
    Date date;
    Date timeFrom;
    Date timeTo;
    std::string subject;
    std::int32_t userID = -1;
    std::int32_t companyID = -1;
    std::int32_t contactID = -1;
    /// The columns `Status1` to `Status5`.
    std::array<bool, 5> statuses{};
    /// The item's own colours, red in the low byte; none where the column holds no number.
    std::optional<std::int32_t> backColour;
    std::optional<std::int32_t> foreColour;
    std::optional<std::int32_t> titleBackColour;
};

/// In order of date, start and kind.
std::vector<ItemRow> readItems(DatabaseService& database, const ItemFilter& filter);

/// "09:00-10:00"
std::string timesText(const ItemRow& row);
std::string clientName(host::ClientDropDown& clients, std::int32_t companyID, std::int32_t contactID);

} // namespace qncal::firmcal
