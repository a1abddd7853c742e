#pragma once

#include <string>

namespace qncal::host {

/// The reference of all tables, columns and indexes in Markdown, made from the schema. It is kept in
/// `docs/database-tables.md`.
std::string schemaDocument();

} // namespace qncal::host
