#include "utilities/Variant.h"

#include "utilities/RunTimeError.h"
#include "utilities/dateText.h"
#include "utilities/text.h"

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

[[noreturn]] void overflow(double number)
{
    throw RunTimeError(errorNumber::overflow, "Overflow: " + numberText(number));
}

std::int32_t roundToInteger(double number)
{
    const double rounded = std::nearbyint(number); // the default rounding mode is half to even
    if (!(rounded >= std::numeric_limits<std::int32_t>::min() && rounded <= std::numeric_limits<std::int32_t>::max()))
        overflow(number);
    return static_cast<std::int32_t>(rounded);
}

} // namespace

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
    const Date date(toReal());
    if (!date.isInCalendar())
        overflow(date.serial());
    return date;
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
