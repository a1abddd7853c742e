#include "services/Rows.h"

#include "host/services/HostTest.h"
#include "utilities/RunTimeError.h"

namespace qncal::host {
namespace {

class RowsTest : public test::HostTest {
protected:
    std::int32_t addContact(const std::string& name) { return addRow(*database, "Contacts", {{"DisplayName", name}}); }
    Rows contacts() { return Rows::read(*database, "SELECT Contacts.* FROM Contacts ORDER BY Contacts.ContactID;"); }
};

TEST_F(RowsTest, NoneIsAtItsEndAtOnce)
{
    const Rows rows = contacts();
    EXPECT_TRUE(rows.isEmpty());
    EXPECT_TRUE(rows.atEnd());
}

TEST_F(RowsTest, WalksAllRows)
{
    const std::int32_t ann = addContact("Ann");
    const std::int32_t bob = addContact("Bob");
    std::vector<std::pair<std::int32_t, std::string>> seen;
    for (Rows rows = contacts(); !rows.atEnd(); rows.moveNext())
        seen.emplace_back(rows.integer("ContactID"), rows.text("DisplayName"));
    EXPECT_EQ(seen, (std::vector<std::pair<std::int32_t, std::string>>{{ann, "Ann"}, {bob, "Bob"}}));
}

TEST_F(RowsTest, ReadsNullAsNothing)
{
    addRow(*database, "Appointments", {});
    const Rows rows = Rows::read(*database, "SELECT Appointments.* FROM Appointments;");
    EXPECT_EQ(rows.text("Subject"), "");
    EXPECT_EQ(rows.integer("CompanyIDNum"), -1);
    EXPECT_EQ(rows.integer("RepeatNum", 7), 7);
    EXPECT_FALSE(rows.boolean("Remind"));
}

TEST_F(RowsTest, DeletesWhileItWalks)
{
    for (const char* name : {"Ann", "Bob", "Cid"})
        addContact(name);
    for (Rows rows = Rows::change(*database, "SELECT Contacts.* FROM Contacts;"); !rows.atEnd(); rows.moveNext()) {
        if (rows.text("DisplayName") != "Bob")
            rows.deleteCurrent();
    }
    const Rows left = contacts();
    EXPECT_EQ(left.count(), 1);
    EXPECT_EQ(left.text("DisplayName"), "Bob");
}

TEST_F(RowsTest, AWrongStatementAndAnUnknownColumnAreErrors)
{
    EXPECT_THROW(Rows::read(*database, "SELECT nothing"), RunTimeError);
    EXPECT_THROW(addRow(*database, "Contacts", {{"Shoes", "44"}}), RunTimeError);
    EXPECT_TRUE(contacts().isEmpty()) << "a row with an unknown column is not stored";
}

} // namespace
} // namespace qncal::host
