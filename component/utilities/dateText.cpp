#include "utilities/dateText.h"

#include "utilities/RunTimeError.h"
#include "utilities/text.h"

#include <array>
#include <cstdint>

namespace qncal {

namespace {

constexpr std::array<std::string_view, 7> weekdayNames{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                       "Thursday", "Friday", "Saturday"};
constexpr std::array<std::string_view, 12> monthNames{"January",   "February", "March",    "April",
                                                      "May",       "June",     "July",     "August",
                                                      "September", "October",  "November", "December"};
constexpr std::size_t shortNameLength = 3;

/// One piece of a pattern: a field letter in lower case with the length of its run, a marker, or a literal.
struct Token {
    enum class Kind : std::uint8_t { field, marker, literal };
    Kind kind = Kind::literal;
    char field = 0;
    std::string_view text; ///< as written; for a marker "am/pm" in its letter case, or empty for AM and PM
};

constexpr std::string_view slashMarker = "am/pm";

/// Splits a pattern into tokens, in place.
class PatternReader {
public:
    explicit PatternReader(std::string_view pattern) : rest_(pattern) {}

    bool next(Token& token)
    {
        if (rest_.empty())
            return false;
        const char c = lowerAscii(rest_.front());
        if (startsWith(slashMarker))
            token = {Token::Kind::marker, 0, take(slashMarker.size())};
        else if (startsWith("ampm"))
            token = {Token::Kind::marker, 0, take(4).substr(0, 0)};
        else if (startsWith("tt"))
            token = {Token::Kind::marker, 0, take(2).substr(0, 0)};
        else if (c == '"')
            token = {Token::Kind::literal, 0, quoted()};
        else if (c == '\\' && rest_.size() > 1)
            token = {Token::Kind::literal, 0, take(2).substr(1)};
        else if (std::string_view("dmyhns").find(c) != std::string_view::npos)
            token = {Token::Kind::field, c, take(runLength(c))};
        else
            token = {Token::Kind::literal, 0, take(1)};
        return true;
    }

private:
    bool startsWith(std::string_view word) const { return equalsNoCase(rest_.substr(0, word.size()), word); }

    std::string_view take(std::size_t count)
    {
        const auto taken = rest_.substr(0, count);
        rest_.remove_prefix(taken.size());
        return taken;
    }

    std::size_t runLength(char field) const
    {
        const std::size_t longest = field == 'd' || field == 'm' || field == 'y' ? 4 : 2;
        std::size_t length = 1;
        while (length < longest && length < rest_.size() && lowerAscii(rest_[length]) == field)
            ++length;
        return length;
    }

    std::string_view quoted()
    {
        const auto end = rest_.find('"', 1);
        if (end == std::string_view::npos) // never closed: all the rest is meant
            return take(rest_.size()).substr(1);
        const auto text = take(end + 1);
        return text.substr(1, text.size() - 2);
    }

    std::string_view rest_;
};

template <std::size_t count>
std::string_view nameAt(const std::array<std::string_view, count>& names, int number)
{
    if (number < 1 || number > static_cast<int>(count))
        throw RunTimeError(errorNumber::invalidProcedureCall, "Invalid procedure call: no name has that number");
    return names[static_cast<std::size_t>(number - 1)];
}

void appendNumber(std::string& text, int number, std::size_t digits)
{
    std::array<char, 4> buffer{};
    auto* const end = buffer.data() + buffer.size();
    auto* first = end;
    for (; number > 0 || static_cast<std::size_t>(end - first) < digits; number /= 10)
        *--first = static_cast<char>('0' + number % 10);
    text.append(first, end);
}

void appendName(std::string& text, std::string_view name, bool inFull)
{
    text.append(inFull ? name : name.substr(0, shortNameLength));
}

} // namespace

std::string_view weekdayName(int weekday) { return nameAt(weekdayNames, weekday); }

std::string_view monthName(int month) { return nameAt(monthNames, month); }

std::string formatDate(Date value, std::string_view pattern)
{
    const CivilDate date = value.civilDate();
    const CivilTime time = value.civilTime();

    bool twelveHours = false;
    Token token;
    for (PatternReader reader(pattern); reader.next(token);)
        twelveHours = twelveHours || token.kind == Token::Kind::marker;

    std::string text;
    text.reserve(pattern.size() + 16);
    char previousField = 0;
    for (PatternReader reader(pattern); reader.next(token);) {
        const std::size_t length = token.text.size();
        if (token.kind == Token::Kind::literal) {
            text.append(token.text);
            continue;
        }
        if (token.kind == Token::Kind::marker) {
            const bool afternoon = time.hour >= 12;
            text.append(length == 0 ? (afternoon ? "PM" : "AM") : token.text.substr(afternoon ? 3 : 0, 2));
            continue;
        }
        const bool minutes = token.field == 'n' || (token.field == 'm' && length <= 2 && previousField == 'h');
        previousField = token.field;
        if (minutes)
            appendNumber(text, time.minute, length);
        else if (token.field == 'd' && length > 2)
            appendName(text, weekdayName(value.weekday()), length == 4);
        else if (token.field == 'd')
            appendNumber(text, date.day, length);
        else if (token.field == 'm' && length > 2)
            appendName(text, monthName(date.month), length == 4);
        else if (token.field == 'm')
            appendNumber(text, date.month, length);
        else if (token.field == 'y' && length > 2)
            appendNumber(text, date.year, 4);
        else if (token.field == 'y')
            appendNumber(text, date.year % 100, 2);
        else if (token.field == 'h')
            appendNumber(text, twelveHours ? (time.hour + 11) % 12 + 1 : time.hour, length);
        else
            appendNumber(text, time.second, length);
    }
    return text;
}

} // namespace qncal
