#pragma once

#include "templates/delimiters.h"
#include "utilities/ComposedText.h"

#include <string_view>

namespace qncal {

/// One line of a table of names that a template's fields are brought up to date with.
struct FieldRenaming {
    ComposedText oldText;
    ComposedText newText;
};

/// A field in a plain template, and in a rich-text stream.
constexpr ComposedText plainField(std::string_view name) { return {plainDelimiters.open, name, plainDelimiters.close}; }
constexpr ComposedText richField(std::string_view name) { return {richDelimiters.open, name, richDelimiters.close}; }

} // namespace qncal
