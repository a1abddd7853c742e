#include "apps/firmcal/CommandLine.h"

#include "store/SqliteConnection.h"

#include <nlohmann/json.hpp>

namespace qncal::firmcal::test {
namespace {

class SchemeCommandsTest : public EmptyDatabaseTest {
protected:
    void SetUp() override
    {
        EmptyDatabaseTest::SetUp();
        succeed({"scheme", "add", "Urgent", "--kind", "task", "--title-back", "#CC0000", "--fore", "#010203"});
        succeed({"scheme", "add", "Quiet"});
    }
};

TEST_F(SchemeCommandsTest, ListsByKindAndName)
{
    EXPECT_EQ(output({"scheme", "list"}), "ID  Kind         Name    Title    Title text  Body  Body text\n"
                                          "--  -----------  ------  -------  ----------  ----  ---------\n"
                                          " 2  appointment  Quiet\n"
                                          " 1  task         Urgent  #CC0000                    #010203\n");
    const auto json = nlohmann::ordered_json::parse(output({"scheme", "list", "--kind", "task", "--json"}));
    ASSERT_EQ(json.size(), 1u);
    EXPECT_EQ(json[0]["kind"], "task");
    EXPECT_EQ(json[0]["TitleBackColour"], "#CC0000");
    EXPECT_TRUE(json[0]["BackColour"].is_null());
    EXPECT_EQ(output({"scheme", "list", "--kind", "docket"}), "No colour schemes.\n");
}

TEST_F(SchemeCommandsTest, AColourThatIsNoneIsBlank)
{
    host::SqliteConnection(database(), host::SqliteConnection::Access::readWrite, 0)
        .execute("UPDATE ColourSchemes SET ForeColour='red', BackColour=5000000000 WHERE ColourSchemeID=1");
    EXPECT_EQ(output({"scheme", "list", "--kind", "task"}), "ID  Kind  Name    Title    Title text  Body  Body text\n"
                                                            "--  ----  ------  -------  ----------  ----  ---------\n"
                                                            " 1  task  Urgent  #CC0000\n");
}

TEST_F(SchemeCommandsTest, ChangesWhatIsNamedAndNothingElse)
{
    EXPECT_EQ(output({"scheme", "set", "urgent", "--name", "Very urgent", "--back", "#FFFFFF"}),
              "colour scheme 1 changed\n");
    EXPECT_EQ(rows("SELECT SchemeName, TitleBackColour, BackColour FROM ColourSchemes WHERE ColourSchemeID=1;"),
              "{\"SchemeName\":\"Very urgent\",\"TitleBackColour\":204,\"BackColour\":16777215}\n");
}

TEST_F(SchemeCommandsTest, AWrongColourChangesNothing)
{
    const Outcome outcome = run({"scheme", "set", "1", "--name", "Other", "--title-fore", "#12"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(rows("SELECT SchemeName FROM ColourSchemes WHERE ColourSchemeID=1;"), "{\"SchemeName\":\"Urgent\"}\n");
    EXPECT_EQ(run({"scheme", "add", "Bad", "--back", "red"}).status, 1);
    EXPECT_EQ(nlohmann::ordered_json::parse(output({"scheme", "list", "--json"})).size(), 2u);
}

TEST_F(SchemeCommandsTest, DeletesWhenTheUserAgrees)
{
    EXPECT_EQ(run({"scheme", "delete", "Quiet"}).status, 1) << "nobody is there to agree";
    EXPECT_EQ(run({"scheme", "delete", "Quiet", "--yes"}).out, "colour scheme 2 deleted\n");
    EXPECT_EQ(nlohmann::ordered_json::parse(output({"scheme", "list", "--json"})).size(), 1u);
}

TEST_F(SchemeCommandsTest, FindsASchemeByAnUnambiguousName)
{
    succeed({"scheme", "add", "urgent"});
    EXPECT_EQ(run({"scheme", "delete", "Urgent", "--yes"}).err,
              "firmcal: more than one colour scheme is named 'Urgent'; give its number, or --kind\n");
    EXPECT_EQ(run({"scheme", "delete", "Urgent", "--kind", "task", "--yes"}).out, "colour scheme 1 deleted\n");
    EXPECT_EQ(run({"scheme", "set", "none", "--name", "x"}).err,
              "firmcal: no colour scheme 'none'; 'firmcal scheme list' shows them\n");
}

TEST_F(SchemeCommandsTest, ASchemeDeletedInUseLeavesItsItemsAsTheyAre)
{
    succeed(
        {"item", "add", "Filing", "--kind", "task", "--date", "today", "--start", "9:30", "--set", "ColourSchemeID=1"});
    const std::string before = rows("SELECT SchemeID, TitleBackColour, ForeColour FROM Tasks;");
    EXPECT_EQ(run({"scheme", "delete", "Urgent", "--kind", "task", "--yes"}).status, 0);
    EXPECT_EQ(rows("SELECT SchemeID, TitleBackColour, ForeColour FROM Tasks;"), before);
    succeed({"item", "set", "1", "--kind", "task", "--subject", "Filing of papers"});
    EXPECT_EQ(rows("SELECT SchemeID, TitleBackColour, ForeColour FROM Tasks;"), before);
    EXPECT_EQ(before, "{\"SchemeID\":1,\"TitleBackColour\":204,\"ForeColour\":197121}\n");
}

} // namespace
} // namespace qncal::firmcal::test
