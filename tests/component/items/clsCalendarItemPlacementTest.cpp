#include "items/clsCalendarItem.h"

#include "core/forwarding/ForwardingDatabaseService.h"
#include "support/ComponentTest.h"
#include "support/rowName.h"
#include "utilities/RunTimeError.h"

#include <gtest/gtest.h>

#include <ostream>
#include <set>

namespace qncal {
namespace {

std::string timeText(Date time) { return defaultDateText(time.timeOnly()); }

/// An appointment of user 1 on the day of the tests.
class PlacementTest : public test::ComponentTest {
protected:
    PlacementTest()
    {
        item.calendarItemType(enumLocalCalendarAppointmentItem);
        item.userIDNum(1);
        item.DateFrom(today());
    }

    std::int32_t addAppointment(const std::string& from, const std::string& to, int user = 1)
    {
        return addRow("Appointments", {{"UserIDNum", std::to_string(user)},
                                       {"DateFrom", defaultDateText(today())},
                                       {"TimeFrom", from},
                                       {"TimeTo", to}});
    }

    std::string bestTime(float hours)
    {
        item.timeduration(hours);
        item.getBestTimeInCalendarForSpecificDayAndUser();
        return timeText(item.TimeFrom());
    }

    clsCalendarItem item;
};

struct DayRow {
    const char* name;
    std::vector<std::pair<const char*, const char*>> booked;
    float hours;
    const char* best;

    friend void PrintTo(const DayRow& row, std::ostream* out) { *out << row.name; }
};

class BestTimeTest : public test::ComponentTestWith<DayRow> {};

TEST_P(BestTimeTest, IsTheFirstGapThatHoldsTheItem)
{
    clsCalendarItem item;
    item.calendarItemType(enumLocalCalendarAppointmentItem);
    item.userIDNum(1);
    item.DateFrom(today());
    item.timeduration(GetParam().hours);
    for (const auto& [from, to] : GetParam().booked)
        addRow("Appointments",
               {{"UserIDNum", "1"}, {"DateFrom", defaultDateText(today())}, {"TimeFrom", from}, {"TimeTo", to}});
    item.getBestTimeInCalendarForSpecificDayAndUser();
    EXPECT_EQ(timeText(item.TimeFrom()), GetParam().best);
}

INSTANTIATE_TEST_SUITE_P(
    Days, BestTimeTest,
    testing::Values(DayRow{"EmptyDay", {}, 2, "09:00:00"},
                    DayRow{"BetweenTwo", {{"9:00", "10:00"}, {"11:00", "12:00"}}, 1, "10:00:00"},
                    DayRow{"ARowToTheEndOfTheDayIsPassedOver", {{"9:00", "10:00"}, {"10:30", "17:00"}}, 1, "10:00:00"},
                    DayRow{"AnEarlyRowIsPassedOver", {{"8:00", "8:30"}}, 1, "09:00:00"},
                    DayRow{"ARowThatEndsAtNineIsPassedOver", {{"8:00", "9:00"}}, 1, "09:00:00"},
                    DayRow{"ARowIntoTheMorning", {{"8:00", "9:30"}}, 1, "09:30:00"},
                    DayRow{"TheGapIsTooSmall", {{"9:30", "10:00"}, {"11:30", "12:00"}}, 1, "10:00:00"},
                    DayRow{"AGapOfJustTheLength", {{"9:00", "10:00"}, {"10:20", "16:50"}}, 1.0F / 3, "10:00:00"},
                    DayRow{"AfterTheLastRow", {{"9:00", "12:00"}, {"12:10", "15:00"}}, 2, "15:00:00"},
                    DayRow{"NoRoomTakesTheFirstGap", {{"9:00", "11:00"}, {"11:30", "16:30"}}, 4, "11:00:00"},
                    DayRow{"NoRoomTakesTheGapBeforeTheFirstRow", {{"9:30", "16:30"}}, 3, "09:00:00"},
                    DayRow{"NoRoomTakesTheFirstOfTwoGaps",
                           {{"9:00", "10:00"}, {"10:30", "11:30"}, {"12:00", "16:30"}},
                           4,
                           "10:00:00"},
                    DayRow{"NoRoomTakesAnOverlapForAGap", {{"9:00", "10:20"}, {"10:00", "16:30"}}, 4, "10:20:00"},
                    DayRow{"OverlappingRows", {{"9:00", "11:00"}, {"9:30", "12:00"}}, 1, "12:00:00"},
                    DayRow{"RowsAreTakenByTheirEnd", {{"11:00", "12:00"}, {"9:00", "10:00"}}, 1, "10:00:00"},
                    DayRow{"SecondsAreCutOff", {{"9:00:40", "10:00:50"}, {"10:30:20", "11:00"}}, 0.5F, "10:00:00"}),
    test::rowName);

TEST_F(PlacementTest, RowsOfOtherUsersAndDaysDoNotCount)
{
    addAppointment("9:00", "12:00", 2);
    const auto other = addAppointment("9:00", "12:00");
    setCell("Appointments", other, "DateFrom", defaultDateText(today().addDays(1)));
    EXPECT_EQ(bestTime(1), "09:00:00");
}

TEST_F(PlacementTest, ATimeOfDayInTheDateDoesNotMatter)
{
    addAppointment("9:00", "10:00");
    item.DateFrom(today().addDays(0.5));
    EXPECT_EQ(bestTime(1), "10:00:00");
    item.getBestStartTime(Date::timeOf(9), Date::timeOf(12));
    EXPECT_EQ(timeText(item.TimeFrom()), "10:00:00");
}

TEST_F(PlacementTest, PlacingDoesNotMarkDirty)
{
    ASSERT_TRUE(item.saveCalendarItem());
    ASSERT_FALSE(item.IsDirty());
    item.getBestStartTime(Date::timeOf(13), Date::timeOf(14));
    item.getBestTimeInCalendarForSpecificDayAndUser();
    item.moveCalendarItemToNewDateAndBestTimeInCalendar(today().addDays(1));
    EXPECT_EQ(item.DateFrom(), today().addDays(1));
    EXPECT_FALSE(item.IsDirty());
}

TEST_F(PlacementTest, RowsWithoutTimesArePassedOver)
{
    addAppointment("", "");
    EXPECT_EQ(bestTime(1), "09:00:00");
}

TEST_F(PlacementTest, NineHoursOnAnEmptyDayLandOnAFullHourOfTheWorkingDay)
{
    std::set<std::string> drawn;
    for (int minute = 0; minute < 200; ++minute) {
        const ClockOverride later(now().addSeconds(minute * 61));
        drawn.insert(bestTime(9));
    }
    const std::set<std::string> possible{"09:00:00", "10:00:00", "11:00:00", "12:00:00", "13:00:00",
                                         "14:00:00", "15:00:00", "16:00:00", "17:00:00"};
    EXPECT_EQ(drawn, possible);
}

TEST_F(PlacementTest, TheSearchLeavesTheEndAlone)
{
    addAppointment("9:00", "10:00");
    const Date end = item.TimeTo();
    EXPECT_EQ(bestTime(1), "10:00:00");
    EXPECT_EQ(item.TimeTo(), end);
}

TEST_F(PlacementTest, AFailedSearchLeavesTheStartAlone)
{
    item.TimeFrom(Date::timeOf(8, 15));
    database->close();
    EXPECT_EQ(bestTime(1), "08:15:00");
    EXPECT_FALSE(errors->takeErrors().empty());
}

TEST_F(PlacementTest, AnUnknownKindIsPlacedWithoutLooking)
{
    clsCalendarItem unknown;
    unknown.timeduration(2);
    unknown.getBestTimeInCalendarForSpecificDayAndUser();
    EXPECT_EQ(timeText(unknown.TimeFrom()), "09:00:00");
}

TEST_F(PlacementTest, BestStartIsTheLatestEndWithinTheRange)
{
    addAppointment("9:00", "9:30");
    addAppointment("9:45", "11:15");
    addAppointment("11:30", "12:30");
    item.getBestStartTime(Date::timeOf(9), Date::timeOf(12));
    EXPECT_EQ(timeText(item.TimeFrom()), "11:15:00");
    item.getBestStartTime(Date::timeOf(13), Date::timeOf(17));
    EXPECT_EQ(timeText(item.TimeFrom()), "13:00:00");
}

TEST_F(PlacementTest, BestStartCountsTheItemsOwnRowAndTheEndsOfTheRange)
{
    item.TimeFrom(Date::timeOf(14));
    item.TimeTo(Date::timeOf(15));
    ASSERT_TRUE(item.saveCalendarItem());
    item.getBestStartTime(Date::timeOf(15), Date::timeOf(15));
    EXPECT_EQ(timeText(item.TimeFrom()), "15:00:00");
}

TEST_F(PlacementTest, BestStartWithoutAConnectionIsTheStartOfTheRange)
{
    database->close();
    item.getBestStartTime(Date::timeOf(10), Date::timeOf(12));
    EXPECT_EQ(timeText(item.TimeFrom()), "10:00:00");
}

TEST_F(PlacementTest, BestStartLooksAtTheUsersOwnDay)
{
    addAppointment("9:00", "10:00", 2);
    setCell("Appointments", addAppointment("9:00", "11:00"), "DateFrom", defaultDateText(today().addDays(1)));
    item.getBestStartTime(Date::timeOf(9), Date::timeOf(12));
    EXPECT_EQ(timeText(item.TimeFrom()), "09:00:00");
}

TEST_F(PlacementTest, BestStartRendersTheDisplayTextAndLeavesTheEndAlone)
{
    std::vector<std::string> rendered;
    item.refreshedAppointmentText.subscribe([&](std::string& text) { rendered.push_back(text); });
    item.DisplayTextTemplate("from «Appointment Start Time»");
    const Date end = item.TimeTo();
    item.getBestStartTime(Date::timeOf(13), Date::timeOf(14));
    EXPECT_EQ(rendered, std::vector<std::string>{"from 1:00 pm"});
    EXPECT_EQ(item.TimeTo(), end);
}

TEST_F(PlacementTest, BestStartOfAnUnknownKindIsTheStartOfTheRange)
{
    clsCalendarItem unknown;
    unknown.DisplayTextTemplate("Busy"); // there is no kind that could have one
    unknown.getBestStartTime(Date::timeOf(11), Date::timeOf(12));
    EXPECT_EQ(timeText(unknown.TimeFrom()), "11:00:00");
}

class NullEnds : public ForwardingDatabaseService {
public:
    using ForwardingDatabaseService::ForwardingDatabaseService;
    Variant getField(std::int32_t handle, std::string_view field) override
    {
        return field == "TimeTo" ? Variant() : ForwardingDatabaseService::getField(handle, field);
    }
};

TEST_F(PlacementTest, BestStartPassesOverAnEndThatIsNull)
{
    addAppointment("9:00", "10:00");
    serviceRegistry().database = std::make_shared<NullEnds>(database);
    item.getBestStartTime(Date::timeOf(9), Date::timeOf(12));
    EXPECT_EQ(timeText(item.TimeFrom()), "09:00:00");
}

class RefusesQueries : public ForwardingDatabaseService {
public:
    using ForwardingDatabaseService::ForwardingDatabaseService;
    std::int32_t openRecordset(std::string_view, std::int32_t, std::int32_t, bool, std::string_view, bool) override
    {
        throw RunTimeError(errorNumber::internalError, "no query today");
    }
};

TEST_F(PlacementTest, AFailedQueryForTheBestStartLeavesTheStartAlone)
{
    item.TimeFrom(Date::timeOf(8, 15));
    serviceRegistry().database = std::make_shared<RefusesQueries>(database);
    item.getBestStartTime(Date::timeOf(9), Date::timeOf(12));
    EXPECT_EQ(timeText(item.TimeFrom()), "08:15:00");
    EXPECT_EQ(errors->takeErrors().size(), 1u);
}

TEST_F(PlacementTest, AMoveCountsHourBoundariesAndDropsTheSeconds)
{
    item.TimeFrom(Date::timeOf(9, 50, 30));
    item.TimeTo(Date::timeOf(10, 10, 45));
    item.moveCalendarItemToNewDateAndHourSlot(noDate, Date::timeOf(14, 25));
    EXPECT_EQ(timeText(item.TimeFrom()), "14:50:00");
    EXPECT_EQ(timeText(item.TimeTo()), "15:10:00");
}

TEST_F(PlacementTest, AMoveKeepsTheMinutesAndTheHoursBetween)
{
    item.TimeFrom(Date::timeOf(9, 30));
    item.TimeTo(Date::timeOf(10, 45));
    item.moveCalendarItemToNewDateAndHourSlot(Date::of(2026, 4, 2), Date::timeOf(14));
    EXPECT_EQ(item.DateFrom(), Date::of(2026, 4, 2));
    EXPECT_EQ(timeText(item.TimeFrom()), "14:30:00");
    EXPECT_EQ(timeText(item.TimeTo()), "15:45:00");
    EXPECT_FLOAT_EQ(item.timeduration(), 1.25F);
    EXPECT_TRUE(item.IsDirty());
}

TEST_F(PlacementTest, NoDateKeepsTheDateAndStillMovesTheTime)
{
    item.moveCalendarItemToNewDateAndHourSlot(noDate, Date::timeOf(14));
    EXPECT_EQ(item.DateFrom(), today());
    EXPECT_EQ(timeText(item.TimeFrom()), "14:00:00");
}

TEST_F(PlacementTest, AMoveOverMidnightComesRound)
{
    item.TimeFrom(Date::timeOf(9));
    item.TimeTo(Date::timeOf(12));
    item.moveCalendarItemToNewDateAndHourSlot(noDate, Date::timeOf(23));
    EXPECT_EQ(timeText(item.TimeFrom()), "23:00:00");
    EXPECT_EQ(timeText(item.TimeTo()), "02:00:00");
}

TEST_F(PlacementTest, AMoveToTheBestTimeTakesTheNewDay)
{
    addAppointment("9:00", "10:00");
    item.DateFrom(today().addDays(5));
    item.moveCalendarItemToNewDateAndBestTimeInCalendar(today());
    EXPECT_EQ(item.DateFrom(), today());
    EXPECT_EQ(timeText(item.TimeFrom()), "10:00:00");
    item.TimeFrom(Date::timeOf(8));
    item.moveCalendarItemToNewDateAndBestTimeInCalendar(noDate);
    EXPECT_EQ(timeText(item.TimeFrom()), "08:00:00");
}

} // namespace
} // namespace qncal
