#include "controls/mousePointer.h"
#include "core/RecordSet.h"
#include "core/calendarItemKinds.h"
#include "core/nullText.h"
#include "core/routineScope.h"
#include "items/calendarItemColumns.h"
#include "items/clsCalendarItem.h"

#include <utility>

// Load, save and delete. The mouse pointer is restored on every normal way out, not after a fault: that is meant.

namespace qncal {

namespace {

std::string selectAll(const std::string& table) { return "SELECT " + table + ".* FROM " + table; }

std::string selectByKey(const std::string& table, const std::string& key, std::int32_t id)
{
    return selectAll(table) + " WHERE " + table + "." + key + "=" + std::to_string(id) + ";";
}

template <class... Lambdas>
struct Overloaded : Lambdas... {
    using Lambdas::operator()...;
};
template <class... Lambdas>
Overloaded(Lambdas...) -> Overloaded<Lambdas...>;

void readColumn(const RecordSet& row, const CalendarItemColumn& column, CalendarItemRecord& record)
{
    std::visit(Overloaded{
                   [&](DayPart part) {
                       if (row.read(column.name, record.*part.field))
                           record.*part.field = (record.*part.field).dateOnly();
                   },
                   [&](TimePart part) {
                       if (row.read(column.name, record.*part.field))
                           record.*part.field = (record.*part.field).timeOnly();
                   },
                   [&](auto field) { row.read(column.name, record.*field); },
               },
               column.field);
}

void writeColumn(RecordSet& row, const CalendarItemColumn& column, const CalendarItemRecord& record)
{
    std::visit(Overloaded{
                   [&](DayPart part) { row.write(column.name, (record.*part.field).dateOnly()); },
                   [&](TimePart part) { row.write(column.name, (record.*part.field).timeOnly()); },
                   [&](auto field) { row.write(column.name, record.*field); },
               },
               column.field);
}

} // namespace

bool clsCalendarItem::loadCalendarItem(std::int32_t tempRST)
{
    return routine("Vestrel.exe-clsCalendarItem-loadCalendarItem", false, [&] {
        const MousePointer pointer = mousePointer();
        mousePointer(MousePointer::hourglass);
        resetAllInformation();
        bool loaded = false;
        if (calendarItemType() != enumLocalCalendarUnknownItem && isDatabaseConnected()) {
            if (auto row = findRowToLoad(tempRST)) {
                readColumns(*row);
                isDirty_ = false;
                isSaved_ = true;
                loaded = true;
                row->close();
            }
        }
        mousePointer(pointer);
        return loaded;
    });
}

std::optional<RecordSet> clsCalendarItem::findRowToLoad(std::int32_t tempRST)
{
    if (tempRST > 0) {
        auto row = RecordSet::borrow(tempRST);
        if (itemID_ < 0)
            row.read(kind().fieldName(), itemID_);
        else if (!row.findRecord(kind().fieldName(), itemID_))
            return openRowToLoad();
        if (itemID_ >= 0)
            return row;
    }
    return openRowToLoad();
}

std::optional<RecordSet> clsCalendarItem::openRowToLoad()
{
    const std::string& table = kind().tableName();
    const std::string& key = kind().fieldName();
    const bool fromArchive =
        calendarItemType() == enumLocalCalendarTaskItem && record_.archiveStatus == CalendarItemArchiveStatus_Archived;
    auto row = RecordSet::openReadOnly(fromArchive ? selectAll(archiveTable(table)) + " WHERE " + archiveKey(key) + "="
                                                         + std::to_string(itemID_) + ";"
                                                   : selectByKey(table, key, itemID_));
    if (!row.hasRecords()) {
        row.close();
        return std::nullopt;
    }
    if (!fromArchive)
        record_.archiveStatus = CalendarItemArchiveStatus_Normal;
    return row;
}

void clsCalendarItem::readColumns(const RecordSet& row)
{
    const bool isTask = calendarItemType() == enumLocalCalendarTaskItem;
    for (const CalendarItemColumn& column : calendarItemColumns) {
        if (column.tasksOnly && !isTask)
            continue;
        readColumn(row, column, record_);
        if (column.name == "CompanyIDNum" && record_.companyIDNum >= 0)
            record_.clientType = static_cast<std::int32_t>(ClientKind::company);
        else if (column.name == "ContactIDNum" && record_.contactIDNum >= 0)
            record_.clientType = static_cast<std::int32_t>(ClientKind::contact);
        else if (column.name == "TimeTo")
            calculateTimeDuration();
        else if (column.name == "TitleText" && record_.titleText == " 0 ")
            record_.titleText.clear();
    }
}

bool clsCalendarItem::checkOKToSave()
{
    return routine("Vestrel.exe-clsCalendarItem-checkOKToSave", false, [] { return true; });
}

bool clsCalendarItem::saveCalendarItem(std::int32_t tempRST)
{
    return routine("Vestrel.exe-clsCalendarItem-saveCalendarItem", false, [&] {
        if (!isDatabaseConnected())
            return false;
        const MousePointer pointer = mousePointer();
        bool saved = false;
        if (checkOKToSave()) {
            mousePointer(MousePointer::hourglass);
            renderBothTexts();
            bool isNewRow = false;
            auto row = tempRST < 0 ? openRowToSave(isNewRow) : RecordSet::borrow(tempRST);
            writeColumns(row);
            isSaved_ = true;
            saved = true;
            if (isNewRow)
                row.update();
            row.close();
            updateRemindersAndNotifications();
            isDirty_ = false;
        }
        mousePointer(pointer);
        return saved;
    });
}

RecordSet clsCalendarItem::openRowToSave(bool& isNewRow)
{
    std::string table = kind().tableName();
    std::string key = kind().fieldName();
    if (calendarItemType() == enumLocalCalendarTaskItem
        && record_.archiveStatus == CalendarItemArchiveStatus_Archived) {
        table = archivedTable(table);
        key = archiveKey(key);
    }
    if (itemID_ > 0) {
        auto row = RecordSet::openUpdatable(selectByKey(table, key, itemID_));
        if (row.hasRecords())
            return row;
        row.close();
    }
    auto row = RecordSet::openUpdatable(selectAll(table) + ";");
    row.addNew();
    row.writeNew("Subject", "New " + kind().TypeName());
    row.read(key, itemID_);
    isNewRow = true;
    return row;
}

void clsCalendarItem::writeColumns(RecordSet& row)
{
    const bool isTask = calendarItemType() == enumLocalCalendarTaskItem;
    const auto write = [&](std::span<const std::span<const CalendarItemColumn>> stretches) {
        for (const auto& stretch : stretches)
            for (const CalendarItemColumn& column : stretch)
                if (isTask || !column.tasksOnly)
                    writeColumn(row, column, record_);
    };
    write(savedFirst);
    verifyStartAndEndTime();
    write(savedWithTheTimes);
    record_.clientNotifiedFlag = record_.notifyType != 0;
    record_.notesFlag = !isNullText(record_.notesRichText);
    write(savedLast);
}

void clsCalendarItem::updateRemindersAndNotifications()
{
    if (calendarItemType() != enumLocalCalendarAppointmentItem)
        return;
    if (record_.remind)
        schedulePopupReminderForItem();
    else
        checkToCancelPopups(true);
    if (record_.notifyType != 0)
        scheduleAutoNotifications();
    else
        checkToCancelAutoNotifications(true);
}

bool clsCalendarItem::deleteCalendarItem()
{
    return routine("Vestrel.exe-clsCalendarItem-deleteCalendarItem", false, [this] {
        if (itemID_ < 0 || !isDatabaseConnected())
            return false;
        const std::string& table = kind().tableName();
        const std::string& key = kind().fieldName();
        bool deleted = false;
        auto row = RecordSet::openUpdatable("SELECT " + table + "." + key + " FROM " + table + " WHERE " + table + "."
                                            + key + "=" + std::to_string(itemID_) + ";");
        if (row.hasRecords()) {
            checkToCancelPopups(false);
            checkToCancelAutoNotifications(false);
            deleted = row.deleteRecord();
        }
        row.close();
        return deleted;
    });
}

} // namespace qncal
