#include "host/store/statementRows.h"

#include <utility>

namespace qncal::host {

namespace {

std::string replaced(std::string text, const std::string& from, const std::string& to)
{
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

/// Statements of every kind of item; {T} is the table and {id} its key.
std::vector<Statement> statementsOfKinds()
{
    const std::string overlap =
        "SELECT {T}.{id}, {T}.UserIDNum, {T}.DateFrom, {T}.TimeFrom, {T}.TimeTo From {T} WHERE (({T}.UserIDNum=7) AND "
        "({T}.DateFrom=#2026-03-31#) AND ({T}.TimeFrom>#S# And {T}.TimeFrom<#E#)) OR (({T}.UserIDNum=7) AND "
        "({T}.DateFrom=#2026-03-31#) AND ({T}.TimeTo>#S# And {T}.TimeTo<#E#)) OR (({T}.UserIDNum=7) AND "
        "({T}.DateFrom=#2026-03-31#) AND ({T}.TimeFrom<=#S# And {T}.TimeTo>=#E#));";
    const auto overlapOf = [&](const std::string& start, const std::string& end) {
        return replaced(replaced(overlap, "#S#", "#" + start + "#"), "#E#", "#" + end + "#");
    };
    return {
        {"byKey", "SELECT {T}.* FROM {T} WHERE {T}.{id}=2;", "Subject", {"Beta"}, "load and save of one item"},
        {"byKeyFromBraces", "SELECT {T}.* FROM {T} WHERE {T}.{id}=3;", "Subject", {"gamma"}, "the editor's own row"},
        {"noSuchKey",
         "SELECT {T}.* FROM {T} WHERE {T}.{id}=-1;",
         "Subject",
         {},
         "an id of -1 is valid and finds nothing"},
        {"keyOnly", "SELECT {T}.{id} FROM {T} WHERE {T}.{id}=1;", "{id}", {"1"}, "deleting one item"},
        {"all", "SELECT {T}.* FROM {T};", "Subject", {"Alpha", "Beta", "gamma"}, "adding an item"},
        {"bestStart",
         "SELECT {T}.UserIDNum, {T}.DateFrom, {T}.TimeTo FROM {T} WHERE {T}.UserIDNum=7 AND {T}.DateFrom=#2026-03-31# "
         "AND {T}.TimeTo>=#9:00:00 AM# And {T}.TimeTo<=#5:00:00 PM# ORDER BY {T}.TimeTo DESC;",
         "TimeTo",
         {"14:30:00", "10:00:00"},
         "the latest end of a range comes first"},
        {"seriesNumbers",
         "SELECT {T}.RepeatNum From {T} GROUP BY {T}.RepeatNum ORDER BY {T}.RepeatNum;",
         "RepeatNum",
         {"0", "1"},
         "the first free series number"},
        {"groupNumbers",
         "SELECT {T}.UserGroupNum From {T} GROUP BY {T}.UserGroupNum ORDER BY {T}.UserGroupNum;",
         "UserGroupNum",
         {"4", "5"},
         "the first free group number"},
        {"seriesOfItem",
         "SELECT {T}.{id}, {T}.RepeatNum FROM {T} WHERE {T}.{id}=2;",
         "RepeatNum",
         {"1"},
         "the series of an item"},
        {"seriesOfUser",
         "SELECT {T}.* FROM {T} WHERE {T}.RepeatNum = 1 AND {T}.UserIDNum = 7 ORDER BY {T}.UserIDNum, {T}.DateFrom;",
         "Subject",
         {"Beta"},
         "the items of a series"},
        {"groupOfItem",
         "SELECT {T}.{id}, {T}.UserGroupNum FROM {T} WHERE {T}.{id}=1;",
         "UserGroupNum",
         {"4"},
         "the group of an item"},
        {"groupOfUser",
         "SELECT {T}.{id}, {T}.Remind, {T}.UserGroupNum, {T}.UserIDNum, {T}.DateFrom, {T}.TimeFrom FROM {T} WHERE "
         "{T}.UserGroupNum = 4 AND {T}.UserIDNum = 7 ORDER BY {T}.DateFrom, {T}.TimeFrom;",
         "{id}",
         {"1", "2"},
         "a user's items of a group"},
        {"usersOfGroup",
         "SELECT {T}.{id}, {T}.UserIDNum, {T}.UserGroupNum From {T} GROUP BY {T}.{id}, {T}.UserIDNum, {T}.UserGroupNum "
         "HAVING {T}.UserGroupNum=4;",
         "{id}",
         {"1", "2"},
         "the users of a group"},
        {"overlapStart", overlapOf("8:30:00 AM", "9:30:00 AM"), "{id}", {"1"}, "a start inside the span conflicts"},
        {"overlapEnd", overlapOf("9:30:00 AM", "11:00:00 AM"), "{id}", {"1"}, "an end inside the span conflicts"},
        {"overlapAround", overlapOf("9:15:00 AM", "9:45:00 AM"), "{id}", {"1"}, "an item around the span conflicts"},
        {"overlapTouching",
         overlapOf("10:00:00 AM", "1:00:00 PM"),
         "{id}",
         {},
         "items that touch the span do not conflict"},
        {"duplicates",
         "SELECT {T}.* FROM {T} WHERE {T}.UserIDNum = 7 AND DateFrom = #2026-03-31# ORDER BY {T}.DateFrom, "
         "{T}.TimeFrom, {T}.ScheduleIDNum AND {T}.RepeatNum AND {T}.UserGroupNum;",
         "{id}",
         {"1", "2"},
         "the last sort term is one boolean expression"},
        {"duplicatesOfAll",
         "SELECT {T}.* FROM {T} ORDER BY {T}.UserIDNum, {T}.CompanyIDNum, {T}.ContactIDNum, {T}.DateFrom, "
         "{T}.TimeFrom, {T}.TimeTo, {T}.Subject, {T}.BackColour, {T}.AppointmentText, {T}.ScheduleIDNum AND "
         "{T}.RepeatNum AND {T}.UserGroupNum AND {T}.SeriesNum;",
         "{id}",
         {"2", "1", "3"},
         "Null sorts before every value"},
    };
}

std::vector<Statement> otherStatements()
{
    const std::string search = "SELECT Appointments.* FROM Appointments WHERE ";
    const std::string order = " ORDER BY Appointments.DateFrom, Appointments.TimeFrom;";
    return {
        {"archiveLoad",
         "SELECT archiveTasks.* FROM archiveTasks WHERE oldTaskID=90;",
         "Subject",
         {"Archived"},
         "load of an archived task"},
        {"archivedSave",
         "SELECT archivedTasks.* FROM archivedTasks WHERE archivedTasks.oldTaskID=91;",
         "Subject",
         {"Saved away"},
         "save of an archived task"},
        {"archiveSchedule",
         "SELECT archiveTasks.oldTaskID, archiveTasks.ScheduleIDNum FROM archiveTasks WHERE ScheduleIDNum=9;",
         "oldTaskID",
         {"90"},
         "a task by its schedule entry"},
        {"taskSchedule",
         "SELECT Tasks.TaskID, Tasks.ScheduleIDNum FROM Tasks WHERE ScheduleIDNum=1;",
         "TaskID",
         {"1"},
         "a task by its schedule entry"},
        {"taskCompany",
         "SELECT Tasks.TaskID, Tasks.CompanyIDNum FROM Tasks WHERE TaskID=1;",
         "CompanyIDNum",
         {"1"},
         "the client of a task"},
        {"taskContact",
         "SELECT Tasks.TaskID, Tasks.ContactIDNum FROM Tasks WHERE TaskID=2;",
         "ContactIDNum",
         {"1"},
         "the client of a task"},
        {"appointmentCompany",
         "SELECT Appointments.AppointmentID, Appointments.CompanyIDNum FROM Appointments WHERE AppointmentID=1;",
         "CompanyIDNum",
         {"1"},
         "the client of an appointment"},
        {"logCompany",
         "SELECT CommunicationLog.CommunicationLogID, CommunicationLog.CompanyIDNum FROM CommunicationLog WHERE "
         "CommunicationLogID=1;",
         "CompanyIDNum",
         {"1"},
         "the client of a log entry"},
        {"missingContact",
         "SELECT MissingInfo.MissingInfoID, MissingInfo.ContactIDNum FROM MissingInfo WHERE MissingInfoID=1;",
         "ContactIDNum",
         {"1"},
         "the client of missing information"},
        {"schedule",
         "SELECT Schedule.ScheduleID, Schedule.scheduleNum, Schedule.totalNum FROM Schedule WHERE ScheduleID=1;",
         "totalNum",
         {"111"},
         "the mark of an independent entry"},
        {"scheduleName",
         "SELECT Schedule.ScheduleID, Schedule.ClientNum, Schedule.ScheduleName FROM Schedule WHERE ScheduleID=1;",
         "ScheduleName",
         {"Year end"},
         "the text of a reminder"},
        {"holiday",
         "SELECT Holidays.HolidayDate, Holidays.HolidayType FROM Holidays WHERE Holidays.HolidayDate = #2026-12-25# ;",
         "HolidayType",
         {"1"},
         "a blank before the semicolon"},
        {"workDay",
         "SELECT Holidays.HolidayDate, Holidays.HolidayType FROM Holidays WHERE Holidays.HolidayDate = #2026-12-24# ;",
         "HolidayType",
         {},
         "no holiday"},
        {"reminder",
         "SELECT Reminders.ReminderID, Reminders.UserIDNum, Reminders.AppointmentIDNum, Reminders.ReminderType FROM "
         "Reminders WHERE UserIDNum = 7 AND AppointmentIDNum = 1 AND ReminderType = 3;",
         "ReminderID",
         {"1"},
         "an existing reminder"},
        {"reminderByKey",
         "SELECT Reminders.* FROM Reminders WHERE ReminderID=2;",
         "ReminderType",
         {"5"},
         "changing a reminder"},
        {"reminders", "SELECT Reminders.* FROM Reminders;", "ReminderID", {"1", "2"}, "adding a reminder"},
        {"cancelPopups",
         "SELECT Reminders.TaskIDNum, Reminders.Completed FROM Reminders WHERE TaskIDNum = 1;",
         "Completed",
         {"True"},
         "cancelling reminders"},
        {"reminderStatus",
         "SELECT Reminders.AppointmentIDNum, Reminders.UserIDNum, Reminders.Completed, Reminders.ReminderDate, "
         "Reminders.ReminderTime From Reminders WHERE Reminders.UserIDNum = 7 AND Reminders.AppointmentIDNum = 1",
         "ReminderTime",
         {"08:45:00"},
         "no semicolon at the end"},
        {"notification",
         "SELECT ClientNotification.AppointmentNum, ClientNotification.NotificationSent FROM ClientNotification WHERE "
         "AppointmentNum = 1;",
         "NotificationSent",
         {"True"},
         "cancelling notifications"},
        {"schemes",
         "SELECT ColourSchemes.* FROM ColourSchemes WHERE ColourSchemes.SchemeType = 0 ORDER BY "
         "ColourSchemes.SchemeName;",
         "SchemeName",
         {"Amber", "zebra"},
         "text sorts without regard to case"},
        {"schemeName",
         "SELECT ColourSchemes.ColourSchemeID, ColourSchemes.SchemeName FROM ColourSchemes WHERE "
         "ColourSchemes.ColourSchemeID = 1;",
         "SchemeName",
         {"zebra"},
         "the name of a scheme"},
        {"schemeByKey",
         "SELECT ColourSchemes.ColourSchemeID FROM ColourSchemes WHERE ColourSchemeID=2;",
         "ColourSchemeID",
         {"2"},
         "deleting a scheme"},
        {"noUser",
         "SELECT UserCalendarSettings.* FROM UserCalendarSettings WHERE UserIDNum = -1;",
         "UserIDNum",
         {"-1"},
         "the firm's own settings"},
        {"settings",
         "SELECT UserCalendarSettings.* FROM UserCalendarSettings WHERE UserCalendarSettings.UserIDNum=7;",
         "UserIDNum",
         {},
         "a user without settings"},
        {"general", "SELECT GlobalGeneralSettings.* FROM GlobalGeneralSettings;", "", {}, "settings of the firm"},
        {"outlook", "SELECT OutlookSync.* From OutlookSync;", "AppointmentNum", {"2"}, "links to another calendar"},
        {"searchAll",
         "SELECT Appointments.* FROM Appointments" + order,
         "Subject",
         {"Alpha", "Beta", "gamma"},
         "a search without a filter"},
        {"searchSubject",
         search + "Subject LIKE '%ET%'" + order,
         "Subject",
         {"Beta"},
         "contains, without regard to case"},
        {"searchAnyText",
         search
             + "(Subject LIKE '%50[%]%' OR AppointmentText LIKE '%50[%]%' OR TextBody LIKE '%50[%]%') AND CompanyIDNum "
               "= 1"
             + order,
         "Subject",
         {},
         "a group of OR joined by AND"},
        {"searchClient", search + "ContactIDNum = 1 AND UserIDNum = 7" + order, "Subject", {"Beta"}, "client and user"},
        {"searchColour", search + "SchemeID = 2" + order, "Subject", {"Alpha"}, "a colour scheme"},
        {"searchColours", search + "BackColour = 255 AND ForeColour = 0" + order, "Subject", {}, "single colours"},
        {"searchDay", search + "DateFrom = #2026-04-01#" + order, "Subject", {"gamma"}, "exactly on a day"},
        {"searchFrom", search + "DateFrom >= #2026-04-01#" + order, "Subject", {"gamma"}, "on or after a day"},
        {"searchTo", search + "DateFrom <= #2026-03-31#" + order, "Subject", {"Alpha", "Beta"}, "on or before a day"},
        {"searchSpan",
         search + "DateFrom >= #2026-03-01# AND DateFrom <= #2026-03-31#" + order,
         "Subject",
         {"Alpha", "Beta"},
         "both ends included"},
        {"searchStart",
         search + "TimeFrom = #9:00:00 am#" + order,
         "Subject",
         {"Alpha", "gamma"},
         "a time in lower case"},
        {"searchStartSpan",
         search + "TimeFrom >= #9:30:00 AM# AND TimeFrom <= #1:00:00 PM# AND TimeTo >= #2:00:00 PM#" + order,
         "Subject",
         {"Beta"},
         "start and end time"},
        {"archiveScheduleOfTask",
         "SELECT archiveTasks.oldTaskID, archiveTasks.ScheduleIDNum FROM archiveTasks WHERE oldTaskID=90;",
         "ScheduleIDNum",
         {"9"},
         "the schedule entry of an archived task"},
        {"appointmentContact",
         "SELECT Appointments.AppointmentID, Appointments.ContactIDNum FROM Appointments WHERE AppointmentID=2;",
         "ContactIDNum",
         {"1"},
         "the client of an appointment"},
        {"logContact",
         "SELECT CommunicationLog.CommunicationLogID, CommunicationLog.ContactIDNum FROM CommunicationLog WHERE "
         "CommunicationLogID=1;",
         "CommunicationLogID",
         {"1"},
         "the client of a log entry"},
        {"missingCompany",
         "SELECT MissingInfo.MissingInfoID, MissingInfo.CompanyIDNum FROM MissingInfo WHERE MissingInfoID=1;",
         "MissingInfoID",
         {"1"},
         "the client of missing information"},
        {"cancelPopupsOfAppointment",
         "SELECT Reminders.AppointmentIDNum, Reminders.Completed FROM Reminders WHERE AppointmentIDNum = 1;",
         "Completed",
         {"False"},
         "cancelling reminders"},
        {"reminderOfTask",
         "SELECT Reminders.ReminderID, Reminders.UserIDNum, Reminders.TaskIDNum, Reminders.ReminderType FROM "
         "Reminders WHERE UserIDNum = 7 AND TaskIDNum = 1 AND ReminderType = 5;",
         "ReminderID",
         {"2"},
         "an existing reminder"},
        {"reminderToDelete",
         "SELECT Reminders.* FROM Reminders WHERE UserIDNum = 7 AND AppointmentIDNum = 1 AND ReminderType = 3;",
         "ReminderID",
         {"1"},
         "deleting a reminder"},
        {"reminderStatusOfTask",
         "SELECT Reminders.TaskIDNum, Reminders.UserIDNum, Reminders.Completed, Reminders.ReminderDate, "
         "Reminders.ReminderTime From Reminders WHERE Reminders.UserIDNum = 7 AND Reminders.TaskIDNum = 1",
         "Completed",
         {"True"},
         "the reminder of a task"},
        {"notificationOfTask",
         "SELECT ClientNotification.TaskNum, ClientNotification.NotificationSent FROM ClientNotification WHERE TaskNum "
         "= 1;",
         "TaskNum",
         {},
         "cancelling notifications"},
        {"notificationOfTimeEntry",
         "SELECT ClientNotification.DocketNum, ClientNotification.NotificationSent FROM ClientNotification WHERE "
         "DocketNum = 1;",
         "DocketNum",
         {},
         "cancelling notifications"},
        {"allSchemes", "SELECT ColourSchemes.* FROM ColourSchemes;", "SchemeName", {"zebra", "Amber"}, "in key order"},
        {"schemeColours",
         "SELECT ColourSchemes.* FROM ColourSchemes WHERE ColourSchemeID=1;",
         "SchemeName",
         {"zebra"},
         "the colours of a scheme"},
        {"schemesToChoose",
         "SELECT ColourSchemes.ColourSchemeID, ColourSchemes.SchemeName, ColourSchemes.SchemeType FROM ColourSchemes "
         "WHERE ColourSchemes.SchemeType = 0 ORDER BY ColourSchemes.SchemeName;",
         "ColourSchemeID",
         {"2", "1"},
         "a pick list of schemes"},
        {"firmTemplates",
         "SELECT UserCalendarSettings.* FROM UserCalendarSettings WHERE UserIDNum=-1;",
         "UserIDNum",
         {"-1"},
         "a negative number without blanks"},
        {"userSettings",
         "SELECT UserCalendarSettings.* FROM UserCalendarSettings WHERE UserIDNum = 7;",
         "UserIDNum",
         {},
         "a user without settings"},
        {"conflict",
         "SELECT Appointments.* FROM Appointments WHERE AppointmentID=2",
         "Subject",
         {"Beta"},
         "a row of the list of conflicts"},
    };
}

} // namespace

std::vector<Statement> itemStatements()
{
    std::vector<Statement> all = otherStatements();
    for (const auto& [table, key] :
         {std::pair{"Appointments", "AppointmentID"}, {"Tasks", "TaskID"}, {"Dockets", "DocketID"}})
        for (Statement row : statementsOfKinds()) {
            row.name = table + row.name;
            for (std::string* text : {&row.sql, &row.field})
                *text = replaced(replaced(*text, "{T}", table), "{id}", key);
            all.push_back(row);
        }
    return all;
}

} // namespace qncal::host
