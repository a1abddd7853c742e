#pragma once

#include "core/schema/columns.h"

/// What users and the firm choose: calendar settings, colour schemes, labels of fields.

namespace qncal::schema {

using enum ColumnType;

#define QNCAL_WEEKDAY_COLOURS(view)                                                                                    \
    column(view "SundayBackColour", colour), column(view "MondayBackColour", colour),                                  \
        column(view "TuesdayBackColour", colour), column(view "WednesdayBackColour", colour),                          \
        column(view "ThursdayBackColour", colour), column(view "FridayBackColour", colour),                            \
        column(view "SaturdayBackColour", colour)

/// A kind's part of a user's row.
#define QNCAL_USER_SETTINGS(kind)                                                                                      \
    column(kind "StartupDayTimerView", integer), column(kind "ShowSideBarView", integer),                              \
        column(kind "ShowWeekendView", integer), QNCAL_WEEKDAY_COLOURS(kind "Day"),                                    \
        QNCAL_WEEKDAY_COLOURS(kind "Week"), QNCAL_WEEKDAY_COLOURS(kind "Month"),                                       \
        column("Use" kind "DayBackColours", boolean), column("Use" kind "WeekBackColours", boolean),                   \
        column("Use" kind "MonthBackColours", boolean), column(kind "TimeFrom", time), column(kind "TimeTo", time),    \
        column(kind "ViewMyColourScheme", integer), column("Show" kind "TitleBarIcons", boolean),                      \
        column(kind "ShowStatusCheckBoxes", boolean)

/// A kind's part of the firm-wide row.
#define QNCAL_FIRM_SETTINGS(kind)                                                                                      \
    column(kind "Template", memo), column("Show" kind "TitleBar", boolean), column(kind "TitleBarText", memo)

inline constexpr auto userCalendarSettingsColumns = columns({
    {"UserCalendarSettingsID", key},
    // A row that nobody claimed is the firm-wide one.
    {"UserIDNum", id, "-1"},
    QNCAL_USER_SETTINGS("Appt"),
    QNCAL_USER_SETTINGS("Task"),
    QNCAL_USER_SETTINGS("Docket"),
    {"ShowDocketInfoScreenWhenStopped", boolean},
    QNCAL_FIRM_SETTINGS("Appt"),
    QNCAL_FIRM_SETTINGS("Task"),
    QNCAL_FIRM_SETTINGS("Docket"),
});
inline constexpr Index userCalendarSettingsIndexes[] = {{"UserIDNum"}};

#undef QNCAL_FIRM_SETTINGS
#undef QNCAL_USER_SETTINGS
#undef QNCAL_WEEKDAY_COLOURS

inline constexpr auto colourSchemesColumns = columns({
    {"ColourSchemeID", key},
    {"SchemeType", integer},
    {"SchemeName", text},
    {"TitleBackColour", colour},
    {"TitleForeColour", colour},
    {"BackColour", colour},
    {"ForeColour", colour},
});
inline constexpr Index colourSchemesIndexes[] = {{"SchemeType", "SchemeName"}};

#define QNCAL_KIND_LABELS(kind)                                                                                        \
    QNCAL_FIVE_COLUMNS(kind "CustomName", text), QNCAL_FIVE_COLUMNS(kind "StatusName", text),                          \
        QNCAL_FIVE_COLUMNS(kind "UseStatusColour", boolean), QNCAL_FIVE_COLUMNS(kind "StatusColour", colour),          \
        QNCAL_FIVE_COLUMNS(kind "UseStatusIcon", boolean), QNCAL_FIVE_COLUMNS(kind "StatusIcon", integer)

inline constexpr auto customFieldsColumns = columns({
    {"CustomFieldsID", key},
    QNCAL_KIND_LABELS("Appt"),
    QNCAL_KIND_LABELS("Task"),
    QNCAL_KIND_LABELS("Docket"),
    QNCAL_FIVE_COLUMNS("CustomName", text),
    QNCAL_FIVE_COLUMNS("RemittanceLabel", text),
});

#undef QNCAL_KIND_LABELS

inline constexpr auto customAddressFieldsColumns = columns({
    {"CustomAddressFieldsID", key},
    QNCAL_FIVE_COLUMNS("ContactLabel", text),
    QNCAL_FIVE_COLUMNS("CompanyLabel", text),
});

inline constexpr auto globalGeneralSettingsColumns = columns({
    {"GlobalGeneralSettingsID", key},
    {"DateStampShowTime", boolean},
    {"DateStampShowName", boolean},
    {"DateStampShowNameOptions", integer},
    // The firm's region, by the codes of `LocaleService`.
    {"CountryCode", integer},
    {"ProvinceCode", integer},
});

inline constexpr Table settingsTables[] = {
    {"UserCalendarSettings", userCalendarSettingsColumns,
     "Calendar settings, one row for each user; the row of user -1 holds what all users see",
     userCalendarSettingsIndexes},
    {"ColourSchemes", colourSchemesColumns, "Named sets of four colours, each for one kind of calendar item",
     colourSchemesIndexes},
    {"CustomFields", customFieldsColumns,
     "The one row of labels of custom fields, and of names, colours and icons of status fields"},
    {"CustomAddressFields", customAddressFieldsColumns,
     "The one row of labels of the custom fields of contacts and companies"},
    {"GlobalGeneralSettings", globalGeneralSettingsColumns,
     "The one row of firm-wide settings: the date stamp on notes, and the region"},
};

} // namespace qncal::schema
