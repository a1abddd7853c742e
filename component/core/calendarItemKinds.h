#pragma once

#include "core/enumerations.h"

#include <string_view>

namespace qncal {

/// What belongs to one kind of calendar item. All three kinds share their columns and their code; these are the
/// names in which they differ.
struct CalendarItemKind {
    std::string_view tableName;
    /// The table's autonumber key column.
    std::string_view fieldName;
    /// The kind's word in sentences.
    std::string_view typeName;
    /// Prefix of the kind's template columns and merge-field words.
    std::string_view tableText;
    /// The display text template that stands in while the database holds none.
    std::string_view defaultDisplayTemplate;
};

/// The names of a kind; all empty for the unknown kind and for every number outside of the enumeration.
const CalendarItemKind& calendarItemKind(enumLocalCalendarItemType kind);

/// True for appointments, tasks and time entries.
bool isKnownKind(enumLocalCalendarItemType kind);

} // namespace qncal
