#pragma once

#include <string>

namespace qncal {

/// Brings the field names, words and delimiters of old templates up to date, in place.
void renameLegacyFields(std::string& text);

} // namespace qncal
