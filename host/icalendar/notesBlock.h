#pragma once

#include "icalendar/contentLines.h"

#include <string>
#include <string_view>
#include <vector>

namespace qncal::host::icalendar {

/// The notes of an item that came from a calendar file: what a person wrote, and below it, between two marks, the
/// lines of the file that no column holds. The lines are one property each, unfolded, alarms and other parts of
/// the component with their BEGIN and END:
///
///     Bring the slips.
///
///     --- iCalendar ---
///     UID:40f1@example.org
///     LOCATION:Boardroom
///     --- end of iCalendar ---
///
/// What a person writes below the block stays there when the item is imported again.
struct ItemNotes {
    std::string text;
    std::vector<std::string> kept = {};
    std::string below = {};
    /// The rich text without the block, where it says more than the plain text does.
    std::string formatted = {};

    /// All that a person wrote.
    std::string description() const;
};

/// From rich text or plain text. An item without a block has nothing kept.
ItemNotes readNotes(std::string_view richText);
/// As rich text; empty when there is nothing to write.
std::string notesRichText(const ItemNotes& notes);

/// The kept lines as a component without a name.
CalendarComponent keptComponent(const ItemNotes& notes);

/// What stands in the notes of every item with a block: for looking such items up.
inline constexpr std::string_view blockMark = "--- iCalendar ---";

} // namespace qncal::host::icalendar
