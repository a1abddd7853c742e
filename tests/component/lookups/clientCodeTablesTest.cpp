#include "lookups/clientCodeTables.h"

#include "support/ComponentTest.h"
#include "support/RoutineSweep.h"
#include "support/rowName.h"

namespace qncal::modDatabaseFunctions {
namespace {

using Decoder = std::string (*)(std::int32_t);

struct CodeCase {
    const char* name;
    Decoder decoder;
    std::int32_t code;
    std::string text;
};

class ClientCodeTablesTest : public test::ComponentTestWith<CodeCase> {};

constexpr Decoder companyType = getCompanyTypeStringFromCompanyTypeNum;
constexpr Decoder statements = getFinancialStatementsStringFromFinancialStatementsNum;
constexpr Decoder formStatus = getRC59FormStatusStringFromRC59FormStatusNum;
constexpr Decoder permission = getRC59PermissionStringFromRC59PermissionNum;
constexpr Decoder filingMethod = getGSTFilingMethodStringFromGSTFilingMethodNum;
constexpr Decoder corporationType = getCorporationTypeStringFromCorporationTypeNum;
constexpr Decoder corporationLevel = getCorporationLevelStringFromCorporationLevelNum;

TEST_P(ClientCodeTablesTest, GivesTheTextOfTheCode) { EXPECT_EQ(GetParam().decoder(GetParam().code), GetParam().text); }

INSTANTIATE_TEST_SUITE_P(
    Tables, ClientCodeTablesTest,
    testing::Values(
        CodeCase{"CompanyTypeBelow", companyType, -1, "Unknown"}, CodeCase{"CompanyType0", companyType, 0, "Unknown"},
        CodeCase{"CompanyType1", companyType, 1, "Corporation"},
        CodeCase{"CompanyType2", companyType, 2, "Sole Proprietorship"},
        CodeCase{"CompanyType4", companyType, 4, "Non Profit"}, CodeCase{"CompanyType5", companyType, 5, "Trust"},
        CodeCase{"CompanyType6", companyType, 6, "Joint Venture"},
        CodeCase{"CompanyType7", companyType, 7, "S Corporation"}, CodeCase{"CompanyType8", companyType, 8, "LLP"},
        CodeCase{"CompanyType9", companyType, 9, "LLC"}, CodeCase{"CompanyType10", companyType, 10, "Fiduciary"},
        CodeCase{"CompanyTypeAbove", companyType, 11, "Unknown"},
        CodeCase{"StatementsBelow", statements, -1, "Not Specified"},
        CodeCase{"Statements0", statements, 0, "Not Specified"},
        CodeCase{"Statements1", statements, 1, "Not Specified"},
        CodeCase{"Statements2", statements, 2, "Compilation (NTR)"},
        CodeCase{"Statements3", statements, 3, "Review Engagement"},
        CodeCase{"Statements4", statements, 4, "Review Engagement with Differential Reporting"},
        CodeCase{"Statements5", statements, 5, "Audit"}, CodeCase{"StatementsAbove", statements, 6, "Not Specified"},
        CodeCase{"FormStatus0", formStatus, 0, "Not Filed"},
        CodeCase{"FormStatus1", formStatus, 1, "Awaiting Signature"},
        CodeCase{"FormStatus2", formStatus, 2, "CRA Processing"}, CodeCase{"FormStatus3", formStatus, 3, "Completed"},
        CodeCase{"FormStatusAbove", formStatus, 4, "Not Filed"}, CodeCase{"Permission0", permission, 0, "None"},
        CodeCase{"Permission1", permission, 1, "Full"}, CodeCase{"Permission2", permission, 2, "Limited"},
        CodeCase{"PermissionAbove", permission, 3, "None"}, CodeCase{"FilingMethod0", filingMethod, 0, "Not Specified"},
        CodeCase{"FilingMethod1", filingMethod, 1, "Traditional"},
        CodeCase{"FilingMethod2", filingMethod, 2, "Simple Method"},
        CodeCase{"FilingMethod3", filingMethod, 3, "Quick Method"},
        CodeCase{"FilingMethodAbove", filingMethod, 4, "Not Specified"},
        CodeCase{"CorporationType0", corporationType, 0, "CCPC"},
        CodeCase{"CorporationType1", corporationType, 1, "Regular Corporation"},
        CodeCase{"CorporationTypeAbove", corporationType, 2, "CCPC"},
        CodeCase{"CorporationLevel0", corporationLevel, 0, "Federal Corporation"},
        CodeCase{"CorporationLevel1", corporationLevel, 1, "Federal Corporation"},
        CodeCase{"CorporationLevel2", corporationLevel, 2, "Provincial Corporation"},
        CodeCase{"CorporationLevelAbove", corporationLevel, 3, "Federal Corporation"}),
    test::rowName);

TEST_F(ClientCodeTablesTest, CompanyType3DependsOnTheCountry)
{
    locale->country = LocaleService::canada;
    EXPECT_EQ(companyType(3), "Partnership");
    locale->country = LocaleService::unitedStates;
    EXPECT_EQ(companyType(3), "General Partnership");
    locale->country = 0;
    EXPECT_EQ(companyType(3), "Unknown");
}

TEST_F(ClientCodeTablesTest, WithoutALocaleCompanyType3StaysUnknown)
{
    serviceRegistry().locale = nullptr;
    EXPECT_EQ(companyType(3), "Unknown");
    EXPECT_EQ(errors->takeErrors().size(), 1u);
}

TEST_F(ClientCodeTablesTest, EachRoutineHasItsLabel)
{
    for (const Decoder decoder :
         {companyType, statements, formStatus, permission, filingMethod, corporationType, corporationLevel})
        decoder(1);
    EXPECT_EQ(errors->labels(),
              (std::vector<std::string>{
                  "Vestrel.exe-modDatabaseFunctions-getCompanyTypeStringFromCompanyTypeNum",
                  "Vestrel.exe-modDatabaseFunctions-getFinancialStatementsStringFromFinancialStatementsNum",
                  "Vestrel.exe-modDatabaseFunctions-getRC59FormStatusStringFromRC59FormStatusNum",
                  "Vestrel.exe-modDatabaseFunctions-getRC59PermissionStringFromRC59PermissionNum",
                  "Vestrel.exe-modDatabaseFunctions-getGSTFilingMethodStringFromGSTFilingMethodNum",
                  "Vestrel.exe-modDatabaseFunctions-getCorporationTypeStringFromCorporationTypeNum",
                  "Vestrel.exe-modDatabaseFunctions-getCorporationLevelStringFromCorporationLevelNum"}));
}

const test::SweptRoutine partnership{
    "getCompanyTypeStringFromCompanyTypeNum", "Unknown",
    [](test::TestWorld&) -> std::function<std::string()> { return [] { return companyType(3); }; }, false};

TEST(ClientCodeTablesFaults, LeavingGivesUnknown) { test::expectFaultsLeave(partnership); }

TEST(ClientCodeTablesFaults, RetryingGivesTheText) { test::expectFaultsRetry(partnership); }

} // namespace
} // namespace qncal::modDatabaseFunctions
