#pragma once

#include "utilities/Variant.h"

#include <cstdint>
#include <optional>

namespace qncal {

/// For cells that another program has filled: a value as far as it reads as what the column is for.

/// None for null, for what is not numeric and for a number outside of 32 bits.
std::optional<std::int32_t> integerIn(const Variant& value);
/// None for null and for what is neither True, False nor a number.
std::optional<bool> booleanIn(const Variant& value);

} // namespace qncal
