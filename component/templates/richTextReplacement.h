#pragma once

#include <string>
#include <string_view>

namespace qncal {

/// Whether a text that is put behind `before` needs a blank, which ends a control word of rich text.
/// `before` is the character in front of it, or a blank where nothing stands in front.
constexpr bool needsBlankAfter(char before) { return before != ' '; }

/// Replaces every occurrence in place by the rule of rich text: what stands before the first one decides for all
/// whether a blank goes before the replacement. False when there is no occurrence.
bool replaceInRichText(std::string& text, std::string_view wanted, std::string_view replacement);

/// A value's line breaks as paragraph marks of rich text, or without word wrap as commas; both keep the break.
std::string withParagraphMarks(std::string value, bool wordWrap);

} // namespace qncal
