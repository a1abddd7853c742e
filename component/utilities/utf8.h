#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace qncal {

/// One character read from UTF-8. An invalid byte is a character of length 1 by itself.
struct Utf8Character {
    char32_t codePoint = 0;
    std::size_t length = 1;
    bool valid = false;
};

/// The character at the start of a text that is not empty. Overlong forms, surrogates and values above
/// U+10FFFF are invalid.
Utf8Character decodeUtf8(std::string_view text);
void appendUtf8(std::string& text, char32_t codePoint);

} // namespace qncal
