#include "items/modHolidayCtrl.h"

#include "core/RecordSet.h"
#include "core/ServiceRegistry.h"

#include <cstdlib>

namespace qncal::modHolidayCtrl {

namespace {

constexpr int sunday = 1;

bool isWeekend(Date date)
{
    return statement([&] { return dateTimeService().isWeekend(date); });
}

bool isDayOff(Date date) { return isWeekend(date) || isStatutoryHoliday(date); }

} // namespace

bool isStatutoryHoliday(Date date)
{
    return routine("Vestrel.exe-modHolidayCtrl-isStatutoryHoliday", false, [&] {
        if (!isDatabaseConnected())
            return false;
        bool isHoliday = false;
        RecordSet holidays = RecordSet::openReadOnly(
            "SELECT Holidays.HolidayDate, Holidays.HolidayType FROM Holidays WHERE Holidays.HolidayDate = "
            + sqlDate(date.dateOnly()) + " ;");
        for (; !holidays.isEOF(); holidays.moveNext()) {
            std::int32_t type = 0;
            const bool hasType = holidays.read("HolidayType", type);
            if (!hasType || type == 1 || type == 3)
                isHoliday = true;
        }
        holidays.close();
        return isHoliday;
    });
}

Date adjustDateToFridayIfWeekendOrHoliday(Date date)
{
    routine("Vestrel.exe-modHolidayCtrl-adjustDateToFridayIfWeekendOrHoliday", [&] {
        for (bool done = false; !done;) {
            done = true;
            if (isWeekend(date)) {
                date = date.addDays(date.weekday() == sunday ? -2 : -1);
                done = false;
            }
            if (isStatutoryHoliday(date)) {
                date = date.addDays(-1);
                done = false;
            }
        }
    });
    return date;
}

Date dateAddBusinessDaysWithoutWeekendsAndHolidays(std::int32_t days, Date date)
{
    routine("Vestrel.exe-modHolidayCtrl-dateAddBusinessDaysWithoutWeekendsAndHolidays", [&] {
        const int step = days < 0 ? -1 : 1;
        const std::int64_t count = std::llabs(days);
        for (std::int64_t i = 1; i <= count;) {
            date = date.addDays(step);
            if (!isDayOff(date))
                ++i;
        }
        // Leaves a day off that no step has left: the date came in on one and no days were asked for.
        constexpr int settlingRounds = 9;
        for (int round = 0; round < settlingRounds && isDayOff(date); ++round)
            date = date.addDays(step);
    });
    return date;
}

} // namespace qncal::modHolidayCtrl
