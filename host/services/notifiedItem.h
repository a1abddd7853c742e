#pragma once

#include "core/DatabaseService.h"
#include "core/enumerations.h"
#include "utilities/Date.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qncal::host {

/// The client of an item, -1 for none: at most one of the two is set.
struct ItemClient {
    std::int32_t companyID = -1;
    std::int32_t contactID = -1;

    bool exists() const { return companyID >= 0 || contactID >= 0; }
    friend bool operator==(const ItemClient&, const ItemClient&) = default;
};

/// What a notification tells of its item.
struct NotifiedItem {
    enumLocalCalendarItemType kind = enumLocalCalendarUnknownItem;
    std::int32_t id = -1;
    std::string subject;
    /// Day and time.
    Date start;
    ItemClient client;
};

/// The column of `ClientNotification` that holds the id of an item of a kind. Throws `RunTimeError` 5 for others.
std::string_view itemColumn(std::int32_t kind);

/// Nothing when the item is gone.
std::optional<NotifiedItem> readNotifiedItem(DatabaseService& database, enumLocalCalendarItemType kind,
                                             std::int32_t id);

} // namespace qncal::host
