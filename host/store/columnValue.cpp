#include "store/columnValue.h"

#include "store/dateStorage.h"
#include "store/storeError.h"
#include "utilities/text.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>

namespace qncal::host {

namespace {

using schema::ColumnType;

StoredValue storedInteger(std::int64_t value) { return {StoredValue::Kind::integer, value}; }
StoredValue storedReal(double value) { return {StoredValue::Kind::real, 0, value}; }
StoredValue storedText(std::string_view value) { return {StoredValue::Kind::text, 0, 0, value}; }

std::optional<StoredValue> integerFromText(std::string_view text)
{
    std::int32_t whole = 0;
    if (const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), whole);
        error == std::errc{} && end == text.data() + text.size())
        return storedInteger(whole);
    double number = 0;
    if (!parseNumber(text, number))
        return std::nullopt;
    number = std::nearbyint(number); // the default rounding mode is half to even
    if (number < std::numeric_limits<std::int32_t>::min() || number > std::numeric_limits<std::int32_t>::max())
        return std::nullopt;
    return storedInteger(static_cast<std::int64_t>(number));
}

std::optional<StoredValue> booleanFromText(std::string_view text)
{
    text = trimmed(text);
    if (equalsNoCase(text, "True"))
        return storedInteger(1);
    if (equalsNoCase(text, "False"))
        return storedInteger(0);
    double number = 0;
    if (!parseNumber(text, number))
        return std::nullopt;
    return storedInteger(number != 0 ? 1 : 0);
}

std::optional<StoredValue> dateFromText(ColumnType type, std::string_view text, std::string& buffer)
{
    const auto date = readDateText(text);
    if (!date)
        return std::nullopt;
    buffer.clear();
    if (type == ColumnType::time)
        appendTimeStorage(*date, buffer);
    else
        appendDateStorage(*date, buffer);
    return storedText(buffer);
}

} // namespace

std::optional<StoredValue> storedFromText(ColumnType type, std::string_view text, std::string& buffer)
{
    if (type == ColumnType::text || type == ColumnType::memo)
        return storedText(text);
    if (type == ColumnType::boolean)
        return booleanFromText(text);
    if (type == ColumnType::key)
        return integerFromText(text);
    if (text.empty())
        return StoredValue{};
    switch (type) {
    case ColumnType::date:
    case ColumnType::time:
        return dateFromText(type, text, buffer);
    case ColumnType::real:
    case ColumnType::currency: {
        double number = 0;
        if (!parseNumber(text, number))
            return std::nullopt;
        return storedReal(number);
    }
    default:
        return integerFromText(text);
    }
}

StoredValue storedForColumn(const schema::Table& table, const schema::Column& column, std::string_view text,
                            std::string& buffer)
{
    if (const auto value = storedFromText(column.type, text, buffer))
        return *value;
    throw RunTimeError(storeError::badValue, "\"" + std::string(text) + "\" is no value for the column "
                                                 + std::string(table.name) + "." + std::string(column.name));
}

Variant computedValue(const StoredValue& value)
{
    switch (value.kind) {
    case StoredValue::Kind::integer:
        return {static_cast<double>(value.integer)};
    case StoredValue::Kind::real:
        return {value.real};
    case StoredValue::Kind::text:
        return {std::string(value.text)};
    default:
        return {};
    }
}

Variant fieldValue(ColumnType type, const StoredValue& value)
{
    if (value.kind == StoredValue::Kind::integer && type == ColumnType::boolean)
        return {value.integer != 0};
    if (value.kind == StoredValue::Kind::text && (type == ColumnType::date || type == ColumnType::time))
        if (const auto date = readDateText(value.text))
            return {*date};
    return computedValue(value);
}

} // namespace qncal::host
