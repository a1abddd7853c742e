#include "core/routineScope.h"
#include "items/clsCalendarItem.h"

// Where the item meets the merge field engine: each routine here renders one text of the item from its template.

namespace qncal {

std::string clsCalendarItem::createTitleBarTextByID()
{
    return routine("Vestrel.exe-clsCalendarItem-createTitleBarTextByID", std::string(), [this] {
        raiseRefreshedTitleBarText(record_.titleText);
        return record_.titleText;
    });
}

std::string clsCalendarItem::createDisplayTextByID()
{
    return routine("Vestrel.exe-clsCalendarItem-createDisplayTextByID", std::string(), [this] {
        raiseRefreshedAppointmentText(record_.appointmentText);
        return record_.appointmentText;
    });
}

} // namespace qncal
