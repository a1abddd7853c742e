#pragma once

#include "icalendar/alarms.h"
#include "icalendar/contentLines.h"
#include "icalendar/occurrences.h"

#include <string>
#include <vector>

namespace qncal::host::icalendar {

/// Which lines of a component go into the notes of its items, since no column holds them.
struct KeptLines {
    /// In the order of the file, without UID and RECURRENCE-ID, and without DTSTAMP, which every export sets anew.
    std::vector<std::string> lines;
    /// Those of them that a user would look for on the calendar.
    std::vector<ContentLine> remarkable;
    /// Lines that are too long to be kept, or no properties at all.
    std::vector<ContentLine> lost;
};

/// `timesAreExact` tells that a row holds all that the component says of its times, `alarmIsExact` likewise for
/// the alarm.
KeptLines keptLinesOf(const CalendarComponent& component, bool timesAreExact, bool alarmIsExact);

/// What a component without a UID is known by: made of what it says, and the same for the same component.
std::string uidOf(const CalendarComponent& component);

} // namespace qncal::host::icalendar
