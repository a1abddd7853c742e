#include "store/dialect/LikePattern.h"

#include "utilities/text.h"

namespace qncal::host::dialect {

namespace {

unsigned char byte(char c) { return static_cast<unsigned char>(lowerAscii(c)); }

/// A character of several bytes counts as one.
std::size_t characterLength(std::string_view text, std::size_t at)
{
    std::size_t length = 1;
    while (at + length < text.size() && (static_cast<unsigned char>(text[at + length]) & 0xC0U) == 0x80U)
        ++length;
    return length;
}

std::bitset<256> readSet(std::string_view inside)
{
    std::bitset<256> set;
    const bool outside = inside.size() > 1 && inside.front() == '!';
    if (outside)
        inside.remove_prefix(1);
    for (std::size_t i = 0; i < inside.size(); ++i) {
        const unsigned char first = byte(inside[i]);
        unsigned char last = first;
        if (i + 2 < inside.size() && inside[i + 1] == '-') {
            last = byte(inside[i + 2]);
            i += 2;
        }
        for (unsigned c = first; c <= last; ++c)
            set.set(c);
    }
    return outside ? ~set : set;
}

} // namespace

LikePattern::LikePattern(std::string_view pattern)
{
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        const char c = pattern[i];
        const std::size_t closing = c == '[' ? pattern.find(']', i + 2) : std::string_view::npos;
        if (c == '%' || c == '*') {
            elements_.push_back({Element::Kind::anyText});
        } else if (c == '_' || c == '?') {
            elements_.push_back({Element::Kind::anyCharacter});
        } else if (closing != std::string_view::npos) {
            elements_.push_back({Element::Kind::set, 0, readSet(pattern.substr(i + 1, closing - i - 1))});
            i = closing;
        } else {
            elements_.push_back({Element::Kind::character, lowerAscii(c)});
        }
    }
}

bool LikePattern::matchesOne(const Element& element, std::string_view text, std::size_t& at)
{
    if (at == text.size())
        return false;
    switch (element.kind) {
    case Element::Kind::character:
        return lowerAscii(text[at++]) == element.character;
    case Element::Kind::set:
        if (!element.set.test(byte(text[at])))
            return false;
        at += characterLength(text, at);
        return true;
    default:
        at += characterLength(text, at);
        return true;
    }
}

bool LikePattern::matches(std::string_view text) const
{
    // Only the last "any text" needs to be tried again: an earlier one gains nothing by taking more.
    std::size_t at = 0;
    std::size_t element = 0;
    std::size_t retryElement = elements_.size() + 1;
    std::size_t retryAt = 0;
    for (;;) {
        if (element == elements_.size()) {
            if (at == text.size())
                return true;
        } else if (elements_[element].kind == Element::Kind::anyText) {
            retryElement = ++element;
            retryAt = at;
            continue;
        } else if (matchesOne(elements_[element], text, at)) {
            ++element;
            continue;
        }
        if (retryElement > elements_.size() || retryAt == text.size())
            return false;
        at = ++retryAt;
        element = retryElement;
    }
}

std::string LikePattern::literal(std::string_view text)
{
    constexpr std::string_view wildcards = "%_*?[";
    std::string pattern;
    pattern.reserve(text.size() + 8);
    for (const char c : text) {
        if (c == '\'')
            pattern += "''";
        else if (wildcards.find(c) != std::string_view::npos)
            pattern.append("[").append(1, c).append("]");
        else
            pattern += c;
    }
    return pattern;
}

} // namespace qncal::host::dialect
