#include "icalendar/occurrences.h"

#include "icalendar/icalHandles.h"
#include "utilities/RunTimeError.h"

#include <algorithm>
#include <set>

namespace qncal::host::icalendar {

namespace {

constexpr std::int64_t secondsOfDay = 24 * 60 * 60;

[[noreturn]] void refuse(const ContentLine& line, const std::string& why)
{
    constexpr std::size_t shown = 60;
    const std::string text = line.text.size() <= shown ? line.text : line.text.substr(0, shown) + "...";
    throw CalendarError("'" + text + "': " + why, line.number);
}

icaltimetype timeOf(const ContentLine& line, const std::string& value, TimeZones& zones)
{
    const icaltimetype read = icaltime_from_string(value.c_str());
    if (icaltime_is_null_time(read) || !icaltime_is_valid_time(read) || read.year < 100
        || read.day > daysInMonth(read.year, read.month))
        refuse(line, "no date");
    return zones.inZone(read, zones.zoneOf(line));
}

icaltimetype timeOf(const ContentLine& line, TimeZones& zones)
{
    return timeOf(line, std::string(line.value()), zones);
}

/// The values of a line that has a list of them. A period counts by its start.
std::vector<icaltimetype> timesOf(const ContentLine& line, TimeZones& zones)
{
    std::vector<icaltimetype> times;
    const std::string list(line.value());
    for (std::size_t at = 0; at <= list.size();) {
        const std::size_t end = std::min(list.find(',', at), list.size());
        const std::string value = list.substr(at, end - at);
        times.push_back(timeOf(line, value.substr(0, value.find('/')), zones));
        at = end + 1;
    }
    return times;
}

std::int64_t secondsOf(const ContentLine& line)
{
    const icaldurationtype duration = icaldurationtype_from_string(std::string(line.value()).c_str());
    if (icaldurationtype_is_bad_duration(duration) != 0)
        refuse(line, "no duration");
    return icaldurationtype_as_int(duration);
}

Span checked(const ContentLine& line, const Span& span)
{
    if (span.end < span.start)
        refuse(line, "the end is before the start");
    return span;
}

/// A to-do that has a due date alone is at that moment.
Span spanFromDue(const ContentLine& due, TimeZones& zones)
{
    const icaltimetype moment = timeOf(due, zones);
    const Date local = zones.localDate(moment);
    return {local, local, moment.is_date != 0};
}

Span endingAt(const ContentLine& line, Date start, bool wholeDays, bool isExclusive, TimeZones& zones)
{
    const Date end = zones.localDate(timeOf(line, zones));
    if (!wholeDays)
        return checked(line, {start, end, false});
    const Date lastDay = end.dateOnly().addDays(isExclusive && end.dateOnly() > start ? -1 : 0);
    return checked(line, {start, lastDay, true});
}

Span lasting(const ContentLine& line, Date start, bool wholeDays)
{
    const std::int64_t seconds = secondsOf(line);
    if (seconds < 0)
        refuse(line, "the end is before the start");
    if (!wholeDays)
        return {start, start.addSeconds(seconds), false};
    const std::int64_t furtherDays = std::max<std::int64_t>(seconds - 1, 0) / secondsOfDay;
    return {start, start.addDays(static_cast<double>(furtherDays)), true};
}

/// Walks a rule from the start of its component. The rule's own times are of the component's zone.
class RuleWalk {
public:
    RuleWalk(const ContentLine& line, icaltimetype start)
    {
        const PropertyHandle property(icalproperty_new_from_string(line.text.c_str()));
        if (!property || icalproperty_isa(property.get()) != ICAL_RRULE_PROPERTY)
            refuse(line, "no rule of recurrence");
        icalrecurrencetype rule = icalproperty_get_rrule(property.get());
        if (rule.freq == ICAL_NO_RECURRENCE)
            refuse(line, "no rule of recurrence");
        if (!icaltime_is_null_time(rule.until) && rule.until.is_date && !start.is_date) {
            // A last day means the whole of that day.
            rule.until.is_date = 0;
            rule.until.hour = 23;
            rule.until.minute = rule.until.second = 59;
        }
        // A floating end is in the zone of the start.
        if (!icaltime_is_null_time(rule.until) && !icaltime_is_utc(rule.until))
            rule.until.zone = start.zone;
        walk_.reset(icalrecur_iterator_new(rule, start));
        if (!walk_)
            refuse(line, "no rule of recurrence");
    }

    icaltimetype next() { return icalrecur_iterator_next(walk_.get()); }

private:
    RecurrenceHandle walk_;
};

} // namespace

std::vector<DayTimes> daysOf(const Span& span)
{
    std::vector<DayTimes> days;
    const Date firstDay = span.start.dateOnly();
    Date lastDay = span.end.dateOnly();
    const bool endsAtMidnight = !span.wholeDays && !span.end.hasTime() && lastDay > firstDay;
    if (endsAtMidnight)
        lastDay = lastDay.addDays(-1);
    for (Date day = firstDay; day <= lastDay && static_cast<int>(days.size()) < mostDays; day = day.addDays(1)) {
        const bool toTheEnd = span.wholeDays || day < lastDay || endsAtMidnight;
        days.push_back({day, day == firstDay && !span.wholeDays ? span.start.timeOnly() : Date::timeOf(0),
                        toTheEnd ? lastMinute : span.end.timeOnly()});
    }
    return days;
}

bool isWholeDay(const DayTimes& times) { return !times.from.hasTime() && times.to == lastMinute; }

std::optional<Span> spanOf(const CalendarComponent& component, TimeZones& zones)
{
    const bool isTask = component.is("VTODO");
    const ContentLine* start = component.find("DTSTART");
    const ContentLine* end = component.find(isTask ? "DUE" : "DTEND");
    if (!start && isTask)
        return end ? std::optional(spanFromDue(*end, zones)) : std::nullopt;
    if (!start)
        throw CalendarError("an event without DTSTART", component.number);
    const icaltimetype first = timeOf(*start, zones);
    const Date from = zones.localDate(first);
    const bool wholeDays = first.is_date != 0;
    if (end)
        return endingAt(*end, from, wholeDays, !isTask, zones);
    if (const ContentLine* duration = component.find("DURATION"))
        return lasting(*duration, from, wholeDays);
    return Span{from, from, wholeDays};
}

std::optional<Date> overriddenStart(const CalendarComponent& component, TimeZones& zones)
{
    const ContentLine* line = component.find("RECURRENCE-ID");
    return line ? std::optional(zones.localDate(timeOf(*line, zones))) : std::nullopt;
}

bool isRecurring(const CalendarComponent& component) { return component.find("RRULE") || component.find("RDATE"); }

Occurrences occurrencesOf(const CalendarComponent& component, const Span& first, Date lastDay, TimeZones& zones)
{
    const ContentLine* startLine = component.find(component.find("DTSTART") ? "DTSTART" : "DUE");
    const icaltimetype start = timeOf(*startLine, zones);
    const std::int64_t length = first.end.linearSeconds() - first.start.linearSeconds();
    const Date horizon = lastDay.dateOnly().addDays(1);

    Occurrences found;
    std::set<std::int64_t> excluded;
    std::set<std::int64_t> excludedDays;
    for (const ContentLine& line : component.lines) {
        if (!line.is("EXDATE"))
            continue;
        for (const icaltimetype& time : timesOf(line, zones))
            (time.is_date ? excludedDays : excluded).insert(zones.localDate(time).linearSeconds());
    }
    std::set<std::int64_t> starts;
    const auto add = [&](Date local) {
        if (local >= horizon || starts.size() >= static_cast<std::size_t>(mostOccurrences)) {
            found.cut = true;
            return false;
        }
        starts.insert(local.linearSeconds());
        return true;
    };
    // The start is an occurrence also where its rule does not fall on it.
    add(first.start);
    for (const ContentLine& line : component.lines) {
        if (line.is("RRULE")) {
            RuleWalk walk(line, start);
            for (icaltimetype time = walk.next(); !icaltime_is_null_time(time); time = walk.next()) {
                if (!add(zones.localDate(zones.inZone(time, const_cast<icaltimezone*>(start.zone)))))
                    break;
            }
        } else if (line.is("RDATE")) {
            for (const icaltimetype& time : timesOf(line, zones))
                add(zones.localDate(time));
        }
    }
    for (const std::int64_t moment : starts) {
        const Date local = Date::fromLinearSeconds(moment);
        if (excluded.contains(moment) || excludedDays.contains(local.dateOnly().linearSeconds()))
            continue;
        found.spans.push_back({local, local.addSeconds(length), first.wholeDays});
    }
    return found;
}

} // namespace qncal::host::icalendar
