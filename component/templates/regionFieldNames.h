#pragma once

#include "templates/FieldRenamer.h"

#include <cstdint>

namespace qncal {

/// Old names of every sort to those of the firm's region today: legacy names first, then for the United States the
/// field names of Canada to its own; for Canada the tax and workers' board fields of every province to those of
/// one, then the names of the United States to those of Canada. Any other country has the legacy names alone.
const FieldRenamer& fieldRenamer(std::int32_t country, std::int32_t province);

} // namespace qncal
