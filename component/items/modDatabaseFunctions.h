#pragma once

#include "core/enumerations.h"
#include "lookups/taskOfSchedule.h"

#include <cstdint>
#include <string>

/// What belongs to what in the database: usable ids, clients of items, numbers of series and groups, and the
/// deletion of appointments by id. No routine lets an error out; without a connection, and after a failure, the
/// result is the default that its group names.
namespace qncal::modDatabaseFunctions {

/// True when a text is a usable id: a number above 0. No database is asked.
bool validAppointmentID(const std::string& id);
bool validDocketID(const std::string& id);
bool validScheduleID(const std::string& id);
bool validTaskID(const std::string& id);
bool validClientID(const std::string& id);
bool validCompanyID(const std::string& id);
bool validContactID(const std::string& id);
bool validFirmID(const std::string& id);
bool validEmployeeID(const std::string& id);
bool validColourSchemeID(const std::string& id);

/// The client of a record; -1 when there is no such record or it has none.
std::int32_t getCompanyIDFromTaskID(std::int32_t id);
std::int32_t getContactIDFromTaskID(std::int32_t id);
std::int32_t getCompanyIDFromAppointmentID(std::int32_t id);
std::int32_t getContactIDFromAppointmentID(std::int32_t id);
std::int32_t getCompanyIDFromMissingInfoID(std::int32_t id);
std::int32_t getContactIDFromMissingInfoID(std::int32_t id);
std::int32_t getCompanyIDFromCommunicationLogID(std::int32_t id);
std::int32_t getContactIDFromCommunicationLogID(std::int32_t id);

/// Series (`RepeatNum`) and group (`UserGroupNum`) of an item; 0 for none, and a number above 0 makes it one.
bool isAppointmentRepeaterAppointment(enumLocalCalendarItemType kind, std::int32_t itemID);
std::int32_t getAppointmentRepeaterID(enumLocalCalendarItemType kind, std::int32_t itemID);
bool isAppointmentPartOfGroupedAppointment(enumLocalCalendarItemType kind, std::int32_t itemID);
std::int32_t getAppointmentGroupID(enumLocalCalendarItemType kind, std::int32_t itemID);
/// The smallest number from 0 on that no row of the kind's table uses; 0 by default.
std::int32_t getAppointmentRepeatUniqueID(enumLocalCalendarItemType kind);
std::int32_t getAppointmentGroupUniqueID(enumLocalCalendarItemType kind);

/// Deletes the items of a series for one user, with their reminders and notifications.
/// True when there were some and all are deleted.
bool deleteRepeaterAppointmentForUser(enumLocalCalendarItemType kind, std::int32_t repeatNum, std::int32_t userID);

/// True for a task that stands by itself rather than in a series of scheduled steps.
bool isThisTaskAssociatedWithIndependentScheduleEntry(std::int32_t taskID);

/// Deletes an appointment with its reminders and notifications; with `keepCompletedReminders` the completed
/// reminders and the sent notifications stay. True when the row was deleted.
bool deleteAppointment(std::int32_t appointmentID, bool keepCompletedReminders);
void deleteAppointmentClientNotifications(std::int32_t appointmentID, bool keepCompleted);

/// Empty when there is no such scheme.
std::string getColourSchemeNameFromColourSchemeID(std::int32_t schemeID);

} // namespace qncal::modDatabaseFunctions
