#pragma once

#include <string>

namespace qncal::firmcal {

/// The reference of all merge fields in Markdown, made from the catalogue as it is in each region on the day of the
/// clock. It is kept in `docs/template-fields.md`.
std::string mergeFieldDocument();

} // namespace qncal::firmcal
