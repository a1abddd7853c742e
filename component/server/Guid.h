#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace qncal {

/// A class or interface id, laid out as platforms with a component registry lay it out.
struct Guid {
    std::uint32_t data1 = 0;
    std::uint16_t data2 = 0;
    std::uint16_t data3 = 0;
    std::array<std::uint8_t, 8> data4{};
    friend constexpr bool operator==(const Guid&, const Guid&) = default;
};

/// Reads an id written as "01234567-89ab-cdef-0123-456789abcdef", small letters. Nothing for any other text.
constexpr std::optional<Guid> parseGuid(std::string_view text)
{
    constexpr std::string_view digits = "0123456789abcdef";
    constexpr std::string_view shape = "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx";
    std::array<std::uint8_t, 16> bytes{};
    std::size_t read = 0;
    if (text.size() != shape.size())
        return std::nullopt;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (shape[i] == '-') {
            if (text[i] != '-')
                return std::nullopt;
            continue;
        }
        const auto digit = digits.find(text[i]);
        if (digit == digits.npos)
            return std::nullopt;
        bytes[read / 2] = static_cast<std::uint8_t>(bytes[read / 2] << 4 | digit);
        ++read;
    }
    Guid id;
    id.data1 = static_cast<std::uint32_t>(bytes[0] << 24 | bytes[1] << 16 | bytes[2] << 8 | bytes[3]);
    id.data2 = static_cast<std::uint16_t>(bytes[4] << 8 | bytes[5]);
    id.data3 = static_cast<std::uint16_t>(bytes[6] << 8 | bytes[7]);
    for (std::size_t i = 0; i < id.data4.size(); ++i)
        id.data4[i] = bytes[8 + i];
    return id;
}

/// The id of a text known beforehand; a text that is none does not compile.
consteval Guid guid(std::string_view text) { return parseGuid(text).value(); }

} // namespace qncal
