#pragma once

#include <cstdint>
#include <string_view>

namespace qncal::host {

/// A value in the form in which it is stored. A text lies in storage of someone else.
struct StoredValue {
    enum class Kind : std::uint8_t { null, integer, real, text };
    Kind kind = Kind::null;
    std::int64_t integer = 0;
    double real = 0;
    std::string_view text = {};

    friend bool operator==(const StoredValue& a, const StoredValue& b);
};

inline bool operator==(const StoredValue& a, const StoredValue& b)
{
    if (a.kind != b.kind)
        return false;
    switch (a.kind) {
    case StoredValue::Kind::integer:
        return a.integer == b.integer;
    case StoredValue::Kind::real:
        return a.real == b.real;
    case StoredValue::Kind::text:
        return a.text == b.text;
    default:
        return true;
    }
}

} // namespace qncal::host
