#include "lookups/mainBusinessQuery.h"

#include "core/RecordSet.h"
#include "support/ComponentTest.h"
#include "support/RoutineSweep.h"
#include "support/rowName.h"

namespace qncal::modFormatAddresses {
namespace {

constexpr std::int32_t canada = LocaleService::canada;
constexpr std::int32_t unitedStates = LocaleService::unitedStates;

class MainBusinessQueryTest : public test::ComponentTest {
protected:
    /// A company with its whole record in the tables of both countries; gives the id of its client data.
    std::int32_t addClient(const std::string& companyName, const std::string& corporateName,
                           const std::string& clientID, bool shown, int activeStatus)
    {
        const std::string company = std::to_string(addRow(
            "Companies", {{"CompanyName", companyName}, {"CorporateName", corporateName}, {"ClientID", clientID}}));
        addRow("CompaniesNotes", {{"CompanyNum", company}, {"BusinessNotes", "Notes on " + companyName}});
        addRow("Clients", {{"CompanyIDNum", company}});
        const std::int32_t client = addRow("ClientData", {{"CompanyIDNum", company},
                                                          {"ShowThisClient", shown ? "True" : "False"},
                                                          {"ActiveStatus", std::to_string(activeStatus)}});
        const std::string clientData = std::to_string(client);
        for (const char* table :
             {"AccountingServices", "ClientOptions", "CorpTaxInfo", "LawInfo", "OtherInfo", "WSIB_EHTInfo"})
            addRow(table, {{"ClientDataIDNum", clientData}});
        addRow("ClientUSInfo", {{"ClientDataIDNum", clientData}, {"EIN", "EIN of " + companyName}});
        return client;
    }

    static std::string companiesOf(const std::string& sql)
    {
        std::string names;
        routine("mainBusinessQueryTest", [&] {
            RecordSet clients = RecordSet::openReadOnly(sql);
            for (; !clients.isEOF(); clients.moveNext())
                names += clients.field("CompanyName").toText() + " ";
            clients.close();
        });
        return names;
    }
};

struct QueryCase {
    const char* name;
    bool filterClients;
    std::int16_t activeFilter;
    std::int32_t sortOrder;
    std::string companies;
};

class MainBusinessFilterTest : public MainBusinessQueryTest, public testing::WithParamInterface<QueryCase> {};

TEST_P(MainBusinessFilterTest, SelectsAndSortsInBothCountries)
{
    addClient("Cedar", "Alpha Inc.", "30", true, 1);
    addClient("Birch", "Gamma Inc.", "10", true, 2);
    addClient("Aspen", "Beta Inc.", "20", false, 1);
    addClient("Dogwood", "Delta Inc.", "10", false, 0);
    for (const std::int32_t country : {canada, unitedStates, 0}) {
        locale->country = country;
        const std::string sql =
            getMainBusinessSQLString(GetParam().filterClients, GetParam().activeFilter, GetParam().sortOrder);
        EXPECT_EQ(companiesOf(sql), GetParam().companies) << sql;
    }
}

INSTANTIATE_TEST_SUITE_P(Queries, MainBusinessFilterTest,
                         testing::Values(QueryCase{"All", false, 3, 1, "Aspen Birch Cedar Dogwood "},
                                         QueryCase{"AllByCorporateName", false, 3, 2, "Cedar Aspen Dogwood Birch "},
                                         QueryCase{"AllByClientID", false, 3, 3, "Birch Dogwood Aspen Cedar "},
                                         QueryCase{"Shown", true, 3, 1, "Birch Cedar "},
                                         QueryCase{"Active", false, 1, 1, "Aspen Cedar "},
                                         QueryCase{"Inactive", false, 2, 1, "Birch Dogwood "},
                                         QueryCase{"ShownAndActive", true, 1, 1, "Cedar "},
                                         QueryCase{"ShownAndInactive", true, 2, 1, "Birch "}),
                         test::rowName);

TEST_F(MainBusinessQueryTest, OneClientIsSelectedWithAndWithoutTheFilter)
{
    addClient("Cedar", "", "", true, 1);
    const std::int32_t birch = addClient("Birch", "", "", false, 1);
    EXPECT_EQ(companiesOf(getMainBusinessSQLString(false, 3, 1, birch)), "Birch ");
    EXPECT_EQ(companiesOf(getMainBusinessSQLString(true, 3, 1, birch)), "");
}

TEST_F(MainBusinessQueryTest, TheClientOfACompanyIsSelectedWhateverItsState)
{
    // Ids of companies and of client data that differ tell the two apart.
    addRow("Companies", {{"CompanyName", "No client"}});
    addClient("Cedar", "", "", true, 1);
    addClient("Birch", "", "", false, 0);
    EXPECT_EQ(companiesOf(getMainBusinessSQLStringForCompany(1)), "");
    EXPECT_EQ(companiesOf(getMainBusinessSQLStringForCompany(2)), "Cedar ");
    EXPECT_EQ(companiesOf(getMainBusinessSQLStringForCompany(3)), "Birch ");
}

TEST_F(MainBusinessQueryTest, TheRecordHoldsTheColumnsOfTheCountry)
{
    addClient("Cedar", "", "", true, 1);
    routine("mainBusinessQueryTest", [&] {
        locale->country = unitedStates;
        RecordSet american = RecordSet::openReadOnly(getMainBusinessSQLString(false, 3, 1));
        EXPECT_EQ(american.field("EIN"), Variant("EIN of Cedar"));
        EXPECT_EQ(american.field("BusinessNotes"), Variant("Notes on Cedar"));
        american.close();
        locale->country = canada;
        RecordSet canadian = RecordSet::openReadOnly(getMainBusinessSQLString(false, 3, 1));
        EXPECT_TRUE(canadian.field("BusinessNumber").isNull());
        EXPECT_TRUE(canadian.field("LawSocietyMemberNumber").isNull());
        canadian.close();
    });
}

TEST_F(MainBusinessQueryTest, BeginsWithTheColumnsAndEndsWithTheOrder)
{
    locale->country = canada;
    const std::string canadian = getMainBusinessSQLString(true, 1, 1, 7);
    EXPECT_TRUE(canadian.starts_with(
        "SELECT Clients.ClientID, AccountingServices.*, ClientData.*, ClientOptions.*, Companies.*, CorpTaxInfo.*, "
        "LawInfo.*, OtherInfo.*, WSIB_EHTInfo.*, CompaniesNotes.BusinessNotes, CompaniesNotes.ContactNotes FROM "));
    EXPECT_TRUE(canadian.ends_with("WHERE ClientData.ShowThisClient = True AND ClientData.ActiveStatus=1 "
                                   "AND ClientData.ClientDataID=7 ORDER BY Companies.CompanyName;"));
    locale->country = unitedStates;
    const std::string american = getMainBusinessSQLString(false, 3, 3, 7);
    EXPECT_TRUE(american.starts_with(
        "SELECT Clients.ClientID, AccountingServices.*, ClientData.*, ClientOptions.*, Companies.*, ClientUSInfo.*, "
        "CompaniesNotes.BusinessNotes, CompaniesNotes.ContactNotes FROM "));
    EXPECT_TRUE(
        american.ends_with("WHERE ClientData.ClientDataID=7 ORDER BY Companies.ClientID, Companies.CompanyName;"));
}

TEST_F(MainBusinessQueryTest, WithoutALocaleTheTextIsEmpty)
{
    serviceRegistry().locale = nullptr;
    EXPECT_EQ(getMainBusinessSQLString(false, 3, 1), "");
    EXPECT_EQ(errors->takeErrors().size(), 1u);
    EXPECT_EQ(errors->labels().back(), "Vestrel.exe-modFormatAddresses-getMainBusinessSQLString");
}

const test::SweptRoutine composition{"getMainBusinessSQLString", "",
                                     [](test::TestWorld&) -> std::function<std::string()> {
                                         return [] { return getMainBusinessSQLString(true, 1, 1, 7); };
                                     },
                                     false};

TEST(MainBusinessQueryFaults, LeavingGivesNothing)
{
    test::expectFaultsLeave(composition);
    test::expectEmptySlotsLeave(composition);
}

TEST(MainBusinessQueryFaults, RetryingGivesTheSameText) { test::expectFaultsRetry(composition); }

} // namespace
} // namespace qncal::modFormatAddresses
