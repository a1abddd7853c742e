#include "common/days.h"

#include "support/ComponentTest.h"

namespace qncal::firmcal {
namespace {

struct WeekCase {
    const char* name;
    Date day;
    Date monday;
};

class WeekOfTest : public testing::TestWithParam<WeekCase> {};

TEST_P(WeekOfTest, GoesFromMondayToSunday)
{
    const Span week = weekOf(GetParam().day);
    EXPECT_EQ(week.from, GetParam().monday);
    EXPECT_EQ(week.to, GetParam().monday.addDays(6));
}

INSTANTIATE_TEST_SUITE_P(Days, WeekOfTest,
                         testing::Values(WeekCase{"Monday", Date::of(2026, 3, 30), Date::of(2026, 3, 30)},
                                         WeekCase{"Tuesday", Date::of(2026, 3, 31), Date::of(2026, 3, 30)},
                                         WeekCase{"Sunday", Date::of(2026, 4, 5), Date::of(2026, 3, 30)},
                                         WeekCase{"NewYear", Date::of(2027, 1, 1), Date::of(2026, 12, 28)}),
                         [](const auto& row) { return row.param.name; });

class HolidaysOnTest : public test::ComponentTest {};

TEST_F(HolidaysOnTest, AreJoinedByCommas)
{
    const Date day = Date::of(2026, 7, 1);
    EXPECT_EQ(holidaysOn(*database, day), "");
    addRow("Holidays", {{"HolidayName", "Canada Day"}, {"HolidayDate", "Jul 1, 2026"}});
    addRow("Holidays", {{"HolidayName", "Office party"}, {"HolidayDate", "Jul 1, 2026"}});
    EXPECT_EQ(holidaysOn(*database, day), "Canada Day, Office party");
    EXPECT_EQ(holidaysOn(*database, day.addDays(1)), "");
}

} // namespace
} // namespace qncal::firmcal
