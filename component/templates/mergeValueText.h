#pragma once

#include "utilities/FieldListCollection.h"

#include <string>

namespace qncal {

/// How times of day are written in merged texts.
inline constexpr std::string_view mergeTimeFormat = "h:Nn am/pm";
/// How a date is written where the template names no format.
inline constexpr std::string_view mergeDateFormat = "mmm d, yyyy";

/// A field's value, not empty, as it is shown. `dateFormat` is a date pattern, or empty. A date before 1900, as
/// an unset one reads, gives an empty text; a text that is no value of its type is run-time error 13.
std::string mergeValueText(std::string value, MergeDataType type, const std::string& dateFormat);

/// A number of hours as a duration.
std::string hoursText(double hours);

} // namespace qncal
