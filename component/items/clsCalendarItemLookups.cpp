#include "core/RecordSet.h"
#include "core/calendarItemKinds.h"
#include "core/readColour.h"
#include "core/routineScope.h"
#include "items/clsCalendarItem.h"
#include "items/itemQueries.h"
#include "lookups/taskOfSchedule.h"

#include <utility>

namespace qncal {

bool clsCalendarItem::getTaskIDFromScheduleID(std::int32_t scheduleID)
{
    return routine("Vestrel.exe-clsCalendarItem-getTaskIDFromScheduleID", false, [&] {
        if (calendarItemType() != enumLocalCalendarTaskItem || scheduleID < 0 || !isDatabaseConnected())
            return false;
        const auto task = findTaskOfSchedule(kind().tableName(), kind().fieldName(), scheduleID);
        if (!task)
            return false;
        itemID_ = task->taskID;
        record_.archiveStatus = task->archiveStatus;
        return true;
    });
}

std::int32_t clsCalendarItem::getScheduleIDFromTaskID()
{
    return routine("Vestrel.exe-clsCalendarItem-getScheduleIDFromTaskID", -1, [this] {
        std::int32_t scheduleID = -1;
        if (calendarItemType() == enumLocalCalendarUnknownItem || !isDatabaseConnected())
            return scheduleID;
        const auto read = [&](const std::string& table, const std::string& key) {
            return readFirstRow("SELECT " + table + "." + key + ", " + table + ".ScheduleIDNum FROM " + table
                                    + " WHERE " + key + "=" + std::to_string(itemID_) + ";",
                                "ScheduleIDNum", scheduleID);
        };
        const std::string& table = kind().tableName();
        const std::string& key = kind().fieldName();
        // Only tasks have an archive.
        if (!read(table, key) && calendarItemType() == enumLocalCalendarTaskItem)
            read(archiveTable(table), archiveKey(key));
        return scheduleID;
    });
}

void clsCalendarItem::populateColourSchemeColours()
{
    routine("Vestrel.exe-clsCalendarItem-populateColourSchemeColours", [this] {
        if (!isDatabaseConnected())
            return;
        constexpr std::pair<const char*, std::int32_t CalendarItemRecord::*> colours[] = {
            {"TitleBackColour", &CalendarItemRecord::titleBackColour},
            {"TitleForeColour", &CalendarItemRecord::titleForeColour},
            {"BackColour", &CalendarItemRecord::backColour},
            {"ForeColour", &CalendarItemRecord::foreColour},
        };
        auto rst = RecordSet::openReadOnly("SELECT ColourSchemes.* FROM ColourSchemes WHERE ColourSchemeID="
                                           + std::to_string(record_.colourSchemeID) + ";");
        if (rst.hasRecords()) {
            for (const auto& [column, colour] : colours)
                readColour(rst, column, record_.*colour);
        }
        rst.close();
    });
}

std::string clsCalendarItem::getColourSchemeNameFromColourSchemeID()
{
    return routine("Vestrel.exe-clsCalendarItem-getColourSchemeNameFromColourSchemeID", std::string(), [this] {
        return isDatabaseConnected() ? readColourSchemeName(record_.colourSchemeID) : std::string();
    });
}

} // namespace qncal
