#include "firmcal/readValue.h"

#include "common/Failure.h"
#include "utilities/Clock.h"
#include "utilities/Variant.h"
#include "utilities/dateText.h"
#include "utilities/text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

namespace qncal::firmcal {

namespace {

constexpr std::array<std::string_view, 7> weekdays{"sunday",   "monday", "tuesday", "wednesday",
                                                   "thursday", "friday", "saturday"};

[[noreturn]] void refuse(std::string_view text, std::string_view what, std::string_view accepted)
{
    throw Failure("'" + std::string(text) + "' is no " + std::string(what) + " (" + std::string(accepted) + ")");
}

template <class Integer>
std::optional<Integer> wholeNumber(std::string_view text, int base = 10)
{
    Integer number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
    if (text.empty() || error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return number;
}

/// "+3d", "-1w", "+2m"
std::optional<Date> relativeDay(std::string_view text)
{
    if (text.size() < 3 || (text[0] != '+' && text[0] != '-'))
        return std::nullopt;
    const auto count = wholeNumber<int>(text.substr(1, text.size() - 2));
    if (!count || *count > 36500)
        return std::nullopt;
    const int signedCount = text[0] == '-' ? -*count : *count;
    switch (text.back()) {
    case 'd':
        return today().addDays(signedCount);
    case 'w':
        return today().addDays(7 * signedCount);
    case 'm':
        return today().addMonths(signedCount);
    default:
        return std::nullopt;
    }
}

/// A full name, or its first three letters.
std::optional<Date> nextWeekday(std::string_view text)
{
    for (int i = 0; i < 7; ++i) {
        const std::string_view name = weekdays[static_cast<std::size_t>(i)];
        if (text == name || text == name.substr(0, 3))
            return today().addDays((i + 1 - today().weekday() + 7) % 7);
    }
    return std::nullopt;
}

} // namespace

Date readDay(std::string_view text)
{
    const std::string word = lowerAscii(trimmed(text));
    if (word == "today")
        return today();
    if (word == "tomorrow")
        return today().addDays(1);
    if (word == "yesterday")
        return today().addDays(-1);
    if (const auto relative = relativeDay(word))
        return *relative;
    if (const auto weekday = nextWeekday(word))
        return *weekday;
    const auto date = parseDate(word);
    if (!date || date->hasTime() || date->serial() == 0.0)
        refuse(text, "date", "2026-03-31, today, tomorrow, monday, +3d, +2w");
    return *date;
}

Date readTime(std::string_view text)
{
    const auto time = parseDate(trimmed(text));
    if (!time || time->dateOnly().serial() != 0.0)
        refuse(text, "time", "9:30, 14:05, 9 pm");
    return *time;
}

Date readMoment(std::string_view text)
{
    const auto moment = parseDate(trimmed(text));
    if (!moment || moment->dateOnly().serial() == 0.0)
        refuse(text, "date", "2026-03-31, 2026-03-31T09:30");
    return *moment;
}

bool readBoolean(std::string_view text)
{
    const std::string word = lowerAscii(trimmed(text));
    for (const std::string_view yes : {"yes", "true", "on", "1"}) {
        if (word == yes)
            return true;
    }
    for (const std::string_view no : {"no", "false", "off", "0"}) {
        if (word == no)
            return false;
    }
    throw Failure("'" + std::string(text) + "' is neither yes nor no");
}

std::int32_t readInteger(std::string_view text)
{
    const auto number = wholeNumber<std::int32_t>(trimmed(text));
    if (!number)
        refuse(text, "whole number", "-2147483648 to 2147483647");
    return *number;
}

float readHours(std::string_view text)
{
    constexpr float mostHours = 24.0F;
    double hours = 0.0;
    if (parseNumber(text, hours) && hours > 0.0 && hours <= mostHours)
        return static_cast<float>(hours);
    const std::size_t colon = text.find(':');
    if (colon != std::string_view::npos) {
        const auto whole = wholeNumber<int>(text.substr(0, colon));
        const auto minutes = wholeNumber<int>(text.substr(colon + 1));
        if (whole && minutes && *whole >= 0 && *whole < 24 && *minutes >= 0 && *minutes < 60 && *whole + *minutes > 0)
            return static_cast<float>(*whole) + static_cast<float>(*minutes) / 60.0F;
    }
    refuse(text, "number of hours", "1.5 or 1:30, at most 24");
}

std::int32_t parseColour(std::string_view text)
{
    if (text.size() == 7 && text[0] == '#') {
        if (const auto rgb = wholeNumber<std::int32_t>(text.substr(1), 16))
            return (*rgb & 0xFF) << 16 | (*rgb & 0xFF00) | *rgb >> 16;
    }
    if (const auto number = wholeNumber<std::int32_t>(text); number && *number >= 0 && *number <= 0xFFFFFF)
        return *number;
    refuse(text, "colour", "#RRGGBB, or a number from 0 to 16777215");
}

std::string colourText(std::int32_t colour)
{
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text = "#";
    for (const int shift : {4, 0, 12, 8, 20, 16})
        text += digits[static_cast<std::size_t>(colour >> shift & 0xF)];
    return text;
}

} // namespace qncal::firmcal
