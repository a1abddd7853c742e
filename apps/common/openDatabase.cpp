#include "common/openDatabase.h"

#include "common/Failure.h"
#include "store/SqliteDatabase.h"

#include <filesystem>

namespace qncal::firmcal {

std::shared_ptr<host::SqliteDatabase> openDatabase(const std::string& file)
{
    if (file.empty())
        throw Failure("no database given; use --database FILE or set " + std::string(databaseVariable));
    if (!std::filesystem::exists(file))
        throw Failure("there is no file " + file + "; 'firmcal init' and 'firmcal demo' make databases");
    return host::SqliteDatabase::open(file);
}

host::Locale::Values localeOf(DatabaseService& database)
{
    host::Locale::Values values;
    values.productName = "firmcal";
    host::readRegion(database, values);
    return values;
}

} // namespace qncal::firmcal
