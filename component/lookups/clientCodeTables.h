#pragma once

#include <cstdint>
#include <string>

namespace qncal::modDatabaseFunctions {

/// The texts of the code numbers in which a company's classifications are stored. A code that a table does not
/// list gives the table's text for "any other".

/// The text for code 3 depends on the firm's country.
std::string getCompanyTypeStringFromCompanyTypeNum(std::int32_t code);
std::string getFinancialStatementsStringFromFinancialStatementsNum(std::int32_t code);
std::string getRC59FormStatusStringFromRC59FormStatusNum(std::int32_t code);
std::string getRC59PermissionStringFromRC59PermissionNum(std::int32_t code);
std::string getGSTFilingMethodStringFromGSTFilingMethodNum(std::int32_t code);
std::string getCorporationTypeStringFromCorporationTypeNum(std::int32_t code);
std::string getCorporationLevelStringFromCorporationLevelNum(std::int32_t code);

} // namespace qncal::modDatabaseFunctions
