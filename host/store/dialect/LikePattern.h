#pragma once

#include <bitset>
#include <string>
#include <string_view>
#include <vector>

namespace qncal::host::dialect {

/// A pattern of LIKE: % and * stand for any text, _ and ? for one character, [a-z] for one of a set, [!a-z] for
/// one outside of it. Letters match without regard to ASCII case.
class LikePattern {
public:
    explicit LikePattern(std::string_view pattern);
    bool matches(std::string_view text) const;

    /// The pattern that matches the text and nothing else, ready for single quotes.
    static std::string literal(std::string_view text);

private:
    struct Element {
        enum class Kind : unsigned char { character, anyText, anyCharacter, set } kind;
        char character = 0;
        std::bitset<256> set = {};
    };
    static bool matchesOne(const Element& element, std::string_view text, std::size_t& at);

    std::vector<Element> elements_;
};

} // namespace qncal::host::dialect
