#pragma once

#include <cstdint>

namespace qncal {

/// The public enumerations. Their integers are part of the component's contract with the host.

enum enumFormDayTimerType : std::int32_t {
    enumFormShowAppointments = 0,
    enumFormShowTasks = 1,
    enumFormShowDockets = 2,
};

enum enumLocalCalendarItemType : std::int32_t {
    enumLocalCalendarAppointmentItem = 0,
    enumLocalCalendarTaskItem = 1,
    enumLocalCalendarDocketItem = 2,
    enumLocalCalendarUnknownItem = 3,
};

enum enumCalendarItemArchiveStatus : std::int32_t {
    CalendarItemArchiveStatus_Normal = 1,
    CalendarItemArchiveStatus_Archived = 2,
};

enum enumSearchAppointmentText : std::int32_t {
    enumSearchAppointmentNameOnly = 1,
    enumSearchAppointmentDisplaySummaryOnly = 2,
    enumSearchAppointmentNotesOnly = 3,
    enumSearchAppointmentAllText = 4,
};

} // namespace qncal
