#pragma once

#include "core/enumerations.h"
#include "icalendar/TimeZones.h"
#include "icalendar/contentLines.h"
#include "icalendar/occurrences.h"

#include <string>
#include <vector>

namespace qncal::host::icalendar {

/// The components of a file that speak of one thing: those with the same UID.
struct Bundle {
    enumLocalCalendarItemType kind = enumLocalCalendarAppointmentItem;
    std::string uid;
    std::vector<const CalendarComponent*> components;
};

/// In the order of the file. Components that no item is made of are given to `others`.
std::vector<Bundle> bundlesOf(const std::vector<CalendarComponent>& calendars,
                              std::vector<const CalendarComponent*>& others);

/// One row of the calendar, for one of its users.
struct PlannedRow {
    const CalendarComponent* component = nullptr;
    /// When the component stands the first time: what its alarms hang on.
    Span first;
    DayTimes times;
    /// The line that tells this row from the others of its UID; empty for the only one.
    std::string occurrence;
    /// The component's lines about times say no more than the row.
    bool isExact = true;
    /// A later day of something that goes on for days.
    bool isLaterDay = false;
    /// A to-do without a date.
    bool isUndated = false;
};

struct Plan {
    std::vector<PlannedRow> rows;
    /// What is remarkable about it, each with its component.
    struct Remark {
        const CalendarComponent* component;
        std::string text;
    };
    std::vector<Remark> remarks = {};
};

/// The rows of a bundle up to a last day. `undatedDay` is for to-dos without a date. Throws `CalendarError` when a
/// component of it cannot be read.
Plan planOf(const Bundle& bundle, Date lastDay, Date undatedDay, TimeZones& zones);

} // namespace qncal::host::icalendar
