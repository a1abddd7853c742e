#pragma once

#include "items/clsCalendarItem.h"
#include "support/ComponentTest.h"

#include <string>
#include <vector>

namespace qncal::test {

/// An item, a company and a contact in the host's lists, and what the item's two events told.
class ItemTextTest : public ComponentTest {
protected:
    ItemTextTest()
    {
        clientDropDown->companies[4] = {{"CompanyName", "Maple Leaf"}, {"Email", "info@maple.example"}};
        clientDropDown->contacts[6] = {{"DisplayName", "Ann Reed"}, {"FirstName", "Ann"}};
        item.refreshedAppointmentText.subscribe([this](std::string& text) { displayEvents.push_back(text); });
        item.refreshedTitleBarText.subscribe([this](std::string& text) { titleEvents.push_back(text); });
    }
    /// An item with a subject, a day and two times, not saved.
    void fill(enumLocalCalendarItemType kind)
    {
        item.calendarItemType(kind);
        item.Subject("Budget");
        item.DateFrom(Date::of(2026, 3, 7));
        item.TimeFrom(Date::timeOf(9, 30));
        item.TimeTo(Date::timeOf(11));
    }
    /// The same with a row behind it.
    void fillSaved(enumLocalCalendarItemType kind, std::string_view table)
    {
        fill(kind);
        item.itemID(addRow(table, {{"Subject", "Budget"}, {"TimeFrom", "09:30:00"}, {"TimeTo", "11:00:00"}}));
    }
    std::string displayed(std::string itemTemplate)
    {
        item.DisplayTextTemplate(std::move(itemTemplate));
        return item.createDisplayTextByID();
    }

    clsCalendarItem item;
    std::vector<std::string> displayEvents;
    std::vector<std::string> titleEvents;
};

} // namespace qncal::test
