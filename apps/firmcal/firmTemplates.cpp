#include "firmcal/firmTemplates.h"

#include "core/calendarItemKinds.h"
#include "core/clsCalendarItemType.h"
#include "services/Rows.h"

namespace qncal::firmcal {

std::string firmTemplate(enumLocalCalendarItemType kind, ItemText which)
{
    clsCalendarItemType type;
    type.calendarItemType(kind);
    return which == ItemText::titleBar ? type.CalendarItemTitleBarTemplateText()
                                       : type.CalendarItemDisplayTemplateText();
}

void storeFirmTemplate(DatabaseService& database, enumLocalCalendarItemType kind, ItemText which,
                       const std::string& text)
{
    const std::string column =
        std::string(calendarItemKind(kind).tableText) + (which == ItemText::titleBar ? "TitleBarText" : "Template");
    host::Rows firm =
        host::Rows::change(database, "SELECT UserCalendarSettings.* FROM UserCalendarSettings WHERE UserIDNum = -1;");
    if (firm.isEmpty())
        host::addRow(database, "UserCalendarSettings", {{"UserIDNum", "-1"}, {column, text}});
    else
        firm.set(column, text);
}

std::string defaultTemplate(enumLocalCalendarItemType kind, ItemText which)
{
    return which == ItemText::titleBar ? std::string() : std::string(calendarItemKind(kind).defaultDisplayTemplate);
}

} // namespace qncal::firmcal
