#pragma once

#include "common/itemRows.h"

#include <nlohmann/json_fwd.hpp>

namespace qncal::firmcal {

nlohmann::ordered_json rowJson(const ItemRow& row, host::ClientDropDown& clients);

} // namespace qncal::firmcal
