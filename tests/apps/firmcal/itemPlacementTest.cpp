#include "apps/firmcal/CommandLine.h"

#include <nlohmann/json.hpp>

namespace qncal::firmcal::test {
namespace {

using Json = nlohmann::ordered_json;

class ItemPlacementTest : public EmptyDatabaseTest {
protected:
    /// On the day after the test's, so that today is free.
    void add(const std::string& start, const std::string& end)
    {
        succeed({"item", "add", "Call", "--date", "tomorrow", "--start", start, "--end", end});
    }
    std::string times(const std::string& id)
    {
        return rows("SELECT DateFrom, TimeFrom, TimeTo FROM Appointments WHERE AppointmentID=" + id);
    }
};

TEST_F(ItemPlacementTest, ProposesTheFirstRoomForTheItemsLength)
{
    add("9:00", "10:00");
    add("10:30", "12:00");
    add("12:45", "13:30");
    const std::string before = times("3");
    EXPECT_EQ(output({"item", "best-time", "3"}), "Best time for appointment 3: Tue, Mar 3, 2026, 12:00-12:45, Call\n");
    EXPECT_EQ(Json::parse(output({"item", "best-time", "3", "--json"})), Json({{"kind", "appointment"},
                                                                               {"itemID", 3},
                                                                               {"DateFrom", "2026-03-03"},
                                                                               {"TimeFrom", "12:00"},
                                                                               {"TimeTo", "12:45"}}));
    EXPECT_EQ(times("3"), before) << "only proposed";
}

TEST_F(ItemPlacementTest, AppliesTheProposalAndKeepsTheLength)
{
    add("9:00", "10:00");
    add("16:00", "16:30");
    EXPECT_EQ(output({"item", "best-time", "2", "--apply"}),
              "Moved appointment 2: Tue, Mar 3, 2026, 10:00-10:30, Call\n");
    EXPECT_EQ(times("2"), "{\"DateFrom\":\"2026-03-03\",\"TimeFrom\":\"10:00:00\",\"TimeTo\":\"10:30:00\"}\n");
}

TEST_F(ItemPlacementTest, TheItemsOwnPlaceIsTaken)
{
    add("9:00", "10:00");
    EXPECT_EQ(output({"item", "best-time", "1"}), "Best time for appointment 1: Tue, Mar 3, 2026, 10:00-11:00, Call\n");
}

TEST_F(ItemPlacementTest, OnlyItemsOfTheSameUserAndKindAreInTheWay)
{
    succeed({"item", "add", "Task", "--kind", "task", "--date", "tomorrow", "--start", "9:00", "--end", "12:00"});
    add("13:00", "14:00");
    EXPECT_EQ(output({"item", "best-time", "1"}), "Best time for appointment 1: Tue, Mar 3, 2026, 09:00-10:00, Call\n");
}

TEST_F(ItemPlacementTest, MovesToAnotherDayAtTheSameTime)
{
    add("9:30", "10:45");
    EXPECT_EQ(output({"item", "move", "1", "--to", "friday"}),
              "Moved appointment 1: Fri, Mar 6, 2026, 09:30-10:45, Call\n");
    EXPECT_EQ(times("1"), "{\"DateFrom\":\"2026-03-06\",\"TimeFrom\":\"09:30:00\",\"TimeTo\":\"10:45:00\"}\n");
}

TEST_F(ItemPlacementTest, MovesToAnHourAndKeepsTheMinutes)
{
    add("9:30", "10:45");
    EXPECT_EQ(output({"item", "move", "1", "--to", "2026-03-31", "--hour", "14"}),
              "Moved appointment 1: Tue, Mar 31, 2026, 14:30-15:45, Call\n");
    EXPECT_EQ(output({"item", "move", "1", "--to", "2026-03-31", "--hour", "0"}),
              "Moved appointment 1: Tue, Mar 31, 2026, 00:30-01:45, Call\n");
}

TEST_F(ItemPlacementTest, MovesToTheBestTimeOfADay)
{
    succeed({"item", "add", "Other", "--start", "9:00", "--end", "11:00"});
    add("15:00", "15:45");
    EXPECT_EQ(output({"item", "move", "2", "--to", "today", "--best"}),
              "Moved appointment 2: Mon, Mar 2, 2026, 11:00-11:45, Call\n");
    const Json moved = Json::parse(output({"item", "move", "2", "--to", "wednesday", "--best", "--json"}));
    EXPECT_EQ(moved["TimeFrom"], "09:00");
    EXPECT_EQ(moved["TimeTo"], "09:45");
}

TEST_F(ItemPlacementTest, AnItemThatWouldEndAfterMidnightStaysWhereItIs)
{
    add("9:30", "10:45");
    const std::string before = times("1");
    const Outcome outcome = run({"item", "move", "1", "--to", "today", "--hour", "23"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "firmcal: the item would begin at 23:30 and end after midnight\n");
    EXPECT_EQ(times("1"), before);
}

} // namespace
} // namespace qncal::firmcal::test
