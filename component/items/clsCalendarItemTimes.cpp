#include "core/ServiceRegistry.h"
#include "core/routineScope.h"
#include "items/clsCalendarItem.h"

#include <cstdlib>
#include <utility>

// How start, end and duration follow each other. The fields are stored directly: none of this marks the item dirty.

namespace qncal {

namespace {

constexpr int oneMinuteInSeconds = 60;

/// Minutes since midnight, seconds cut off.
int clockMinutes(Date time)
{
    const CivilTime clock = time.civilTime();
    return clock.hour * 60 + clock.minute;
}

} // namespace

void clsCalendarItem::calculateTimeDuration()
{
    routine("Vestrel.exe-clsCalendarItem-calculateTimeDuration", [this] {
        const int minutes = std::abs(clockMinutes(record_.timeTo) - clockMinutes(record_.timeFrom));
        record_.timeduration = static_cast<float>(minutes == 0 ? 1 : minutes) / 60.0F;
    });
}

void clsCalendarItem::determineEndTimeFromTimeDuration()
{
    routine("Vestrel.exe-clsCalendarItem-determineEndTimeFromTimeDuration", [this] {
        if (record_.timeduration <= 0) {
            record_.timeduration = 1.0F / 60.0F;
            record_.timeTo = record_.timeFrom.addSeconds(oneMinuteInSeconds).timeOnly();
        } else {
            record_.timeTo =
                statement([this] { return dateTimeService().addHoursToTime(record_.timeFrom, record_.timeduration); });
        }
    });
}

void clsCalendarItem::verifyStartAndEndTime()
{
    routine("Vestrel.exe-clsCalendarItem-verifyStartAndEndTime", [this] {
        const Date from = record_.timeFrom.timeOnly();
        const Date to = record_.timeTo.timeOnly();
        if (from <= to)
            return;
        record_.timeFrom = to;
        record_.timeTo = from;
    });
}

} // namespace qncal
