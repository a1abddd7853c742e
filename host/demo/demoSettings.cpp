#include "core/enumerations.h"
#include "demo/demoCalendar.h"
#include "services/HostEnvironment.h"
#include "services/Rows.h"
#include "services/holidayRows.h"
#include "utilities/Clock.h"

namespace qncal::host {

namespace {

/// Red in the low byte.
constexpr std::int32_t rgb(std::int32_t red, std::int32_t green, std::int32_t blue)
{
    return red | green << 8 | blue << 16;
}

struct Scheme {
    enumLocalCalendarItemType kind;
    std::string_view name;
    std::int32_t titleBack;
    std::int32_t body;
};

constexpr Scheme schemes[]{
    {enumLocalCalendarAppointmentItem, "Client meeting", rgb(38, 84, 150), rgb(226, 236, 250)},
    {enumLocalCalendarAppointmentItem, "Internal", rgb(96, 96, 96), rgb(240, 240, 240)},
    {enumLocalCalendarAppointmentItem, "Out of office", rgb(150, 75, 30), rgb(252, 238, 226)},
    {enumLocalCalendarTaskItem, "Compliance", rgb(140, 30, 50), rgb(250, 228, 232)},
    {enumLocalCalendarTaskItem, "Bookkeeping", rgb(30, 110, 70), rgb(226, 246, 234)},
    {enumLocalCalendarDocketItem, "Billable", rgb(30, 110, 120), rgb(224, 244, 246)},
    {enumLocalCalendarDocketItem, "Not billable", rgb(110, 110, 60), rgb(246, 246, 226)},
};

struct Status {
    std::string_view name;
    std::int32_t colour;
    int icon;
};

constexpr Status statuses[]{{"Completed", rgb(60, 150, 60), 1},
                            {"Cancelled", rgb(170, 40, 40), 2},
                            {"Postponed", rgb(200, 140, 20), 3},
                            {"Out-of-Office", rgb(120, 90, 160), 4},
                            {"Important", rgb(210, 60, 30), 5}};

constexpr std::string_view kindPrefixes[]{"Appt", "Task", "Docket"};
/// The label of each kind's first custom field.
constexpr std::string_view customLabels[]{"Location", "Waiting for", "Activity code"};

/// "ApptStatusName1"
std::string numbered(std::string_view prefix, std::string_view name, std::size_t number)
{
    return std::string(prefix).append(name).append(std::to_string(number));
}

} // namespace

void addDemoHolidays(HostEnvironment& host)
{
    const int thisYear = today().civilDate().year;
    for (const int year : {thisYear, thisYear + 1})
        addStatutoryHolidays(host.database(), host.locale().values(), year);
}

DemoSchemes addDemoSchemes(HostEnvironment& host)
{
    DemoSchemes keys;
    for (const Scheme& scheme : schemes)
        keys[scheme.kind].push_back(addRow(host.database(), "ColourSchemes",
                                           {{"SchemeType", std::to_string(scheme.kind)},
                                            {"SchemeName", std::string(scheme.name)},
                                            {"TitleBackColour", std::to_string(scheme.titleBack)},
                                            {"TitleForeColour", std::to_string(rgb(255, 255, 255))},
                                            {"BackColour", std::to_string(scheme.body)},
                                            {"ForeColour", "0"}}));
    return keys;
}

void addDemoLabels(HostEnvironment& host)
{
    addRow(host.database(), "CustomFields", {});
    Rows rows = Rows::change(host.database(), "SELECT CustomFields.* FROM CustomFields;");
    for (std::size_t kind = 0; kind < std::size(kindPrefixes); ++kind) {
        const std::string_view prefix = kindPrefixes[kind];
        rows.set(numbered(prefix, "CustomName", 1), customLabels[kind]);
        for (std::size_t i = 0; i < std::size(statuses); ++i) {
            rows.set(numbered(prefix, "StatusName", i + 1), statuses[i].name);
            rows.set(numbered(prefix, "UseStatusColour", i + 1), booleanText(true));
            rows.set(numbered(prefix, "StatusColour", i + 1), std::to_string(statuses[i].colour));
            rows.set(numbered(prefix, "UseStatusIcon", i + 1), booleanText(true));
            rows.set(numbered(prefix, "StatusIcon", i + 1), std::to_string(statuses[i].icon));
        }
    }
}

} // namespace qncal::host
