#pragma once

#include "icalendar/TimeZones.h"
#include "icalendar/contentLines.h"
#include "utilities/Date.h"

#include <optional>
#include <string>
#include <vector>

namespace qncal::host::icalendar {

/// When an event or to-do is, in local time. An end at midnight is that of the day before: the end of a span of
/// whole days is its last day.
struct Span {
    Date start;
    Date end;
    bool wholeDays = false;
    friend bool operator==(const Span&, const Span&) = default;
};

/// What a row of the calendar can hold: one day, and minutes of it. Whole days are from 0:00 to 23:59, and an end
/// at midnight is 23:59.
struct DayTimes {
    Date day;
    Date from;
    Date to;
    friend bool operator==(const DayTimes&, const DayTimes&) = default;
};

inline const Date lastMinute = Date::timeOf(23, 59);

/// One for each day of a span. No more than `mostDays`; a longer span is cut.
std::vector<DayTimes> daysOf(const Span& span);
inline constexpr int mostDays = 366;

/// Whether a row's times are written as whole days.
bool isWholeDay(const DayTimes& times);

/// The span of a component as it stands, its rules not looked at. None for a to-do without any date. Throws
/// `CalendarError` for an event without a start, for what is no date, and for an end before the start.
std::optional<Span> spanOf(const CalendarComponent& component, TimeZones& zones);

/// The moment that an override stands for, in local time; none for a component that is no override.
std::optional<Date> overriddenStart(const CalendarComponent& component, TimeZones& zones);

struct Occurrences {
    std::vector<Span> spans;
    /// True when there are more behind the horizon or beyond `mostOccurrences`.
    bool cut = false;
};
inline constexpr int mostOccurrences = 5000;

bool isRecurring(const CalendarComponent& component);
/// The occurrences of a recurring component that start on or before a day, in their order, by RRULE and RDATE
/// less EXDATE. Throws as `spanOf`, and for a rule that cannot be read.
Occurrences occurrencesOf(const CalendarComponent& component, const Span& first, Date lastDay, TimeZones& zones);

} // namespace qncal::host::icalendar
