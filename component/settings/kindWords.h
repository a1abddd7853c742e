#pragma once

#include "core/enumerations.h"

#include <array>
#include <string_view>

namespace qncal {

/// Texts of a dialog by the kind of item: appointment, task, time entry. An unknown kind has none.
using TextsByKind = std::array<std::string_view, 3>;

constexpr std::string_view textOfKind(const TextsByKind& texts, enumLocalCalendarItemType kind)
{
    return kind >= enumLocalCalendarAppointmentItem && kind <= enumLocalCalendarDocketItem
               ? texts[static_cast<std::size_t>(kind)]
               : std::string_view();
}

/// What begins the names of a kind's columns in the settings tables.
inline constexpr TextsByKind columnPrefixes{"Appt", "Task", "Docket"};

} // namespace qncal
