#pragma once

#include "core/enumerations.h"

#include <array>
#include <string>
#include <string_view>

namespace qncal::firmcal {

inline constexpr std::array allKinds{enumLocalCalendarAppointmentItem, enumLocalCalendarTaskItem,
                                     enumLocalCalendarDocketItem};

/// "appointment", "task", "time entry"
std::string_view kindNoun(enumLocalCalendarItemType kind);
/// "appointments", "tasks", "time entries"
std::string kindNounPlural(enumLocalCalendarItemType kind);
/// As it is written behind `--kind`: "appointment", "task", "docket".
std::string_view kindWord(enumLocalCalendarItemType kind);

} // namespace qncal::firmcal
