#include "items/modDatabaseFunctions.h"

#include "core/RecordSet.h"
#include "core/calendarItemKinds.h"
#include "core/nullText.h"
#include "core/routineScope.h"
#include "items/itemQueries.h"

#include <string_view>

namespace qncal::modDatabaseFunctions {

namespace {

bool isUsableID(std::string_view label, const std::string& id)
{
    return routine(label, false, [&] {
        if (isNullText(id))
            return false;
        const Variant value(id);
        return value.isNumeric() && value.toInteger() > 0;
    });
}

/// How to find the client of a record by the record's id, which is appended to the query.
struct ClientLookup {
    std::string_view label;
    std::string_view query;
    std::string_view column;
};

std::int32_t lookUpClient(const ClientLookup& lookup, std::int32_t id)
{
    return routine(lookup.label, -1, [&] {
        std::int32_t clientID = -1;
        if (isDatabaseConnected())
            readFirstRow(std::string(lookup.query) + std::to_string(id) + ";", lookup.column, clientID);
        return clientID;
    });
}

constexpr std::string_view seriesColumn = "RepeatNum";
constexpr std::string_view groupColumn = "UserGroupNum";

/// The series or group number in an item's row, 0 for none.
std::int32_t readTieNumber(enumLocalCalendarItemType kind, std::int32_t itemID, std::string_view column)
{
    std::int32_t number = 0;
    if (!isKnownKind(kind) || !isDatabaseConnected())
        return number;
    const std::string table(calendarItemKind(kind).tableName);
    const std::string key(calendarItemKind(kind).fieldName);
    readFirstRow("SELECT " + table + "." + key + ", " + table + "." + std::string(column) + " FROM " + table + " WHERE "
                     + key + "=" + std::to_string(itemID) + ";",
                 column, number);
    return number;
}

/// The smallest number from 0 on that no row of the kind's table has in the column.
std::int32_t lowestFreeNumber(enumLocalCalendarItemType kind, std::string_view column)
{
    std::int32_t number = 0;
    if (!isKnownKind(kind) || !isDatabaseConnected())
        return number;
    const std::string table(calendarItemKind(kind).tableName);
    const std::string field = table + "." + std::string(column);
    auto rst = RecordSet::openReadOnly("SELECT " + field + " From " + table + " GROUP BY " + field + " ORDER BY "
                                       + field + ";");
    while (rst.findRecord(column, number))
        ++number;
    rst.close();
    return number;
}

} // namespace

bool validAppointmentID(const std::string& id)
{
    return isUsableID("Vestrel.exe-modDatabaseFunctions-validAppointmentID", id);
}
bool validDocketID(const std::string& id) { return isUsableID("Vestrel.exe-modDatabaseFunctions-validDocketID", id); }
bool validScheduleID(const std::string& id)
{
    return isUsableID("Vestrel.exe-modDatabaseFunctions-validScheduleID", id);
}
bool validTaskID(const std::string& id) { return isUsableID("Vestrel.exe-modDatabaseFunctions-validTaskID", id); }
bool validClientID(const std::string& id) { return isUsableID("Vestrel.exe-modDatabaseFunctions-validClientID", id); }
bool validCompanyID(const std::string& id) { return isUsableID("Vestrel.exe-modDatabaseFunctions-validCompanyID", id); }
bool validContactID(const std::string& id) { return isUsableID("Vestrel.exe-modDatabaseFunctions-validContactID", id); }
bool validFirmID(const std::string& id) { return isUsableID("Vestrel.exe-modDatabaseFunctions-validFirmID", id); }
bool validEmployeeID(const std::string& id)
{
    return isUsableID("Vestrel.exe-modDatabaseFunctions-validEmployeeID", id);
}
bool validColourSchemeID(const std::string& id)
{
    return isUsableID("Vestrel.exe-modDatabaseFunctions-validColourSchemeID", id);
}

std::int32_t getCompanyIDFromTaskID(std::int32_t id)
{
    return lookUpClient({"Vestrel.exe-modDatabaseFunctions-getCompanyIDFromTaskID",
                         "SELECT Tasks.TaskID, Tasks.CompanyIDNum FROM Tasks WHERE TaskID=", "CompanyIDNum"},
                        id);
}

std::int32_t getContactIDFromTaskID(std::int32_t id)
{
    return lookUpClient({"Vestrel.exe-modDatabaseFunctions-getContactIDFromTaskID",
                         "SELECT Tasks.TaskID, Tasks.ContactIDNum FROM Tasks WHERE TaskID=", "ContactIDNum"},
                        id);
}

std::int32_t getCompanyIDFromAppointmentID(std::int32_t id)
{
    return lookUpClient(
        {"Vestrel.exe-modDatabaseFunctions-getCompanyIDFromAppointmentID",
         "SELECT Appointments.AppointmentID, Appointments.CompanyIDNum FROM Appointments WHERE AppointmentID=",
         "CompanyIDNum"},
        id);
}

std::int32_t getContactIDFromAppointmentID(std::int32_t id)
{
    return lookUpClient(
        {"Vestrel.exe-modDatabaseFunctions-getContactIDFromAppointmentID",
         "SELECT Appointments.AppointmentID, Appointments.ContactIDNum FROM Appointments WHERE AppointmentID=",
         "ContactIDNum"},
        id);
}

std::int32_t getCompanyIDFromMissingInfoID(std::int32_t id)
{
    return lookUpClient(
        {"Vestrel.exe-modDatabaseFunctions-getCompanyIDFromMissingInfoID",
         "SELECT MissingInfo.MissingInfoID, MissingInfo.CompanyIDNum FROM MissingInfo WHERE MissingInfoID=",
         "CompanyIDNum"},
        id);
}

std::int32_t getContactIDFromMissingInfoID(std::int32_t id)
{
    return lookUpClient(
        {"Vestrel.exe-modDatabaseFunctions-getContactIDFromMissingInfoID",
         "SELECT MissingInfo.MissingInfoID, MissingInfo.ContactIDNum FROM MissingInfo WHERE MissingInfoID=",
         "ContactIDNum"},
        id);
}

std::int32_t getCompanyIDFromCommunicationLogID(std::int32_t id)
{
    return lookUpClient({"Vestrel.exe-modDatabaseFunctions-getCompanyIDFromCommunicationLogID",
                         "SELECT CommunicationLog.CommunicationLogID, CommunicationLog.CompanyIDNum "
                         "FROM CommunicationLog WHERE CommunicationLogID=",
                         "CompanyIDNum"},
                        id);
}

std::int32_t getContactIDFromCommunicationLogID(std::int32_t id)
{
    return lookUpClient({"Vestrel.exe-modDatabaseFunctions-getContactIDFromCommunicationLogID",
                         "SELECT CommunicationLog.CommunicationLogID, CommunicationLog.ContactIDNum "
                         "FROM CommunicationLog WHERE CommunicationLogID=",
                         "ContactIDNum"},
                        id);
}

bool isAppointmentRepeaterAppointment(enumLocalCalendarItemType kind, std::int32_t itemID)
{
    return routine("Vestrel.exe-modDatabaseFunctions-isAppointmentRepeaterAppointment", false,
                   [&] { return readTieNumber(kind, itemID, seriesColumn) > 0; });
}

std::int32_t getAppointmentRepeaterID(enumLocalCalendarItemType kind, std::int32_t itemID)
{
    return routine("Vestrel.exe-modDatabaseFunctions-getAppointmentRepeaterID", 0,
                   [&] { return readTieNumber(kind, itemID, seriesColumn); });
}

bool isAppointmentPartOfGroupedAppointment(enumLocalCalendarItemType kind, std::int32_t itemID)
{
    return routine("Vestrel.exe-modDatabaseFunctions-isAppointmentPartOfGroupedAppointment", false,
                   [&] { return readTieNumber(kind, itemID, groupColumn) > 0; });
}

std::int32_t getAppointmentGroupID(enumLocalCalendarItemType kind, std::int32_t itemID)
{
    return routine("Vestrel.exe-modDatabaseFunctions-getAppointmentGroupID", 0,
                   [&] { return readTieNumber(kind, itemID, groupColumn); });
}

std::int32_t getAppointmentRepeatUniqueID(enumLocalCalendarItemType kind)
{
    return routine("Vestrel.exe-modDatabaseFunctions-getAppointmentRepeatUniqueID", 0,
                   [&] { return lowestFreeNumber(kind, seriesColumn); });
}

std::int32_t getAppointmentGroupUniqueID(enumLocalCalendarItemType kind)
{
    return routine("Vestrel.exe-modDatabaseFunctions-getAppointmentGroupUniqueID", 0,
                   [&] { return lowestFreeNumber(kind, groupColumn); });
}

bool deleteRepeaterAppointmentForUser(enumLocalCalendarItemType kind, std::int32_t repeatNum, std::int32_t userID)
{
    return routine("Vestrel.exe-modDatabaseFunctions-deleteRepeaterAppointmentForUser", false, [&] {
        if (!isKnownKind(kind) || !isDatabaseConnected())
            return false;
        const std::string table(calendarItemKind(kind).tableName);
        const std::string key(calendarItemKind(kind).fieldName);
        auto rst = RecordSet::openUpdatable("SELECT " + table + "." + key + ", " + table + ".RepeatNum, " + table
                                            + ".UserIDNum FROM " + table + " WHERE " + table
                                            + ".RepeatNum = " + std::to_string(repeatNum) + " AND " + table
                                            + ".UserIDNum = " + std::to_string(userID) + ";");
        bool deleted = rst.hasRecords();
        while (!rst.isEOF()) {
            std::int32_t itemID = -1;
            rst.read(key, itemID);
            const std::int32_t position = rst.position();
            deleteRemindersOfItem(kind, itemID, false);
            deleteClientNotificationsOfItem(kind, itemID, false);
            rst.setPosition(position);
            deleted = rst.deleteRecord() && deleted;
            rst.moveNext();
        }
        rst.close();
        return deleted;
    });
}

bool isThisTaskAssociatedWithIndependentScheduleEntry(std::int32_t taskID)
{
    return routine("Vestrel.exe-modDatabaseFunctions-isThisTaskAssociatedWithIndependentScheduleEntry", false, [&] {
        // Together these mark an entry that stands by itself.
        constexpr std::int32_t independentTotal = 111;
        constexpr std::int32_t independentStep = 5;

        if (!isDatabaseConnected())
            return false;
        std::int32_t scheduleID = -1;
        bool hasSchedule = false;
        auto task = RecordSet::openReadOnly(
            "SELECT Tasks.TaskID, Tasks.ScheduleIDNum FROM Tasks WHERE TaskID=" + std::to_string(taskID) + ";");
        if (task.hasRecords())
            hasSchedule = task.read("ScheduleIDNum", scheduleID);
        task.close();
        if (!hasSchedule)
            return false;

        std::int32_t total = 0;
        std::int32_t step = 0;
        auto schedule = RecordSet::openReadOnly(
            "SELECT Schedule.ScheduleID, Schedule.scheduleNum, Schedule.totalNum FROM Schedule WHERE ScheduleID="
            + std::to_string(scheduleID) + ";");
        if (schedule.hasRecords()) {
            schedule.read("totalNum", total);
            schedule.read("scheduleNum", step);
        }
        schedule.close();
        return total == independentTotal && step == independentStep;
    });
}

bool deleteAppointment(std::int32_t appointmentID, bool keepCompletedReminders)
{
    return routine("Vestrel.exe-modDatabaseFunctions-deleteAppointment", false, [&] {
        if (!isDatabaseConnected())
            return false;
        bool deleted = false;
        auto rst = RecordSet::openUpdatable("SELECT Appointments.AppointmentID FROM Appointments WHERE "
                                            "Appointments.AppointmentID="
                                            + std::to_string(appointmentID) + ";");
        if (rst.hasRecords()) {
            deleteRemindersOfItem(enumLocalCalendarAppointmentItem, appointmentID, keepCompletedReminders);
            const std::int32_t position = rst.position();
            deleteAppointmentClientNotifications(appointmentID, keepCompletedReminders);
            rst.setPosition(position);
            deleted = rst.deleteRecord();
        }
        rst.close();
        return deleted;
    });
}

void deleteAppointmentClientNotifications(std::int32_t appointmentID, bool keepCompleted)
{
    routine("Vestrel.exe-modDatabaseFunctions-deleteAppointmentClientNotifications", [&] {
        if (isDatabaseConnected())
            deleteClientNotificationsOfItem(enumLocalCalendarAppointmentItem, appointmentID, keepCompleted);
    });
}

std::string getColourSchemeNameFromColourSchemeID(std::int32_t schemeID)
{
    return routine("Vestrel.exe-modDatabaseFunctions-getColourSchemeNameFromColourSchemeID", std::string(),
                   [&] { return isDatabaseConnected() ? readColourSchemeName(schemeID) : std::string(); });
}

} // namespace qncal::modDatabaseFunctions
