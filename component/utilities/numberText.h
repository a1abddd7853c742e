#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace qncal {

/// Decimal text of a number, the shortest that reads back the same.
std::string numberText(double value);
inline const char* booleanText(bool value) { return value ? "True" : "False"; }

/// A whole text as a number, blanks around it allowed; false when it is none. The point is the decimal sign,
/// commas may part the whole digits by threes ("1,250.5").
bool parseNumber(std::string_view text, double& value);

/// A number as text by a pattern such as "#,##0;-#,##0" or "$#,##0.00;$-#,##0.00".
///
/// Up to three sections between semicolons: for positive, negative and zero values. Without a section for
/// negative values they are written by the first with "-" in front; without one for zero it counts as positive.
/// In a section "0" is a digit that is always written, "#" one that is written when it is significant, a
/// comma among them groups the whole digits by threes, and "." places the decimals. All before the first
/// and behind the last of these stands as it is.
///
/// Rounds half away from zero, as the shortest decimal text of the number reads: 2.675 gives "2.68". A value
/// that rounds to zero is written as zero. Infinity and what is no number are written by `numberText`.
std::string formatNumber(double value, std::string_view pattern);

/// A whole number as an English ordinal: "1st", "2nd", "3rd", "4th", "11th", "21st".
std::string ordinalText(std::int32_t number);

} // namespace qncal
