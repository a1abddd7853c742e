#pragma once

#include "controls/ListTarget.h"

#include <cstdint>
#include <string_view>

namespace qncal {

/// What becomes of a row whose text is null.
enum class NullText : std::uint8_t { skipped, blank };

/// Adds a line for each row of a SELECT behind what the list holds, in the order of the rows: the text of one field,
/// and the number of another as item data, -1 for a null.
void fillList(ListTarget& list, std::string_view sql, std::string_view numberField, std::string_view textField,
              NullText nullText);

} // namespace qncal
