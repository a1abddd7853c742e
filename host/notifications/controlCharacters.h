#pragma once

#include <algorithm>
#include <string>

namespace qncal::host {

/// Makes blanks of the control characters, the ends of lines among them.
inline void blankControlCharacters(std::string& text)
{
    const auto isControl = [](char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; };
    std::ranges::replace_if(text, isControl, ' ');
}

} // namespace qncal::host
