#include "templates/MergeRecordSets.h"

#include "core/ServiceRegistry.h"
#include "lookups/mainBusinessQuery.h"
#include "templates/mergeFieldCodes.h"
#include "utilities/RunTimeError.h"

namespace qncal {

namespace {

/// A record that is one row of one table.
struct RowSource {
    MergeRecord record;
    std::string_view table;
    /// The five custom columns get names of their own, with this in front; empty where they do not.
    std::string_view customPrefix;
    /// The column that holds the id.
    std::string_view keyColumn;
    std::int32_t MergeItemIDs::*id;
};

constexpr RowSource rowSources[] = {
    {MergeRecord::company, "Companies", "Company", "Companies.CompanyID", &MergeItemIDs::company},
    {MergeRecord::companyNotes, "CompaniesNotes", "", "CompaniesNotes.CompanyNum", &MergeItemIDs::company},
    {MergeRecord::contact, "Contacts", "Contact", "Contacts.ContactID", &MergeItemIDs::contact},
    {MergeRecord::contactNotes, "ContactsNotes", "", "ContactsNotes.ContactNum", &MergeItemIDs::contact},
    {MergeRecord::firm, "AccountantFirmInfo", "Firm", "CompanyID", &MergeItemIDs::firm},
    {MergeRecord::employee, "AccountantEmployeeInfo", "", "ContactID", &MergeItemIDs::user},
    {MergeRecord::appointment, "Appointments", "Appt", "Appointments.AppointmentID", &MergeItemIDs::appointment},
    {MergeRecord::timeEntry, "Dockets", "Docket", "Dockets.DocketID", &MergeItemIDs::docket},
};

/// All clients, whatever their state, by company name.
constexpr std::int16_t anyActiveStatus = 3;
constexpr std::int32_t sortByCompanyName = 1;

std::string customColumns(std::string_view table, std::string_view prefix)
{
    std::string columns;
    for (char number = '1'; !prefix.empty() && number <= '5'; ++number) {
        columns.append(", ").append(table).append(".Custom").append(1, number);
        columns.append(" AS ").append(prefix).append("Custom").append(1, number);
    }
    return columns;
}

std::string selectAll(std::string_view table, std::string_view customPrefix)
{
    return std::string("SELECT ").append(table).append(".*").append(customColumns(table, customPrefix));
}

bool isBatch(std::int32_t listUse) { return listUse == mergeListUse::batch; }

/// The end of a query: the row with the id, or in a batch all rows.
std::string whereRow(std::string_view column, std::int32_t id, std::int32_t listUse)
{
    if (isBatch(listUse))
        return ";";
    return std::string(" WHERE ").append(column).append("=").append(std::to_string(id)).append(";");
}

} // namespace

void MergeRecordSets::openAll(const MergeItemIDs& ids, std::int32_t listUse)
{
    closeAll();
    if (!isDatabaseConnected())
        return;
    if (ids.company >= 0) {
        openRow(MergeRecord::mainBusiness, ids, listUse);
        openRow(MergeRecord::company, ids, listUse);
        openSoftware("CompanyIDNum", ids.company, listUse);
    }
    if (ids.contact >= 0) {
        openRow(MergeRecord::contact, ids, listUse);
        if (!isOpen(MergeRecord::software))
            openSoftware("ContactIDNum", ids.contact, listUse);
    }
    if (ids.firm >= 0)
        openRow(MergeRecord::firm, ids, listUse);
    if (ids.user >= 0)
        openRow(MergeRecord::employee, ids, listUse);
    if (ids.appointment >= 0)
        openRow(MergeRecord::appointment, ids, listUse);
    if (ids.docket >= 0)
        openRow(MergeRecord::timeEntry, ids, listUse);
    if (ids.task >= 0)
        openRow(MergeRecord::task, ids, listUse);
}

void MergeRecordSets::openIfClosed(MergeRecord record, const MergeItemIDs& ids, std::int32_t listUse)
{
    if (isOpen(record))
        return;
    openRow(record, ids, listUse);
    if (isOpen(MergeRecord::software))
        return;
    if (record == MergeRecord::company)
        openSoftware("CompanyIDNum", ids.company, listUse);
    else if (record == MergeRecord::contact)
        openSoftware("ContactIDNum", ids.contact, listUse);
}

bool MergeRecordSets::isOpen(MergeRecord record) const
{
    const auto& entry = records_[static_cast<std::size_t>(record)];
    return entry && statement([&] { return databaseService().isRecordsetOpen(entry->handle()); });
}

RecordSet& MergeRecordSets::at(MergeRecord record)
{
    auto& entry = records_[static_cast<std::size_t>(record)];
    if (!entry)
        throw RunTimeError(errorNumber::objectNotSet, "A record of the merge has not been opened");
    return *entry;
}

void MergeRecordSets::closeAll()
{
    for (std::size_t i = 0; i < recordCount; ++i) {
        if (isOpen(static_cast<MergeRecord>(i)))
            records_[i]->close();
    }
}

void MergeRecordSets::open(MergeRecord record, const std::string& sql, std::int32_t listUse)
{
    records_[static_cast<std::size_t>(record)] =
        listUse == mergeListUse::writeBack ? RecordSet::openUpdatable(sql) : RecordSet::openReadOnly(sql);
}

void MergeRecordSets::openRow(MergeRecord record, const MergeItemIDs& ids, std::int32_t listUse)
{
    if (record == MergeRecord::mainBusiness) {
        open(record,
             isBatch(listUse) ? modFormatAddresses::getMainBusinessSQLString(false, anyActiveStatus, sortByCompanyName)
                              : modFormatAddresses::getMainBusinessSQLStringForCompany(ids.company),
             listUse);
        return;
    }
    if (record == MergeRecord::task) {
        openTask(ids.task, listUse);
        return;
    }
    if (record == MergeRecord::software) {
        openSoftware("CompanyIDNum", ids.company, listUse);
        return;
    }
    for (const RowSource& source : rowSources) {
        if (source.record == record)
            open(record,
                 selectAll(source.table, source.customPrefix)
                     .append(" From ")
                     .append(source.table)
                     .append(whereRow(source.keyColumn, ids.*source.id, listUse)),
                 listUse);
    }
}

/// A task with its schedule row, or alone where it hangs on none.
void MergeRecordSets::openTask(std::int32_t taskID, std::int32_t listUse)
{
    const std::string where = whereRow("Tasks.TaskID", taskID, listUse);
    open(MergeRecord::task,
         "SELECT Schedule.*, Tasks.*" + customColumns("Schedule", "Schedule") + customColumns("Tasks", "Task")
             + " FROM Schedule INNER JOIN Tasks ON Schedule.ScheduleID = Tasks.ScheduleIDNum" + where,
         listUse);
    if (at(MergeRecord::task).hasRecords())
        return;
    at(MergeRecord::task).close();
    open(MergeRecord::task, selectAll("Tasks", "Task") + " FROM Tasks" + where, listUse);
}

void MergeRecordSets::openSoftware(std::string_view ownerColumn, std::int32_t ownerID, std::int32_t listUse)
{
    std::string sql = "SELECT SoftwareInfo.* From SoftwareInfo";
    if (!isBatch(listUse))
        sql.append(" WHERE SoftwareInfo.DefaultSoftware=True AND SoftwareInfo.")
            .append(ownerColumn)
            .append("=")
            .append(std::to_string(ownerID));
    open(MergeRecord::software, sql.append(";"), listUse);
}

} // namespace qncal
