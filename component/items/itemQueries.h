#pragma once

#include "core/RecordSet.h"
#include "core/enumerations.h"
#include "lookups/firstRow.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace qncal {

/// Queries that several routines share. They are pieces of a routine: they ask for no connection, and a failure
/// ends in the routine that called them.

/// Deletes the rows of a query, with `keepMarked` all but those whose column `markColumn` is True.
void deleteRows(std::string_view sql, std::string_view markColumn, bool keepMarked);

/// Popup reminders of an item; time entries and unknown kinds have none.
void deleteRemindersOfItem(enumLocalCalendarItemType kind, std::int32_t itemID, bool keepCompleted);
/// Client notifications of an item of any known kind.
void deleteClientNotificationsOfItem(enumLocalCalendarItemType kind, std::int32_t itemID, bool keepSent);

/// The name of a colour scheme, empty when there is no such scheme.
std::string readColourSchemeName(std::int32_t schemeID);

} // namespace qncal
