#include "utilities/readableValue.h"

#include "utilities/text.h"

#include <cmath>
#include <limits>

namespace qncal {

std::optional<std::int32_t> integerIn(const Variant& value)
{
    if (!value.isNumeric())
        return std::nullopt;
    const double number = std::nearbyint(value.toReal()); // the default rounding mode is half to even
    using Limits = std::numeric_limits<std::int32_t>;
    if (!(number >= Limits::min() && number <= Limits::max()))
        return std::nullopt;
    return static_cast<std::int32_t>(number);
}

std::optional<bool> booleanIn(const Variant& value)
{
    const bool isWord = value.isText() && (equalsNoCase(value.text(), "True") || equalsNoCase(value.text(), "False"));
    return isWord || value.isNumeric() ? std::optional(value.toBoolean()) : std::nullopt;
}

} // namespace qncal
