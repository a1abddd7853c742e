#pragma once

#include "core/RecordSet.h"

#include <cstdint>
#include <string_view>

namespace qncal {

/// Reads a colour of the current record. A null, a text that is no number and a number outside of 32 bits leave the
/// target as it was: a colour alone is no reason for a row not to be read.
void readColour(const RecordSet& row, std::string_view column, std::int32_t& target);

} // namespace qncal
