#pragma once

#include <cstddef>
#include <string_view>

namespace qncal {

/// A hash of a name without regard to ASCII case: names that `equalsNoCase` calls equal have the same. The value is
/// good for the life of the program alone.
std::size_t hashNoCase(std::string_view name);

} // namespace qncal
