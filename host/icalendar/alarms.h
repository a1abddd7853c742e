#pragma once

#include "icalendar/TimeZones.h"
#include "icalendar/contentLines.h"
#include "icalendar/occurrences.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qncal::host::icalendar {

/// The popup reminder that an alarm becomes: the period, of those that an item can have, that is nearest.
struct AlarmReminder {
    std::string period;
    /// How long before the start the alarm itself comes; negative after it.
    int minutesBefore = 0;
    /// The period says all that the alarm said.
    bool isExact = false;
};

/// The reminder of the first alarm of a component that has a time; none without alarms. `span` is when the
/// component itself stands, its first occurrence.
std::optional<AlarmReminder> reminderOf(const CalendarComponent& component, const Span& span, TimeZones& zones);

/// The lines of a displayed alarm for a reminder period. A period outside of the table is at the start.
std::vector<std::string> alarmLines(std::string_view period, std::string_view text);

/// Whether a word is one of the table of periods.
bool isReminderPeriod(std::string_view period);

} // namespace qncal::host::icalendar
