#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace qncal {

/// The position of the first occurrence at or after `from`, without regard to ASCII case; npos when there is none.
/// An empty text occurs nowhere.
std::size_t findNoCase(std::string_view text, std::string_view wanted, std::size_t from = 0);

/// Replaces every occurrence in place, without regard to ASCII case; a replacement is not searched again.
/// True when there was one.
bool replaceNoCase(std::string& text, std::string_view wanted, std::string_view replacement);

} // namespace qncal
