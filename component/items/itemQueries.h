#pragma once

#include "core/RecordSet.h"
#include "core/enumerations.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace qncal {

/// Queries that several routines share. They are pieces of a routine: they ask for no connection, and a failure
/// ends in the routine that called them.

/// Reads one column of the first row into `target`, which stays as it is when the column is null.
/// False when there is no row.
template <class Value>
bool readFirstRow(std::string_view sql, std::string_view column, Value& target)
{
    auto rst = RecordSet::openReadOnly(sql);
    const bool found = rst.hasRecords();
    if (found)
        rst.read(column, target);
    rst.close();
    return found;
}

/// Deletes the rows of a query, with `keepMarked` all but those whose column `markColumn` is True.
void deleteRows(std::string_view sql, std::string_view markColumn, bool keepMarked);

/// Popup reminders of an item; time entries and unknown kinds have none.
void deleteRemindersOfItem(enumLocalCalendarItemType kind, std::int32_t itemID, bool keepCompleted);
/// Client notifications of an item of any known kind.
void deleteClientNotificationsOfItem(enumLocalCalendarItemType kind, std::int32_t itemID, bool keepSent);

/// The name of a colour scheme, empty when there is no such scheme.
std::string readColourSchemeName(std::int32_t schemeID);

/// The task that stands for a schedule row, and where it was found.
struct TaskOfSchedule {
    std::int32_t taskID = -1;
    enumCalendarItemArchiveStatus archiveStatus = CalendarItemArchiveStatus_Normal;
};
/// Looks in the table first and then in its archive. Nothing when neither has the schedule's task.
std::optional<TaskOfSchedule> findTaskOfSchedule(const std::string& table, const std::string& key,
                                                 std::int32_t scheduleID);

} // namespace qncal
