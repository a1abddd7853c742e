#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace qncal {

/// What stands before and after a field's name. The two halves have the same width.
struct DelimiterPair {
    std::string_view open;
    std::string_view close;
};

/// « and », two bytes each.
inline constexpr DelimiterPair plainDelimiters{"\xC2\xAB", "\xC2\xBB"};
/// The same two characters as the escapes of a rich-text stream.
inline constexpr DelimiterPair richDelimiters{"\\'ab", "\\'bb"};

/// A field's name, or a date expression, as it stands in a template.
std::string inDelimiters(std::string_view expression, const DelimiterPair& pair);

/// The next half of a pair in a text.
struct DelimiterPosition {
    std::size_t at = std::string_view::npos;
    bool isOpen = false;
};

/// The first half of the pair at or after `from`, in either case of its letters; `at` is npos when there is none.
DelimiterPosition findDelimiter(std::string_view text, const DelimiterPair& pair, std::size_t from);
/// True when the text ends within a half of the pair, so that what follows could complete it.
bool endsWithinDelimiter(std::string_view text, const DelimiterPair& pair);

} // namespace qncal
