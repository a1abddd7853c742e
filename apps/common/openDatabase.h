#pragma once

#include "services/Locale.h"

#include <memory>
#include <string>

namespace qncal::host {
class SqliteDatabase;
}

namespace qncal::firmcal {

/// The environment variable that names the database where the command line does not.
inline constexpr const char* databaseVariable = "FIRMCAL_DATABASE";

/// Opens a database that exists. Throws `Failure` for an empty name or without such a file.
std::shared_ptr<host::SqliteDatabase> openDatabase(const std::string& file);

/// The region that is kept in the database.
host::Locale::Values localeOf(DatabaseService& database);

} // namespace qncal::firmcal
