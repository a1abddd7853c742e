#include "utilities/Variant.h"

#include "utilities/RunTimeError.h"
#include "utilities/dateText.h"
#include "utilities/text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

namespace qncal {

namespace {

[[noreturn]] void mismatch(const char* wanted, const std::string& text)
{
    throw RunTimeError(errorNumber::typeMismatch, "Type mismatch: \"" + text + "\" is not " + wanted);
}

[[noreturn]] void nullUsed() { throw RunTimeError(errorNumber::invalidUseOfNull, "Invalid use of Null"); }

std::int32_t roundToInteger(double number)
{
    const double rounded = std::nearbyint(number); // the default rounding mode is half to even
    if (!(rounded >= std::numeric_limits<std::int32_t>::min() && rounded <= std::numeric_limits<std::int32_t>::max()))
        throw RunTimeError(errorNumber::overflow, "Overflow: " + numberText(number));
    return static_cast<std::int32_t>(rounded);
}

} // namespace

std::string numberText(double value)
{
    std::array<char, 400> buffer{};
    const bool whole = value == std::trunc(value) && std::fabs(value) < 1e15;
    const auto end = whole ? std::to_chars(buffer.data(), buffer.data() + buffer.size(), static_cast<std::int64_t>(value))
                           : std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    return {buffer.data(), end.ptr};
}

bool parseNumber(std::string_view text, double& value)
{
    text = trimmed(text);
    if (!text.empty() && text.front() == '+')
        text.remove_prefix(1);
    double parsed = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), parsed);
    if (error != std::errc{} || end != text.data() + text.size() || !std::isfinite(parsed))
        return false;
    value = parsed;
    return true;
}

std::int32_t Variant::toInteger() const { return roundToInteger(toReal()); }

double Variant::toReal() const
{
    if (const auto* number = std::get_if<double>(&value_))
        return *number;
    if (const auto* boolean = std::get_if<bool>(&value_))
        return *boolean ? -1.0 : 0.0;
    if (const auto* date = std::get_if<Date>(&value_))
        return date->serial();
    if (const auto* text = std::get_if<std::string>(&value_)) {
        double number = 0;
        if (parseNumber(*text, number))
            return number;
        mismatch("a number", *text);
    }
    nullUsed();
}

bool Variant::toBoolean() const
{
    if (const auto* boolean = std::get_if<bool>(&value_))
        return *boolean;
    if (const auto* text = std::get_if<std::string>(&value_)) {
        if (equalsNoCase(*text, "True"))
            return true;
        if (equalsNoCase(*text, "False"))
            return false;
        double number = 0;
        if (parseNumber(*text, number))
            return number != 0;
        mismatch("True or False", *text);
    }
    return toReal() != 0;
}

Date Variant::toDate() const
{
    if (const auto* date = std::get_if<Date>(&value_))
        return *date;
    if (const auto* text = std::get_if<std::string>(&value_)) {
        if (const auto date = parseDate(*text))
            return *date;
        mismatch("a date", *text);
    }
    return Date(toReal());
}

std::string Variant::toText() const&
{
    if (const auto* text = std::get_if<std::string>(&value_))
        return *text;
    if (const auto* boolean = std::get_if<bool>(&value_))
        return booleanText(*boolean);
    if (const auto* date = std::get_if<Date>(&value_))
        return defaultDateText(*date);
    return numberText(toReal());
}

std::string Variant::toText() &&
{
    if (auto* text = std::get_if<std::string>(&value_))
        return std::move(*text);
    return std::as_const(*this).toText();
}

bool Variant::isNumeric() const
{
    double number = 0;
    return isNumber() || isBoolean() || (isText() && parseNumber(text(), number));
}

} // namespace qncal
