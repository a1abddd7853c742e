#pragma once

#include "services/Locale.h"
#include "services/statutoryHolidays.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace qncal::host {

/// A row of the table `Holidays`.
struct HolidayRow {
    std::int32_t id = -1;
    StatutoryHoliday holiday;
};

/// The holidays from the first to the last day, in order of date. A row without a type counts as type 1.
std::vector<HolidayRow> readHolidays(DatabaseService& database, Date first, Date last);
void addHoliday(DatabaseService& database, const StatutoryHoliday& holiday);
void removeHoliday(DatabaseService& database, std::int32_t id);

/// Adds the statutory holidays of a year in the firm's region, all but those that are there by date and name.
/// Gives the holidays added.
std::vector<StatutoryHoliday> addStatutoryHolidays(DatabaseService& database, const Locale::Values& region, int year);

} // namespace qncal::host
