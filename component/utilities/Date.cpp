#include "utilities/Date.h"

#include "utilities/RunTimeError.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>
#include <cstdio>

namespace qncal {

namespace {

using std::chrono::days;
using std::chrono::sys_days;

constexpr std::int64_t secondsPerDay = 86400;
constexpr sys_days epoch{std::chrono::year{1899} / std::chrono::December / 30};

constexpr std::int64_t dayNumber(int year, unsigned month, unsigned day)
{
    using namespace std::chrono;
    return (sys_days{std::chrono::year{year} / std::chrono::month{month} / std::chrono::day{day}} - epoch).count();
}

constexpr std::int64_t firstDay = dayNumber(100, 1, 1);
constexpr std::int64_t lastDay = dayNumber(9999, 12, 31);
constexpr std::int64_t firstSecond = firstDay * secondsPerDay;
constexpr std::int64_t lastSecond = (lastDay + 1) * secondsPerDay - 1;

constexpr std::int64_t floorDivide(std::int64_t a, std::int64_t b) { return a / b - (a % b < 0 ? 1 : 0); }

[[noreturn]] void leftTheCalendar()
{
    throw RunTimeError(errorNumber::overflow, "Overflow: the date lies outside the years 100 to 9999");
}

/// A month of a year, months carried over. A little more than the calendar is let through, because a day or
/// an hour that carries may still lead back into it.
std::chrono::year_month carriedMonth(std::int64_t year, std::int64_t month)
{
    const std::int64_t index = year * 12 + month - 1;
    const std::int64_t carriedYear = floorDivide(index, 12);
    if (carriedYear < 0 || carriedYear > 10000)
        leftTheCalendar();
    return std::chrono::year{static_cast<int>(carriedYear)}
           / std::chrono::month{static_cast<unsigned>(index - carriedYear * 12 + 1)};
}

int length(std::chrono::year_month month)
{
    return static_cast<int>(static_cast<unsigned>((month / std::chrono::last).day()));
}

std::int64_t timeSeconds(int hour, int minute, int second)
{
    return std::int64_t{hour} * 3600 + std::int64_t{minute} * 60 + second;
}

CivilTime timeOfSeconds(int seconds) { return {seconds / 3600, seconds / 60 % 60, seconds % 60}; }

} // namespace

Date Date::of(int year, int month, int day, int hour, int minute, int second)
{
    const sys_days first{carriedMonth(year, month) / 1};
    const std::int64_t wholeDays = (first - epoch).count() + std::int64_t{day} - 1;
    return fromLinearSeconds(wholeDays * secondsPerDay + timeSeconds(hour, minute, second));
}

Date Date::of(CivilDate date, CivilTime time)
{
    return of(date.year, date.month, date.day, time.hour, time.minute, time.second);
}

Date Date::timeOf(int hour, int minute, int second) { return fromLinearSeconds(timeSeconds(hour, minute, second)); }

bool Date::isInCalendar() const
{
    // The first day's times lie below its own number, see the class.
    return serial_ > static_cast<double>(firstDay - 1) && serial_ < static_cast<double>(lastDay + 1);
}

Date Date::dateOnly() const { return Date(static_cast<double>(floorDivide(linearSeconds(), secondsPerDay))); }

Date Date::timeOnly() const
{
    const std::int64_t seconds = linearSeconds();
    return fromLinearSeconds(seconds - floorDivide(seconds, secondsPerDay) * secondsPerDay);
}

CivilDate Date::civilDate() const
{
    const std::chrono::year_month_day date{epoch + days{floorDivide(linearSeconds(), secondsPerDay)}};
    return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day()))};
}

CivilTime Date::civilTime() const
{
    const std::int64_t seconds = linearSeconds();
    return timeOfSeconds(static_cast<int>(seconds - floorDivide(seconds, secondsPerDay) * secondsPerDay));
}

bool Date::hasTime() const { return linearSeconds() % secondsPerDay != 0; }

int Date::weekday() const
{
    // Day 0, 1899-12-30, was a Saturday.
    const std::int64_t day = floorDivide(linearSeconds(), secondsPerDay) + 6;
    return static_cast<int>(day - floorDivide(day, 7) * 7) + 1;
}

Date Date::addDays(double count) const
{
    // Compared this way round so that a count that is no number leaves the calendar, too.
    if (!(std::fabs(count) <= static_cast<double>(lastDay - firstDay)))
        leftTheCalendar();
    return addSeconds(std::llround(count * static_cast<double>(secondsPerDay)));
}

Date Date::addSeconds(std::int64_t seconds) const
{
    constexpr std::int64_t span = lastSecond - firstSecond;
    if (seconds < -span || seconds > span)
        leftTheCalendar();
    return fromLinearSeconds(linearSeconds() + seconds);
}

Date Date::addMonths(int months) const
{
    const CivilDate from = civilDate();
    const auto to = carriedMonth(from.year, std::int64_t{from.month} + months);
    return of({static_cast<int>(to.year()), static_cast<int>(static_cast<unsigned>(to.month())),
               std::min(from.day, length(to))},
              civilTime());
}

std::int64_t Date::linearSeconds() const
{
    if (std::isnan(serial_))
        return 0;
    if (!isInCalendar())
        return serial_ < 0 ? firstSecond : lastSecond;
    const double whole = std::trunc(serial_);
    const double fraction = std::fabs(serial_ - whole);
    const std::int64_t seconds = std::lround(fraction * static_cast<double>(secondsPerDay));
    return std::min(static_cast<std::int64_t>(whole) * secondsPerDay + seconds, lastSecond);
}

Date Date::fromLinearSeconds(std::int64_t seconds)
{
    if (seconds < firstSecond || seconds > lastSecond)
        leftTheCalendar();
    const std::int64_t day = floorDivide(seconds, secondsPerDay);
    const double fraction = static_cast<double>(seconds - day * secondsPerDay) / static_cast<double>(secondsPerDay);
    return Date(static_cast<double>(day) + (day < 0 ? -fraction : fraction));
}

int daysInMonth(int year, int month) { return length(carriedMonth(year, month)); }

std::string defaultDateText(Date value)
{
    const CivilDate date = value.civilDate();
    const CivilTime time = value.civilTime();
    std::array<char, 48> text{};
    const bool bareTime = date == CivilDate{};
    if (bareTime)
        std::snprintf(text.data(), text.size(), "%02d:%02d:%02d", time.hour, time.minute, time.second);
    else if (time == CivilTime{})
        std::snprintf(text.data(), text.size(), "%04d-%02d-%02d", date.year, date.month, date.day);
    else
        std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d:%02d", date.year, date.month, date.day,
                      time.hour, time.minute, time.second);
    return text.data();
}

} // namespace qncal
