#include "firmcal/ItemProperty.h"

#include "common/Failure.h"
#include "common/valueText.h"
#include "firmcal/readValue.h"
#include "utilities/text.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <limits>
#include <numeric>
#include <vector>

namespace qncal::firmcal {

namespace {

using Item = clsCalendarItem;
using Json = nlohmann::ordered_json;

/// A property of one value type: `read` turns text into it, `show` turns it into JSON.
template <class Value, class Stored, class Read, class Show>
ItemProperty property(std::string_view name, std::string_view type, Value (Item::*get)() const,
                      void (Item::*set)(Stored), Read read, Show show)
{
    return {name, type, [get, show](Item& item) { return Json(show((item.*get)())); },
            [set, read](Item& item, std::string_view text) { (item.*set)(static_cast<Stored>(read(text))); }};
}

template <class Value>
Value same(Value value)
{
    return value;
}

ItemProperty text(std::string_view name, const std::string& (Item::*get)() const, void (Item::*set)(std::string))
{
    return property(
        name, "text", get, set, [](std::string_view value) { return std::string(value); },
        [](const std::string& value) { return value; });
}

ItemProperty number(std::string_view name, std::int32_t (Item::*get)() const, void (Item::*set)(std::int32_t))
{
    return property(name, "number", get, set, readInteger, same<std::int32_t>);
}

ItemProperty colour(std::string_view name, std::int32_t (Item::*get)() const, void (Item::*set)(std::int32_t))
{
    return property(name, "colour", get, set, parseColour, colourText);
}

ItemProperty flag(std::string_view name, bool (Item::*get)() const, void (Item::*set)(bool))
{
    return property(name, "yes/no", get, set, readBoolean, same<bool>);
}

ItemProperty day(std::string_view name, Date (Item::*get)() const, void (Item::*set)(Date))
{
    return property(name, "date", get, set, readDay, dayText);
}

ItemProperty time(std::string_view name, Date (Item::*get)() const, void (Item::*set)(Date))
{
    return property(name, "time", get, set, readTime, timeText);
}

ItemProperty writeOnlyFlag(std::string_view name, void (Item::*set)(bool))
{
    return {name, "yes/no", {}, [set](Item& item, std::string_view value) { (item.*set)(readBoolean(value)); }};
}

std::uint8_t readChannels(std::string_view value)
{
    const std::int32_t bits = readInteger(value);
    if (bits < 0 || bits > 15)
        throw Failure("'" + std::string(value) + "' is no sum of channels (1 e-mail, 2 fax, 4 phone, 8 letter)");
    return static_cast<std::uint8_t>(bits);
}

/// A template, whose reading may fetch the kind's own.
ItemProperty templateText(std::string_view name, const std::string& (Item::*get)(), void (Item::*set)(std::string))
{
    return {name, "text", [get](Item& item) { return Json((item.*get)()); },
            [set](Item& item, std::string_view value) { (item.*set)(std::string(value)); }};
}

enumCalendarItemArchiveStatus readArchiveStatus(std::string_view value)
{
    const std::int32_t number = readInteger(value);
    if (number != CalendarItemArchiveStatus_Normal && number != CalendarItemArchiveStatus_Archived)
        throw Failure("'" + std::string(value) + "' is no archive status (1 normal, 2 archived)");
    return static_cast<enumCalendarItemArchiveStatus>(number);
}

ItemProperty detail(ItemProperty known)
{
    known.isDetail = true;
    return known;
}

#define QNCAL_PROPERTY(make, name) make(#name, &Item::name, &Item::name)

const std::vector<ItemProperty> properties{
    QNCAL_PROPERTY(text, Subject),
    QNCAL_PROPERTY(day, DateFrom),
    QNCAL_PROPERTY(time, TimeFrom),
    QNCAL_PROPERTY(time, TimeTo),
    property("timeduration", "hours", &Item::timeduration, &Item::timeduration, readHours, same<float>),
    QNCAL_PROPERTY(number, userIDNum),
    QNCAL_PROPERTY(number, companyIDNum),
    QNCAL_PROPERTY(number, contactIDNum),
    QNCAL_PROPERTY(text, TitleText),
    QNCAL_PROPERTY(text, BeforeAppointmentText),
    QNCAL_PROPERTY(text, appointmentText),
    QNCAL_PROPERTY(text, AfterAppointmentText),
    QNCAL_PROPERTY(flag, NotesFlag),
    QNCAL_PROPERTY(text, Notes_RichText),
    QNCAL_PROPERTY(flag, Remind),
    QNCAL_PROPERTY(text, reminderPeriod),
    property("notifyType", "sum of 1 e-mail, 2 fax, 4 phone, 8 letter", &Item::notifyType, &Item::notifyType,
             readChannels, [](std::uint8_t bits) { return static_cast<int>(bits); }),
    QNCAL_PROPERTY(day, notifiedDate),
    QNCAL_PROPERTY(flag, ClientNotifiedFlag),
    writeOnlyFlag("Notified_ByEmail", &Item::Notified_ByEmail),
    writeOnlyFlag("Notified_ByFax", &Item::Notified_ByFax),
    writeOnlyFlag("Notified_ByPhone", &Item::Notified_ByPhone),
    writeOnlyFlag("Notified_ByLetter", &Item::Notified_ByLetter),
    QNCAL_PROPERTY(number, RepeatNum),
    QNCAL_PROPERTY(number, UserGroupNum),
    QNCAL_PROPERTY(number, SeriesNum),
    QNCAL_PROPERTY(number, ScheduleTypeIDNum),
    QNCAL_PROPERTY(number, ScheduleIDNum),
    QNCAL_PROPERTY(number, ProjectStepIDNum),
    QNCAL_PROPERTY(number, CommunicationLogIDNum),
    QNCAL_PROPERTY(flag, RecurAnnually),
    QNCAL_PROPERTY(flag, hideInTasks),
    QNCAL_PROPERTY(flag, PrivateItem),
    QNCAL_PROPERTY(number, ColourSchemeID),
    {"ColourSchemeName", "text", [](Item& item) { return Json(item.ColourSchemeName()); }, {}},
    QNCAL_PROPERTY(colour, TitleForeColour),
    QNCAL_PROPERTY(colour, TitleBackColour),
    QNCAL_PROPERTY(colour, ForeColour),
    QNCAL_PROPERTY(colour, BackColour),
    QNCAL_PROPERTY(flag, Status1),
    QNCAL_PROPERTY(flag, Status2),
    QNCAL_PROPERTY(flag, Status3),
    QNCAL_PROPERTY(flag, Status4),
    QNCAL_PROPERTY(flag, Status5),
    QNCAL_PROPERTY(text, Custom1),
    QNCAL_PROPERTY(text, Custom2),
    QNCAL_PROPERTY(text, Custom3),
    QNCAL_PROPERTY(text, Custom4),
    QNCAL_PROPERTY(text, Custom5),
    detail({"clientType", "0 none, 1 contact, 2 company", [](Item& item) { return Json(item.clientType()); }, {}}),
    detail(QNCAL_PROPERTY(templateText, TitleBarTextTemplate)),
    detail(QNCAL_PROPERTY(templateText, DisplayTextTemplate)),
    detail(property("CalendarItemArchiveStatus", "1 normal, 2 archived", &Item::CalendarItemArchiveStatus,
                    &Item::CalendarItemArchiveStatus, readArchiveStatus,
                    [](enumCalendarItemArchiveStatus status) { return static_cast<int>(status); })),
    detail(QNCAL_PROPERTY(flag, ShowNotificationWindow)),
    detail(QNCAL_PROPERTY(flag, IsSecondaryConnectionForTaskClass)),
    detail({"isApptOverlapMode", "yes/no", [](Item& item) { return Json(item.isApptOverlapMode); },
            [](Item& item, std::string_view value) { item.isApptOverlapMode = readBoolean(value); }}),
};

#undef QNCAL_PROPERTY

/// Levenshtein's distance.
std::size_t editDistance(std::string_view a, std::string_view b)
{
    std::vector<std::size_t> row(b.size() + 1);
    std::iota(row.begin(), row.end(), std::size_t{0});
    for (std::size_t i = 0; i < a.size(); ++i) {
        std::size_t diagonal = row[0]++;
        for (std::size_t j = 0; j < b.size(); ++j) {
            const std::size_t substituted = diagonal + (lowerAscii(a[i]) == lowerAscii(b[j]) ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({substituted, row[j] + 1, row[j + 1] + 1});
        }
    }
    return row.back();
}

} // namespace

std::span<const ItemProperty> itemProperties() { return properties; }

const ItemProperty& itemProperty(std::string_view name)
{
    const auto found =
        std::ranges::find_if(properties, [&](const ItemProperty& known) { return equalsNoCase(known.name, name); });
    if (found != properties.end())
        return *found;
    const auto nearest = std::ranges::min_element(
        properties, {}, [&](const ItemProperty& known) { return editDistance(known.name, name); });
    throw Failure("no field '" + std::string(name) + "'; did you mean " + std::string(nearest->name)
                  + "? 'firmcal item fields' lists them");
}

void applyAssignment(clsCalendarItem& item, std::string_view assignment)
{
    const std::size_t equals = assignment.find('=');
    if (equals == std::string_view::npos)
        throw Failure("'" + std::string(assignment) + "' is not of the form Name=Value");
    const ItemProperty& known = itemProperty(trimmed(assignment.substr(0, equals)));
    if (!known.set)
        throw Failure(std::string(known.name) + " can only be read");
    try {
        known.set(item, assignment.substr(equals + 1));
    } catch (const Failure& failure) {
        throw Failure(std::string(known.name) + ": " + failure.what());
    }
}

} // namespace qncal::firmcal
