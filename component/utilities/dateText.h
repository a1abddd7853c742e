#pragma once

#include "utilities/Date.h"

#include <optional>
#include <string>
#include <string_view>

namespace qncal {

/// English name of a weekday, 1 Sunday to 7 Saturday. Any other number throws `RunTimeError` 5.
std::string_view weekdayName(int weekday);
/// English name of a month, 1 to 12. Any other number throws `RunTimeError` 5.
std::string_view monthName(int month);

/// A date as text by a pattern such as "mmm d, yyyy" or "h:nn am/pm". Letters count without regard to case:
///
///   d dd ddd dddd    day, two-digit day, short and full weekday name
///   m mm mmm mmmm    month, two-digit month, short and full name; m and mm right after the hour are minutes
///   yy yyyy          year in two and four digits
///   h hh n nn s ss   hour, minute and second, the doubled letter with two digits
///   am/pm            marker of the half of the day, in the letter case of the pattern (am/pm, AM/PM)
///   ampm tt          the same marker, always AM and PM
///
/// With a marker the hours run from 12 over 1 to 11. Text in double quotes and a character behind a backslash
/// stand as they are, and so does everything else.
std::string formatDate(Date value, std::string_view pattern);

/// Reads a date, a time, or both, in the forms that `formatDate` and `defaultDateText` write: "2026-03-31",
/// "Mar 31, 2026", "Tuesday, March 31 2026", "31 Mar 2026", "31/Mar/26", "3/31/2026" (month first), "9:30 am",
/// "9 pm", "14:05:59", and a date with a time behind it, after blanks or a "T". Fractions of a second are dropped.
/// Two-digit years 00 to 29 are 2000 to 2029, 30 to 99 are 1930 to 1999. A bare time is on day 0.
/// Nothing for every other text: no such day, no year, a weekday that the date does not fall on. Never throws.
std::optional<Date> parseDate(std::string_view text);

} // namespace qncal
