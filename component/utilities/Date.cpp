#include "utilities/Date.h"

#include <array>
#include <chrono>
#include <algorithm>
#include <cmath>
#include <cstdio>

namespace qncal {

namespace {

constexpr double secondsPerDay = 86400.0;
using std::chrono::days;
using std::chrono::sys_days;

constexpr sys_days epoch()
{
    using namespace std::chrono;
    return sys_days{year{1899} / December / day{30}};
}

} // namespace

Date Date::of(int year, int month, int day, int hour, int minute, int second)
{
    const int monthIndex = month - 1;
    const int yearShift = monthIndex >= 0 ? monthIndex / 12 : (monthIndex - 11) / 12;
    const auto firstOfMonth = sys_days{std::chrono::year{year + yearShift}
                                       / std::chrono::month{static_cast<unsigned>(monthIndex - yearShift * 12 + 1)}
                                       / std::chrono::day{1}};
    const auto wholeDays = static_cast<double>((firstOfMonth - epoch()).count() + day - 1);
    const double seconds = hour * 3600.0 + minute * 60.0 + second;
    return fromLinear(wholeDays + seconds / secondsPerDay);
}

Date Date::of(CivilDate date, CivilTime time)
{
    return of(date.year, date.month, date.day, time.hour, time.minute, time.second);
}

Date Date::timeOf(int hour, int minute, int second)
{
    return Date((hour * 3600.0 + minute * 60.0 + second) / secondsPerDay);
}

Date Date::dateOnly() const { return Date(std::trunc(serial_)); }

Date Date::timeOnly() const { return Date(std::fabs(serial_ - std::trunc(serial_))); }

CivilDate Date::civilDate() const
{
    const std::chrono::year_month_day ymd{epoch() + days{static_cast<std::int64_t>(std::trunc(serial_))}};
    return {static_cast<int>(ymd.year()), static_cast<int>(static_cast<unsigned>(ymd.month())),
            static_cast<int>(static_cast<unsigned>(ymd.day()))};
}

CivilTime Date::civilTime() const
{
    int seconds = static_cast<int>(std::lround(timeOnly().serial_ * secondsPerDay));
    if (seconds >= 86400)
        seconds = 86399;
    return {seconds / 3600, seconds / 60 % 60, seconds % 60};
}

bool Date::hasTime() const { return civilTime() != CivilTime{}; }

int Date::weekday() const
{
    // Day 0, 1899-12-30, was a Saturday.
    const auto day = static_cast<std::int64_t>(std::trunc(serial_));
    return static_cast<int>(((day + 6) % 7 + 7) % 7) + 1;
}

Date Date::addDays(double count) const { return fromLinear(linear() + count); }

Date Date::addSeconds(std::int64_t seconds) const
{
    const double total = std::round(linear() * secondsPerDay) + static_cast<double>(seconds);
    return fromLinear(total / secondsPerDay);
}

Date Date::addMonths(int months) const
{
    const CivilDate from = civilDate();
    const CivilDate first = of(from.year, from.month + months, 1).civilDate();
    const int day = std::min(from.day, daysInMonth(first.year, first.month));
    return of({first.year, first.month, day}, civilTime());
}

double Date::linear() const { return serial_ >= 0 ? serial_ : std::trunc(serial_) + timeOnly().serial_; }

Date Date::fromLinear(double linearDays)
{
    if (linearDays >= 0)
        return Date(linearDays);
    const double whole = std::floor(linearDays);
    const double fraction = linearDays - whole;
    // Between day -1 and day 0 the sign cannot be told from a plain time: day -1 itself is -1.fraction.
    return Date(whole - fraction);
}

int daysInMonth(int year, int month)
{
    const std::chrono::year_month_day_last last{std::chrono::year{year}
                                                / std::chrono::month{static_cast<unsigned>(month)}
                                                / std::chrono::last};
    return static_cast<int>(static_cast<unsigned>(last.day()));
}

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
