#include "utilities/numberText.h"

#include "utilities/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace qncal {

namespace {

constexpr std::size_t groupLength = 3;
constexpr std::string_view placeholders = "#0,.";

/// The digits of a number on both sides of its decimal point, without its sign.
struct Digits {
    std::string whole;    ///< without leading zeros, empty below 1
    std::string decimals; ///< without trailing zeros
    bool areZero() const { return whole.empty() && decimals.empty(); }
};

Digits digitsOf(double value)
{
    // The smallest number has 1074 binary places, of which to_chars writes at most 17 significant ones.
    std::array<char, 400> buffer{};
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value), std::chars_format::fixed);
    const std::string_view text(buffer.data(), static_cast<std::size_t>(end.ptr - buffer.data()));
    const auto point = std::min(text.find('.'), text.size());
    Digits digits{std::string(text.substr(0, point)), std::string(text.substr(std::min(point + 1, text.size())))};
    if (digits.whole == "0")
        digits.whole.clear();
    return digits;
}

/// Adds one in the last place of a run of digits; true when a one is carried out of the first.
bool incremented(std::string& digits)
{
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
        if (*digit != '9') {
            ++*digit;
            return false;
        }
        *digit = '0';
    }
    return true;
}

Digits rounded(Digits digits, std::size_t places)
{
    if (digits.decimals.size() > places) {
        const bool up = digits.decimals[places] >= '5';
        digits.decimals.resize(places);
        if (up && incremented(digits.decimals) && incremented(digits.whole))
            digits.whole.insert(digits.whole.begin(), '1');
    }
    digits.decimals.erase(digits.decimals.find_last_not_of('0') + 1);
    return digits;
}

/// One section of a pattern.
struct Section {
    std::string_view before;
    std::string_view after;
    bool hasNumber = false;
    std::size_t wholeDigits = 0; ///< written at least
    std::size_t fewestDecimals = 0;
    std::size_t mostDecimals = 0;
    bool grouped = false;

    explicit Section(std::string_view pattern)
    {
        const auto first = std::min(pattern.find_first_of(placeholders), pattern.size());
        const auto end = std::min(pattern.find_first_not_of(placeholders, first), pattern.size());
        before = pattern.substr(0, first);
        after = pattern.substr(end);
        const auto number = pattern.substr(first, end - first);
        hasNumber = !number.empty();
        const auto point = std::min(number.find('.'), number.size());
        const auto whole = number.substr(0, point);
        const auto decimals = number.substr(point);
        wholeDigits = static_cast<std::size_t>(std::count(whole.begin(), whole.end(), '0'));
        grouped = whole.find(',') != std::string_view::npos;
        fewestDecimals = static_cast<std::size_t>(std::count(decimals.begin(), decimals.end(), '0'));
        mostDecimals = fewestDecimals + static_cast<std::size_t>(std::count(decimals.begin(), decimals.end(), '#'));
    }

    std::string text(Digits digits, bool minus) const
    {
        if (!hasNumber)
            return std::string(before);
        if (digits.whole.size() < wholeDigits)
            digits.whole.insert(0, wholeDigits - digits.whole.size(), '0');
        if (digits.decimals.size() < fewestDecimals)
            digits.decimals.resize(fewestDecimals, '0');
        if (grouped)
            for (std::size_t i = digits.whole.size(); i > groupLength; i -= groupLength)
                digits.whole.insert(i - groupLength, 1, ',');
        std::string text(minus ? "-" : "");
        text.append(before).append(digits.whole);
        if (!digits.decimals.empty())
            text.append(".").append(digits.decimals);
        return text.append(after);
    }
};

struct Sections {
    std::array<std::string_view, 3> text;
    std::size_t count = 0;

    explicit Sections(std::string_view pattern)
    {
        while (count < text.size()) {
            const auto end = std::min(pattern.find(';'), pattern.size());
            text[count++] = pattern.substr(0, end);
            if (end == pattern.size())
                return;
            pattern.remove_prefix(end + 1);
        }
    }
};

bool parsePlainNumber(std::string_view text, double& value)
{
    double parsed = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), parsed);
    if (error != std::errc{} || end != text.data() + text.size() || !std::isfinite(parsed))
        return false;
    value = parsed;
    return true;
}

/// Takes the commas out of "1,250.5"; false when they do not part the whole digits by threes.
bool removeGroupCommas(std::string& text)
{
    const auto wholeEnd = std::min(text.find_first_not_of("-0123456789,"), text.size());
    const auto firstComma = text.find(',');
    const auto leading = firstComma - (text.front() == '-' ? 1U : 0U);
    if (leading < 1 || leading > groupLength || (wholeEnd - firstComma) % (groupLength + 1) != 0)
        return false;
    for (std::size_t i = firstComma; i < wholeEnd; ++i)
        if ((text[i] == ',') != ((i - firstComma) % (groupLength + 1) == 0))
            return false;
    std::erase(text, ',');
    return true;
}

} // namespace

std::string numberText(double value)
{
    std::array<char, 400> buffer{};
    const bool whole = value == std::trunc(value) && std::fabs(value) < 1e15;
    const auto end = whole
                         ? std::to_chars(buffer.data(), buffer.data() + buffer.size(), static_cast<std::int64_t>(value))
                         : std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    return {buffer.data(), end.ptr};
}

bool parseNumber(std::string_view text, double& value)
{
    text = trimmed(text);
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1);
    if (text.find(',') == std::string_view::npos)
        return parsePlainNumber(text, value);
    std::string digits(text);
    return removeGroupCommas(digits) && parsePlainNumber(digits, value);
}

std::string formatNumber(double value, std::string_view pattern)
{
    if (!std::isfinite(value))
        return numberText(value);
    const Sections sections(pattern);
    const Digits digits = digitsOf(value);
    const bool negativeSection = value < 0 && sections.count > 1;
    const Section section(sections.text[negativeSection ? 1 : 0]);
    const Digits shown = rounded(digits, section.mostDecimals);
    if (!shown.areZero())
        return section.text(shown, value < 0 && !negativeSection);
    const Section zero(sections.text[sections.count == 3 ? 2 : 0]);
    return zero.text({}, false);
}

std::string ordinalText(std::int32_t number)
{
    const int lastTwo = std::abs(number % 100);
    const int last = lastTwo % 10;
    const bool teen = lastTwo >= 11 && lastTwo <= 13;
    const char* const suffix = teen || last > 3 || last == 0 ? "th" : last == 1 ? "st" : last == 2 ? "nd" : "rd";
    return std::to_string(number) + suffix;
}

} // namespace qncal
