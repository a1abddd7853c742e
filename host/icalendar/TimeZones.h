#pragma once

#include "icalendar/contentLines.h"
#include "utilities/Date.h"

#include <libical/ical.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace qncal::host::icalendar {

/// The time zones of a file, and the zone that the calendar itself keeps its times in. A calendar item has local
/// times without a zone: what comes from another zone is converted, what has no zone is local.
class TimeZones {
public:
    /// `localName` is a name of the time zone database ("America/Toronto"); empty for the system's own zone.
    /// Throws `CalendarError` for a name that is not there.
    explicit TimeZones(const std::string& localName);
    ~TimeZones();
    TimeZones(const TimeZones&) = delete;
    TimeZones& operator=(const TimeZones&) = delete;

    /// Takes the VTIMEZONE components of a calendar, for names that the database does not have: many programs
    /// write no more of a zone than its rules of this year.
    void addFrom(const CalendarComponent& calendar);

    /// The zone of a name; none when nobody knows it.
    icaltimezone* find(const std::string& tzid);
    /// The names asked for that nobody knows, each once. Their times are local.
    const std::vector<std::string>& unknownNames() const { return unknown_; }

    /// The zone of a line with a date and time: that of its TZID, or none for a floating time.
    icaltimezone* zoneOf(const ContentLine& line);
    /// A value of such a line in its zone.
    icaltimetype inZone(icaltimetype value, icaltimezone* zone) const;

    Date localDate(icaltimetype value) const;
    /// "20260331T133000Z"
    std::string utcText(Date local) const;

private:
    struct FreeZone {
        void operator()(icaltimezone* zone) const { icaltimezone_free(zone, 1); }
    };
    std::map<std::string, std::unique_ptr<icaltimezone, FreeZone>> ownZones_;
    std::vector<std::string> unknown_;
    icaltimezone* local_;
};

/// A date and time as a calendar file writes it without a zone, "20260331T093000", and a day, "20260331".
std::string floatingText(Date moment);
std::string dayText(Date day);

} // namespace qncal::host::icalendar
