#include "icalendar/importPlan.h"

#include "icalendar/itemFields.h"
#include "icalendar/keptLines.h"
#include "utilities/dateText.h"
#include "utilities/text.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>

namespace qncal::host::icalendar {

namespace {

std::optional<enumLocalCalendarItemType> kindOf(const CalendarComponent& component)
{
    if (component.is("VTODO"))
        return enumLocalCalendarTaskItem;
    if (!component.is("VEVENT"))
        return std::nullopt;
    return equalsNoCase(component.textOf(kindProperty), "DOCKET") ? enumLocalCalendarDocketItem
                                                                  : enumLocalCalendarAppointmentItem;
}

std::string occurrenceLine(Date start, bool wholeDays)
{
    return wholeDays ? "RECURRENCE-ID;VALUE=DATE:" + dayText(start) : "RECURRENCE-ID:" + floatingText(start);
}

/// Whether a component says its times as an export would: local, by start and end.
bool hasPlainTimes(const CalendarComponent& component, const Span& span, const DayTimes& times)
{
    const auto isPlain = [&](const char* name) {
        const ContentLine* line = component.find(name);
        return !line || (line->parameter("TZID").empty() && !line->value().ends_with('Z'));
    };
    const Date end = span.wholeDays ? lastMinute : span.end.timeOnly();
    return isPlain("DTSTART") && isPlain("DTEND") && isPlain("DUE") && times.to == end
           && times.from == span.start.timeOnly() && times.day == span.start.dateOnly();
}

/// When one component, or one occurrence of it, stands.
struct Moment {
    const CalendarComponent* component = nullptr;
    Span span;
    std::string occurrence;
};

class Planner {
public:
    Planner(const Bundle& bundle, Date lastDay, Date undatedDay, TimeZones& zones)
        : bundle_(bundle), lastDay_(lastDay), undatedDay_(undatedDay), zones_(zones)
    {
    }

    Plan plan()
    {
        for (const CalendarComponent* component : bundle_.components) {
            if (!component->find("RECURRENCE-ID"))
                addMaster(*component);
        }
        for (const CalendarComponent* component : bundle_.components) {
            if (component->find("RECURRENCE-ID"))
                addOverride(*component);
        }
        for (const Moment& moment : moments_)
            addRows(moment);
        return std::move(plan_);
    }

private:
    void remark(const CalendarComponent& component, std::string text)
    {
        plan_.remarks.push_back({&component, std::move(text)});
    }

    Span firstSpan(const CalendarComponent& component)
    {
        const auto [place, isNew] = firsts_.try_emplace(&component);
        if (isNew) {
            const std::optional<Span> span = spanOf(component, zones_);
            place->second = span.value_or(Span{undatedDay_, undatedDay_, true});
            if (!span) {
                undated_ = true;
                remark(component, "it has no date and is put on " + formatDate(undatedDay_, "yyyy-mm-dd"));
            }
        }
        return place->second;
    }

    void addMaster(const CalendarComponent& component)
    {
        const Span first = firstSpan(component);
        if (!isRecurring(component) || undated_) {
            moments_.push_back({&component, first, {}});
            return;
        }
        if (component.find("EXRULE"))
            remark(component, "its EXRULE is not heeded; what it takes out is on the calendar");
        const Occurrences found = occurrencesOf(component, first, lastDay_, zones_);
        if (found.cut)
            remark(component,
                   static_cast<int>(found.spans.size()) >= mostOccurrences
                       ? "it goes on; there are " + std::to_string(mostOccurrences) + " of it at most"
                       : "it goes on after " + formatDate(lastDay_, "yyyy-mm-dd") + ", the last day that is imported");
        for (const Span& span : found.spans)
            moments_.push_back({&component, span, occurrenceLine(span.start, span.wholeDays)});
    }

    void addOverride(const CalendarComponent& component)
    {
        const Date replaced = *overriddenStart(component, zones_);
        const Span span = firstSpan(component);
        const ContentLine& line = *component.find("RECURRENCE-ID");
        if (equalsNoCase(line.parameter("RANGE"), "THISANDFUTURE"))
            remark(component, "only this one of the series is changed, not those after it");
        const bool isDay = line.value().find('T') == std::string_view::npos;
        const Moment moment{&component, span, occurrenceLine(replaced, isDay)};
        const auto master = std::ranges::find_if(moments_, [&](const Moment& known) {
            return known.occurrence == moment.occurrence && !known.component->find("RECURRENCE-ID");
        });
        if (master != moments_.end())
            *master = moment;
        else if (span.start.dateOnly() <= lastDay_ || moments_.empty())
            moments_.push_back(moment);
    }

    void addRows(const Moment& moment)
    {
        const Span first = firstSpan(*moment.component);
        PlannedRow row{moment.component, first, {}, moment.occurrence};
        row.isUndated = undated_;
        if (bundle_.kind == enumLocalCalendarTaskItem && moment.span.start.dateOnly() != moment.span.end.dateOnly()) {
            // A task stands on the day that it is due.
            const Date due = moment.span.end;
            row.times = daysOf({due, due, moment.span.wholeDays}).front();
            row.isExact = false;
            remark(*moment.component, "it begins before the day that it is due; the task is on that day");
            plan_.rows.push_back(std::move(row));
            return;
        }
        const std::vector<DayTimes> days = daysOf(moment.span);
        remarkOnDays(moment, days);
        for (const DayTimes& times : days) {
            row.isLaterDay = &times != &days.front();
            row.times = times;
            row.isExact = days.size() == 1 && !isRecurring(*moment.component)
                          && hasPlainTimes(*moment.component, moment.span, times) && !undated_;
            if (days.size() > 1 && (row.isLaterDay || moment.occurrence.empty()))
                row.occurrence = row.isLaterDay ? occurrenceLine(times.day, true)
                                                : occurrenceLine(moment.span.start, moment.span.wholeDays);
            plan_.rows.push_back(row);
        }
    }

    /// Once for a component, however often it occurs.
    void remarkOnDays(const Moment& moment, const std::vector<DayTimes>& days)
    {
        const bool endsAtMidnight =
            !moment.span.wholeDays && days.back().to == lastMinute && !moment.span.end.hasTime();
        if ((days.size() == 1 && !endsAtMidnight) || !remarkedOnDays_.insert(moment.component).second)
            return;
        if (days.size() == static_cast<std::size_t>(mostDays))
            remark(*moment.component, "it is too long; its first " + std::to_string(mostDays) + " days are made");
        else if (days.size() > 1)
            remark(*moment.component, "it goes on for " + std::to_string(days.size()) + " days, one item each");
        if (endsAtMidnight)
            remark(*moment.component, "it ends at midnight, on the calendar at 23:59");
    }

    const Bundle& bundle_;
    Date lastDay_;
    Date undatedDay_;
    TimeZones& zones_;
    std::vector<Moment> moments_;
    std::map<const CalendarComponent*, Span> firsts_;
    std::set<const CalendarComponent*> remarkedOnDays_;
    bool undated_ = false;
    Plan plan_;
};

} // namespace

std::vector<Bundle> bundlesOf(const std::vector<CalendarComponent>& calendars,
                              std::vector<const CalendarComponent*>& others)
{
    std::vector<Bundle> bundles;
    std::map<std::pair<std::int32_t, std::string>, std::size_t> places;
    for (const CalendarComponent& calendar : calendars) {
        for (const CalendarComponent& component : calendar.children) {
            const auto kind = kindOf(component);
            if (!kind) {
                if (!component.is("VTIMEZONE"))
                    others.push_back(&component);
                continue;
            }
            const std::string uid = uidOf(component);
            const auto [place, isNew] = places.try_emplace({*kind, uid}, bundles.size());
            if (isNew)
                bundles.push_back({*kind, uid, {}});
            bundles[place->second].components.push_back(&component);
        }
    }
    return bundles;
}

Plan planOf(const Bundle& bundle, Date lastDay, Date undatedDay, TimeZones& zones)
{
    return Planner(bundle, lastDay, undatedDay, zones).plan();
}

} // namespace qncal::host::icalendar
