#pragma once

#include "utilities/Date.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qncal::host {

/// A day off work by law.
struct StatutoryHoliday {
    Date date;
    std::string name;
    /// The value for `Holidays.HolidayType`: 1 for the whole country, 3 for a province or state.
    std::int16_t type = 1;
    friend bool operator==(const StatutoryHoliday&, const StatutoryHoliday&) = default;
};

/// The statutory holidays that fall into a calendar year, in order of date.
///
/// `country` is 1 for Canada or 2 for the United States (federal holidays). `region` is the two letters of a
/// province or state, whose own holidays are added; empty for those of the whole country alone. A holiday with
/// a fixed date that falls on a weekend is given on its date and again, as "... (observed)", on the day that is
/// taken off instead: in Canada the next working day, in the United States the Friday before a Saturday and the
/// Monday after a Sunday. So a year may end with the New Year's Day of the next one.
std::vector<StatutoryHoliday> statutoryHolidays(int year, std::int32_t country, std::string_view region = {});

/// Easter Sunday of the Gregorian calendar (the anonymous algorithm as Meeus, "Astronomical Algorithms",
/// chapter 8, gives it).
Date easterSunday(int year);
/// The nth weekday (1 Sunday to 7 Saturday) of a month; n below 0 counts from the month's end.
Date nthWeekdayOfMonth(int year, int month, int weekday, int n);

} // namespace qncal::host
