#include "apps/firmcal/CommandLine.h"

#include "services/Rows.h"
#include "store/SqliteDatabase.h"

#include <nlohmann/json.hpp>

namespace qncal::firmcal::test {
namespace {

using Json = nlohmann::ordered_json;

class ItemCommandsTest : public EmptyDatabaseTest {
protected:
    void SetUp() override
    {
        EmptyDatabaseTest::SetUp();
        const auto store = host::SqliteDatabase::open(database());
        host::addRow(*store, "AccountantEmployeeInfo", {{"DisplayName", "Maya Singh"}});
        host::addRow(*store, "Companies", {{"CompanyName", "Granite Ltd."}});
        host::addRow(*store, "Companies", {{"CompanyName", "Granite Bakery Inc."}});
        host::addRow(*store, "Contacts", {{"DisplayName", "Ann Reed"}, {"SpouseName", "Bob Reed"}});
    }

    Json item(const std::string& id, const std::string& kind = "appointment") const
    {
        return Json::parse(output({"item", "show", id, "--kind", kind, "--json"}));
    }
};

TEST_F(ItemCommandsTest, AddsWithTheDefaultsOfANewItem)
{
    EXPECT_EQ(output({"item", "add", "Call"}), "Added appointment 1: Mon, Mar 2, 2026, 09:00-10:00, Call\n");
    const Json added = item("1");
    EXPECT_EQ(added["Subject"], "Call");
    EXPECT_EQ(added["userIDNum"], -1);
    EXPECT_EQ(added["timeduration"], 1.0);
}

TEST_F(ItemCommandsTest, AddsWithDateTimesClientAndOwner)
{
    EXPECT_EQ(
        output({"item", "add", "Review", "--kind", "task", "--date", "friday", "--start", "14:00", "--hours", "1:30",
                "--company", "granite ltd.", "--for", "Maya Singh", "--set", "Custom1=Slips", "--set", "Status1=yes"}),
        "Added task 1: Fri, Mar 6, 2026, 14:00-15:30, Review\n");
    const Json added = item("1", "task");
    EXPECT_EQ(added["companyIDNum"], 1);
    EXPECT_EQ(added["clientType"], 2);
    EXPECT_EQ(added["userIDNum"], 1);
    EXPECT_EQ(added["Custom1"], "Slips");
    EXPECT_EQ(added["Status1"], true);
}

TEST_F(ItemCommandsTest, TheSignedInUserOwnsANewItem)
{
    succeed({"--user", "maya singh", "item", "add", "Call"});
    EXPECT_EQ(item("1")["userIDNum"], 1);
}

TEST_F(ItemCommandsTest, APartOfANameFindsTheOneClientThatHasIt)
{
    succeed({"item", "add", "Call", "--company", "bakery"});
    EXPECT_EQ(item("1")["companyIDNum"], 2);
    const Outcome outcome = run({"item", "add", "Call", "--company", "Granite"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "firmcal: more than one company is called 'Granite': Granite Bakery Inc., Granite Ltd.\n");
}

TEST_F(ItemCommandsTest, ANewClientTakesThePlaceOfTheOld)
{
    succeed({"item", "add", "Call", "--company", "1"});
    succeed({"item", "set", "1", "--contact", "Ann Reed"});
    EXPECT_EQ(item("1")["companyIDNum"], -1);
    EXPECT_EQ(item("1")["contactIDNum"], 1);
}

TEST_F(ItemCommandsTest, ANewStartKeepsTheLength)
{
    succeed({"item", "add", "Call", "--start", "9:30", "--end", "11:00"});
    EXPECT_EQ(output({"item", "set", "1", "--start", "14:15"}),
              "Changed appointment 1: Mon, Mar 2, 2026, 14:15-15:45, Call\n");
    EXPECT_EQ(output({"item", "set", "1", "--hours", "0.5", "--date", "+1d"}),
              "Changed appointment 1: Tue, Mar 3, 2026, 14:15-14:45, Call\n");
    EXPECT_EQ(output({"item", "set", "1", "--end", "16:00"}),
              "Changed appointment 1: Tue, Mar 3, 2026, 14:15-16:00, Call\n");
}

TEST_F(ItemCommandsTest, ChangesWhatDoesNotMarkTheItemDirty)
{
    succeed({"item", "add", "Call", "--contact", "1"});
    succeed({"item", "set", "1", "--set", "Notified_ByEmail=yes", "--set", "Notified_ByPhone=yes"});
    EXPECT_EQ(item("1")["notifyType"], 5);
}

TEST_F(ItemCommandsTest, ListsTheFieldsWithWhatTheyTake)
{
    const std::string fields = output({"item", "fields"});
    for (const char* part : {"\nSubject ", "\nNotified_ByFax ", " can only be read\n", " can only be set\n"})
        EXPECT_NE(fields.find(part), std::string::npos) << part << fields;
}

TEST_F(ItemCommandsTest, ShowsWhatIsWorthShowing)
{
    succeed({"item", "add", "Call", "--contact", "1", "--for", "1", "--set", "Remind=yes"});
    const std::string shown = output({"item", "show", "1"});
    EXPECT_TRUE(shown.starts_with("appointment 1: Mon, Mar 2, 2026, 09:00-10:00, Call\n\n")) << shown;
    EXPECT_NE(shown.find("  contactIDNum      1  (Ann Reed)\n"), std::string::npos) << shown;
    EXPECT_NE(shown.find("  userIDNum         1  (Maya Singh)\n"), std::string::npos) << shown;
    EXPECT_NE(shown.find("  Remind            yes\n"), std::string::npos) << shown;
    EXPECT_EQ(shown.find("companyIDNum"), std::string::npos) << shown;
    EXPECT_NE(output({"item", "show", "1", "--all"}).find("companyIDNum"), std::string::npos);
}

TEST_F(ItemCommandsTest, ListsByDateKindUserClientAndText)
{
    succeed({"item", "add", "Second", "--date", "2026-03-03", "--for", "1"});
    succeed({"item", "add", "First", "--kind", "docket", "--date", "2026-03-02", "--company", "1"});
    succeed({"item", "add", "Third's \"best\"", "--kind", "task", "--date", "2026-03-04"});
    EXPECT_EQ(output({"item", "list"}),
              "Kind         ID  Date        Time         User        Subject         Client\n"
              "-----------  --  ----------  -----------  ----------  --------------  ------------\n"
              "time entry    1  2026-03-02  09:00-10:00              First           Granite Ltd.\n"
              "appointment   1  2026-03-03  09:00-10:00  Maya Singh  Second\n"
              "task          1  2026-03-04  09:00-10:00              Third's \"best\"\n");
    const auto subjects = [&](std::vector<std::string> filter) {
        filter.insert(filter.begin(), {"item", "list", "--json"});
        std::string found;
        for (const Json& row : Json::parse(output(filter)))
            found += row["Subject"].get<std::string>().substr(0, 1);
        return found;
    };
    EXPECT_EQ(subjects({"--from", "2026-03-03"}), "ST");
    EXPECT_EQ(subjects({"--to", "2026-03-03"}), "FS");
    EXPECT_EQ(subjects({"--kind", "task", "--kind", "docket"}), "FT");
    EXPECT_EQ(subjects({"--user", "1"}), "S");
    EXPECT_EQ(subjects({"--company", "1"}), "F");
    EXPECT_EQ(subjects({"--subject", "s \"b"}), "T");
    EXPECT_EQ(subjects({"--subject", "i"}), "FT");
    EXPECT_EQ(subjects({"--contact", "1"}), "");
}

TEST_F(ItemCommandsTest, DeletesAfterAQuestion)
{
    succeed({"item", "add", "Call"});
    const Outcome unattended = run({"item", "delete", "1"});
    EXPECT_EQ(unattended.status, 1);
    EXPECT_EQ(unattended.err, "Delete appointment 1: Mon, Mar 2, 2026, 09:00-10:00, Call? [y/N] "
                              "No (nobody to ask; --yes or --no answers questions)\nfirmcal: nothing deleted\n");
    EXPECT_EQ(runAtTerminal({"item", "delete", "1"}, "n\n").status, 1);
    EXPECT_EQ(run({"item", "delete", "1", "--no"}).status, 1);
    const Outcome answered = runAtTerminal({"item", "delete", "1"}, "yes\n");
    EXPECT_EQ(answered.status, 0);
    EXPECT_EQ(answered.out, "Deleted appointment 1: Mon, Mar 2, 2026, 09:00-10:00, Call\n");
    EXPECT_EQ(run({"item", "show", "1"}).status, 1);
}

TEST_F(ItemCommandsTest, DeletesWithoutAQuestionUnderYes)
{
    succeed({"item", "add", "Call", "--kind", "docket"});
    EXPECT_EQ(run({"item", "delete", "1", "--kind", "docket", "--yes"}).status, 0);
    EXPECT_EQ(rows("SELECT * FROM Dockets"), "");
}

TEST_F(ItemCommandsTest, ArchivesATaskUnderItsNumber)
{
    succeed({"item", "add", "Other", "--kind", "task"});
    succeed({"item", "add", "Old work", "--kind", "task", "--company", "1", "--set", "ScheduleIDNum=5"});
    EXPECT_EQ(output({"item", "archive", "2"}), "Archived task 2: Mon, Mar 2, 2026, 09:00-10:00, Old work\n");
    EXPECT_EQ(rows("SELECT TaskID FROM Tasks"), "{\"TaskID\":1}\n");
    EXPECT_EQ(rows("SELECT oldTaskID, Subject, ScheduleIDNum, DateFrom FROM archiveTasks"),
              "{\"oldTaskID\":2,\"Subject\":\"Old work\",\"ScheduleIDNum\":5,\"DateFrom\":\"2026-03-02\"}\n");
    EXPECT_NE(output({"item", "list", "--archived"}).find("Old work"), std::string::npos);
}

} // namespace
} // namespace qncal::firmcal::test
