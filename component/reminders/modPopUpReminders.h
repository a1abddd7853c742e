#pragma once

#include "utilities/Date.h"

#include <cstdint>
#include <string>

/// Popup reminders: rows of `Reminders` that the host shows to a user at their moment. Here they are made, moved,
/// deleted and put into words.
namespace qncal::modPopUpReminders {

/// What a reminder hangs on, by the numbers of the column `ReminderType`.
namespace reminderType {
inline constexpr std::int32_t newRow = 1;
inline constexpr std::int32_t schedule = 2; ///< a task by its schedule id; stored as `task`
inline constexpr std::int32_t appointment = 3;
inline constexpr std::int32_t toDo = 4;
inline constexpr std::int32_t task = 5;
inline constexpr std::int32_t otherNewRow = 6;
inline constexpr std::int32_t missingInfo = 7;
inline constexpr std::int32_t communicationLog = 8;
inline constexpr std::int32_t companyProject = 9;
inline constexpr std::int32_t companyProjectStep = 10;
} // namespace reminderType

/// The ids that a reminder may carry, -1 for none.
struct ReminderIDs {
    std::int32_t companyID = -1;
    std::int32_t contactID = -1;
    /// The appointment's id, or for `reminderType::schedule` the schedule's.
    std::int32_t appointmentOrScheduleID = -1;
    std::int32_t taskID = -1;
    std::int32_t toDoID = -1;
    std::int32_t missingInfoID = -1;
    std::int32_t communicationLogID = -1;
    std::int32_t companyProjectID = -1;
    std::int32_t companyProjectStepID = -1;
};

/// Makes the reminder of a user on a record, or moves the one that is there; the types 1 and 6 always make a new
/// one. Without a client the record's own is filled in. On return a type 2 has become a 5 with its task id.
/// True when it is stored.
bool createPopUpReminder(std::int32_t& type, std::int32_t userID, Date date, Date time, const std::string& text,
                         ReminderIDs& ids);

/// Deletes the reminders of a user on a record. True when there were some and all are deleted.
bool deletePopUpReminder(std::int32_t& type, std::int32_t userID, ReminderIDs& ids);

/// In: the start of the item. Out: the moment of its reminder, to the minute. A reminder that falls before the
/// item's own day keeps off weekends.
void getPopUpReminderTime(const std::string& period, Date& reminderDate, Date& reminderTime);

/// The words of a reminder: on an appointment by its id, on a task by its schedule's id. `period` is a task's; when
/// it is empty the task's own is read. What the row lacks, or a row that is missing, leaves a gap in the sentence.
std::string getPopUpReminderText(std::int32_t type, std::int32_t id, const std::string& period = {});

/// The client's name as it stands in reminders; a company goes before a contact, empty for none.
std::string clientName(std::int32_t companyID, std::int32_t contactID);

} // namespace qncal::modPopUpReminders
