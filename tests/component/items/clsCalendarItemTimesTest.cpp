#include "items/clsCalendarItem.h"
#include "support/ComponentTest.h"
#include "support/rowName.h"

namespace qncal {
namespace {

class clsCalendarItemTimesTest : public test::ComponentTest {
protected:
    clsCalendarItem item;
};

struct DurationRow {
    const char* name;
    Date from;
    Date to;
    int minutes;
};

class calculateTimeDurationTest : public test::ComponentTestWith<DurationRow> {};

TEST_P(calculateTimeDurationTest, CountsTheMinutesBetweenTheClockTimes)
{
    clsCalendarItem item;
    item.TimeTo(GetParam().to);
    item.TimeFrom(GetParam().from);
    item.calculateTimeDuration();
    EXPECT_EQ(item.timeduration(), static_cast<float>(GetParam().minutes) / 60.0F);
}

INSTANTIATE_TEST_SUITE_P(
    Times, calculateTimeDurationTest,
    testing::Values(DurationRow{"AnHourAndAHalf", Date::timeOf(9), Date::timeOf(10, 30), 90},
                    DurationRow{"NoTimeIsAMinute", Date::timeOf(9), Date::timeOf(9), 1},
                    DurationRow{"SecondsWithinAMinuteAreAMinute", Date::timeOf(9, 0, 10), Date::timeOf(9, 0, 50), 1},
                    DurationRow{"BackwardsIsPositive", Date::timeOf(17), Date::timeOf(9), 480},
                    DurationRow{"DatesAreDropped", Date::of(2026, 3, 31, 9), Date::of(2026, 4, 2, 9, 20), 20}),
    test::rowName);

TEST_F(clsCalendarItemTimesTest, CalculatingTheDurationDoesNotMarkDirty)
{
    item.calculateTimeDuration();
    EXPECT_FALSE(item.IsDirty());
}

TEST_F(clsCalendarItemTimesTest, TheEndFollowsTheDuration)
{
    item.timeduration(2.5F);
    item.determineEndTimeFromTimeDuration();
    EXPECT_EQ(item.TimeTo(), Date::timeOf(11, 30));
}

TEST_F(clsCalendarItemTimesTest, TheEndThatFollowsDoesNotMarkDirty)
{
    item.calendarItemType(enumLocalCalendarAppointmentItem);
    for (const float hours : {2.5F, -2.0F}) {
        item.timeduration(hours);
        ASSERT_TRUE(item.saveCalendarItem());
        item.determineEndTimeFromTimeDuration();
        EXPECT_FALSE(item.IsDirty());
    }
}

TEST_F(clsCalendarItemTimesTest, AMinuteBeforeMidnightEndsAtATimeOfDay)
{
    item.TimeFrom(Date::timeOf(23, 59));
    item.timeduration(-1);
    item.determineEndTimeFromTimeDuration();
    EXPECT_EQ(item.TimeTo(), Date::timeOf(0));
}

TEST_F(clsCalendarItemTimesTest, ANegativeDurationBecomesAMinute)
{
    item.timeduration(-2);
    item.determineEndTimeFromTimeDuration();
    EXPECT_EQ(item.timeduration(), 1.0F / 60.0F);
    EXPECT_EQ(item.TimeTo(), Date::timeOf(9, 1));
}

TEST_F(clsCalendarItemTimesTest, AStartAfterTheEndIsExchangedWithIt)
{
    item.TimeFrom(Date::of(2026, 3, 31, 15));
    item.TimeTo(Date::of(2026, 4, 1, 11));
    item.verifyStartAndEndTime();
    EXPECT_EQ(item.TimeFrom(), Date::timeOf(11));
    EXPECT_EQ(item.TimeTo(), Date::timeOf(15));
}

TEST_F(clsCalendarItemTimesTest, EqualAndOrderedTimesStay)
{
    const Date from = Date::of(2026, 3, 31, 11);
    const Date to = Date::of(2026, 3, 30, 11);
    item.TimeFrom(from);
    item.TimeTo(to);
    item.verifyStartAndEndTime();
    EXPECT_EQ(item.TimeFrom(), from);
    EXPECT_EQ(item.TimeTo(), to);
}

} // namespace
} // namespace qncal
