#include "reminders/reminderPeriods.h"

#include <algorithm>
#include <array>

namespace qncal {

namespace {

constexpr std::int32_t hour = 60;
constexpr std::int32_t day = 24 * hour;
constexpr std::int32_t week = 7 * day;

constexpr std::array<ReminderPeriod, 18> periods{{
    {"5 Min", 5, " is due in 5 minutes", " in 5 minutes", " in 5 minutes"},
    {"10 Min", 10, " is due in 10 minutes", " in 10 minutes", " in 10 minutes"},
    {"15 Min", 15, " is due in 15 minutes", " in 15 minutes", " in 15 minutes"},
    {"20 Min", 20, " is due in 20 minutes", " in 20 minutes", " in 20 minutes"},
    {"30 Min", 30, " is due in 30 minutes", " in 30 minutes", " in 30 minutes"},
    {"1 Hr", 1 * hour, " is due in 1 hour", " in 1 hour", " in 1 hour"},
    {"2 Hr", 2 * hour, " is due in 2 hours", " in 2 hours", " in 2 hours"},
    {"3 Hr", 3 * hour, " is due in 3 hours", " in 3 hours", " in 3 hours"},
    {"6 Hr", 6 * hour, " is due in 6 hours", " in 6 hours", " in 6 hours"},
    {"12 Hr", 12 * hour, " is due in 12 hours", " in 12 hours", " in 12 hours"},
    {"1 Day", 1 * day, " is due in 1 day", " in 1 day", " in 1 day"},
    {"2 Days", 2 * day, " is due in 2 days", " in 2 days", " in 2 days"},
    {"3 Days", 3 * day, " is due in 3 days", " in 3 days", " in 3 days"},
    {"5 Days", 5 * day, " is due in 5 days", " in 5 days", ""},
    {"1 Week", 1 * week, " is due in 1 week", " in 1 week", " in 1 week"},
    {"10 Days", 10 * day, " is due in 10 days", " in 10 days", ""},
    {"2 Weeks", 2 * week, " is due in 2 weeks", " in 2 weeks", " in 2 weeks"},
    {"5 Weeks", 5 * week, " is due in 5 weeks", " in 5 weeks", ""},
}};

constexpr ReminderPeriod noPeriod;

} // namespace

std::span<const ReminderPeriod> reminderPeriods() { return periods; }

const ReminderPeriod& reminderPeriod(std::string_view name)
{
    const auto found = std::find_if(periods.begin(), periods.end(),
                                    [name](const ReminderPeriod& period) { return period.name == name; });
    return found == periods.end() ? noPeriod : *found;
}

} // namespace qncal
