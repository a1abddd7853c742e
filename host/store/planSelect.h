#pragma once

#include "store/Catalogue.h"
#include "store/SelectPlan.h"
#include "store/dialect/Tree.h"

#include <string_view>

namespace qncal::host {

/// Finds the names of a SELECT in the catalogue and writes it anew for the engine. Throws `RunTimeError` that
/// tells place and name for a table or column that is not there.
SelectPlan::Parts planSelect(const dialect::Select& select, std::string_view sql, const Catalogue& catalogue);

} // namespace qncal::host
