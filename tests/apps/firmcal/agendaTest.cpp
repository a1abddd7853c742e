#include "apps/firmcal/CommandLine.h"

#include <nlohmann/json.hpp>

namespace qncal::firmcal::test {
namespace {

TEST_F(DemoDatabaseTest, AgendaOfAWeek) { expectGolden("agenda-week.txt", output({"agenda", "--week"})); }

TEST_F(DemoDatabaseTest, AgendaOfAUsersDays)
{
    expectGolden("agenda-user.txt", output({"agenda", "--user", "1", "--days", "3", "--from", "wednesday"}));
}

TEST_F(DemoDatabaseTest, AgendaOverAHoliday)
{
    const std::string shown = output({"agenda", "--from", "2026-04-03"});
    EXPECT_EQ(shown, "Friday, April 3, 2026  [Good Friday]\n  nothing\n");
}

TEST_F(DemoDatabaseTest, AgendaShowsTodayWithoutOptions)
{
    EXPECT_EQ(output({"agenda"}), output({"agenda", "--day"}));
    EXPECT_TRUE(output({"agenda"}).starts_with("Monday, March 2, 2026\n"));
    EXPECT_EQ(output({"agenda"}), output({"agenda", "--from", "2026-03-02", "--days", "1"}));
}

TEST_F(DemoDatabaseTest, AgendaWeekBeginsOnMondayWhateverTheDay)
{
    const std::string week = output({"agenda", "--week"});
    EXPECT_EQ(output({"agenda", "--week", "--from", "2026-03-08"}), week);
    EXPECT_NE(output({"agenda", "--week", "--from", "2026-03-09"}), week);
}

TEST_F(DemoDatabaseTest, AgendaAsJsonIsTheSameItems)
{
    const auto json = nlohmann::ordered_json::parse(output({"agenda", "--week", "--json"}));
    ASSERT_FALSE(json.empty());
    for (const auto& row : json) {
        EXPECT_GE(row["DateFrom"], "2026-03-02");
        EXPECT_LE(row["DateFrom"], "2026-03-08");
    }
}

} // namespace
} // namespace qncal::firmcal::test
