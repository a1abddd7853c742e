#pragma once

#include "templates/delimiters.h"

#include <string>

namespace qncal {

/// Removes every expression from the text: again and again the first opening delimiter with all up to the next
/// closing one, and at the same time every other occurrence of exactly this piece. An opening delimiter with no
/// closing one after it ends the removal. True when anything was removed.
bool removeExpressions(std::string& text, const DelimiterPair& pair);

} // namespace qncal
