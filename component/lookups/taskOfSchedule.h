#pragma once

#include "core/enumerations.h"

#include <cstdint>
#include <optional>
#include <string>

namespace qncal {

/// The task that stands for a schedule row, and where it was found.
struct TaskOfSchedule {
    std::int32_t taskID = -1;
    enumCalendarItemArchiveStatus archiveStatus = CalendarItemArchiveStatus_Normal;
};
/// A piece of a routine. Looks in the table first and then in its archive. Nothing when neither has the schedule's
/// task.
std::optional<TaskOfSchedule> findTaskOfSchedule(const std::string& table, const std::string& key,
                                                 std::int32_t scheduleID);

namespace modDatabaseFunctions {

/// The task that stands for a schedule row, also an archived one; -1 for none, without a connection and after a
/// failure.
std::int32_t getTaskIDFromScheduleID(std::int32_t scheduleID);

} // namespace modDatabaseFunctions

} // namespace qncal
