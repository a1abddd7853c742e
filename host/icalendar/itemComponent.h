#pragma once

#include "icalendar/People.h"
#include "icalendar/TimeZones.h"
#include "items/clsCalendarItem.h"

#include <cstdint>
#include <string>
#include <vector>

namespace qncal::host::icalendar {

/// An item as the lines of a component, in the order of writing. Rows of a group that differ in nothing but their
/// owner have the same lines but for `uid`, which holds for the first of them.
struct ItemComponent {
    std::string name;
    /// Empty when it is among the lines.
    std::string uid;
    std::vector<std::string> lines;
    /// The ATTENDEE lines that the item came with.
    std::vector<ContentLine> attendees;
    std::vector<std::string> children;
};

/// Whose row an item is.
struct RowOwner {
    std::int32_t userID = -1;
    std::int32_t series = 0;
};

ItemComponent componentOf(clsCalendarItem& item, const People& people, TimeZones& zones);

/// The component with its users, from BEGIN to END. Several users are attendees.
std::vector<std::string> linesOf(const ItemComponent& component, const std::vector<RowOwner>& owners,
                                 const People& people);

} // namespace qncal::host::icalendar
