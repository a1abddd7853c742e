#pragma once

#include "utilities/Date.h"

#include <cstdint>

/// Business days: weekends, and the statutory holidays in the table `Holidays`. Without a connection only weekends
/// count.
namespace qncal::modHolidayCtrl {

/// True for a day that has a holiday row of type 1 or 3, or of no type.
bool isStatutoryHoliday(Date date);

/// The last working day at or before the date; the time of day is kept.
Date adjustDateToFridayIfWeekendOrHoliday(Date date);

/// The date that many working days on, or back for a negative number. No days from a day off give the next working
/// day.
Date dateAddBusinessDaysWithoutWeekendsAndHolidays(std::int32_t days, Date date);

} // namespace qncal::modHolidayCtrl
