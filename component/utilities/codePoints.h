#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace qncal {
std::size_t codePointCount(std::string_view text);
std::size_t byteOffsetOf(std::string_view text, std::int32_t characters);
}
