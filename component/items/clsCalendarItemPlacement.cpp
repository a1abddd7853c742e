#include "core/RecordSet.h"
#include "core/ServiceRegistry.h"
#include "items/clsCalendarItem.h"
#include "items/frmSelectStartTime.h"
#include "utilities/Clock.h"

#include <cmath>
#include <random>

// Where an item goes in a user's day, and how it moves around the calendar.

namespace qncal {

namespace {

const Date dayStart = Date::timeOf(9);
const Date dayEnd = Date::timeOf(17);

Date toWholeMinutes(Date time)
{
    const CivilTime civil = time.civilTime();
    return Date::timeOf(civil.hour, civil.minute);
}

double hoursBetween(Date from, Date to)
{
    return statement([&] { return dateTimeService().hoursBetween(from, to); });
}

/// A duration is a single-precision number of hours: a gap of exactly its length must hold it, so both count in
/// whole seconds.
bool isRoomFor(float durationHours, double gapHours)
{
    constexpr double secondsPerHour = 3600.0;
    return std::lround(gapHours * secondsPerHour) >= std::lround(static_cast<double>(durationHours) * secondsPerHour);
}

/// The place of last resort: a full hour by chance. Half of the draws come out at 1 in the afternoon, as is meant.
Date randomHour()
{
    std::minstd_rand generator(static_cast<unsigned>(std::llround(now().serial() * 86400.0)));
    const double random = std::uniform_real_distribution<double>(0.0, 1.0)(generator);
    const int hour = static_cast<int>(17 * random + 9);
    return hour <= 17 ? Date::timeOf(hour) : Date::timeOf(13);
}

/// Hours that run over midnight come round to the morning.
Date timeOfHour(int hour, int minute) { return Date::timeOf((hour % 24 + 24) % 24, minute); }

} // namespace

void clsCalendarItem::getBestStartTime(Date startTimeRange, Date endTimeRange)
{
    routine("Vestrel.exe-clsCalendarItem-getBestStartTime", [&] {
        Date best = startTimeRange;
        if (calendarItemType() != enumLocalCalendarUnknownItem && isDatabaseConnected()) {
            const std::string& table = kind().tableName();
            RecordSet rows = RecordSet::openReadOnly(
                "SELECT " + table + ".UserIDNum, " + table + ".DateFrom, " + table + ".TimeTo FROM " + table + " WHERE "
                + table + ".UserIDNum=" + std::to_string(record_.userIDNum) + " AND " + table + ".DateFrom="
                + sqlDate(record_.dateFrom.dateOnly()) + " AND " + table + ".TimeTo>=" + sqlTime(startTimeRange)
                + " And " + table + ".TimeTo<=" + sqlTime(endTimeRange) + " ORDER BY " + table + ".TimeTo DESC;");
            if (rows.hasRecords() && rows.read("TimeTo", best))
                best = statement([&] { return dateTimeService().getTimeOnly(best); });
            rows.close();
        }
        record_.timeFrom = best;
        createDisplayTextByID();
    });
}

std::optional<Date> clsCalendarItem::findGapInDay()
{
    Date lastEnd = dayStart;
    Date firstGap = Date::timeOf(6);
    if (calendarItemType() != enumLocalCalendarUnknownItem) {
        const std::string& table = kind().tableName();
        RecordSet rows = RecordSet::openReadOnly(
            "SELECT " + table + ".UserIDNum, " + table + ".DateFrom, " + table + ".TimeFrom, " + table + ".TimeTo FROM "
            + table + " WHERE " + table + ".UserIDNum=" + std::to_string(record_.userIDNum) + " AND " + table
            + ".DateFrom=" + sqlDate(record_.dateFrom.dateOnly()) + " ORDER BY " + table + ".TimeTo;");
        bool found = false;
        for (; !found && !rows.isEOF(); rows.moveNext()) {
            Date rowStart;
            Date rowEnd;
            rows.read("TimeFrom", rowStart);
            rows.read("TimeTo", rowEnd);
            rowStart = toWholeMinutes(rowStart);
            rowEnd = toWholeMinutes(rowEnd);
            if (rowEnd <= dayStart || rowEnd >= dayEnd)
                continue;
            // The first gap of any size, kept for a day without room; an overlap counts as one, as is meant.
            if (firstGap < dayStart && hoursBetween(rowStart, lastEnd) > 0)
                firstGap = toWholeMinutes(lastEnd);
            found = rowStart > lastEnd && isRoomFor(record_.timeduration, hoursBetween(rowStart, lastEnd));
            if (!found)
                lastEnd = rowEnd;
        }
        rows.close();
        if (found)
            return lastEnd;
    }
    if (isRoomFor(record_.timeduration, hoursBetween(lastEnd, dayEnd)))
        return lastEnd;
    if (firstGap >= dayStart)
        return firstGap;
    return std::nullopt;
}

void clsCalendarItem::getBestTimeInCalendarForSpecificDayAndUser()
{
    routine("Vestrel.exe-clsCalendarItem-getBestTimeInCalendarForSpecificDayAndUser", [&] {
        const auto gap = findGapInDay();
        record_.timeFrom = gap ? *gap : randomHour();
    });
}

void clsCalendarItem::moveCalendarItemToNewDateAndHourSlot(Date newDate, Date newStartHourTime)
{
    routine("Vestrel.exe-clsCalendarItem-moveCalendarItemToNewDateAndHourSlot", [&] {
        const CivilTime oldFrom = record_.timeFrom.civilTime();
        const CivilTime oldTo = record_.timeTo.civilTime();
        if (newDate.dateOnly() != noDate)
            DateFrom(newDate);
        const int newHour = newStartHourTime.civilTime().hour;
        const int hourBoundaries = oldTo.hour - oldFrom.hour;
        TimeFrom(timeOfHour(newHour, oldFrom.minute));
        TimeTo(timeOfHour(newHour + hourBoundaries, oldTo.minute));
    });
}

void clsCalendarItem::moveCalendarItemToNewDateAndBestTimeInCalendar(Date newDate)
{
    routine("Vestrel.exe-clsCalendarItem-moveCalendarItemToNewDateAndBestTimeInCalendar", [&] {
        if (newDate.dateOnly() == noDate)
            return;
        record_.dateFrom = newDate;
        getBestTimeInCalendarForSpecificDayAndUser();
    });
}

bool clsCalendarItem::promptFormToChangeStartTime()
{
    return routine("Vestrel.exe-clsCalendarItem-promptFormToChangeStartTime", false, [&] {
        frmSelectStartTime form;
        form.TimeType(frmSelectStartTime::startTime);
        form.TimeSelected(record_.timeFrom);
        form.Initialize();
        if (!form.cancelFlag())
            TimeFrom(form.TimeSelected());
        return !form.cancelFlag();
    });
}

bool clsCalendarItem::promptFormToChangeEndTime()
{
    return routine("Vestrel.exe-clsCalendarItem-promptFormToChangeEndTime", false, [&] {
        frmSelectStartTime form;
        form.TimeType(frmSelectStartTime::endTime);
        form.TimeSelected(record_.timeTo);
        form.Initialize();
        if (!form.cancelFlag())
            TimeTo(form.TimeSelected());
        return !form.cancelFlag();
    });
}

} // namespace qncal
