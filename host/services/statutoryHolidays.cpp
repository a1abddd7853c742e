#include "services/statutoryHolidays.h"

#include "core/LocaleService.h"

#include <algorithm>
#include <limits>
#include <span>

namespace qncal::host {

namespace {

enum class When : std::uint8_t {
    fixed,         ///< month, day
    nthWeekday,    ///< month, weekday, n
    weekdayBefore, ///< the last such weekday before month, day
    easter,        ///< days from Easter Sunday
};

/// On a weekend: whether another day is taken off for a holiday of fixed date.
enum class Weekend : std::uint8_t { stays, moves };

struct Rule {
    std::string_view name;
    When when;
    int month = 0;
    int day = 0;     ///< the day of the month, or the offset from Easter
    int weekday = 0; ///< 1 Sunday to 7 Saturday
    int n = 0;
    std::string_view regions = {}; ///< the letters of provinces or states; empty for all
    int firstYear = 0;
    int lastYear = std::numeric_limits<int>::max();
    Weekend weekend = Weekend::stays;
};

constexpr int sunday = 1, monday = 2, thursday = 5, saturday = 7;

constexpr Rule fixed(std::string_view name, int month, int day, std::string_view regions = {}, int firstYear = 0,
                     Weekend weekend = Weekend::moves)
{
    return {.name = name,
            .when = When::fixed,
            .month = month,
            .day = day,
            .regions = regions,
            .firstYear = firstYear,
            .weekend = weekend};
}

constexpr Rule nth(std::string_view name, int n, int weekday, int month, std::string_view regions = {},
                   int firstYear = 0, int lastYear = std::numeric_limits<int>::max())
{
    return {.name = name,
            .when = When::nthWeekday,
            .month = month,
            .weekday = weekday,
            .n = n,
            .regions = regions,
            .firstYear = firstYear,
            .lastYear = lastYear};
}

/// The provinces' employment standards; the days that are customary but not statutory are left out.
constexpr Rule canadianRules[]{
    fixed("New Year's Day", 1, 1),
    nth("Family Day", 3, monday, 2, "AB", 1990),
    nth("Family Day", 3, monday, 2, "SK", 2007),
    nth("Family Day", 3, monday, 2, "ON", 2008),
    nth("Louis Riel Day", 3, monday, 2, "MB", 2008),
    nth("Islander Day", 3, monday, 2, "PE", 2010),
    nth("Family Day", 2, monday, 2, "BC", 2013, 2018),
    nth("Heritage Day", 3, monday, 2, "NS", 2015),
    nth("Family Day", 3, monday, 2, "NB", 2018),
    nth("Family Day", 3, monday, 2, "BC", 2019),
    {.name = "Good Friday", .when = When::easter, .day = -2},
    {.name = "Victoria Day",
     .when = When::weekdayBefore,
     .month = 5,
     .day = 25,
     .weekday = monday,
     .regions = "AB BC MB ON SK"},
    {.name = "National Patriots' Day",
     .when = When::weekdayBefore,
     .month = 5,
     .day = 25,
     .weekday = monday,
     .regions = "QC",
     .firstYear = 2003},
    fixed("Saint-Jean-Baptiste Day", 6, 24, "QC"),
    fixed("Canada Day", 7, 1),
    nth("British Columbia Day", 1, monday, 8, "BC"),
    nth("Saskatchewan Day", 1, monday, 8, "SK"),
    nth("New Brunswick Day", 1, monday, 8, "NB"),
    nth("Labour Day", 1, monday, 9),
    fixed("National Day for Truth and Reconciliation", 9, 30, "PE", 2022, Weekend::stays),
    fixed("National Day for Truth and Reconciliation", 9, 30, "BC", 2023, Weekend::stays),
    fixed("National Day for Truth and Reconciliation", 9, 30, "MB", 2024, Weekend::stays),
    nth("Thanksgiving", 2, monday, 10, "AB BC MB ON QC SK"),
    fixed("Remembrance Day", 11, 11, "AB BC NB NL PE SK", 0, Weekend::stays),
    fixed("Christmas Day", 12, 25),
    fixed("Boxing Day", 12, 26, "ON"),
};

/// The federal holidays by the Uniform Monday Holiday Act and later law, and some of the states' own.
constexpr Rule americanRules[]{
    fixed("New Year's Day", 1, 1),
    nth("Martin Luther King Jr. Day", 3, monday, 1, {}, 1986),
    nth("Washington's Birthday", 3, monday, 2, {}, 1971),
    fixed("Cesar Chavez Day", 3, 31, "CA", 2001),
    nth("Patriots' Day", 3, monday, 4, "MA ME", 1969),
    nth("Memorial Day", -1, monday, 5, {}, 1971),
    fixed("Juneteenth", 6, 19, {}, 2021),
    fixed("Independence Day", 7, 4),
    nth("Labor Day", 1, monday, 9),
    nth("Columbus Day", 2, monday, 10, {}, 1971),
    fixed("Veterans Day", 11, 11, {}, 1978),
    nth("Thanksgiving Day", 4, thursday, 11, {}, 1942),
    fixed("Christmas Day", 12, 25),
};

bool appliesTo(const Rule& rule, int year, std::string_view region)
{
    const bool inRegion =
        rule.regions.empty() || (region.size() == 2 && rule.regions.find(region) != std::string_view::npos);
    return inRegion && year >= rule.firstYear && year <= rule.lastYear;
}

Date dateOf(const Rule& rule, int year)
{
    switch (rule.when) {
    case When::fixed:
        break;
    case When::nthWeekday:
        return nthWeekdayOfMonth(year, rule.month, rule.weekday, rule.n);
    case When::weekdayBefore: {
        const Date dayBefore = Date::of(year, rule.month, rule.day - 1);
        return dayBefore.addDays(-((dayBefore.weekday() - rule.weekday + 7) % 7));
    }
    case When::easter:
        return easterSunday(year).addDays(rule.day);
    }
    return Date::of(year, rule.month, rule.day);
}

bool isWeekend(Date date) { return date.weekday() == sunday || date.weekday() == saturday; }

bool contains(const std::vector<StatutoryHoliday>& holidays, Date date)
{
    return std::ranges::any_of(holidays, [&](const StatutoryHoliday& holiday) { return holiday.date == date; });
}

Date dayOffInstead(Date date, std::int32_t country, const std::vector<StatutoryHoliday>& holidays)
{
    if (country == LocaleService::unitedStates)
        return date.addDays(date.weekday() == saturday ? -1 : 1);
    do
        date = date.addDays(1);
    while (isWeekend(date) || contains(holidays, date));
    return date;
}

/// All that belongs to a year by name, also when the day taken off lies in the year before.
std::vector<StatutoryHoliday> holidaysNamedIn(int year, std::int32_t country, std::string_view region)
{
    const std::span<const Rule> rules =
        country == LocaleService::canada ? std::span<const Rule>(canadianRules) : std::span<const Rule>(americanRules);
    std::vector<StatutoryHoliday> holidays;
    std::vector<StatutoryHoliday> moving;
    for (const Rule& rule : rules) {
        if (!appliesTo(rule, year, region))
            continue;
        const StatutoryHoliday holiday{dateOf(rule, year), std::string(rule.name),
                                       static_cast<std::int16_t>(rule.regions.empty() ? 1 : 3)};
        holidays.push_back(holiday);
        if (rule.weekend == Weekend::moves && isWeekend(holiday.date))
            moving.push_back(holiday);
    }
    // Later: Christmas on a Saturday has to know of Boxing Day on the Sunday, and the two take Monday and Tuesday.
    for (const StatutoryHoliday& holiday : moving)
        holidays.push_back(
            {dayOffInstead(holiday.date, country, holidays), holiday.name + " (observed)", holiday.type});
    return holidays;
}

} // namespace

std::vector<StatutoryHoliday> statutoryHolidays(int year, std::int32_t country, std::string_view region)
{
    std::vector<StatutoryHoliday> holidays = holidaysNamedIn(year, country, region);
    for (StatutoryHoliday& holiday : holidaysNamedIn(year + 1, country, region))
        holidays.push_back(std::move(holiday));
    std::erase_if(holidays, [&](const StatutoryHoliday& holiday) { return holiday.date.civilDate().year != year; });
    std::ranges::stable_sort(holidays, {}, [](const StatutoryHoliday& holiday) { return holiday.date.serial(); });
    return holidays;
}

Date easterSunday(int year)
{
    const int a = year % 19;
    const int b = year / 100;
    const int c = year % 100;
    const int d = b / 4;
    const int e = b % 4;
    const int f = (b + 8) / 25;
    const int g = (b - f + 1) / 3;
    const int h = (19 * a + b - d - g + 15) % 30;
    const int i = c / 4;
    const int k = c % 4;
    const int l = (32 + 2 * e + 2 * i - h - k) % 7;
    const int m = (a + 11 * h + 22 * l) / 451;
    const int monthAndDay = h + l - 7 * m + 114;
    return Date::of(year, monthAndDay / 31, monthAndDay % 31 + 1);
}

Date nthWeekdayOfMonth(int year, int month, int weekday, int n)
{
    if (n < 0) {
        const Date last = Date::of(year, month + 1, 0);
        return last.addDays(-((last.weekday() - weekday + 7) % 7) + 7 * (n + 1));
    }
    const Date first = Date::of(year, month, 1);
    return first.addDays((weekday - first.weekday() + 7) % 7 + 7 * (n - 1));
}

} // namespace qncal::host
