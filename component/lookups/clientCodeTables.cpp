#include "lookups/clientCodeTables.h"

#include "core/LocaleService.h"
#include "core/ServiceRegistry.h"
#include "core/routineScope.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

namespace qncal::modDatabaseFunctions {

namespace {

struct CodeText {
    std::int32_t code;
    std::string_view text;
};

/// The text of a code, or the one for any other code.
std::string textOfCode(std::span<const CodeText> table, std::int32_t code, std::string_view other)
{
    const auto found = std::ranges::find(table, code, &CodeText::code);
    return std::string(found == table.end() ? other : found->text);
}

constexpr std::int32_t partnershipCode = 3;
constexpr std::array<CodeText, 9> companyTypes{{
    {1, "Corporation"},
    {2, "Sole Proprietorship"},
    {4, "Non Profit"},
    {5, "Trust"},
    {6, "Joint Venture"},
    {7, "S Corporation"},
    {8, "LLP"},
    {9, "LLC"},
    {10, "Fiduciary"},
}};
constexpr std::array<CodeText, 2> partnershipByCountry{{
    {LocaleService::canada, "Partnership"},
    {LocaleService::unitedStates, "General Partnership"},
}};
constexpr std::string_view unknownCompanyType = "Unknown";

constexpr std::array<CodeText, 4> financialStatements{{
    {2, "Compilation (NTR)"},
    {3, "Review Engagement"},
    {4, "Review Engagement with Differential Reporting"},
    {5, "Audit"},
}};
constexpr std::array<CodeText, 3> rc59FormStatuses{{
    {1, "Awaiting Signature"},
    {2, "CRA Processing"},
    {3, "Completed"},
}};
constexpr std::array<CodeText, 2> rc59Permissions{{
    {1, "Full"},
    {2, "Limited"},
}};
constexpr std::array<CodeText, 3> gstFilingMethods{{
    {1, "Traditional"},
    {2, "Simple Method"},
    {3, "Quick Method"},
}};
constexpr std::array<CodeText, 1> corporationTypes{{{1, "Regular Corporation"}}};
constexpr std::array<CodeText, 1> corporationLevels{{{2, "Provincial Corporation"}}};

} // namespace

std::string getCompanyTypeStringFromCompanyTypeNum(std::int32_t code)
{
    return routine("Vestrel.exe-modDatabaseFunctions-getCompanyTypeStringFromCompanyTypeNum",
                   std::string(unknownCompanyType), [&] {
                       if (code != partnershipCode)
                           return textOfCode(companyTypes, code, unknownCompanyType);
                       const std::int32_t country = statement([] { return localeService().getCountryCode(); });
                       return textOfCode(partnershipByCountry, country, unknownCompanyType);
                   });
}

std::string getFinancialStatementsStringFromFinancialStatementsNum(std::int32_t code)
{
    return routine("Vestrel.exe-modDatabaseFunctions-getFinancialStatementsStringFromFinancialStatementsNum",
                   std::string(), [&] { return textOfCode(financialStatements, code, "Not Specified"); });
}

std::string getRC59FormStatusStringFromRC59FormStatusNum(std::int32_t code)
{
    return routine("Vestrel.exe-modDatabaseFunctions-getRC59FormStatusStringFromRC59FormStatusNum", std::string(),
                   [&] { return textOfCode(rc59FormStatuses, code, "Not Filed"); });
}

std::string getRC59PermissionStringFromRC59PermissionNum(std::int32_t code)
{
    return routine("Vestrel.exe-modDatabaseFunctions-getRC59PermissionStringFromRC59PermissionNum", std::string(),
                   [&] { return textOfCode(rc59Permissions, code, "None"); });
}

std::string getGSTFilingMethodStringFromGSTFilingMethodNum(std::int32_t code)
{
    return routine("Vestrel.exe-modDatabaseFunctions-getGSTFilingMethodStringFromGSTFilingMethodNum", std::string(),
                   [&] { return textOfCode(gstFilingMethods, code, "Not Specified"); });
}

std::string getCorporationTypeStringFromCorporationTypeNum(std::int32_t code)
{
    return routine("Vestrel.exe-modDatabaseFunctions-getCorporationTypeStringFromCorporationTypeNum", std::string(),
                   [&] { return textOfCode(corporationTypes, code, "CCPC"); });
}

std::string getCorporationLevelStringFromCorporationLevelNum(std::int32_t code)
{
    return routine("Vestrel.exe-modDatabaseFunctions-getCorporationLevelStringFromCorporationLevelNum", std::string(),
                   [&] { return textOfCode(corporationLevels, code, "Federal Corporation"); });
}

} // namespace qncal::modDatabaseFunctions
