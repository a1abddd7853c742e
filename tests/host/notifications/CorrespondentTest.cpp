#include "notifications/Correspondent.h"

#include "host/services/HostTest.h"

#include <gmock/gmock.h>

namespace qncal::host {
namespace {

using testing::ElementsAre;

class CorrespondentTest : public test::HostTest {
protected:
    std::int32_t addCompany()
    {
        return addRow(*database, "Companies",
                      {{"CompanyName", "Granite Ltd."},
                       {"Email", "info@granite.example"},
                       {"FaxNumber", "555-1"},
                       {"OfficeNumber", "555-2"},
                       {"Address", "2 Rock Rd"},
                       {"City", "Elora"},
                       {"Province", "ON"},
                       {"PostalCode", "N0B 1S0"}});
    }
    void link(std::int32_t company, std::int32_t contact, bool isDefault)
    {
        addRow(*database, "ContactLinks",
               {{"CompanyNum", std::to_string(company)},
                {"ContactIDNum", std::to_string(contact)},
                {"DefaultContact", isDefault ? "True" : "False"}});
    }
};

TEST_F(CorrespondentTest, ACompanyWithoutADefaultContactIsAddressedAsSuch)
{
    const auto company = addCompany();
    link(company, addRow(*database, "Contacts", {{"DisplayName", "Bob"}, {"BusinessEmail", "bob@b.example"}}), false);
    const Correspondent client = readClient(*database, {company, -1}).value();
    EXPECT_EQ(client.name, "Granite Ltd.");
    EXPECT_EQ(client.person, "");
    EXPECT_EQ(client.email, "info@granite.example");
    EXPECT_EQ(client.fax, "555-1");
    EXPECT_EQ(client.phone, "555-2");
    EXPECT_THAT(client.address, ElementsAre("2 Rock Rd", "Elora ON N0B 1S0"));
}

TEST_F(CorrespondentTest, TheDefaultContactGoesBeforeTheCompany)
{
    const auto company = addCompany();
    link(company, addRow(*database, "Contacts", {{"DisplayName", "Bob"}}), false);
    link(company,
         addRow(*database, "Contacts",
                {{"DisplayName", "Ann Stone"}, {"PersonalEmail", "ann@home.example"}, {"BusinessPhone_Main", "555-3"}}),
         true);
    const Correspondent client = readClient(*database, {company, -1}).value();
    EXPECT_EQ(client.name, "Granite Ltd.");
    EXPECT_EQ(client.person, "Ann Stone");
    EXPECT_EQ(client.email, "ann@home.example");
    EXPECT_EQ(client.fax, "555-1") << "the contact has none";
    EXPECT_EQ(client.phone, "555-3");
}

TEST_F(CorrespondentTest, AContactsBusinessAddressGoesBeforeTheHome)
{
    const auto contact = addRow(*database, "Contacts",
                                {{"DisplayName", "Ann"},
                                 {"BusinessEmail", "ann@work.example"},
                                 {"PersonalEmail", "ann@home.example"},
                                 {"BusinessAddress1", "3 Work St"},
                                 {"BusinessAddress2", "Unit 4"},
                                 {"HomeAddress1", "5 Home St"}});
    const Correspondent client = readClient(*database, {-1, contact}).value();
    EXPECT_EQ(client.email, "ann@work.example");
    EXPECT_THAT(client.address, ElementsAre("3 Work St", "Unit 4"));
}

TEST_F(CorrespondentTest, ANameStandsOnOneLineAndAnAddressOnAsManyAsItHas)
{
    const auto contact =
        addRow(*database, "Contacts",
               {{"DisplayName", "Ann\r\nBcc: all@client.example"}, {"HomeAddress", "1 Hill St\r\n\r\n  Elora\n"}});
    const Correspondent client = readClient(*database, {-1, contact}).value();
    EXPECT_EQ(client.name, "Ann  Bcc: all@client.example");
    EXPECT_EQ(client.person, client.name);
    EXPECT_THAT(client.address, ElementsAre("1 Hill St", "Elora"));
}

TEST_F(CorrespondentTest, ADefaultContactThatIsGoneLeavesTheCompany)
{
    const auto company = addCompany();
    link(company, 99, true);
    const Correspondent client = readClient(*database, {company, -1}).value();
    EXPECT_EQ(client.person, "");
    EXPECT_EQ(client.email, "info@granite.example");
}

TEST_F(CorrespondentTest, WhoIsNotThereIsNobody)
{
    for (const ItemClient client : {ItemClient{}, ItemClient{99, -1}, ItemClient{-1, 99}})
        EXPECT_FALSE(readClient(*database, client));
    EXPECT_EQ(readFirm(*database).name, "");
}

} // namespace
} // namespace qncal::host
