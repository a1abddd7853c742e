#pragma once

#include "utilities/Date.h"

#include <optional>
#include <string>
#include <string_view>

namespace qncal {

/// A date as text by a pattern such as "mmm d, yyyy" or "hh:nn am/pm".
std::string formatDate(Date value, std::string_view pattern);

/// Reads a date, a time, or both, in the forms that `formatDate` and `defaultDateText` write.
/// A bare time is on day 0. Nothing when the text is no date.
std::optional<Date> parseDate(std::string_view text);

} // namespace qncal
