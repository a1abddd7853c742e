#pragma once

#include "store/dialect/Tree.h"

#include <string_view>

namespace qncal::host::dialect {

/// Reads one SELECT statement. Throws `RunTimeError` that tells what is wrong and where.
Select parseSelect(std::string_view sql);

} // namespace qncal::host::dialect
