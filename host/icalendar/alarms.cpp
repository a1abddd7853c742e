#include "icalendar/alarms.h"

#include "icalendar/icalHandles.h"
#include "utilities/text.h"

#include <algorithm>
#include <cstdlib>

namespace qncal::host::icalendar {

namespace {

struct Period {
    std::string_view name;
    int minutes;
};

constexpr int hour = 60;
constexpr int day = 24 * hour;
constexpr int week = 7 * day;
constexpr Period periods[] = {
    {"5 Min", 5},         {"10 Min", 10},      {"15 Min", 15},       {"20 Min", 20},       {"30 Min", 30},
    {"1 Hr", hour},       {"2 Hr", 2 * hour},  {"3 Hr", 3 * hour},   {"6 Hr", 6 * hour},   {"12 Hr", 12 * hour},
    {"1 Day", day},       {"2 Days", 2 * day}, {"3 Days", 3 * day},  {"5 Days", 5 * day},  {"1 Week", week},
    {"10 Days", 10 * day}, {"2 Weeks", 2 * week}, {"5 Weeks", 5 * week},
};

const Period& nearestPeriod(int minutes)
{
    return *std::ranges::min_element(periods, {}, [&](const Period& period) { return std::abs(period.minutes - minutes); });
}

/// When an alarm comes; none for a trigger that cannot be read.
std::optional<Date> momentOf(const ContentLine& trigger, const Span& span, TimeZones& zones)
{
    const std::string value(trigger.value());
    const icaldurationtype duration = icaldurationtype_from_string(value.c_str());
    if (icaldurationtype_is_bad_duration(duration) == 0) {
        const bool fromEnd = equalsNoCase(trigger.parameter("RELATED"), "END");
        // Whole days end with the last one.
        const Date end = span.wholeDays ? span.end.addDays(1) : span.end;
        return (fromEnd ? end : span.start).addSeconds(icaldurationtype_as_int(duration));
    }
    const icaltimetype moment = icaltime_from_string(value.c_str());
    if (icaltime_is_null_time(moment) || !icaltime_is_valid_time(moment))
        return std::nullopt;
    return zones.localDate(zones.inZone(moment, zones.zoneOf(trigger)));
}

/// An alarm that `alarmLines` would write alike, but for its text.
bool saysNoMore(const CalendarComponent& alarm)
{
    return equalsNoCase(alarm.textOf("ACTION"), "DISPLAY")
           && std::ranges::all_of(alarm.lines, [](const ContentLine& line) {
                  return line.is("ACTION") || line.is("DESCRIPTION")
                         || (line.is("TRIGGER") && line.value().starts_with("-P")
                             && !equalsNoCase(line.parameter("RELATED"), "END"));
              });
}

} // namespace

std::optional<AlarmReminder> reminderOf(const CalendarComponent& component, const Span& span, TimeZones& zones)
{
    const auto alarms = std::ranges::count_if(component.children, [](const auto& child) { return child.is("VALARM"); });
    for (const CalendarComponent& alarm : component.children) {
        const ContentLine* trigger = alarm.is("VALARM") ? alarm.find("TRIGGER") : nullptr;
        const std::optional<Date> moment = trigger ? momentOf(*trigger, span, zones) : std::nullopt;
        if (!moment)
            continue;
        const auto seconds = span.start.linearSeconds() - moment->linearSeconds();
        const auto minutes = static_cast<int>(std::clamp<std::int64_t>(seconds / 60, -52 * week, 52 * week));
        const Period& nearest = nearestPeriod(minutes);
        return AlarmReminder{std::string(nearest.name), minutes,
                             alarms == 1 && nearest.minutes * 60 == seconds && saysNoMore(alarm)};
    }
    return std::nullopt;
}

std::vector<std::string> alarmLines(std::string_view period, std::string_view text)
{
    const auto* const found = std::ranges::find(periods, period, &Period::name);
    const int minutes = found == std::ranges::end(periods) ? 0 : found->minutes;
    const icaldurationtype before = icaldurationtype_from_int(-minutes * 60);
    char* trigger = icaldurationtype_as_ical_string_r(before);
    std::vector<std::string> lines{"BEGIN:VALARM", "ACTION:DISPLAY", std::string("TRIGGER:") + trigger,
                                   "DESCRIPTION:" + escapedText(text), "END:VALARM"};
    icalmemory_free_buffer(trigger);
    return lines;
}

bool isReminderPeriod(std::string_view period)
{
    return std::ranges::find(periods, period, &Period::name) != std::ranges::end(periods);
}

} // namespace qncal::host::icalendar
