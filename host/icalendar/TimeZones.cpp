#include "icalendar/TimeZones.h"

#include "icalendar/icalHandles.h"
#include "utilities/dateText.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>

namespace qncal::host::icalendar {

namespace {

/// What TZ or the system's link into the time zone database names; UTC when neither names a zone.
std::string systemZoneName()
{
    if (const char* variable = std::getenv("TZ")) {
        const std::string name = *variable == ':' ? variable + 1 : variable;
        return name.empty() ? "UTC" : name;
    }
    std::error_code error;
    const std::string link = std::filesystem::read_symlink("/etc/localtime", error).string();
    constexpr std::string_view database = "zoneinfo/";
    const std::size_t at = link.find(database);
    return at == std::string::npos ? "UTC" : link.substr(at + database.size());
}

icaltimezone* knownZone(const std::string& name)
{
    if (name == "UTC" || name == "Etc/UTC" || name == "Z" || name == "GMT")
        return icaltimezone_get_utc_timezone();
    if (icaltimezone* zone = icaltimezone_get_builtin_timezone(name.c_str()))
        return zone;
    // Names such as "/example.org/20050701/Europe/Berlin" end in one of the database.
    for (std::size_t slash = name.starts_with('/') ? name.find('/', 1) : std::string::npos; slash != std::string::npos;
         slash = name.find('/', slash + 1)) {
        if (icaltimezone* zone = icaltimezone_get_builtin_timezone(name.c_str() + slash + 1))
            return zone;
    }
    return nullptr;
}

} // namespace

TimeZones::TimeZones(const std::string& localName) : local_(knownZone(localName.empty() ? systemZoneName() : localName))
{
    icalerror_set_errors_are_fatal(0);
    if (!local_ && !localName.empty())
        throw CalendarError("there is no time zone '" + localName + "'");
    if (!local_)
        local_ = icaltimezone_get_utc_timezone();
}

TimeZones::~TimeZones() = default;

void TimeZones::addFrom(const CalendarComponent& calendar)
{
    for (const CalendarComponent& child : calendar.children) {
        if (!child.is("VTIMEZONE"))
            continue;
        std::string text;
        for (const std::string& line : child.text())
            text += line + "\r\n";
        ComponentHandle component(icalparser_parse_string(text.c_str()));
        std::unique_ptr<icaltimezone, FreeZone> zone(icaltimezone_new());
        if (component && icaltimezone_set_component(zone.get(), component.get()) != 0) {
            static_cast<void>(component.release()); // the zone's own from here on
            ownZones_[std::string(icaltimezone_get_tzid(zone.get()))] = std::move(zone);
        }
    }
}

icaltimezone* TimeZones::find(const std::string& tzid)
{
    if (icaltimezone* zone = knownZone(tzid))
        return zone;
    if (const auto own = ownZones_.find(tzid); own != ownZones_.end())
        return own->second.get();
    if (std::ranges::find(unknown_, tzid) == unknown_.end())
        unknown_.push_back(tzid);
    return nullptr;
}

icaltimezone* TimeZones::zoneOf(const ContentLine& line)
{
    const std::string tzid = line.parameter("TZID");
    return tzid.empty() ? nullptr : find(tzid);
}

icaltimetype TimeZones::inZone(icaltimetype value, icaltimezone* zone) const
{
    if (!value.is_date && !icaltime_is_utc(value))
        value.zone = zone;
    return value;
}

Date TimeZones::localDate(icaltimetype value) const
{
    if (!value.is_date && value.zone)
        value = icaltime_convert_to_zone(value, local_);
    if (value.is_date)
        return Date::of(value.year, value.month, value.day);
    return Date::of(value.year, value.month, value.day, value.hour, value.minute, value.second);
}

std::string TimeZones::utcText(Date local) const
{
    icaltimetype value = icaltime_from_string(floatingText(local).c_str());
    value.zone = local_;
    value = icaltime_convert_to_zone(value, icaltimezone_get_utc_timezone());
    return icaltime_as_ical_string(value);
}

std::string floatingText(Date moment) { return formatDate(moment, "yyyymmdd\\Thhnnss"); }

std::string dayText(Date day) { return formatDate(day, "yyyymmdd"); }

} // namespace qncal::host::icalendar
