#pragma once

#include "items/CalendarItemRecord.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>

namespace qncal {

/// The columns that `Appointments`, `Tasks` and `Dockets` share, each with the field that it is loaded into and
/// saved from, in the order of loading.

/// Fields that keep one part of their date only, on load and on save alike.
struct DayPart {
    Date CalendarItemRecord::*field;
};
struct TimePart {
    Date CalendarItemRecord::*field;
};

struct CalendarItemColumn {
    using Field = std::variant<std::int32_t CalendarItemRecord::*, std::uint8_t CalendarItemRecord::*,
                               bool CalendarItemRecord::*, std::string CalendarItemRecord::*, DayPart, TimePart>;
    std::string_view name;
    Field field;
    bool tasksOnly = false;
};

inline constexpr std::array calendarItemColumns = [] {
    using Record = CalendarItemRecord;
    return std::to_array<CalendarItemColumn>({
        {"UserIDNum", &Record::userIDNum},
        {"CompanyIDNum", &Record::companyIDNum},
        {"ContactIDNum", &Record::contactIDNum},
        {"ScheduleTypeIDNum", &Record::scheduleTypeIDNum},
        {"ScheduleIDNum", &Record::scheduleIDNum},
        {"CompanyProjectStepIDNum", &Record::projectStepIDNum},
        {"CommunicationLogIDNum", &Record::communicationLogIDNum},
        {"SeriesNum", &Record::seriesNum, true},
        {"RecurAnnually", &Record::recurAnnually},
        {"RepeatNum", &Record::repeatNum},
        {"UserGroupNum", &Record::userGroupNum},
        {"Subject", &Record::subject},
        {"DateFrom", DayPart{&Record::dateFrom}},
        {"TimeFrom", TimePart{&Record::timeFrom}},
        {"TimeTo", TimePart{&Record::timeTo}},
        {"BeforeAppointmentText", &Record::beforeAppointmentText},
        {"AppointmentText", &Record::appointmentText},
        {"AfterAppointmentText", &Record::afterAppointmentText},
        {"TextBody", &Record::notesRichText},
        {"TitleText", &Record::titleText},
        {"SchemeID", &Record::colourSchemeID},
        {"TitleBackColour", &Record::titleBackColour},
        {"TitleForeColour", &Record::titleForeColour},
        {"BackColour", &Record::backColour},
        {"ForeColour", &Record::foreColour},
        {"NotesFlag", &Record::notesFlag},
        {"ClientNotifiedFlag", &Record::clientNotifiedFlag},
        {"Remind", &Record::remind},
        {"ReminderPeriod", &Record::reminderPeriod},
        {"Private", &Record::privateItem},
        {"notifyType", &Record::notifyType},
        {"hideInTasks", &Record::hideInTasks},
        {"Custom1", &Record::custom1},
        {"Custom2", &Record::custom2},
        {"Custom3", &Record::custom3},
        {"Custom4", &Record::custom4},
        {"Custom5", &Record::custom5},
        {"Status1", &Record::status1},
        {"Status2", &Record::status2},
        {"Status3", &Record::status3},
        {"Status4", &Record::status4},
        {"Status5", &Record::status5},
    });
}();

/// The columns from the first name to the last, both included; a name that is not there does not compile.
consteval std::span<const CalendarItemColumn> calendarItemColumnsFrom(std::string_view first, std::string_view last)
{
    const auto at = [](std::string_view name) {
        const auto found = std::ranges::find(calendarItemColumns, name, &CalendarItemColumn::name);
        if (found == calendarItemColumns.end())
            throw std::logic_error("no such column");
        return found;
    };
    return {at(first), at(last) + 1};
}

/// The order of saving, in three steps, since `saveCalendarItem` puts the times and the flags in order between
/// them. `NotesFlag` and `ClientNotifiedFlag` are in none, so that their columns keep what they hold; the two
/// rendered texts come twice.
inline constexpr std::array savedFirst{calendarItemColumnsFrom("UserIDNum", "DateFrom")};
inline constexpr std::array savedWithTheTimes{calendarItemColumnsFrom("TimeFrom", "ForeColour")};
inline constexpr std::array savedLast{
    calendarItemColumnsFrom("Remind", "Private"),
    calendarItemColumnsFrom("hideInTasks", "Status5"),
    calendarItemColumnsFrom("AppointmentText", "AppointmentText"),
    calendarItemColumnsFrom("TitleText", "TitleText"),
    calendarItemColumnsFrom("notifyType", "notifyType"),
};

} // namespace qncal
