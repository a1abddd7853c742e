#include "utilities/DateTimeService.h"

#include "utilities/RunTimeError.h"
#include "utilities/dateText.h"
#include "utilities/numberText.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace qncal {

namespace {

constexpr int sunday = 1;
constexpr int saturday = 7;
constexpr int daysInWeek = 7;
constexpr double secondsPerHour = 3600.0;
constexpr double hoursPerDay = 24.0;

} // namespace

bool DateTimeService::isWeekend(Date date)
{
    const int weekday = date.weekday();
    return weekday == sunday || weekday == saturday;
}

Date DateTimeService::getTimeOnly(Date value) { return value.timeOnly(); }

Date DateTimeService::getDateOnly(Date value) { return value.dateOnly(); }

Date DateTimeService::addHoursToTime(Date time, float hours)
{
    // In whole seconds, so that the binary fraction of 20 minutes does not show.
    const double withinDay = std::fmod(static_cast<double>(hours), hoursPerDay);
    if (std::isnan(withinDay))
        throw RunTimeError(errorNumber::overflow, "Overflow: the hours are no number");
    return time.timeOnly().addSeconds(std::llround(withinDay * secondsPerHour)).timeOnly();
}

double DateTimeService::hoursBetween(Date from, Date to)
{
    return static_cast<double>(std::abs(to.linearSeconds() - from.linearSeconds())) / secondsPerHour;
}

Date DateTimeService::adjustReminderDate(Date date)
{
    switch (date.weekday()) {
    case saturday:
        return date.addDays(-1);
    case sunday:
        return date.addDays(-2);
    default:
        return date;
    }
}

int DateTimeService::getWeekdayNumber(Date date) { return date.weekday(); }

std::string DateTimeService::getWeekdayName(int weekday) { return std::string(weekdayName(weekday)); }

int DateTimeService::getWeekOfMonth(Date date) { return (date.civilDate().day - 1) / daysInWeek + 1; }

std::string DateTimeService::getOrdinalWord(int weekNumber)
{
    constexpr std::array words{"first", "second", "third", "fourth", "fifth"};
    if (weekNumber < 1 || weekNumber > static_cast<int>(words.size()))
        return ordinalText(weekNumber);
    return words[static_cast<std::size_t>(weekNumber - 1)];
}

int DateTimeService::getDaysInMonth(int month, int year) { return daysInMonth(year, month); }

Date DateTimeService::makeDate(int year, int month, int day) { return Date::of(year, month, day); }

Date DateTimeService::getNthWeekdayOfMonth(int month, int year, int weekNumber, int weekday)
{
    if (weekNumber < 1 || weekday < sunday || weekday > saturday)
        throw RunTimeError(errorNumber::invalidProcedureCall, "Invalid procedure call: no such weekday of a month");
    const int toFirst = (weekday - Date::of(year, month, 1).weekday() + daysInWeek) % daysInWeek;
    const int occurrences = (daysInMonth(year, month) - toFirst - 1) / daysInWeek + 1;
    return Date::of(year, month, 1 + toFirst + (std::min(weekNumber, occurrences) - 1) * daysInWeek);
}

Date DateTimeService::getLastDayOfMonth(Date date)
{
    const CivilDate day = date.civilDate();
    return Date::of(day.year, day.month, daysInMonth(day.year, day.month));
}

std::string DateTimeService::getDurationText(std::int32_t minutes)
{
    const std::int64_t total = std::abs(std::int64_t{minutes});
    const std::int64_t hours = total / 60;
    const std::int64_t rest = total % 60;
    std::string text(minutes < 0 ? "-" : "");
    if (hours > 0)
        text += std::to_string(hours) + " hr";
    if (hours > 0 && rest > 0)
        text += ' ';
    if (hours == 0 || rest > 0)
        text += std::to_string(rest) + " min";
    return text;
}

} // namespace qncal
