#include "items/clsCalendarItem.h"
#include "services/HostEnvironment.h"
#include "store/SqliteDatabase.h"
#include "utilities/dateText.h"

#include <iostream>

int main()
{
    const qncal::host::HostEnvironment host({.database = qncal::host::SqliteDatabase::openInMemory()});

    qncal::clsCalendarItem meeting;
    meeting.calendarItemType(qncal::enumLocalCalendarAppointmentItem);
    meeting.addNewItem();
    meeting.Subject("Year end with Maple Leaf Bakery");
    meeting.DateFrom(qncal::Date::of(2026, 3, 31));
    meeting.TimeFrom(qncal::Date::timeOf(10, 30));
    meeting.TimeTo(qncal::Date::timeOf(12, 0));
    meeting.saveCalendarItem();

    qncal::clsCalendarItem stored;
    stored.calendarItemType(qncal::enumLocalCalendarAppointmentItem);
    stored.itemID(meeting.itemID());
    if (!stored.loadCalendarItem())
        return 1;
    std::cout << qncal::formatDate(stored.DateFrom(), "dddd, mmm d, ")
              << qncal::formatDate(stored.TimeFrom(), "h:nn am/pm") << ", " << stored.timeduration()
              << " hours: " << stored.Subject() << '\n';
}
