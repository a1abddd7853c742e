#include "icalendar/itemComponent.h"

#include "icalendar/KnownItems.h"
#include "icalendar/alarms.h"
#include "icalendar/itemFields.h"
#include "icalendar/notesBlock.h"
#include "icalendar/occurrences.h"
#include "utilities/Clock.h"
#include "utilities/text.h"

#include <algorithm>
#include <iterator>

namespace qncal::host::icalendar {

namespace {

class ComponentWriter {
public:
    ComponentWriter(clsCalendarItem& item, const People& people, TimeZones& zones)
        : item_(item), people_(people), zones_(zones), notes_(readNotes(item.Notes_RichText())),
          kept_(keptComponent(notes_)), isTask_(item.calendarItemType() == enumLocalCalendarTaskItem)
    {
        times_.day = item.DateFrom().dateOnly();
        times_.from = std::min(item.TimeFrom().timeOnly(), item.TimeTo().timeOnly());
        times_.to = std::max(item.TimeFrom().timeOnly(), item.TimeTo().timeOnly());
    }

    ItemComponent write()
    {
        component_.name = isTask_ ? "VTODO" : "VEVENT";
        writeIdentity();
        writeTimes();
        writeTexts();
        writeOwnFields();
        writeKept();
        writeAlarms();
        return std::move(component_);
    }

private:
    void add(std::string line) { component_.lines.push_back(std::move(line)); }
    void add(std::string_view property, const std::string& text)
    {
        add(std::string(property) + ":" + escapedText(text));
    }

    void writeIdentity()
    {
        const ContentLine* uid = kept_.find("UID");
        if (uid)
            add(uid->text);
        else
            component_.uid = madeUpUID(item_.calendarItemType(), item_.itemID(), people_.domain());
        if (const ContentLine* occurrence = kept_.find("RECURRENCE-ID"))
            add(occurrence->text);
        add("DTSTAMP:" + zones_.utcText(now()));
    }

    void writeTimes()
    {
        const Date start = times_.day.addSeconds(times_.from.linearSeconds());
        const Date end = times_.day.addSeconds(times_.to.linearSeconds());
        if (isWholeDay(times_)) {
            if (isTask_)
                return add("DUE;VALUE=DATE:" + dayText(times_.day));
            add("DTSTART;VALUE=DATE:" + dayText(times_.day));
            return add("DTEND;VALUE=DATE:" + dayText(times_.day.addDays(1)));
        }
        const bool hasLength = start != end;
        if (!isTask_ || hasLength)
            add("DTSTART:" + floatingText(start));
        if (isTask_ || hasLength)
            add((isTask_ ? "DUE:" : "DTEND:") + floatingText(end));
    }

    void writeTexts()
    {
        add("SUMMARY", item_.Subject());
        if (const std::string description = notes_.description(); !description.empty())
            add("DESCRIPTION", description);
        if (item_.PrivateItem() && !kept_.find("CLASS"))
            add("CLASS:PRIVATE");
    }

    void writeOwnFields()
    {
        if (item_.calendarItemType() == enumLocalCalendarDocketItem)
            add(std::string(kindProperty) + ":DOCKET");
        if (item_.companyIDNum() >= 0)
            add(people_.clientLine(ClientKind::company, item_.companyIDNum()));
        if (item_.contactIDNum() >= 0)
            add(people_.clientLine(ClientKind::contact, item_.contactIDNum()));
        if (item_.UserGroupNum() > 0)
            add(groupProperty, std::to_string(item_.UserGroupNum()));
        clsCalendarItem blank;
        for (const ItemField& field : itemFields()) {
            const std::string value = field.get(item_);
            if (value != field.get(blank) || (field.isColour && item_.ColourSchemeID() >= 0))
                add(std::string(field.property) + ":" + exactText(value));
        }
        const bool hasUsualPeriod = item_.reminderPeriod() == blank.reminderPeriod();
        if (item_.Remind() ? !isReminderPeriod(item_.reminderPeriod()) : !hasUsualPeriod)
            add(periodProperty, item_.reminderPeriod());
        if (!notes_.formatted.empty())
            add(std::string(richTextProperty) + ":" + exactText(notes_.formatted));
    }

    void writeKept()
    {
        for (const ContentLine& line : kept_.lines) {
            if (line.is("UID") || line.is("RECURRENCE-ID") || line.name().empty())
                continue;
            // Somebody has made the item public since.
            if (line.is("CLASS") && equalsNoCase(line.value(), "CONFIDENTIAL") && !item_.PrivateItem())
                continue;
            add(line.text);
            if (line.is("ATTENDEE"))
                component_.attendees.push_back(line);
        }
    }

    /// The alarms that the item came with, as long as they give its reminder.
    void writeAlarms()
    {
        const Span span{times_.day.addSeconds(times_.from.linearSeconds()),
                        times_.day.addSeconds(times_.to.linearSeconds()), isWholeDay(times_)};
        const auto kept = reminderOf(kept_, span, zones_);
        const bool keptHold = kept && item_.Remind() && kept->period == item_.reminderPeriod();
        for (const CalendarComponent& child : kept_.children) {
            if (!child.is("VALARM") || keptHold)
                std::ranges::move(child.text(), std::back_inserter(component_.children));
        }
        if (item_.Remind() && !keptHold)
            std::ranges::move(alarmLines(item_.reminderPeriod(), item_.Subject()),
                              std::back_inserter(component_.children));
    }

    clsCalendarItem& item_;
    const People& people_;
    TimeZones& zones_;
    ItemNotes notes_;
    CalendarComponent kept_;
    bool isTask_;
    DayTimes times_;
    ItemComponent component_;
};

} // namespace

ItemComponent componentOf(clsCalendarItem& item, const People& people, TimeZones& zones)
{
    return ComponentWriter(item, people, zones).write();
}

std::vector<std::string> linesOf(const ItemComponent& component, const std::vector<RowOwner>& owners,
                                 const People& people)
{
    std::vector<std::string> lines{"BEGIN:" + component.name};
    if (!component.uid.empty())
        lines.push_back("UID:" + component.uid);
    lines.insert(lines.end(), component.lines.begin(), component.lines.end());
    for (const auto& [user, series] : owners) {
        lines.push_back(people.userLine(user, series));
        const bool isListed = std::ranges::any_of(component.attendees, [&, userID = user](const ContentLine& attendee) {
            return people.userOfAttendee(attendee) == userID;
        });
        if (owners.size() > 1 && !isListed)
            lines.push_back(people.attendeeLine(user));
    }
    lines.insert(lines.end(), component.children.begin(), component.children.end());
    lines.push_back("END:" + component.name);
    return lines;
}

} // namespace qncal::host::icalendar
