#include "utilities/DateTimeService.h"

#include "support/RecordingErrorControl.h"
#include "support/rowName.h"
#include "utilities/RunTimeError.h"

#include <gtest/gtest.h>

#include <limits>

namespace qncal {
namespace {

class DateTimeServiceTest : public testing::Test {
protected:
    DateTimeService service;
};

TEST_F(DateTimeServiceTest, SaturdayAndSundayAreTheWeekend)
{
    for (int day = 2; day <= 6; ++day) // Monday 2 March 2026
        EXPECT_FALSE(service.isWeekend(Date::of(2026, 3, day))) << day;
    EXPECT_TRUE(service.isWeekend(Date::of(2026, 3, 7)));
    EXPECT_TRUE(service.isWeekend(Date::of(2026, 3, 8, 23, 59, 59)));
    EXPECT_FALSE(service.isWeekend(Date::of(2026, 3, 9)));
    EXPECT_TRUE(service.isWeekend(Date::of(1899, 12, 24, 12))) << "a Sunday before day 0";
}

TEST_F(DateTimeServiceTest, PartsOfAMoment)
{
    const Date moment = Date::of(2026, 3, 31, 9, 30, 15);
    EXPECT_EQ(service.getDateOnly(moment), Date::of(2026, 3, 31));
    EXPECT_EQ(service.getTimeOnly(moment), Date::timeOf(9, 30, 15));
    EXPECT_EQ(service.getTimeOnly(Date(-1.25)), Date::timeOf(6));
    EXPECT_EQ(service.getDateOnly(Date(-1.25)), Date(-1));
}

struct AddRow {
    const char* name;
    Date time;
    float hours;
    Date expected;
};

class AddHoursToTimeTest : public testing::TestWithParam<AddRow> {};

TEST_P(AddHoursToTimeTest, MovesTheTimeOn)
{
    DateTimeService service;
    const Date moved = service.addHoursToTime(GetParam().time, GetParam().hours);
    EXPECT_EQ(defaultDateText(moved), defaultDateText(GetParam().expected));
}

INSTANTIATE_TEST_SUITE_P(Times, AddHoursToTimeTest,
                         testing::Values(AddRow{"Whole", Date::timeOf(9), 2, Date::timeOf(11)},
                                         AddRow{"Half", Date::timeOf(9, 15), 1.5F, Date::timeOf(10, 45)},
                                         AddRow{"Minute", Date::timeOf(9), 1.0F / 60, Date::timeOf(9, 1)},
                                         AddRow{"TwentyMinutes", Date::timeOf(9), 1.0F / 3, Date::timeOf(9, 20)},
                                         AddRow{"OverMidnight", Date::timeOf(23), 2, Date::timeOf(1)},
                                         AddRow{"ToMidnight", Date::timeOf(23), 1, Date::timeOf(0)},
                                         AddRow{"WholeDay", Date::timeOf(9), 24, Date::timeOf(9)},
                                         AddRow{"ManyDays", Date::timeOf(9), 24 * 1000 + 1, Date::timeOf(10)},
                                         AddRow{"Back", Date::timeOf(9), -2, Date::timeOf(7)},
                                         AddRow{"BackOverMidnight", Date::timeOf(1), -2, Date::timeOf(23)},
                                         AddRow{"DateDropped", Date::of(2026, 3, 31, 9), 2, Date::timeOf(11)},
                                         AddRow{"None", Date::timeOf(9, 30), 0, Date::timeOf(9, 30)}),
                         test::rowName);

TEST_F(DateTimeServiceTest, HoursThatAreNoNumberAreAnOverflow)
{
    EXPECT_THROW(service.addHoursToTime(Date::timeOf(9), std::numeric_limits<float>::quiet_NaN()), RunTimeError);
    EXPECT_THROW(service.addHoursToTime(Date::timeOf(9), std::numeric_limits<float>::infinity()), RunTimeError);
}

TEST_F(DateTimeServiceTest, HoursBetweenHaveNoDirection)
{
    EXPECT_EQ(service.hoursBetween(Date::timeOf(9), Date::timeOf(17)), 8.0);
    EXPECT_EQ(service.hoursBetween(Date::timeOf(17), Date::timeOf(9)), 8.0);
    EXPECT_EQ(service.hoursBetween(Date::timeOf(10), Date::timeOf(11)), 1.0) << "exactly";
    EXPECT_EQ(service.hoursBetween(Date::timeOf(9), Date::timeOf(9)), 0.0);
    EXPECT_EQ(service.hoursBetween(Date::timeOf(9), Date::timeOf(9, 45)), 0.75);
    EXPECT_EQ(service.hoursBetween(Date::of(2026, 3, 30, 23), Date::of(2026, 3, 31, 1)), 2.0);
    EXPECT_EQ(service.hoursBetween(Date(-1.75), Date(0.25)), 12.0);
}

TEST_F(DateTimeServiceTest, ReminderOnAWeekendMovesToFriday)
{
    const Date friday = Date::of(2026, 3, 6);
    EXPECT_EQ(service.adjustReminderDate(friday.addDays(1)), friday);
    EXPECT_EQ(service.adjustReminderDate(friday.addDays(2)), friday);
    for (const int offset : {-1, 0, 3})
        EXPECT_EQ(service.adjustReminderDate(friday.addDays(offset)), friday.addDays(offset)) << offset;
    EXPECT_EQ(service.adjustReminderDate(Date::of(2026, 3, 8, 9, 30)), Date::of(2026, 3, 6, 9, 30));
}

TEST_F(DateTimeServiceTest, WeekdaysCountFromSunday)
{
    const char* const names[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
    for (int weekday = 1; weekday <= 7; ++weekday) {
        EXPECT_EQ(service.getWeekdayNumber(Date::of(2026, 2, 28 + weekday)), weekday);
        EXPECT_EQ(service.getWeekdayName(weekday), names[weekday - 1]);
    }
    for (const int number : {0, 8, -1})
        EXPECT_THROW(service.getWeekdayName(number), RunTimeError) << number;
}

TEST_F(DateTimeServiceTest, WeekOfMonthCountsTheWeekday)
{
    const int weeks[] = {1, 1, 1, 1, 1, 1, 1, 2, 2, 2, 2, 2, 2, 2, 3, 3, 3, 3, 3, 3, 3, 4, 4, 4, 4, 4, 4, 4, 5, 5, 5};
    for (int day = 1; day <= 31; ++day)
        EXPECT_EQ(service.getWeekOfMonth(Date::of(2026, 3, day)), weeks[day - 1]) << day;
}

TEST_F(DateTimeServiceTest, OrdinalWords)
{
    const std::pair<int, const char*> rows[] = {{1, "first"}, {2, "second"}, {3, "third"}, {4, "fourth"},
                                                {5, "fifth"}, {6, "6th"},    {0, "0th"}};
    for (const auto& [number, word] : rows)
        EXPECT_EQ(service.getOrdinalWord(number), word);
}

TEST_F(DateTimeServiceTest, MonthsHaveTheirDays)
{
    EXPECT_EQ(service.getDaysInMonth(2, 2026), 28);
    EXPECT_EQ(service.getDaysInMonth(2, 2024), 29);
    EXPECT_EQ(service.getDaysInMonth(12, 2026), 31);
    EXPECT_EQ(service.getLastDayOfMonth(Date::of(2024, 2, 10, 9, 30)), Date::of(2024, 2, 29));
    EXPECT_EQ(service.getLastDayOfMonth(Date::of(2026, 12, 31)), Date::of(2026, 12, 31));
    EXPECT_EQ(service.makeDate(2026, 2, 28), Date::of(2026, 2, 28));
    EXPECT_EQ(service.makeDate(2026, 13, 1), Date::of(2027, 1, 1));
    EXPECT_THROW(service.makeDate(10000, 1, 1), RunTimeError);
}

struct NthRow {
    const char* name;
    int month;
    int year;
    int weekNumber;
    int weekday;
    Date expected;
};

class NthWeekdayTest : public testing::TestWithParam<NthRow> {};

TEST_P(NthWeekdayTest, LiesInTheMonth)
{
    const auto& row = GetParam();
    DateTimeService service;
    const Date date = service.getNthWeekdayOfMonth(row.month, row.year, row.weekNumber, row.weekday);
    EXPECT_EQ(defaultDateText(date), defaultDateText(row.expected));
    EXPECT_EQ(date.weekday(), row.weekday);
}

INSTANTIATE_TEST_SUITE_P(Months, NthWeekdayTest,
                         testing::Values(NthRow{"FirstDay", 3, 2026, 1, 1, Date::of(2026, 3, 1)},
                                         NthRow{"FirstSaturday", 3, 2026, 1, 7, Date::of(2026, 3, 7)},
                                         NthRow{"SecondTuesday", 3, 2026, 2, 3, Date::of(2026, 3, 10)},
                                         NthRow{"FifthTuesday", 3, 2026, 5, 3, Date::of(2026, 3, 31)},
                                         NthRow{"FifthOfFourIsTheLast", 3, 2026, 5, 4, Date::of(2026, 3, 25)},
                                         NthRow{"FifthInShortFebruary", 2, 2026, 5, 1, Date::of(2026, 2, 22)},
                                         NthRow{"FifthInLeapFebruary", 2, 2024, 5, 5, Date::of(2024, 2, 29)},
                                         NthRow{"BeyondFive", 3, 2026, 9, 3, Date::of(2026, 3, 31)},
                                         NthRow{"CarriedMonth", 13, 2026, 1, 6, Date::of(2027, 1, 1)}),
                         test::rowName);

TEST_F(DateTimeServiceTest, NthWeekdayUndoesWeekOfMonth)
{
    for (Date date = Date::of(2023, 12, 1); date < Date::of(2026, 1, 1); date = date.addDays(1)) {
        const CivilDate day = date.civilDate();
        EXPECT_EQ(service.getNthWeekdayOfMonth(day.month, day.year, service.getWeekOfMonth(date),
                                               service.getWeekdayNumber(date)),
                  date)
            << defaultDateText(date);
    }
}

TEST_F(DateTimeServiceTest, NoSuchWeekdayIsAnError)
{
    EXPECT_THROW(service.getNthWeekdayOfMonth(3, 2026, 0, 1), RunTimeError);
    EXPECT_THROW(service.getNthWeekdayOfMonth(3, 2026, 1, 0), RunTimeError);
    EXPECT_THROW(service.getNthWeekdayOfMonth(3, 2026, 1, 8), RunTimeError);
}

TEST_F(DateTimeServiceTest, DurationsInWords)
{
    const std::pair<std::int32_t, const char*> rows[] = {
        {0, "0 min"},
        {1, "1 min"},
        {45, "45 min"},
        {60, "1 hr"},
        {90, "1 hr 30 min"},
        {120, "2 hr"},
        {125, "2 hr 5 min"},
        {1500, "25 hr"},
        {-90, "-1 hr 30 min"},
        {-5, "-5 min"},
        {std::numeric_limits<std::int32_t>::min(), "-35791394 hr 8 min"}};
    for (const auto& [minutes, text] : rows)
        EXPECT_EQ(service.getDurationText(minutes), text);
}

TEST_F(DateTimeServiceTest, KeepsTheErrorControlItWasGiven)
{
    const auto errors = std::make_shared<test::RecordingErrorControl>();
    service.setErrorControl(errors);
    EXPECT_EQ(service.errorControl(), errors);
}

} // namespace
} // namespace qncal
