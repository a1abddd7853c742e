#pragma once

#include "items/clsCalendarItem.h"

#include <CLI/App.hpp>

#include <cstdint>

namespace qncal::firmcal {

class CommandContext;

/// The parts of `firmcal item` that have files of their own.
void addListCommand(CLI::App& item, CommandContext& context);

/// Loads an item. Throws `Failure` when there is none of that number.
void load(CommandContext& context, clsCalendarItem& item, enumLocalCalendarItemType kind, std::int32_t id);
/// "appointment 12: Tue, Mar 31, 2026, 09:30-10:00, Year-end review"
std::string describe(clsCalendarItem& item);
/// Asks, then deletes with reminders and notifications.
void deleteItem(CommandContext& context, enumLocalCalendarItemType kind, std::int32_t id);
/// Moves a task's row to the archive of tasks, under its number.
void archiveTask(CommandContext& context, std::int32_t id);

} // namespace qncal::firmcal
