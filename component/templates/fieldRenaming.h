#pragma once

#include "templates/delimiters.h"
#include "utilities/ComposedText.h"
#include "utilities/replaceText.h"

#include <span>
#include <string>
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

/// Applies the lines in order, each to every occurrence and without regard to case.
inline void renameFields(std::string& text, std::span<const FieldRenaming> lines)
{
    for (const FieldRenaming& line : lines)
        replaceNoCase(text, line.oldText.view(), line.newText.view());
}

} // namespace qncal
