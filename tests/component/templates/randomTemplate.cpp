#include "component/templates/randomTemplate.h"

#include "templates/dateFormatKeywords.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace qncal::test {

namespace {

constexpr std::array<std::string_view, 12> names{"A",       "B", "AB",   "Company Name", "Due",    "a b",
                                                 "Nom été", "",  "A»«B", "x«y",          "z\\'bb", "A, d"};
constexpr std::array<std::string_view, 22> fragments{"«",  "«",    "»",    "»",    "\\'ab", "\\'bb",   "\\'AB", "\\'Bb",
                                                     "\\", "\\'",  "\\'a", "'ab",  "b",     "\xC2",    "\xAB",  "\xBB",
                                                     " ",  "\r\n", "A",    "日本", "(",     "Company "};

} // namespace

std::vector<PlainField> RandomTemplate::fields()
{
    std::vector<PlainField> fields;
    for (int count = 1 + below(6); count > 0; --count)
        fields.push_back(
            {std::string(names[static_cast<std::size_t>(below(static_cast<int>(names.size())))]), oneIn(4)});
    return fields;
}

std::string RandomTemplate::text(const std::vector<PlainField>& fields, int mostPieces)
{
    std::string text;
    for (int pieces = below(mostPieces + 1); pieces > 0; --pieces)
        text += piece(fields);
    return text;
}

std::string RandomTemplate::denseText(int mostPieces)
{
    constexpr std::array<std::string_view, 6> plain{"«", "«", "»", "A", "«A»", "\xC2"};
    constexpr std::array<std::string_view, 8> rich{"\\'ab", "\\'ab", "\\'bb", "A", "\\'abA\\'bb", "\\", "'a", "b"};
    const bool isRich = oneIn(2);
    std::string text;
    for (int pieces = below(mostPieces + 1); pieces > 0; --pieces)
        text += isRich ? rich[static_cast<std::size_t>(below(8))] : plain[static_cast<std::size_t>(below(6))];
    return text;
}

std::string RandomTemplate::piece(const std::vector<PlainField>& fields)
{
    if (oneIn(2))
        return std::string(fragments[static_cast<std::size_t>(below(static_cast<int>(fragments.size())))]);
    std::string text = expression(fields);
    if (oneIn(8) && !text.empty()) // one that is cut short
        text.resize(static_cast<std::size_t>(below(static_cast<int>(text.size()))));
    return text;
}

std::string RandomTemplate::expression(const std::vector<PlainField>& fields)
{
    const DelimiterPair& pair = oneIn(3) ? richDelimiters : plainDelimiters;
    const PlainField& field = fields[static_cast<std::size_t>(below(static_cast<int>(fields.size())))];
    const std::string keyword(dateFormatKeywords[static_cast<std::size_t>(below(14))].keyword);
    std::string content = field.name;
    if (oneIn(12))
        content = "(Todays Date, " + keyword + ")";
    else if (field.isDate != oneIn(6))
        content = "(" + field.name + ", " + keyword + ")";
    return inAnyCase(std::string(pair.open) + content + std::string(pair.close));
}

std::string RandomTemplate::inAnyCase(std::string text)
{
    if (oneIn(3)) {
        std::ranges::transform(text, text.begin(), [](char c) {
            return c >= 'a' && c <= 'z' ? static_cast<char>(std::toupper(static_cast<unsigned char>(c))) : c;
        });
    }
    return text;
}

} // namespace qncal::test
