#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>
#include <string_view>

namespace qncal {

/// A fixed text that the compiler puts together from parts. Too long a text does not compile.
class ComposedText {
public:
    constexpr ComposedText() = default;
    constexpr ComposedText(std::initializer_list<std::string_view> parts)
    {
        for (const std::string_view part : parts) {
            for (const char c : part)
                characters_.at(size_++) = c;
        }
    }
    constexpr std::string_view view() const { return {characters_.data(), size_}; }

private:
    std::array<char, 48> characters_{};
    std::size_t size_ = 0;
};

} // namespace qncal
