#include "utilities/replaceText.h"

#include "utilities/text.h"

namespace qncal {

namespace {

/// The next place that can start the wanted text, found by its first byte in either case.
std::size_t findFirstByte(std::string_view text, char first, std::size_t from)
{
    constexpr char caseBit = 0x20;
    const char lower = lowerAscii(first);
    if (lower < 'a' || lower > 'z')
        return text.find(first, from);
    for (; from < text.size(); ++from) {
        if ((text[from] | caseBit) == lower)
            return from;
    }
    return std::string_view::npos;
}

} // namespace

std::size_t findNoCase(std::string_view text, std::string_view wanted, std::size_t from)
{
    if (wanted.empty() || text.size() < wanted.size())
        return std::string_view::npos;
    const std::size_t last = text.size() - wanted.size();
    for (std::size_t at = findFirstByte(text, wanted.front(), from); at <= last;
         at = findFirstByte(text, wanted.front(), at + 1)) {
        if (equalsNoCase(text.substr(at, wanted.size()), wanted))
            return at;
    }
    return std::string_view::npos;
}

bool replaceNoCase(std::string& text, std::string_view wanted, std::string_view replacement)
{
    std::size_t at = findNoCase(text, wanted);
    if (at == std::string::npos)
        return false;
    std::string replaced;
    std::size_t copied = 0;
    for (; at != std::string::npos; at = findNoCase(text, wanted, copied)) {
        replaced.append(text, copied, at - copied).append(replacement);
        copied = at + wanted.size();
    }
    replaced.append(text, copied);
    text = std::move(replaced);
    return true;
}

} // namespace qncal
