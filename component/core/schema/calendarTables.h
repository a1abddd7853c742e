#pragma once

#include "core/schema/columns.h"

/// Calendar items, their archives, and what hangs on them.

namespace qncal::schema {

using enum ColumnType;

/// The columns that appointments, tasks and time entries share.
inline constexpr Column itemColumns[] = {
    {"UserIDNum", id},
    {"CompanyIDNum", id},
    {"ContactIDNum", id},
    {"ScheduleTypeIDNum", id},
    {"ScheduleIDNum", id},
    {"CompanyProjectStepIDNum", id},
    {"CommunicationLogIDNum", id},
    {"SeriesNum", integer},
    {"RecurAnnually", boolean},
    {"hideInTasks", boolean},
    {"Private", boolean},
    {"NotesFlag", boolean},
    {"ClientNotifiedFlag", boolean},
    {"Remind", boolean},
    {"RepeatNum", integer},
    {"UserGroupNum", integer},
    {"Subject", text},
    {"ReminderPeriod", text},
    {"TitleText", text},
    {"DateFrom", date},
    {"TimeFrom", time},
    {"TimeTo", time},
    {"BeforeAppointmentText", memo},
    {"AppointmentText", memo},
    {"AfterAppointmentText", memo},
    {"TextBody", memo},
    {"SchemeID", id},
    {"TitleBackColour", colour},
    {"TitleForeColour", colour},
    {"BackColour", colour},
    {"ForeColour", colour},
    {"notifyType", integer},
    QNCAL_FIVE_COLUMNS("Custom", text),
    QNCAL_FIVE_COLUMNS("Status", boolean),
};

/// A user's items of a day or of all days; the items of a span of days in the order of the calendar.
inline constexpr Index itemIndexes[] = {{"UserIDNum", "DateFrom"}, {"DateFrom", "TimeFrom"}};
inline constexpr Index taskIndexes[] = {{"UserIDNum", "DateFrom"}, {"DateFrom", "TimeFrom"}, {"ScheduleIDNum"}};
inline constexpr Index archiveTaskIndexes[] = {{"ScheduleIDNum"}};

inline constexpr auto appointmentsColumns = columns({{"AppointmentID", key}}, itemColumns);
inline constexpr auto tasksColumns = columns({{"TaskID", key}}, itemColumns);
inline constexpr auto archiveTasksColumns = columns({{"oldTaskID", key}}, itemColumns);
inline constexpr auto docketsColumns = columns({{"DocketID", key}}, itemColumns,
                                               {
                                                   {"DocketStatus", text},
                                                   {"DateCreated", date},
                                                   {"DocketLocked", boolean},
                                                   {"Invoiced", boolean},
                                                   {"UsedRealTime", boolean},
                                                   {"RealTimeFrom", time},
                                                   {"RealTimeTo", time},
                                                   {"RoundedTimeFrom", time},
                                                   {"RoundedTimeTo", time},
                                                   {"DocketBillingType", text},
                                                   {"BillingJobRate", currency},
                                                   {"BillableTime", boolean},
                                                   // Hours, as all total times.
                                                   {"TotalTimeReal", real},
                                                   {"TotalTimeRounded", real},
                                                   {"UseAdjustedTime", boolean},
                                                   {"TotalTimeAdjusted", real},
                                                   {"TotalTimeFinal", real},
                                                   {"TotalAmountReal", currency},
                                                   {"UseAdjustedAmount", boolean},
                                                   {"TotalAmountAdjusted", currency},
                                                   {"TotalAmountFinal", currency},
                                                   {"DescriptionInternal", memo},
                                                   {"DescriptionClient", memo},
                                               });

inline constexpr auto scheduleColumns = columns({
    {"ScheduleID", key},
    {"ClientNum", id},
    {"ScheduleName", text},
    {"scheduleNum", integer},
    {"totalNum", integer},
    {"DueDate", date},
    {"inHouseDueDate", date},
    {"PeriodEndDate", date},
    {"PeriodDescription", text},
    {"CalendarDate", date},
    {"EmployeeAssigned", text},
    {"Year", integer},
    {"Amount", currency},
    {"PersonCompleted", text},
    {"DateCompleted", date},
    QNCAL_FIVE_COLUMNS("Custom", text),
});
inline constexpr Index scheduleIndexes[] = {{"ClientNum"}};

inline constexpr auto remindersColumns = columns({
    {"ReminderID", key},
    {"UserIDNum", id},
    {"CompanyIDNum", id},
    {"ContactIDNum", id},
    {"AppointmentIDNum", id},
    {"TaskIDNum", id},
    {"ToDoIDNum", id},
    {"CommunicationLogIDNum", id},
    {"MissingInfoIDNum", id},
    {"CompanyProjectIDNum", id},
    {"CompanyProjectStepIDNum", id},
    {"ReminderType", integer},
    {"ReminderDate", date},
    {"ReminderTime", time},
    {"TextBody", memo},
    {"Completed", boolean},
    // The day and time for which the reminder was shown: when the row has moved since, it is shown again.
    {"ShownFor", date},
});
/// A record's reminders; those that are due.
inline constexpr Index remindersIndexes[] = {
    {"AppointmentIDNum"}, {"TaskIDNum"}, {"Completed", "ReminderDate", "ReminderTime"}};

inline constexpr auto clientNotificationColumns = columns({
    {"ClientNotificationID", key},
    {"AppointmentNum", id},
    {"TaskNum", id},
    {"DocketNum", id},
    // A channel bit of the item's `notifyType`.
    {"NotificationType", integer},
    {"NotificationDate", date},
    {"NotificationSent", boolean},
    // From here on what delivery keeps: the client that the row is for,
    {"CompanyIDNum", id},
    {"ContactIDNum", id},
    // 0 waiting, 1 being sent, 2 sent, 3 too late, 4 of unknown outcome, 5 cancelled,
    {"DeliveryState", integer, "0"},
    // the address or number that was used last,
    {"Recipient", text},
    {"Attempts", integer, "0"},
    {"AttemptDate", date},
    // not before this moment is it tried again,
    {"NextAttemptDate", date},
    {"LastError", memo},
    {"SentDate", date},
    // the same at every attempt, so that a message that does come twice is known for one.
    {"MessageID", text},
});
/// An item's notifications; those of a state by their day.
inline constexpr Index clientNotificationIndexes[] = {
    {"AppointmentNum"}, {"TaskNum"}, {"DocketNum"}, {"DeliveryState", "NotificationDate"}};

inline constexpr auto communicationLogColumns = columns({
    {"CommunicationLogID", key},
    {"CompanyIDNum", id},
    {"ContactIDNum", id},
});

inline constexpr auto missingInfoColumns = columns({
    {"MissingInfoID", key},
    {"CompanyIDNum", id},
    {"ContactIDNum", id},
});

inline constexpr auto holidaysColumns = columns({
    {"HolidayID", key},
    {"HolidayDate", date},
    {"HolidayType", integer},
    {"HolidayName", text},
});
inline constexpr Index holidaysIndexes[] = {{"HolidayDate"}};

inline constexpr auto outlookSyncColumns = columns({
    {"OutlookSyncID", key},
    {"AppointmentNum", id},
});
inline constexpr Index outlookSyncIndexes[] = {{"AppointmentNum"}};

inline constexpr Table calendarTables[] = {
    {"Appointments", appointmentsColumns, "Appointments, one row for each user and occurrence", itemIndexes},
    {"Tasks", tasksColumns, "Tasks, one row for each user and occurrence", taskIndexes},
    {"Dockets", docketsColumns, "Time entries, with what the timer and billing keep of them", itemIndexes},
    {"archiveTasks", archiveTasksColumns,
     "Tasks moved out of `Tasks` under their former key, read by load and by the lookups", archiveTaskIndexes},
    {"archivedTasks", archiveTasksColumns, "Where a task marked as archived is saved", archiveTaskIndexes},
    {"Schedule", scheduleColumns, "Scheduled work for a client, which a task stands for on the calendar",
     scheduleIndexes},
    {"Reminders", remindersColumns, "Popup reminders of a user, each hanging on a row of the sort that its type tells",
     remindersIndexes},
    {"ClientNotification", clientNotificationColumns, "Notifications of clients ahead of a calendar item",
     clientNotificationIndexes},
    {"CommunicationLog", communicationLogColumns, "Log entries of communication with a client"},
    {"MissingInfo", missingInfoColumns, "Information that a client still owes"},
    {"Holidays", holidaysColumns, "Holidays; those without a type and of types 1 and 3 are statutory", holidaysIndexes},
    {"OutlookSync", outlookSyncColumns,
     "Appointments linked to another calendar program; kept in a second database file beside the main one",
     outlookSyncIndexes},
};

} // namespace qncal::schema
