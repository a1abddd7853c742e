#include "apps/firmcal/CommandLine.h"

#include "services/Rows.h"
#include "store/SqliteDatabase.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <algorithm>

namespace qncal::firmcal::test {
namespace {

class RemindCommandTest : public EmptyDatabaseTest {
protected:
    void SetUp() override
    {
        EmptyDatabaseTest::SetUp();
        const auto store = host::SqliteDatabase::open(database());
        for (const char* name : {"Maya Singh", "Leo Roy"})
            host::addRow(*store, "AccountantEmployeeInfo", {{"DisplayName", name}});
        const auto remind = [&](const char* user, const char* date, const char* time, const char* text) {
            host::addRow(*store, "Reminders",
                         {{"UserIDNum", user}, {"ReminderDate", date}, {"ReminderTime", time}, {"TextBody", text}});
        };
        remind("1", "2026-03-02", "08:58:00", "Appointment: Year end\r\nYou have an appointment.");
        remind("2", "2026-02-27", "16:00:00", "Task: Filing");
        remind("1", "2026-03-02", "09:30:00", "Later");
    }
};

const std::string missedAndDue = "Missed meanwhile:\n"
                                 "  Fri, Feb 27, 2026 16:00  #2  Leo Roy:  Task: Filing\n"
                                 "Mon, Mar 2, 2026 08:58  #1  Maya Singh:  Appointment: Year end You have an "
                                 "appointment.\n";

TEST_F(RemindCommandTest, ShowsWhatIsDueOnce)
{
    EXPECT_EQ(output({"remind"}), missedAndDue);
    EXPECT_EQ(output({"remind", "--once"}), "No reminders.\n");
    EXPECT_EQ(rows("SELECT Completed FROM Reminders ORDER BY ReminderID;"),
              "{\"Completed\":true}\n{\"Completed\":true}\n{\"Completed\":false}\n");
}

TEST_F(RemindCommandTest, ShowsTheRemindersOfAUser)
{
    EXPECT_EQ(output({"remind", "--user", "leo roy"}),
              "Missed meanwhile:\n  Fri, Feb 27, 2026 16:00  #2  Leo Roy:  Task: Filing\n");
}

TEST_F(RemindCommandTest, PrintsJson)
{
    const auto json = nlohmann::ordered_json::parse(output({"remind", "--json"}));
    ASSERT_EQ(json.size(), 2u);
    EXPECT_EQ(json[0]["id"], 2);
    EXPECT_EQ(json[0]["missed"], true);
    EXPECT_EQ(json[1]["due"], "2026-03-02T08:58");
    EXPECT_EQ(json[1]["user"], "Maya Singh");
    EXPECT_EQ(json[1]["missed"], false);
    EXPECT_EQ(output({"remind", "--json"}), "[]\n");
}

TEST_F(RemindCommandTest, FollowsUntilItsLastSweep)
{
    EXPECT_EQ(output({"remind", "--follow", "--sweeps", "1"}), missedAndDue);
    EXPECT_EQ(output({"remind", "--follow", "--sweeps", "1"}), "");
}

TEST_F(RemindCommandTest, FollowsOnWhenTheDatabaseIsLockedForLong)
{
    const auto other = host::SqliteDatabase::open(database());
    auto locking = host::Rows::change(*other, "SELECT * FROM AccountantEmployeeInfo WHERE ContactID=1;");
    locking.set("DisplayName", "Maya S.");
    const Outcome outcome = run({"remind", "--follow", "--sweeps", "1", "--user", "leo roy"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.err, testing::MatchesRegex("firmcal: .*locked.*; looking again\n"));
    locking.close();
    other->close();
    EXPECT_EQ(output({"remind", "--user", "leo roy"}), outcome.out) << "what could not be marked comes again";
}

TEST_F(RemindCommandTest, FollowsWithAJsonLineForEach)
{
    const std::string lines = output({"remind", "--follow", "--sweeps", "1", "--json"});
    EXPECT_EQ(std::ranges::count(lines, '\n'), 2);
    EXPECT_EQ(nlohmann::ordered_json::parse(lines.substr(0, lines.find('\n')))["id"], 2);
}

TEST_F(RemindCommandTest, SnoozesAndDismisses)
{
    EXPECT_EQ(output({"remind", "--snooze", "1", "--minutes", "30"}), "reminder 1 comes again in 30 minutes\n");
    EXPECT_EQ(output({"remind", "--dismiss", "2"}), "reminder 2 is done\n");
    EXPECT_EQ(output({"remind"}), "No reminders.\n");
    EXPECT_EQ(output({"remind", "--now", "2026-03-02T09:30"}),
              "Mon, Mar 2, 2026 09:30  #1  Maya Singh:  Appointment: Year end You have an appointment.\n"
              "Mon, Mar 2, 2026 09:30  #3  Maya Singh:  Later\n");
}

TEST_F(RemindCommandTest, SaysWhatIsWrong)
{
    const Outcome gone = run({"remind", "--snooze", "99"});
    EXPECT_EQ(gone.status, 1);
    EXPECT_EQ(gone.err, "firmcal: there is no reminder 99; it goes with its item\n");
    EXPECT_EQ(run({"remind", "--snooze", "-1"}).status, 1);
    EXPECT_EQ(run({"remind", "--dismiss", "0"}).err, "firmcal: there is no reminder 0; it goes with its item\n");
    EXPECT_EQ(run({"remind", "--minutes", "5"}).status, 2);
    EXPECT_EQ(run({"remind", "--once", "--follow"}).status, 2);
    EXPECT_EQ(run({"remind", "--snooze", "1", "--minutes", "0"}).status, 2);
    EXPECT_EQ(run({"remind", "--user", "nobody"}).status, 1);
}

} // namespace
} // namespace qncal::firmcal::test
