#pragma once

#include <string>

namespace qncal {

/// The null test of `UtilityService` on a text, as one statement of the routine it stands in: True for an empty one.
bool isNullText(const std::string& text);

} // namespace qncal
