#pragma once

#include "core/enumerations.h"

#include <string>
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
    /// The column of `ClientNotification` that holds the item's id.
    std::string_view notificationColumn;
    /// The display text template that stands in while the database holds none.
    std::string_view defaultDisplayTemplate;
};

/// The names of a kind; all empty for the unknown kind and for every number outside of the enumeration.
const CalendarItemKind& calendarItemKind(enumLocalCalendarItemType kind);

/// The archive that loads and lookups read, the one that saves write, and the key of both, which holds the former key.
/// The two prefixes differ, and that is meant.
inline std::string archiveTable(std::string_view tableName) { return std::string("archive").append(tableName); }
inline std::string archivedTable(std::string_view tableName) { return std::string("archived").append(tableName); }
inline std::string archiveKey(std::string_view fieldName) { return std::string("old").append(fieldName); }

/// True for appointments, tasks and time entries.
bool isKnownKind(enumLocalCalendarItemType kind);

} // namespace qncal
