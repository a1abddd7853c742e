#pragma once

#include <cstdint>

/// What belongs to a client in the database. No routine lets an error out; without a connection, and after a
/// failure, the result is the default that it names.
namespace qncal::modDatabaseClientFunctions {

/// The contact that stands for a company; -1 when it has none.
std::int32_t getDefaultContactIDFromCompanyID(std::int32_t companyID);

} // namespace qncal::modDatabaseClientFunctions
