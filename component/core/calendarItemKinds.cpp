#include "core/calendarItemKinds.h"

#include <array>

namespace qncal {

namespace {

// In the order of enumLocalCalendarItemType; the last row is the unknown kind.
constexpr std::array<CalendarItemKind, 4> kinds{{
    {"Appointments", "AppointmentID", "appointment", "Appt", "AppointmentNum",
     "«Appointment Name» for «Company Name»\r\n«Appointment Start Time» to «Appointment End Time»"},
    {"Tasks", "TaskID", "task", "Task", "TaskNum",
     "«Task Name» for «Company Name»\r\n«Task Start Time» to «Task End Time»"},
    {"Dockets", "DocketID", "docket", "Docket", "DocketNum",
     "«Time Entry Start Time» to «Time Entry End Time»\r\n«Company Name»\r\n«Time Entry Name»"},
    {},
}};

} // namespace

bool isKnownKind(enumLocalCalendarItemType kind)
{
    return kind >= enumLocalCalendarAppointmentItem && kind < enumLocalCalendarUnknownItem;
}

const CalendarItemKind& calendarItemKind(enumLocalCalendarItemType kind)
{
    return kinds[isKnownKind(kind) ? static_cast<std::size_t>(kind) : kinds.size() - 1];
}

} // namespace qncal
