#pragma once

#include "templates/delimiters.h"
#include "utilities/FieldListCollection.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace qncal {

/// Gives the text of a field: the catalogue row by its position from 0, and the date pattern, empty for a field
/// that is no date. Nothing leaves the expression in the text.
using FieldValueSource = std::function<std::optional<std::string>(std::int32_t position, const std::string& format)>;

/// One pass of the merge: every field expression between the two delimiters gives way to its value.
///
/// The result is that of trying the rows of the list one after the other, each on the text that the rows before
/// it have left: an expression that a value brings in is merged by a later row, never by an earlier one. The
/// values are asked for in that order, once for each row and date format that occurs. With `blankBefore` a
/// value follows the rule of `replaceInRichText`. True when anything was replaced.
bool substituteFields(std::string& text, const DelimiterPair& pair, FieldListCollection& list, bool blankBefore,
                      const FieldValueSource& valueOf);

} // namespace qncal
