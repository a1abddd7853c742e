#pragma once

#include "core/schema.h"
#include "store/SqliteConnection.h"

#include <cstdint>
#include <span>
#include <string>

namespace qncal::host {

/// Marks a database file as one of this store's.
inline constexpr std::int32_t applicationId = 0x714E4361;

std::string createTableText(const schema::Table& table);

/// Brings an open database to the schema: a new one gets all tables, an older one those and the columns that it
/// lacks. Throws `RunTimeError` for a database of a newer version or of another program.
void prepareSchema(SqliteConnection& connection, std::span<const schema::Table> tables, std::int32_t version);

} // namespace qncal::host
