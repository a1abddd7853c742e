#include "utilities/Date.h"

#include "support/rowName.h"
#include "utilities/RunTimeError.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace qncal {
namespace {

std::string text(Date date)
{
    const CivilDate d = date.civilDate();
    const CivilTime t = date.civilTime();
    return std::to_string(d.year) + "-" + std::to_string(d.month) + "-" + std::to_string(d.day) + " "
           + std::to_string(t.hour) + ":" + std::to_string(t.minute) + ":" + std::to_string(t.second);
}

struct SerialRow {
    const char* name;
    double serial;
    CivilDate date;
    CivilTime time;
    int weekday;
};

class DateSerialTest : public testing::TestWithParam<SerialRow> {};

TEST_P(DateSerialTest, ReadsAsItsCalendarDay)
{
    const auto& row = GetParam();
    const Date date(row.serial);
    EXPECT_EQ(date.civilDate(), row.date) << text(date);
    EXPECT_EQ(date.civilTime(), row.time) << text(date);
    EXPECT_EQ(date.weekday(), row.weekday);
    EXPECT_EQ(date.hasTime(), row.time != CivilTime{});
}

TEST_P(DateSerialTest, IsBuiltFromItsCalendarDay)
{
    const auto& row = GetParam();
    EXPECT_DOUBLE_EQ(Date::of(row.date, row.time).serial(), row.serial);
}

TEST_P(DateSerialTest, FallsIntoDateAndTime)
{
    const auto& row = GetParam();
    const Date date(row.serial);
    EXPECT_EQ(date.dateOnly().serial(), std::trunc(row.serial));
    EXPECT_EQ(date.timeOnly(), Date::timeOf(row.time.hour, row.time.minute, row.time.second));
    EXPECT_EQ(date.timeOnly().serial(), Date::timeOf(row.time.hour, row.time.minute, row.time.second).serial());
}

INSTANTIATE_TEST_SUITE_P(
    Serials, DateSerialTest,
    testing::Values(SerialRow{"DayZero", 0, {1899, 12, 30}, {}, 7}, SerialRow{"DayOne", 1, {1899, 12, 31}, {}, 1},
                    SerialRow{"DayBefore", -1, {1899, 12, 29}, {}, 6},
                    SerialRow{"TimeBeforeDayZero", -1.25, {1899, 12, 29}, {6, 0, 0}, 6},
                    SerialRow{"NoDate", -363, {1899, 1, 1}, {}, 1},
                    SerialRow{"Noon", 0.5, {1899, 12, 30}, {12, 0, 0}, 7},
                    SerialRow{"NotLeap1900", 61, {1900, 3, 1}, {}, 5},
                    SerialRow{"Leap2000", 36585, {2000, 2, 29}, {}, 3},
                    SerialRow{"Year2026", 46112, {2026, 3, 31}, {}, 3},
                    SerialRow{"Morning", 46112.395833333336, {2026, 3, 31}, {9, 30, 0}, 3},
                    SerialRow{"LastSecondOfDay", 46112 + 86399 / 86400.0, {2026, 3, 31}, {23, 59, 59}, 3},
                    SerialRow{"FirstDay", -657434, {100, 1, 1}, {}, 6},
                    SerialRow{"FirstNoon", -657434.5, {100, 1, 1}, {12, 0, 0}, 6},
                    SerialRow{"LastDay", 2958465, {9999, 12, 31}, {}, 6}),
    test::rowName);

TEST(DateTest, FractionWithinHalfASecondOfMidnightIsTheNextDay)
{
    const Date almost(46112 + 86399.9 / 86400.0);
    EXPECT_EQ(text(almost), "2026-4-1 0:0:0");
    EXPECT_EQ(almost.dateOnly().serial(), 46113);
    EXPECT_EQ(almost.timeOnly().serial(), 0);
    EXPECT_FALSE(almost.hasTime());
    EXPECT_EQ(almost.weekday(), 4);

    const Date notQuite(46112 + 86399.4 / 86400.0);
    EXPECT_EQ(text(notQuite), "2026-3-31 23:59:59");
}

TEST(DateTest, FractionBeforeDayZeroRoundsForward)
{
    EXPECT_EQ(text(Date(-1.9999999)), "1899-12-30 0:0:0");
    EXPECT_EQ(Date(-1.9999999), Date(0));
}

TEST(DateTest, EqualBySecondWhateverTheBinaryFraction)
{
    EXPECT_EQ(Date(0.1 + 0.2), Date(0.3));
    EXPECT_EQ(Date(46112.395833333), Date::of(2026, 3, 31, 9, 30));
    EXPECT_NE(Date::of(2026, 3, 31, 9, 30), Date::of(2026, 3, 31, 9, 30, 1));
}

TEST(DateTest, OrderRunsThroughDayZero)
{
    EXPECT_LT(Date(-1.75), Date(-0.25)); // 29 December 18:00 and 30 December 06:00
    EXPECT_LT(Date(-1.25), Date(-1.75)); // 06:00 and 18:00 of one day
    EXPECT_LT(Date(-2.75), Date(-1.25));
    EXPECT_EQ(Date(-0.25), Date(0.25));
}

struct CarryRow {
    const char* name;
    Date carried;
    Date expected;
};

class DateCarryTest : public testing::TestWithParam<CarryRow> {};

TEST_P(DateCarryTest, OutOfRangePartsCarryOver) { EXPECT_EQ(text(GetParam().carried), text(GetParam().expected)); }

INSTANTIATE_TEST_SUITE_P(
    Parts, DateCarryTest,
    testing::Values(CarryRow{"Month13", Date::of(2026, 13, 1), Date::of(2027, 1, 1)},
                    CarryRow{"Month0", Date::of(2026, 0, 5), Date::of(2025, 12, 5)},
                    CarryRow{"Month11Below", Date::of(2026, -11, 5), Date::of(2025, 1, 5)},
                    CarryRow{"Month12Below", Date::of(2026, -12, 5), Date::of(2024, 12, 5)},
                    CarryRow{"Day0", Date::of(2026, 3, 0), Date::of(2026, 2, 28)},
                    CarryRow{"Day32", Date::of(2026, 1, 32), Date::of(2026, 2, 1)},
                    CarryRow{"FebruaryThirtieth", Date::of(2026, 2, 30), Date::of(2026, 3, 2)},
                    CarryRow{"Hour24", Date::of(2026, 3, 31, 24), Date::of(2026, 4, 1)},
                    CarryRow{"SecondBelow", Date::of(2026, 3, 31, 0, 0, -1), Date::of(2026, 3, 30, 23, 59, 59)},
                    CarryRow{"TimeOfHour25", Date::timeOf(25), Date::of(1899, 12, 31, 1)},
                    CarryRow{"TimeBelowMidnight", Date::timeOf(-1), Date::of(1899, 12, 29, 23)},
                    CarryRow{"BackIntoTheCalendar", Date::of(10000, 1, 0), Date::of(9999, 12, 31)}),
    test::rowName);

template <class Body>
void expectOverflow(Body body)
{
    try {
        body();
        ADD_FAILURE() << "no overflow";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.number(), errorNumber::overflow);
    }
}

TEST(DateTest, LeavingTheCalendarIsAnOverflow)
{
    constexpr int largest = std::numeric_limits<int>::max();
    constexpr int smallest = std::numeric_limits<int>::min();
    const Date last = Date::of(9999, 12, 31);
    expectOverflow([] { Date::of(99, 12, 31); });
    expectOverflow([] { Date::of(10000, 1, 1); });
    expectOverflow([] { Date::of(largest, largest, largest, largest, largest, largest); });
    expectOverflow([] { Date::of(smallest, smallest, smallest, smallest, smallest, smallest); });
    expectOverflow([] { Date::of(2026, 1, largest); });
    expectOverflow([&] { last.addDays(1); });
    expectOverflow([&] { last.addDays(std::numeric_limits<double>::infinity()); });
    expectOverflow([&] { last.addDays(std::numeric_limits<double>::quiet_NaN()); });
    expectOverflow([&] { last.addSeconds(86400); });
    expectOverflow([&] { last.addSeconds(std::numeric_limits<std::int64_t>::max()); });
    expectOverflow([&] { last.addSeconds(std::numeric_limits<std::int64_t>::min()); });
    expectOverflow([&] { last.addMonths(1); });
    expectOverflow([&] { last.addMonths(largest); });
    expectOverflow([&] { last.addMonths(smallest); });
    expectOverflow([] { Date::fromLinearSeconds(std::numeric_limits<std::int64_t>::max()); });
    expectOverflow([] { daysInMonth(largest, 1); });
}

TEST(DateTest, SerialOutsideTheCalendarReadsAsItsNearestEnd)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double serial : {2958466.0, 1e18, 1e300, infinity}) {
        EXPECT_FALSE(Date(serial).isInCalendar()) << serial;
        EXPECT_EQ(text(Date(serial)), "9999-12-31 23:59:59") << serial;
        EXPECT_EQ(Date(serial).weekday(), 6) << serial;
    }
    for (const double serial : {-657435.0, -1e18, -1e300, -infinity}) {
        EXPECT_FALSE(Date(serial).isInCalendar()) << serial;
        EXPECT_EQ(text(Date(serial)), "100-1-1 0:0:0") << serial;
    }
    EXPECT_FALSE(Date(std::nan("")).isInCalendar());
    EXPECT_EQ(text(Date(std::nan(""))), "1899-12-30 0:0:0");
    EXPECT_EQ(text(Date(2958465.9999999)), "9999-12-31 23:59:59");
}

TEST(DateTest, KeepsItsSerialAsGiven) { EXPECT_EQ(Date(46112.123456789).serial(), 46112.123456789); }

struct MonthsRow {
    const char* name;
    Date from;
    int months;
    const char* expected;
};

class DateAddMonthsTest : public testing::TestWithParam<MonthsRow> {};

TEST_P(DateAddMonthsTest, CutsTheDayToTheMonth)
{
    EXPECT_EQ(text(GetParam().from.addMonths(GetParam().months)), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(Months, DateAddMonthsTest,
                         testing::Values(MonthsRow{"Plain", Date::of(2026, 3, 15, 9, 30), 1, "2026-4-15 9:30:0"},
                                         MonthsRow{"Cut", Date::of(2026, 1, 31), 1, "2026-2-28 0:0:0"},
                                         MonthsRow{"CutInLeapYear", Date::of(2024, 1, 31), 1, "2024-2-29 0:0:0"},
                                         MonthsRow{"LeapDayByAYear", Date::of(2024, 2, 29), 12, "2025-2-28 0:0:0"},
                                         MonthsRow{"LeapDayByFourYears", Date::of(2024, 2, 29), 48, "2028-2-29 0:0:0"},
                                         MonthsRow{"OverYearEnd", Date::of(2026, 12, 31), 2, "2027-2-28 0:0:0"},
                                         MonthsRow{"Back", Date::of(2026, 3, 31, 23, 59, 59), -1, "2026-2-28 23:59:59"},
                                         MonthsRow{"BackOverYears", Date::of(2026, 1, 31), -26, "2023-11-30 0:0:0"},
                                         MonthsRow{"BelowDayZero", Date::of(1900, 1, 31, 18), -2, "1899-11-30 18:0:0"},
                                         MonthsRow{"ToTheEnd", Date::of(9999, 11, 30, 12), 1, "9999-12-30 12:0:0"},
                                         MonthsRow{"None", Date::of(2026, 1, 31), 0, "2026-1-31 0:0:0"}),
                         test::rowName);

TEST(DateTest, AddingRunsThroughDayZero)
{
    const Date before = Date::of(1899, 12, 29, 18);
    EXPECT_EQ(before.serial(), -1.75);
    EXPECT_EQ(text(before.addDays(1)), "1899-12-30 18:0:0");
    EXPECT_EQ(text(before.addDays(0.5)), "1899-12-30 6:0:0");
    EXPECT_EQ(text(before.addSeconds(6 * 3600)), "1899-12-30 0:0:0");
    EXPECT_EQ(text(Date::of(1899, 12, 30, 6).addSeconds(-7 * 3600)), "1899-12-29 23:0:0");
    EXPECT_EQ(text(Date(0).addDays(-1e-18)), "1899-12-30 0:0:0");
    EXPECT_EQ(Date::of(1899, 12, 30, 6).linearSeconds() - before.linearSeconds(), 12 * 3600);
}

TEST(DateTest, LinearSecondsReadBackEverywhere)
{
    for (std::int64_t seconds = -657434LL * 86400; seconds <= 2958465LL * 86400; seconds += 86400LL * 997 + 12345)
        ASSERT_EQ(Date::fromLinearSeconds(seconds).linearSeconds(), seconds);
}

TEST(DateTest, DaysInMonthCountsLeapYears)
{
    EXPECT_EQ(daysInMonth(2026, 2), 28);
    EXPECT_EQ(daysInMonth(2024, 2), 29);
    EXPECT_EQ(daysInMonth(1900, 2), 28);
    EXPECT_EQ(daysInMonth(2000, 2), 29);
    EXPECT_EQ(daysInMonth(2026, 4), 30);
    EXPECT_EQ(daysInMonth(2026, 12), 31);
    EXPECT_EQ(daysInMonth(2025, 14), 28);
    EXPECT_EQ(daysInMonth(2025, -10), 29);
}

TEST(DateTest, DefaultTextLeavesOutWhatIsMissing)
{
    EXPECT_EQ(defaultDateText(Date::of(2026, 3, 31)), "2026-03-31");
    EXPECT_EQ(defaultDateText(Date::of(2026, 3, 31, 9, 30)), "2026-03-31 09:30:00");
    EXPECT_EQ(defaultDateText(Date::timeOf(9, 30)), "09:30:00");
    EXPECT_EQ(defaultDateText(Date(0)), "00:00:00");
    EXPECT_EQ(defaultDateText(noDate), "1899-01-01");
    EXPECT_EQ(defaultDateText(Date::of(100, 1, 1)), "0100-01-01");
}

} // namespace
} // namespace qncal
