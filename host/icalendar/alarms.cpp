#include "icalendar/alarms.h"

#include "icalendar/icalHandles.h"
#include "reminders/reminderPeriods.h"
#include "utilities/text.h"

#include <algorithm>
#include <cstdlib>

namespace qncal::host::icalendar {

namespace {

constexpr int minutesOfYear = 366 * 24 * 60;

const ReminderPeriod& nearestPeriod(int minutes)
{
    return *std::ranges::min_element(reminderPeriods(), {},
                                     [&](const ReminderPeriod& period) { return std::abs(period.minutes - minutes); });
}

/// When an alarm comes; none for a trigger that cannot be read.
std::optional<Date> momentOf(const ContentLine& trigger, const Span& span, TimeZones& zones)
{
    std::string value(trigger.value());
    // "-P300S" is what some programs write for "-PT300S".
    if (const std::size_t p = value.find('P');
        p != std::string::npos && value.find_first_of("TDW") == std::string::npos)
        value.insert(p + 1, 1, 'T');
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
        const auto minutes = static_cast<int>(std::clamp<std::int64_t>(seconds / 60, -minutesOfYear, minutesOfYear));
        const ReminderPeriod& nearest = nearestPeriod(minutes);
        return AlarmReminder{std::string(nearest.name), minutes,
                             alarms == 1 && nearest.minutes * 60 == seconds && saysNoMore(alarm)};
    }
    return std::nullopt;
}

std::vector<std::string> alarmLines(std::string_view period, std::string_view text)
{
    const int minutes = reminderPeriod(period).minutes;
    const icaldurationtype before = icaldurationtype_from_int(-minutes * 60);
    char* trigger = icaldurationtype_as_ical_string_r(before);
    std::vector<std::string> lines{"BEGIN:VALARM", "ACTION:DISPLAY", std::string("TRIGGER:") + trigger,
                                   "DESCRIPTION:" + escapedText(text), "END:VALARM"};
    icalmemory_free_buffer(trigger);
    return lines;
}

bool isReminderPeriod(std::string_view period)
{
    return std::ranges::find(reminderPeriods(), period, &ReminderPeriod::name) != reminderPeriods().end();
}

} // namespace qncal::host::icalendar
