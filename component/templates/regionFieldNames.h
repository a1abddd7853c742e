#pragma once

#include <cstdint>
#include <string>

namespace qncal {

/// The field names of Canada as those of the United States, in place.
void renameFieldsForUnitedStates(std::string& text);
/// The tax and workers' board fields of every province as those of one, then the names of the United States
/// as those of Canada, in place.
void renameFieldsForCanada(std::string& text, std::int32_t province);

} // namespace qncal
