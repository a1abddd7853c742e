#pragma once

#include "utilities/Date.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace qncal::firmcal {

/// Values as a user writes them on the command line. A text that is no such value throws `Failure`, which quotes it
/// and says what is accepted.

/// "2026-03-31", "today", "tomorrow", "yesterday", a weekday's name (the next such day, today included), "+3d",
/// "-1w", "+2m" from today, or any form that `parseDate` reads.
Date readDay(std::string_view text);
/// "9:30", "14:05", "9 pm".
Date readTime(std::string_view text);
/// A day with or without a time: "2026-03-31", "2026-03-31 09:30", "2026-03-31T09:30".
Date readMoment(std::string_view text);
/// yes, no, true, false, on, off, 1, 0.
bool readBoolean(std::string_view text);
std::int32_t readInteger(std::string_view text);
/// "1.5" or "1:30".
float readHours(std::string_view text);
/// "#RRGGBB", or the number with red in the low byte.
std::int32_t parseColour(std::string_view text);

/// The colour as `parseColour` reads it: "#RRGGBB"
std::string colourText(std::int32_t colour);

} // namespace qncal::firmcal
