#include "reminders/modPopUpReminders.h"

#include "core/RecordSet.h"
#include "core/ServiceRegistry.h"
#include "items/itemQueries.h"
#include "items/modDatabaseFunctions.h"
#include "reminders/appointmentReminderText.h"
#include "reminders/reminderPeriods.h"
#include "utilities/dateText.h"

#include <array>
#include <string_view>

namespace qncal::modPopUpReminders {

using namespace modDatabaseFunctions;

namespace {

/// The column by which a reminder of a type is found again, and how a record tells its client.
struct RemindedRecord {
    std::int32_t type;
    std::string_view column;
    std::int32_t ReminderIDs::*id;
    std::int32_t (*companyOf)(std::int32_t id) = nullptr;
    std::int32_t (*contactOf)(std::int32_t id) = nullptr;
};

constexpr std::array<RemindedRecord, 7> remindedRecords{{
    {reminderType::appointment, "AppointmentIDNum", &ReminderIDs::appointmentOrScheduleID,
     getCompanyIDFromAppointmentID, getContactIDFromAppointmentID},
    {reminderType::toDo, "ToDoIDNum", &ReminderIDs::toDoID},
    {reminderType::task, "TaskIDNum", &ReminderIDs::taskID, getCompanyIDFromTaskID, getContactIDFromTaskID},
    {reminderType::missingInfo, "MissingInfoIDNum", &ReminderIDs::missingInfoID, getCompanyIDFromMissingInfoID,
     getContactIDFromMissingInfoID},
    {reminderType::communicationLog, "CommunicationLogIDNum", &ReminderIDs::communicationLogID,
     getCompanyIDFromCommunicationLogID, getContactIDFromCommunicationLogID},
    {reminderType::companyProject, "CompanyProjectIDNum", &ReminderIDs::companyProjectID},
    {reminderType::companyProjectStep, "CompanyProjectStepIDNum", &ReminderIDs::companyProjectStepID},
}};

/// An id that is stored whenever it is there, whatever the type.
struct FurtherID {
    std::string_view column;
    std::int32_t ReminderIDs::*id;
};

constexpr FurtherID furtherIDs[] = {
    {"CommunicationLogIDNum", &ReminderIDs::communicationLogID},
    {"MissingInfoIDNum", &ReminderIDs::missingInfoID},
    {"CompanyProjectIDNum", &ReminderIDs::companyProjectID},
    {"CompanyProjectStepIDNum", &ReminderIDs::companyProjectStepID},
};

/// None for a type that hangs on nothing.
const RemindedRecord* recordOfType(std::int32_t type)
{
    for (const RemindedRecord& record : remindedRecords)
        if (record.type == type)
            return &record;
    return nullptr;
}

void scheduleToTask(std::int32_t& type, ReminderIDs& ids)
{
    if (type != reminderType::schedule)
        return;
    type = reminderType::task;
    ids.taskID = getTaskIDFromScheduleID(ids.appointmentOrScheduleID);
}

void fillInClient(const RemindedRecord* record, ReminderIDs& ids)
{
    if (ids.companyID >= 0 || ids.contactID >= 0 || !record || !record->companyOf)
        return;
    ids.companyID = record->companyOf(ids.*record->id);
    ids.contactID = record->contactOf(ids.*record->id);
}

std::string whereRecord(const RemindedRecord& record, std::int32_t type, std::int32_t userID, const ReminderIDs& ids)
{
    return " FROM Reminders WHERE UserIDNum = " + std::to_string(userID) + " AND " + std::string(record.column) + " = "
           + std::to_string(ids.*record.id) + " AND ReminderType = " + std::to_string(type) + ";";
}

/// The reminder that stands already, -1 for none.
std::int32_t findReminder(const RemindedRecord* record, std::int32_t type, std::int32_t userID, const ReminderIDs& ids)
{
    std::int32_t reminderID = -1;
    if (record)
        readFirstRow("SELECT Reminders.ReminderID, Reminders.UserIDNum, Reminders." + std::string(record->column)
                         + ", Reminders.ReminderType" + whereRecord(*record, type, userID, ids),
                     "ReminderID", reminderID);
    return reminderID;
}

/// Hands every column of a reminder with its value to the function.
template <class Write>
void writeColumns(Write write, std::int32_t type, std::int32_t userID, Date date, Date time, const std::string& text,
                  const ReminderIDs& ids)
{
    write("UserIDNum", userID);
    if (ids.companyID >= 0)
        write("CompanyIDNum", ids.companyID);
    if (ids.contactID >= 0)
        write("ContactIDNum", ids.contactID);
    if (type == reminderType::appointment)
        write("AppointmentIDNum", ids.appointmentOrScheduleID);
    if (type == reminderType::task)
        write("TaskIDNum", ids.taskID);
    for (const FurtherID& further : furtherIDs)
        if (ids.*further.id >= 0)
            write(further.column, ids.*further.id);
    write("ReminderType", type);
    write("ReminderDate", date.dateOnly());
    write("ReminderTime", formatDate(time, "hh:nn am/pm"));
    write("TextBody", text);
}

/// A schedule belongs to a row of `Clients`, which names the company.
std::string clientNameOfSchedule(std::int32_t clientNum)
{
    std::int32_t companyID = -1;
    readFirstRow(
        "SELECT Clients.ClientID, Clients.CompanyIDNum FROM Clients WHERE ClientID=" + std::to_string(clientNum) + ";",
        "CompanyIDNum", companyID);
    return clientName(companyID, -1);
}

/// Most tasks have no schedule: the sentence then says what it can.
std::string taskText(std::int32_t scheduleID, std::string period)
{
    auto schedule = RecordSet::openReadOnly("SELECT Schedule.ScheduleID, Schedule.ClientNum, Schedule.ScheduleName "
                                            "FROM Schedule WHERE ScheduleID="
                                            + std::to_string(scheduleID) + ";");
    std::string name;
    std::int32_t clientNum = -1;
    if (schedule.hasRecords()) {
        schedule.read("ScheduleName", name);
        schedule.read("ClientNum", clientNum);
    }
    schedule.close();
    if (period.empty())
        readFirstRow("SELECT Tasks.ScheduleIDNum, Tasks.ReminderPeriod FROM Tasks WHERE ScheduleIDNum="
                         + std::to_string(scheduleID) + ";",
                     "ReminderPeriod", period);
    const std::string client = clientNum < 0 ? std::string() : clientNameOfSchedule(clientNum);
    return "Your upcoming " + name + (client.empty() ? " task" : " task for " + client)
           + std::string(reminderPeriod(period).taskWording);
}

std::string appointmentText(std::int32_t appointmentID)
{
    auto row = RecordSet::openReadOnly("SELECT Appointments.AppointmentID, Appointments.Subject, "
                                       "Appointments.CompanyIDNum, Appointments.ContactIDNum, "
                                       "Appointments.ReminderPeriod, Appointments.TimeFrom FROM Appointments "
                                       "WHERE AppointmentID="
                                       + std::to_string(appointmentID) + ";");
    std::string subject;
    std::string period;
    std::int32_t companyID = -1;
    std::int32_t contactID = -1;
    Date timeFrom;
    if (row.hasRecords()) {
        row.read("Subject", subject);
        row.read("CompanyIDNum", companyID);
        row.read("ContactIDNum", contactID);
        row.read("ReminderPeriod", period);
        row.read("TimeFrom", timeFrom);
    }
    row.close();
    return appointmentReminderText(subject, clientName(companyID, contactID), reminderPeriod(period).appointmentWording,
                                   timeFrom);
}

} // namespace

bool createPopUpReminder(std::int32_t& type, std::int32_t userID, Date date, Date time, const std::string& text,
                         ReminderIDs& ids)
{
    return routine("Vestrel.exe-modPopUpReminders-createPopUpReminder", false, [&] {
        scheduleToTask(type, ids);
        const RemindedRecord* record = recordOfType(type);
        fillInClient(record, ids);
        if (!isDatabaseConnected())
            return false;
        const std::int32_t reminderID = findReminder(record, type, userID, ids);
        if (reminderID >= 0) {
            auto row = RecordSet::openUpdatable(
                "SELECT Reminders.* FROM Reminders WHERE ReminderID=" + std::to_string(reminderID) + ";");
            writeColumns([&](std::string_view column, const auto& value) { row.write(column, value); }, type, userID,
                         date, time, text, ids);
            row.close();
        } else {
            auto rows = RecordSet::openUpdatable("SELECT Reminders.* FROM Reminders;");
            rows.addNew();
            writeColumns([&](std::string_view column, const auto& value) { rows.writeNew(column, value); }, type,
                         userID, date, time, text, ids);
            rows.update();
            rows.close();
        }
        return true;
    });
}

bool deletePopUpReminder(std::int32_t& type, std::int32_t userID, ReminderIDs& ids)
{
    return routine("Vestrel.exe-modPopUpReminders-deletePopUpReminder", false, [&] {
        scheduleToTask(type, ids);
        const RemindedRecord* record = recordOfType(type);
        if (!record || !isDatabaseConnected())
            return false;
        auto rows = RecordSet::openUpdatable("SELECT Reminders.*" + whereRecord(*record, type, userID, ids));
        bool deleted = rows.hasRecords();
        for (; !rows.isEOF(); rows.moveNext())
            deleted = rows.deleteRecord() && deleted;
        rows.close();
        return deleted;
    });
}

void getPopUpReminderTime(const std::string& period, Date& reminderDate, Date& reminderTime)
{
    routine("Vestrel.exe-modPopUpReminders-getPopUpReminderTime", [&] {
        constexpr std::int64_t secondsPerMinute = 60;
        const Date itemDate = reminderDate.dateOnly();
        const CivilTime start = reminderTime.civilTime();
        const Date moment = Date::of(itemDate.civilDate(), {start.hour, start.minute, 0})
                                .addSeconds(-secondsPerMinute * reminderPeriod(period).minutes);
        reminderDate = moment.dateOnly();
        reminderTime = moment.timeOnly();
        if (reminderDate < itemDate)
            reminderDate = statement([&] { return dateTimeService().adjustReminderDate(reminderDate); });
    });
}

std::string getPopUpReminderText(std::int32_t type, std::int32_t id, const std::string& period)
{
    return routine("Vestrel.exe-modPopUpReminders-getPopUpReminderText", std::string(), [&] {
        if (!isDatabaseConnected())
            return std::string();
        if (type == reminderType::appointment)
            return appointmentText(id);
        if (type == reminderType::task || type == reminderType::schedule)
            return taskText(id, period);
        return std::string();
    });
}

std::string clientName(std::int32_t companyID, std::int32_t contactID)
{
    if (companyID >= 0)
        return statement([&] { return clientDropDownService().getCompanyName(companyID); });
    if (contactID >= 0)
        return statement([&] { return clientDropDownService().getContactName(contactID); });
    return {};
}

} // namespace qncal::modPopUpReminders
