#pragma once

#include <array>
#include <span>

namespace qncal::desktop {

class MainWindow;

/// An entry of a menu of the main window.
struct Command {
    /// The action's object name; nothing for a line between entries.
    const char* name = nullptr;
    const char* text = nullptr;
    /// As in "Ctrl+T"; nothing for none.
    const char* shortcut = nullptr;
    /// Disabled while the cursor is on no item.
    bool needsItem = false;
    void (*run)(MainWindow& window) = nullptr;
};

struct CommandMenu {
    const char* name;
    const char* text;
    std::span<const Command> commands;
};

/// The commands that switch between the kinds, in the order of the kinds' numbers.
inline constexpr std::array kindCommands{"appointments", "tasks", "timeEntries"};

/// The menus in their order.
std::span<const CommandMenu> commandMenus();

} // namespace qncal::desktop
