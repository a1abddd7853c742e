#pragma once

#include "core/DatabaseService.h"
#include "core/enumerations.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace qncal::firmcal {

/// How one of the five statuses of a kind is named and shown.
struct StatusField {
    std::string name;
    /// Red in the low byte; none when the status is shown without a colour.
    std::optional<std::int32_t> colour;
    /// The number of a status icon; none when the status is shown without one.
    std::optional<std::int32_t> icon;
};
using StatusFields = std::array<StatusField, 5>;

/// Whether there is a status icon of that number.
bool isStatusIcon(std::int32_t number);

/// All empty while the database has no row of them.
StatusFields statusFields(DatabaseService& database, enumLocalCalendarItemType kind);

} // namespace qncal::firmcal
