#include "items/itemQueries.h"

#include "core/calendarItemKinds.h"

namespace qncal {

void deleteRows(std::string_view sql, std::string_view markColumn, bool keepMarked)
{
    auto rst = RecordSet::openUpdatable(sql);
    if (rst.hasRecords()) {
        while (!rst.isEOF()) {
            bool marked = false;
            rst.read(markColumn, marked);
            if (!(keepMarked && marked))
                rst.deleteRecord();
            rst.moveNext();
        }
    }
    rst.close();
}

void deleteRemindersOfItem(enumLocalCalendarItemType kind, std::int32_t itemID, bool keepCompleted)
{
    if (kind != enumLocalCalendarAppointmentItem && kind != enumLocalCalendarTaskItem)
        return;
    const std::string column = std::string(calendarItemKind(kind).fieldName) + "Num";
    deleteRows("SELECT Reminders." + column + ", Reminders.Completed FROM Reminders WHERE " + column + " = "
                   + std::to_string(itemID) + ";",
               "Completed", keepCompleted);
}

void deleteClientNotificationsOfItem(enumLocalCalendarItemType kind, std::int32_t itemID, bool keepSent)
{
    if (!isKnownKind(kind))
        return;
    const std::string column(calendarItemKind(kind).notificationColumn);
    deleteRows("SELECT ClientNotification." + column
                   + ", ClientNotification.NotificationSent FROM ClientNotification WHERE " + column + " = "
                   + std::to_string(itemID) + ";",
               "NotificationSent", keepSent);
}

std::string readColourSchemeName(std::int32_t schemeID)
{
    std::string name;
    readFirstRow("SELECT ColourSchemes.ColourSchemeID, ColourSchemes.SchemeName FROM ColourSchemes "
                 "WHERE ColourSchemes.ColourSchemeID = "
                     + std::to_string(schemeID) + ";",
                 "SchemeName", name);
    return name;
}

} // namespace qncal
