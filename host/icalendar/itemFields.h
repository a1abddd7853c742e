#pragma once

#include "items/clsCalendarItem.h"

#include <span>
#include <string>
#include <string_view>

namespace qncal::host::icalendar {

/// The fields of an item that iCalendar has no property for. In a file each is an X- property of its own, left out
/// where it holds what a new item holds.
struct ItemField {
    /// "X-QNCAL-HIDEINTASKS"
    std::string_view property;
    std::string (*get)(clsCalendarItem& item);
    /// A text that is no such value is left alone: False.
    bool (*set)(clsCalendarItem& item, const std::string& text);
    /// Written also as a new item has it, when the item has a colour scheme: the scheme may have other colours.
    bool isColour = false;
};

/// In the order in which they are to be set.
std::span<const ItemField> itemFields();
const ItemField* findItemField(std::string_view property);

/// The other properties that this program adds.
inline constexpr std::string_view ownPrefix = "X-QNCAL-";
inline constexpr std::string_view kindProperty = "X-QNCAL-KIND";       ///< DOCKET for a time entry
inline constexpr std::string_view userProperty = "X-QNCAL-USER";       ///< name, with the number as `idParameter`
inline constexpr std::string_view companyProperty = "X-QNCAL-COMPANY"; ///< likewise
inline constexpr std::string_view contactProperty = "X-QNCAL-CONTACT"; ///< likewise
inline constexpr std::string_view groupProperty = "X-QNCAL-GROUP";     ///< a number that a group's rows share
inline constexpr std::string_view periodProperty = "X-QNCAL-REMINDER-PERIOD"; ///< of an item without an alarm
inline constexpr std::string_view richTextProperty = "X-QNCAL-RICH-TEXT";     ///< formatted notes
inline constexpr std::string_view originalPrefix = "X-QNCAL-ORIGINAL-";       ///< a line that a row tells in part only
inline constexpr std::string_view idParameter = "X-QNCAL-ID";
/// Of `userProperty`: a number that the rows of a series share. Users of a group may have a series each.
inline constexpr std::string_view seriesParameter = "X-QNCAL-SERIES";

} // namespace qncal::host::icalendar
