#pragma once

#include "utilities/ComposedText.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace qncal {

/// The groups of five user-defined fields, by what they belong to.
enum class CustomFieldGroup : std::uint8_t {
    none,
    client,
    contact,
    company,
    appointment,
    schedule,
    task,
    timeEntry,
    firm
};

inline constexpr int customFieldCount = 5;

/// The texts of one group: the record set with the user's labels and what its five rows are made of.
struct CustomFieldTexts {
    using Five = std::array<ComposedText, customFieldCount>;

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
