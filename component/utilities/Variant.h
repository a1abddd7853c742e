#pragma once

#include "utilities/Date.h"
#include "utilities/numberText.h"

#include <cstdint>
#include <string>
#include <variant>

namespace qncal {

/// A field value as the database service gives it: null, number, boolean, date or text.
///
/// The `to...` conversions follow the usual rules of automation: text is parsed, a boolean is -1 or 0 as a
/// number, a number rounds half to even as an integer. A value that does not convert throws `RunTimeError`:
/// 94 for null, 13 for a text that is no such value, 6 for a number outside the integers or the calendar.
class Variant {
public:
    Variant() = default;
    Variant(double number) : value_(number) {}
    Variant(std::int32_t number) : value_(static_cast<double>(number)) {}
    Variant(bool boolean) : value_(boolean) {}
    Variant(Date date) : value_(date) {}
    Variant(std::string text) : value_(std::move(text)) {}
    Variant(const char* text) : value_(std::string(text)) {}

    bool isNull() const { return std::holds_alternative<std::monostate>(value_); }
    bool isNumber() const { return std::holds_alternative<double>(value_); }
    bool isBoolean() const { return std::holds_alternative<bool>(value_); }
    bool isDate() const { return std::holds_alternative<Date>(value_); }
    bool isText() const { return std::holds_alternative<std::string>(value_); }

    /// The text itself; only for a value that `isText`.
    const std::string& text() const& { return std::get<std::string>(value_); }
    std::string&& text() && { return std::get<std::string>(std::move(value_)); }

    std::int32_t toInteger() const;
    double toReal() const;
    bool toBoolean() const;
    Date toDate() const;
    std::string toText() const&;
    std::string toText() &&;
    /// True for a number, a boolean, and a text that reads as a number.
    bool isNumeric() const;

    friend bool operator==(const Variant&, const Variant&) = default;

private:
    std::variant<std::monostate, double, bool, Date, std::string> value_;
};

} // namespace qncal
