#include "firmcal/itemChanges.h"

#include "common/Failure.h"
#include "common/itemActions.h"
#include "common/valueText.h"
#include "firmcal/CommandContext.h"
#include "firmcal/ItemProperty.h"
#include "firmcal/clientLookup.h"
#include "firmcal/readValue.h"
#include "services/saveItem.h"
#include "utilities/text.h"

#include <algorithm>
#include <cmath>

namespace qncal::firmcal {

namespace {

/// Start, end and length in step, as the editor keeps them: an item that gets a new start keeps its length.
void applyTimes(clsCalendarItem& item, const ItemChanges& changes)
{
    const float hours = changes.hours.empty() ? item.timeduration() : readHours(changes.hours);
    if (!changes.start.empty())
        item.TimeFrom(readTime(changes.start));
    if (!changes.end.empty()) {
        item.TimeTo(readTime(changes.end));
        if (item.TimeTo() < item.TimeFrom())
            throw Failure("the item would end at " + timeText(item.TimeTo()) + ", before it begins at "
                          + timeText(item.TimeFrom()));
    } else if (!changes.start.empty() || !changes.hours.empty()) {
        item.TimeTo(item.TimeFrom().addSeconds(std::lround(hours * 3600.0F)));
        refuseEndAfterMidnight(item);
    }
}

bool assigns(const ItemChanges& changes, std::string_view property)
{
    return std::ranges::any_of(changes.assignments, [property](std::string_view assignment) {
        return equalsNoCase(trimmed(assignment.substr(0, assignment.find('='))), property);
    });
}

} // namespace

void addChangeOptions(CLI::App& command, ItemChanges& changes)
{
    command.add_option("--date", changes.date, "The day: 2026-03-31, tomorrow, monday, +3d")->type_name("DATE");
    command.add_option("--start", changes.start, "When it begins: 9:30")->type_name("TIME");
    CLI::Option* end = command.add_option("--end", changes.end, "When it ends: 10:15")->type_name("TIME");
    command.add_option("--hours", changes.hours, "How long it takes instead: 1.5, 1:30")
        ->type_name("HOURS")
        ->excludes(end);
    CLI::Option* company =
        command.add_option("--company", changes.company, "The client company, by name or number")->type_name("COMPANY");
    command.add_option("--contact", changes.contact, "The client contact, by name or number")
        ->type_name("CONTACT")
        ->excludes(company);
    command.add_option("--for", changes.owner, "Whose item it is, by name or number")->type_name("USER");
    command.add_option("--set", changes.assignments, "Any field, e.g. --set Remind=yes; see 'firmcal item fields'")
        ->type_name("NAME=VALUE")
        ->take_all();
}

void apply(CommandContext& context, clsCalendarItem& item, const ItemChanges& changes)
{
    if (!changes.subject.empty())
        item.Subject(changes.subject);
    if (!changes.date.empty())
        item.DateFrom(readDay(changes.date));
    applyTimes(item, changes);
    if (!changes.company.empty())
        item.companyIDNum(clientID(context, ClientKind::company, changes.company));
    if (!changes.contact.empty())
        item.contactIDNum(clientID(context, ClientKind::contact, changes.contact));
    if (!changes.owner.empty())
        item.userIDNum(context.userNamed(changes.owner).id);
    for (const std::string& assignment : changes.assignments)
        applyAssignment(item, assignment);
    if (!assigns(changes, "notifiedDate"))
        host::notifyTheDayBefore(item);
}

} // namespace qncal::firmcal
