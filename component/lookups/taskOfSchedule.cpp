#include "lookups/taskOfSchedule.h"

#include "core/calendarItemKinds.h"
#include "core/routineScope.h"
#include "lookups/firstRow.h"

namespace qncal {

std::optional<TaskOfSchedule> findTaskOfSchedule(const std::string& table, const std::string& key,
                                                 std::int32_t scheduleID)
{
    const auto find = [&](const std::string& from, const std::string& column, TaskOfSchedule& found) {
        return readFirstRow("SELECT " + from + "." + column + ", " + from + ".ScheduleIDNum FROM " + from
                                + " WHERE ScheduleIDNum=" + std::to_string(scheduleID) + ";",
                            column, found.taskID);
    };
    TaskOfSchedule found;
    if (find(table, key, found))
        return found;
    if (find(archiveTable(table), archiveKey(key), found)) {
        found.archiveStatus = CalendarItemArchiveStatus_Archived;
        return found;
    }
    return std::nullopt;
}

std::int32_t modDatabaseFunctions::getTaskIDFromScheduleID(std::int32_t scheduleID)
{
    return routine("Vestrel.exe-modDatabaseFunctions-getTaskIDFromScheduleID", -1, [&] {
        if (scheduleID < 0 || !isDatabaseConnected())
            return -1;
        const CalendarItemKind& task = calendarItemKind(enumLocalCalendarTaskItem);
        return findTaskOfSchedule(std::string(task.tableName), std::string(task.fieldName), scheduleID)
            .value_or(TaskOfSchedule{})
            .taskID;
    });
}

} // namespace qncal
