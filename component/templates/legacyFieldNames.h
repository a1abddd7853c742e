#pragma once

#include "templates/fieldRenaming.h"

#include <span>

namespace qncal {

/// What brings the field names, words and delimiters of old templates up to date.
std::span<const FieldRenaming> legacyFieldNames();

} // namespace qncal
