#include "services/holidayRows.h"

#include "host/services/HostTest.h"

namespace qncal::host::test {
namespace {

class HolidayRowsTest : public HostTest {
protected:
    std::vector<HolidayRow> yearOf(int year)
    {
        return readHolidays(*database, Date::of(year, 1, 1), Date::of(year, 12, 31));
    }
};

TEST_F(HolidayRowsTest, ReadsTheDaysBetweenInOrderOfDate)
{
    const StatutoryHoliday last{Date::of(2026, 12, 31), "New Year's Eve", 2};
    const StatutoryHoliday first{Date::of(2026, 1, 1), "New Year's Day", 1};
    addHoliday(*database, last);
    addHoliday(*database, first);
    addHoliday(*database, {Date::of(2027, 1, 1), "New Year's Day", 1});
    const std::vector<HolidayRow> rows = yearOf(2026);
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].holiday, first);
    EXPECT_EQ(rows[1].holiday, last);
    EXPECT_TRUE(readHolidays(*database, Date::of(2026, 1, 2), Date::of(2026, 12, 30)).empty());
}

TEST_F(HolidayRowsTest, ARowWithoutATypeCountsAsNational)
{
    addRow(*database, "Holidays", {{"HolidayDate", "2026-07-01"}});
    ASSERT_EQ(yearOf(2026).size(), 1u);
    EXPECT_EQ(yearOf(2026)[0].holiday.type, 1);
    EXPECT_EQ(yearOf(2026)[0].holiday.name, "");
}

TEST_F(HolidayRowsTest, RemovesOneRow)
{
    addHoliday(*database, {Date::of(2026, 7, 1), "Canada Day", 1});
    addHoliday(*database, {Date::of(2026, 7, 1), "Moving Day", 2});
    removeHoliday(*database, yearOf(2026)[0].id);
    ASSERT_EQ(yearOf(2026).size(), 1u);
    EXPECT_EQ(yearOf(2026)[0].holiday.name, "Moving Day");
    removeHoliday(*database, 99);
    EXPECT_EQ(yearOf(2026).size(), 1u) << "an id without a row removes nothing";
}

TEST_F(HolidayRowsTest, AddsTheStatutoryHolidaysOfTheRegionOnce)
{
    Locale::Values quebec;
    quebec.province = 8;
    EXPECT_EQ(addStatutoryHolidays(*database, quebec, 2026), statutoryHolidays(2026, LocaleService::canada, "QC"));
    EXPECT_EQ(yearOf(2026).size(), statutoryHolidays(2026, LocaleService::canada, "QC").size());
    EXPECT_TRUE(addStatutoryHolidays(*database, quebec, 2026).empty());

    Locale::Values american;
    american.country = LocaleService::unitedStates;
    EXPECT_EQ(addStatutoryHolidays(*database, american, 2027), statutoryHolidays(2027, LocaleService::unitedStates))
        << "a province counts for nothing there";
}

TEST_F(HolidayRowsTest, AddsWhatIsMissingByDateAndName)
{
    addHoliday(*database, {Date::of(2026, 7, 1), "CANADA DAY", 2});
    const std::vector<StatutoryHoliday> added = addStatutoryHolidays(*database, Locale::Values(), 2026);
    EXPECT_EQ(added.size() + 1, statutoryHolidays(2026, LocaleService::canada, "ON").size());
    for (const StatutoryHoliday& holiday : added)
        EXPECT_NE(holiday.name, "Canada Day");
}

} // namespace
} // namespace qncal::host::test
