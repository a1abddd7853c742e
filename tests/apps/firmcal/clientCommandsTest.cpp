#include "apps/firmcal/CommandLine.h"

#include "services/Rows.h"
#include "store/SqliteDatabase.h"

#include <nlohmann/json.hpp>

namespace qncal::firmcal::test {
namespace {

class ClientCommandsTest : public EmptyDatabaseTest {
protected:
    void SetUp() override
    {
        EmptyDatabaseTest::SetUp();
        const auto store = host::SqliteDatabase::open(database());
        host::addRow(*store, "Companies",
                     {{"CompanyName", "Granite Ltd."}, {"ClientID", "C1"}, {"OfficeNumber", "555-0101"}});
        host::addRow(*store, "Contacts", {{"DisplayName", "Ann Reed"}, {"SpouseName", "Bob Reed"}});
        host::addRow(*store, "Contacts", {{"DisplayName", "Zoë Ito"}, {"BusinessEmail", "zoe@example.com"}});
        for (const char* contact : {"1", "2"})
            host::addRow(*store, "ContactLinks",
                         {{"ContactIDNum", contact},
                          {"CompanyNum", "1"},
                          {"DefaultContact", contact == std::string("2") ? "True" : "False"}});
        host::addRow(*store, "AccountantEmployeeInfo", {{"DisplayName", "Maya Singh"}});
    }
};

TEST_F(ClientCommandsTest, ListsCompaniesAndContactsByName)
{
    EXPECT_EQ(output({"client", "list"}), "Kind     ID  Name          Client ID  Phone     E-mail\n"
                                          "-------  --  ------------  ---------  --------  ---------------\n"
                                          "company   1  Granite Ltd.  C1         555-0101\n"
                                          "contact   1  Ann Reed\n"
                                          "contact   2  Zoë Ito                            zoe@example.com\n");
}

TEST_F(ClientCommandsTest, ListsByKindAndText)
{
    const auto names = [&](std::vector<std::string> options) {
        options.insert(options.begin(), {"client", "list", "--json"});
        std::string found;
        for (const auto& client : nlohmann::ordered_json::parse(output(options)))
            found += client["name"].get<std::string>() + ";";
        return found;
    };
    EXPECT_EQ(names({"--companies"}), "Granite Ltd.;");
    EXPECT_EQ(names({"--contacts"}), "Ann Reed;Zoë Ito;");
    EXPECT_EQ(names({"RE"}), "Ann Reed;");
    EXPECT_EQ(names({"100%"}), "");
    EXPECT_EQ(output({"client", "list", "nobody"}), "No clients.\n");
}

TEST_F(ClientCommandsTest, ShowsACompanyWithItsContacts)
{
    EXPECT_EQ(output({"client", "show", "granite"}), "company 1: Granite Ltd.\n\n"
                                                     "  CompanyName   Granite Ltd.\n"
                                                     "  ClientID      C1\n"
                                                     "  OfficeNumber  555-0101\n\n"
                                                     "Contacts\n"
                                                     "  1  Ann Reed\n"
                                                     "  2  Zoë Ito   default contact\n");
}

TEST_F(ClientCommandsTest, ShowsAContactWithSpouseAndCompanies)
{
    EXPECT_EQ(output({"client", "show", "--contact", "1"}), "contact 1: Ann and Bob Reed\n\n"
                                                            "  DisplayName  Ann Reed\n"
                                                            "  SpouseName   Bob Reed\n\n"
                                                            "Companies\n"
                                                            "  1  Granite Ltd.\n");
}

TEST_F(ClientCommandsTest, ShowsAClientAsJsonWithItsLinks)
{
    const auto json = nlohmann::ordered_json::parse(output({"client", "show", "1", "--json"}));
    EXPECT_EQ(json["CompanyID"], 1);
    EXPECT_EQ(json["CompanyName"], "Granite Ltd.");
    EXPECT_TRUE(json["FaxNumber"].is_null());
    EXPECT_EQ(json["contacts"].size(), 2u);
    EXPECT_EQ(json["contacts"][1]["default"], true);
}

TEST_F(ClientCommandsTest, ListsUsers)
{
    EXPECT_EQ(output({"user", "list"}), "ID  Name\n--  ----------\n 1  Maya Singh\n");
    EXPECT_EQ(nlohmann::ordered_json::parse(output({"user", "list", "--json"}))[0]["name"], "Maya Singh");
}

TEST_F(EmptyDatabaseTest, HasNobody)
{
    EXPECT_EQ(output({"user", "list"}), "No users.\n");
    EXPECT_EQ(output({"client", "list"}), "No clients.\n");
    EXPECT_EQ(output({"item", "list"}), "No items.\n");
    EXPECT_EQ(output({"agenda"}), "Monday, March 2, 2026\n  nothing\n");
    EXPECT_EQ(output({"client", "list", "--json"}), "[]\n");
}

} // namespace
} // namespace qncal::firmcal::test
