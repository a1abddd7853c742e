#pragma once

#include "core/enumerations.h"

#include <cstdint>
#include <string>

namespace qncal {
class DatabaseService;
}

namespace qncal::firmcal {

/// The two texts that the calendar shows for an item.
enum class ItemText : std::uint8_t { titleBar, display };

/// The firm's template of a kind of item; the kind's own where the firm has none.
std::string firmTemplate(enumLocalCalendarItemType kind, ItemText which);
/// Stores a template for the whole firm. It must have been checked.
void storeFirmTemplate(DatabaseService& database, enumLocalCalendarItemType kind, ItemText which,
                       const std::string& text);
/// The template that a kind starts with; there is none for title bars.
std::string defaultTemplate(enumLocalCalendarItemType kind, ItemText which);

} // namespace qncal::firmcal
