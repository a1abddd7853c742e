#include "items/modHolidayCtrl.h"

#include "support/ComponentTest.h"
#include "support/RoutineSweep.h"
#include "support/rowName.h"

#include <gtest/gtest.h>

namespace qncal {
namespace {

using namespace modHolidayCtrl;

/// Monday, 6 April 2026, is the holiday of these tests.
const Date monday = Date::of(2026, 4, 6);

void addHoliday(test::TestWorld& world, Date date, const std::string& type)
{
    world.addRow("Holidays", {{"HolidayDate", defaultDateText(date)}, {"HolidayType", type}});
}

class HolidayTest : public test::ComponentTest {
protected:
    void addHoliday(Date date, const std::string& type) { qncal::addHoliday(*this, date, type); }
};

struct TypeRow {
    const char* name;
    const char* type;
    bool isHoliday;
};

class HolidayTypeTest : public test::ComponentTestWith<TypeRow> {};

TEST_P(HolidayTypeTest, DecidesWhetherTheRowCounts)
{
    addHoliday(*this, monday, GetParam().type);
    EXPECT_EQ(isStatutoryHoliday(monday), GetParam().isHoliday);
}

INSTANTIATE_TEST_SUITE_P(Types, HolidayTypeTest,
                         testing::Values(TypeRow{"None", "", true}, TypeRow{"One", "1", true},
                                         TypeRow{"Two", "2", false}, TypeRow{"Three", "3", true},
                                         TypeRow{"Zero", "0", false}, TypeRow{"Four", "4", false}),
                         test::rowName);

TEST_F(HolidayTest, OneStatutoryRowAmongOthersOfTheDayIsEnough)
{
    addHoliday(monday, "1");
    addHoliday(monday, "2");
    EXPECT_TRUE(isStatutoryHoliday(monday));
    EXPECT_FALSE(isStatutoryHoliday(monday.addDays(1)));
}

TEST_F(HolidayTest, TheTimeOfTheDayDoesNotMatter)
{
    addHoliday(monday, "1");
    EXPECT_TRUE(isStatutoryHoliday(monday.addDays(0.5)));
}

TEST_F(HolidayTest, ASaturdayBeforeAMondayHolidayGoesToFriday)
{
    addHoliday(monday, "1");
    EXPECT_EQ(adjustDateToFridayIfWeekendOrHoliday(monday.addDays(-2)), Date::of(2026, 4, 3));
}

TEST_F(HolidayTest, AMondayHolidayGoesToThePreviousFridayInThreeRounds)
{
    addHoliday(monday, "1");
    errors->takeErrors();
    const auto before = errors->labels().size();
    EXPECT_EQ(adjustDateToFridayIfWeekendOrHoliday(monday), Date::of(2026, 4, 3));
    // One label of its own, and one question for a holiday in each round: Monday, Sunday, Friday.
    EXPECT_EQ(errors->labels().size() - before, 4u);
}

TEST_F(HolidayTest, AHolidayOnFridayGoesToThursday)
{
    addHoliday(Date::of(2026, 4, 3), "3");
    EXPECT_EQ(adjustDateToFridayIfWeekendOrHoliday(Date::of(2026, 4, 5)), Date::of(2026, 4, 2));
}

TEST_F(HolidayTest, AWorkingDayStays)
{
    EXPECT_EQ(adjustDateToFridayIfWeekendOrHoliday(monday.addDays(0.25)), monday.addDays(0.25));
}

struct AddRow {
    const char* name;
    std::int32_t days;
    Date from;
    Date to;
};

class BusinessDayTest : public test::ComponentTestWith<AddRow> {};

TEST_P(BusinessDayTest, StepsOverDaysOff)
{
    addHoliday(*this, monday, "1");
    EXPECT_EQ(dateAddBusinessDaysWithoutWeekendsAndHolidays(GetParam().days, GetParam().from), GetParam().to);
}

INSTANTIATE_TEST_SUITE_P(
    Sums, BusinessDayTest,
    testing::Values(AddRow{"ZeroFromASundayIsTheNextWorkingDay", 0, Date::of(2026, 3, 29), Date::of(2026, 3, 30)},
                    AddRow{"ZeroFromAWorkingDayStays", 0, Date::of(2026, 3, 31), Date::of(2026, 3, 31)},
                    AddRow{"ZeroFromTheWeekendBeforeAHoliday", 0, Date::of(2026, 4, 4), Date::of(2026, 4, 7)},
                    AddRow{"MinusOneFromMondayIsFriday", -1, Date::of(2026, 3, 30), Date::of(2026, 3, 27)},
                    AddRow{"OneOverALongWeekend", 1, Date::of(2026, 4, 3), Date::of(2026, 4, 7)},
                    AddRow{"FiveIsAWeekAndAHoliday", 5, Date::of(2026, 4, 2), Date::of(2026, 4, 10)},
                    AddRow{"MinusTwoBackOverIt", -2, Date::of(2026, 4, 7), Date::of(2026, 4, 2)},
                    AddRow{"OverTheLeapDay", 1, Date::of(2028, 2, 28), Date::of(2028, 2, 29)},
                    AddRow{"BeforeDayNought", -1, Date::of(1899, 12, 25), Date::of(1899, 12, 22)}),
    test::rowName);

TEST_F(HolidayTest, NoDaysAreSettledInNineRoundsAtMost)
{
    // A Saturday and nine more days off: the tenth of them is as far as it gets.
    for (const int day : {6, 7, 8, 9, 10, 13, 14})
        addHoliday(Date::of(2026, 4, day), "1");
    EXPECT_EQ(dateAddBusinessDaysWithoutWeekendsAndHolidays(0, Date::of(2026, 4, 4)), Date::of(2026, 4, 13));
}

TEST_F(HolidayTest, WithoutAConnectionOnlyWeekendsCount)
{
    addHoliday(monday, "1");
    database->close();
    EXPECT_FALSE(isStatutoryHoliday(monday));
    EXPECT_EQ(dateAddBusinessDaysWithoutWeekendsAndHolidays(1, Date::of(2026, 4, 3)), monday);
    EXPECT_EQ(adjustDateToFridayIfWeekendOrHoliday(Date::of(2026, 4, 5)), Date::of(2026, 4, 3));
}

const test::SweptRoutine sweptRoutines[] = {
    {"isStatutoryHoliday", "False",
     [](test::TestWorld& world) {
         addHoliday(world, monday, "1");
         return [] { return std::string(booleanText(isStatutoryHoliday(monday))); };
     }},
};

class HolidaySweep : public testing::TestWithParam<test::SweptRoutine> {};

TEST_P(HolidaySweep, FaultsLeave) { test::expectFaultsLeave(GetParam()); }
TEST_P(HolidaySweep, FaultsRetry) { test::expectFaultsRetry(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Routines, HolidaySweep, testing::ValuesIn(sweptRoutines), test::rowName);

/// After a failure these two give the date as far as they came, so that only a retry has one answer.
TEST(HolidayFaults, RetryingGivesTheSameDay)
{
    const auto onHoliday = [](const char* name, std::function<Date()> call) {
        return test::SweptRoutine{name, "", [call](test::TestWorld& world) {
                                      addHoliday(world, monday, "1");
                                      return [call] { return defaultDateText(call()); };
                                  }};
    };
    test::expectFaultsRetry(
        onHoliday("adjustDateToFridayIfWeekendOrHoliday", [] { return adjustDateToFridayIfWeekendOrHoliday(monday); }));
    test::expectFaultsRetry(onHoliday("dateAddBusinessDaysWithoutWeekendsAndHolidays", [] {
        return dateAddBusinessDaysWithoutWeekendsAndHolidays(2, monday.addDays(-3));
    }));
}

TEST_F(HolidayTest, AFaultGivesTheDateAsReachedSoFar)
{
    serviceRegistry().dateTime.reset();
    EXPECT_EQ(adjustDateToFridayIfWeekendOrHoliday(monday), monday);
    EXPECT_EQ(errors->takeErrors().size(), 1u);
    EXPECT_EQ(dateAddBusinessDaysWithoutWeekendsAndHolidays(3, monday), monday.addDays(1));
    EXPECT_EQ(errors->takeErrors().size(), 1u);
}

} // namespace
} // namespace qncal
