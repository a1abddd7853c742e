#include "services/ClientDropDown.h"

#include "host/services/HostTest.h"
#include "utilities/RunTimeError.h"

namespace qncal::host {
namespace {

class ClientDropDownTest : public test::HostTest {
protected:
    std::int32_t addUser(const std::string& name)
    {
        return addRow(*database, "AccountantEmployeeInfo", {{"DisplayName", name}});
    }
    void rename(const std::string& table, const std::string& key, std::int32_t id, const std::string& field,
                const std::string& name)
    {
        Rows rows =
            Rows::change(*database, "SELECT * FROM " + table + " WHERE " + key + "=" + std::to_string(id) + ";");
        rows.set(field, name);
    }

    ClientDropDown& clients = host.clients();
};

TEST_F(ClientDropDownTest, ListsUsersByName)
{
    EXPECT_TRUE(clients.getUsers().empty());
    clients.invalidate();
    const std::int32_t maya = addUser("Maya Singh");
    const std::int32_t ben = addUser("Ben Novak");
    const std::vector<UserEntry> users = clients.getUsers();
    ASSERT_EQ(users.size(), 2u);
    EXPECT_EQ(users[0].name, "Ben Novak");
    EXPECT_EQ(users[0].id, ben);
    EXPECT_EQ(users[1].id, maya);
}

TEST_F(ClientDropDownTest, FindsAUserByNameOrNumber)
{
    const std::int32_t maya = addUser("Maya Singh");
    ASSERT_TRUE(clients.findUser("maya SINGH"));
    EXPECT_EQ(clients.findUser("maya SINGH")->id, maya);
    EXPECT_EQ(clients.findUser(std::to_string(maya))->name, "Maya Singh");
    EXPECT_FALSE(clients.findUser("Maya"));
    EXPECT_FALSE(clients.findUser(""));
}

TEST_F(ClientDropDownTest, NamesOfIdsThatAreNotThereAreEmpty)
{
    EXPECT_EQ(clients.getUserName(5), "");
    EXPECT_EQ(clients.getCompanyName(5), "");
    EXPECT_EQ(clients.getContactName(-1), "");
    EXPECT_EQ(clients.getContactAndSpouseName(5), "");
    EXPECT_TRUE(clients.getClientListField(ClientKind::company, 5, "Email").isNull());
    EXPECT_TRUE(clients.getClientListField(ClientKind::none, 1, "Email").isNull());
}

TEST_F(ClientDropDownTest, AMissingNameIsAskedForAnew)
{
    EXPECT_EQ(clients.getCompanyName(1), "");
    ASSERT_EQ(addRow(*database, "Companies", {{"CompanyName", "Granite Ltd."}}), 1);
    EXPECT_EQ(clients.getCompanyName(1), "Granite Ltd.");
}

TEST_F(ClientDropDownTest, RemembersNamesUntilItIsToldToForget)
{
    const std::int32_t id = addRow(*database, "Companies", {{"CompanyName", "Granite Ltd."}});
    EXPECT_EQ(clients.getCompanyName(id), "Granite Ltd.");
    rename("Companies", "CompanyID", id, "CompanyName", "Basalt Ltd.");
    EXPECT_EQ(clients.getCompanyName(id), "Granite Ltd.");
    clients.invalidate();
    EXPECT_EQ(clients.getCompanyName(id), "Basalt Ltd.");
}

TEST_F(ClientDropDownTest, ComposesContactAndSpouse)
{
    const std::int32_t id = addRow(*database, "Contacts", {{"DisplayName", "Ann Reed"}, {"SpouseName", "Bob Reed"}});
    EXPECT_EQ(clients.getContactName(id), "Ann Reed");
    EXPECT_EQ(clients.getContactAndSpouseName(id), "Ann and Bob Reed");
}

TEST_F(ClientDropDownTest, ReadsAnyColumnOfAClient)
{
    const std::int32_t id = addRow(*database, "Contacts", {{"DisplayName", "Ann"}, {"Birthday", "1970-05-04"}});
    EXPECT_EQ(clients.getClientListField(ClientKind::contact, id, "birthday"), Variant(Date::of(1970, 5, 4)));
    EXPECT_TRUE(clients.getClientListField(ClientKind::contact, id, "ClientID").isNull());
    EXPECT_THROW(clients.getClientListField(ClientKind::contact, id, "Shoes"), RunTimeError);
}

TEST_F(ClientDropDownTest, WithoutAConnectionThereIsNobody)
{
    addUser("Maya Singh");
    database->close();
    EXPECT_TRUE(clients.getUsers().empty());
    EXPECT_EQ(clients.getCompanyName(1), "");
}

} // namespace
} // namespace qncal::host
