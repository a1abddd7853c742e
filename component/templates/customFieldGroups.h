#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace qncal {

/// A text and the number 1 to 5 of a custom field, put together by the compiler.
class NumberedText {
public:
    constexpr NumberedText() = default;
    constexpr NumberedText(std::string_view text, int number)
    {
        for (const char c : text)
            characters_[size_++] = c;
        characters_[size_++] = static_cast<char>('0' + number);
    }
    constexpr std::string_view view() const { return {characters_.data(), size_}; }

private:
    std::array<char, 40> characters_{};
    std::size_t size_ = 0;
};

/// The groups of five user-defined fields, by what they belong to.
enum class CustomFieldGroup : std::uint8_t { none, client, contact, company, appointment, schedule, task, timeEntry, firm };

inline constexpr int customFieldCount = 5;

/// The texts of one group: the record set with the user's labels and what its five rows are made of.
struct CustomFieldTexts {
    using Five = std::array<NumberedText, customFieldCount>;

    CustomFieldGroup group;
    std::string_view labelQuery;
    Five labelColumns;
    Five databaseFields;
    /// The display names without a label.
    Five fallbackNames;
    Five samples;
    /// What goes before a display name that comes from a label.
    std::string_view labelPrefix;
};

const CustomFieldTexts& customFieldTexts(CustomFieldGroup group);

} // namespace qncal
