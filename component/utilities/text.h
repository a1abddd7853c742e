#pragma once

#include <string>
#include <string_view>

namespace qncal {

/// ASCII letters only; every other byte, and so every multi-byte character, stands as it is.
constexpr char lowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
constexpr char upperAscii(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }
std::string lowerAscii(std::string_view text);
inline bool equalsNoCase(std::string_view a, std::string_view b)
{
    if (a.size() != b.size())
        return false;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (a[i] != b[i] && lowerAscii(a[i]) != lowerAscii(b[i]))
            return false;
    }
    return true;
}
/// Order by ASCII case-folded bytes; below, equal or above zero.
int compareNoCase(std::string_view a, std::string_view b);
std::string_view trimmed(std::string_view text);

/// Orders and matches keys of maps without regard to ASCII case.
struct LessNoCase {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const { return compareNoCase(a, b) < 0; }
};

} // namespace qncal
