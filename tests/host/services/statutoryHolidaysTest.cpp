#include "services/statutoryHolidays.h"

#include "core/LocaleService.h"

#include "support/rowName.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace qncal::host {
namespace {

constexpr std::int32_t canada = LocaleService::canada;
constexpr std::int32_t unitedStates = LocaleService::unitedStates;

std::vector<std::string> datesOf(const std::string& name, int year, std::int32_t country, const std::string& region)
{
    std::vector<std::string> dates;
    for (const StatutoryHoliday& holiday : statutoryHolidays(year, country, region)) {
        if (holiday.name == name)
            dates.push_back(defaultDateText(holiday.date));
    }
    return dates;
}

struct Case {
    const char* name;
    const char* holiday;
    int year;
    std::int32_t country;
    const char* region;
    /// The one date; none when the holiday does not exist there and then.
    const char* date;
};

class StatutoryHolidayTest : public testing::TestWithParam<Case> {};

TEST_P(StatutoryHolidayTest, FallsOnItsKnownDate)
{
    const Case& c = GetParam();
    const std::vector<std::string> expected = c.date ? std::vector<std::string>{c.date} : std::vector<std::string>();
    EXPECT_EQ(datesOf(c.holiday, c.year, c.country, c.region), expected);
}

INSTANTIATE_TEST_SUITE_P(
    Known, StatutoryHolidayTest,
    testing::Values(
        Case{"GoodFriday2024", "Good Friday", 2024, canada, "ON", "2024-03-29"},
        Case{"GoodFriday2025", "Good Friday", 2025, canada, "", "2025-04-18"},
        Case{"GoodFriday2026", "Good Friday", 2026, canada, "QC", "2026-04-03"},
        Case{"VictoriaDayWithThe25thAMonday", "Victoria Day", 2026, canada, "ON", "2026-05-18"},
        Case{"VictoriaDayWithThe25thASaturday", "Victoria Day", 2024, canada, "AB", "2024-05-20"},
        Case{"VictoriaDayWithThe24thAMonday", "Victoria Day", 2021, canada, "BC", "2021-05-24"},
        Case{"VictoriaDayGoesByAnotherNameInQuebec", "Victoria Day", 2026, canada, "QC", nullptr},
        Case{"PatriotsDayInQuebec", "National Patriots' Day", 2026, canada, "QC", "2026-05-18"},
        Case{"LabourDay", "Labour Day", 2026, canada, "", "2026-09-07"},
        Case{"LabourDayOnTheFirst", "Labour Day", 2025, canada, "", "2025-09-01"},
        Case{"CanadianThanksgiving", "Thanksgiving", 2026, canada, "ON", "2026-10-12"},
        Case{"NoThanksgivingInNovaScotia", "Thanksgiving", 2026, canada, "NS", nullptr},
        Case{"FamilyDayOntario", "Family Day", 2026, canada, "ON", "2026-02-16"},
        Case{"FamilyDayOntarioBeforeItsFirst", "Family Day", 2007, canada, "ON", nullptr},
        Case{"FamilyDayAlberta", "Family Day", 2007, canada, "AB", "2007-02-19"},
        Case{"FamilyDayBritishColumbiaSecondMonday", "Family Day", 2018, canada, "BC", "2018-02-12"},
        Case{"FamilyDayBritishColumbiaThirdMonday", "Family Day", 2019, canada, "BC", "2019-02-18"},
        Case{"LouisRielDay", "Louis Riel Day", 2026, canada, "MB", "2026-02-16"},
        Case{"HeritageDay", "Heritage Day", 2026, canada, "NS", "2026-02-16"},
        Case{"IslanderDay", "Islander Day", 2026, canada, "PE", "2026-02-16"},
        Case{"NoFamilyDayInQuebec", "Family Day", 2026, canada, "QC", nullptr},
        Case{"NoFamilyDayForTheWholeCountry", "Family Day", 2026, canada, "", nullptr},
        Case{"BoxingDayInOntario", "Boxing Day", 2026, canada, "ON", "2026-12-26"},
        Case{"NoBoxingDayInQuebec", "Boxing Day", 2026, canada, "QC", nullptr},
        Case{"RemembranceDay", "Remembrance Day", 2026, canada, "AB", "2026-11-11"},
        Case{"CanadaDayOnASaturdayIsTakenOnMonday", "Canada Day (observed)", 2023, canada, "ON", "2023-07-03"},
        Case{"CanadaDayOnASundayIsTakenOnMonday", "Canada Day (observed)", 2018, canada, "", "2018-07-02"},
        Case{"CanadaDayOnAWeekdayIsNotMoved", "Canada Day (observed)", 2026, canada, "", nullptr},
        Case{"ChristmasOnASaturday", "Christmas Day (observed)", 2021, canada, "ON", "2021-12-27"},
        Case{"BoxingDayOnASundayComesAfterChristmas", "Boxing Day (observed)", 2021, canada, "ON", "2021-12-28"},
        Case{"ChristmasOnASundayComesAfterBoxingDay", "Christmas Day (observed)", 2022, canada, "ON", "2022-12-27"},
        Case{"ChristmasOnASundayWithoutBoxingDay", "Christmas Day (observed)", 2022, canada, "QC", "2022-12-26"},
        Case{"RemembranceDayOnASaturdayStays", "Remembrance Day (observed)", 2023, canada, "AB", nullptr},
        Case{"AmericanThanksgiving", "Thanksgiving Day", 2026, unitedStates, "", "2026-11-26"},
        Case{"AmericanThanksgivingOnThe28th", "Thanksgiving Day", 2024, unitedStates, "", "2024-11-28"},
        Case{"MartinLutherKing", "Martin Luther King Jr. Day", 2026, unitedStates, "", "2026-01-19"},
        Case{"WashingtonsBirthday", "Washington's Birthday", 2026, unitedStates, "", "2026-02-16"},
        Case{"MemorialDay", "Memorial Day", 2026, unitedStates, "", "2026-05-25"},
        Case{"MemorialDayOnThe31st", "Memorial Day", 2027, unitedStates, "", "2027-05-31"},
        Case{"ColumbusDay", "Columbus Day", 2026, unitedStates, "", "2026-10-12"},
        Case{"NoJuneteenthBefore2021", "Juneteenth", 2020, unitedStates, "", nullptr},
        Case{"JuneteenthOnASunday", "Juneteenth (observed)", 2022, unitedStates, "", "2022-06-20"},
        Case{"IndependenceDayOnASaturday", "Independence Day (observed)", 2026, unitedStates, "", "2026-07-03"},
        Case{"NewYearOnASaturdayIsTakenInTheYearBefore", "New Year's Day (observed)", 2021, unitedStates, "",
             "2021-12-31"},
        Case{"NewYearTakenBeforeIsNotInItsOwnYear", "New Year's Day (observed)", 2022, unitedStates, "", nullptr},
        Case{"PatriotsDayInMassachusetts", "Patriots' Day", 2026, unitedStates, "MA", "2026-04-20"},
        Case{"NoPatriotsDayInTexas", "Patriots' Day", 2026, unitedStates, "TX", nullptr}),
    qncal::test::rowName);

TEST(StatutoryHolidays, EasterOfKnownYears)
{
    const std::pair<int, const char*> known[] = {{1954, "1954-04-18"}, {1961, "1961-04-02"}, {2000, "2000-04-23"},
                                                 {2008, "2008-03-23"}, {2024, "2024-03-31"}, {2026, "2026-04-05"},
                                                 {2038, "2038-04-25"}, {2285, "2285-03-22"}};
    for (const auto& [year, date] : known)
        EXPECT_EQ(defaultDateText(easterSunday(year)), date);
}

TEST(StatutoryHolidays, AreInOrderOfDateWithinTheirYear)
{
    for (int year = 2015; year <= 2035; ++year) {
        const auto holidays = statutoryHolidays(year, canada, "ON");
        EXPECT_TRUE(std::ranges::is_sorted(holidays, {}, [](const auto& holiday) { return holiday.date.serial(); }));
        for (const StatutoryHoliday& holiday : holidays)
            EXPECT_EQ(holiday.date.civilDate().year, year) << holiday.name;
    }
}

TEST(StatutoryHolidays, EveryHolidayOnAWeekendThatMovesIsTakenOnAWorkingDay)
{
    for (int year = 2015; year <= 2035; ++year) {
        for (const std::int32_t country : {canada, unitedStates}) {
            for (const StatutoryHoliday& holiday : statutoryHolidays(year, country, "ON")) {
                if (holiday.name.ends_with("(observed)")) {
                    EXPECT_TRUE(holiday.date.weekday() >= 2 && holiday.date.weekday() <= 6) << holiday.name << year;
                }
            }
        }
    }
}

TEST(StatutoryHolidays, TellTheCountrysFromTheProvinces)
{
    for (const StatutoryHoliday& holiday : statutoryHolidays(2026, canada, "ON")) {
        if (holiday.name == "Canada Day") {
            EXPECT_EQ(holiday.type, 1);
        }
        if (holiday.name == "Family Day") {
            EXPECT_EQ(holiday.type, 3);
        }
    }
}

TEST(StatutoryHolidays, NthWeekdayCountsFromEitherEndOfTheMonth)
{
    EXPECT_EQ(defaultDateText(nthWeekdayOfMonth(2026, 3, 1, 1)), "2026-03-01");
    EXPECT_EQ(defaultDateText(nthWeekdayOfMonth(2026, 3, 7, 4)), "2026-03-28");
    EXPECT_EQ(defaultDateText(nthWeekdayOfMonth(2026, 3, 3, -1)), "2026-03-31");
    EXPECT_EQ(defaultDateText(nthWeekdayOfMonth(2026, 12, 2, -2)), "2026-12-21");
}

} // namespace
} // namespace qncal::host
