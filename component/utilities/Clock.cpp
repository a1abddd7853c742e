#include "utilities/Clock.h"

#include <ctime>
#include <utility>

namespace qncal {

namespace {

thread_local std::function<Date()> overriddenSource;

Date wallClock()
{
    const std::time_t seconds = std::time(nullptr);
    std::tm local{};
    localtime_r(&seconds, &local);
    return Date::of(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
}

} // namespace

Date now() { return overriddenSource ? overriddenSource() : wallClock(); }

Date today() { return now().dateOnly(); }

ClockOverride::ClockOverride(std::function<Date()> source)
    : previous_(std::exchange(overriddenSource, std::move(source)))
{
}

ClockOverride::~ClockOverride() { overriddenSource = std::move(previous_); }

} // namespace qncal
