#pragma once

#include <cstddef>
#include <string_view>

namespace qncal {

/// Characters of a UTF-8 text. A byte that belongs to no well-formed character counts as one.
std::size_t countCodePoints(std::string_view text);

/// The first `count` characters of a UTF-8 text, counted as above; never cut inside a character.
std::string_view truncatedToCodePoints(std::string_view text, std::size_t count);

} // namespace qncal
