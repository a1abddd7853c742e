#pragma once

#include <CLI/App.hpp>

namespace qncal::firmcal {

class CommandContext;

/// Each adds one group of commands to the program. A new group is a file with such a function and a line in the
/// table of `Program.cpp`. Commands run in their callback and throw `Failure` for what the user has to know.
void addInitCommand(CLI::App& program, CommandContext& context);
void addDemoCommand(CLI::App& program, CommandContext& context);
void addItemCommands(CLI::App& program, CommandContext& context);
void addAgendaCommand(CLI::App& program, CommandContext& context);
void addTemplateCommands(CLI::App& program, CommandContext& context);
void addHolidayCommands(CLI::App& program, CommandContext& context);
void addDayCommands(CLI::App& program, CommandContext& context);
void addClientCommands(CLI::App& program, CommandContext& context);
void addUserCommands(CLI::App& program, CommandContext& context);
void addCalendarFileCommands(CLI::App& program, CommandContext& context);
void addSqlCommand(CLI::App& program, CommandContext& context);
void addDoctorCommand(CLI::App& program, CommandContext& context);
void addRemindCommand(CLI::App& program, CommandContext& context);
void addNotifyCommand(CLI::App& program, CommandContext& context);
void addSchemeCommands(CLI::App& program, CommandContext& context);
void addFieldsCommands(CLI::App& program, CommandContext& context);
void addDialogCommand(CLI::App& program, CommandContext& context);

} // namespace qncal::firmcal
