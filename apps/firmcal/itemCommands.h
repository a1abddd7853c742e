#pragma once

#include "common/itemActions.h"

#include <CLI/App.hpp>

#include <cstdint>
#include <string>
#include <string_view>

namespace qncal::firmcal {

class CommandContext;

/// The parts of `firmcal item` that have files of their own.
void addListCommand(CLI::App& item, CommandContext& context);
void addRenderCommand(CLI::App& item, CommandContext& context);
void addPlacementCommands(CLI::App& item, CommandContext& context);

/// The item that a command is about.
struct ItemReference {
    std::string kind = "appointment";
    std::int32_t id = -1;
};
void addReference(CLI::App& command, ItemReference& reference);

/// Loads an item. Throws `Failure` when there is none of that number.
void load(CommandContext& context, clsCalendarItem& item, enumLocalCalendarItemType kind, std::int32_t id);
void load(CommandContext& context, clsCalendarItem& item, const ItemReference& reference);
/// Saves the item and prints it: as JSON, or described behind the word. Throws `Failure` when it was not saved.
void save(CommandContext& context, clsCalendarItem& item, std::string_view done);
/// Asks, then deletes with reminders and notifications.
void deleteItem(CommandContext& context, enumLocalCalendarItemType kind, std::int32_t id);
/// Moves a task's row to the archive of tasks, under its number.
void archiveTask(CommandContext& context, std::int32_t id);

} // namespace qncal::firmcal
