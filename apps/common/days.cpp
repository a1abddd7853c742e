#include "common/days.h"

#include "services/holidayRows.h"

namespace qncal::firmcal {

Span weekOf(Date day)
{
    constexpr int monday = 2;
    const Date start = day.addDays(-((day.weekday() - monday + 7) % 7));
    return {start, start.addDays(6)};
}

std::string holidaysOn(DatabaseService& database, Date day)
{
    std::string names;
    for (const host::HolidayRow& row : host::readHolidays(database, day, day))
        names += (names.empty() ? "" : ", ") + (row.holiday.name.empty() ? "holiday" : row.holiday.name);
    return names;
}

} // namespace qncal::firmcal
