#include "firmcal/Program.h"

#include "common/Failure.h"
#include "common/openDatabase.h"
#include "firmcal/CommandContext.h"
#include "firmcal/UsageError.h"
#include "firmcal/commands.h"
#include "utilities/RunTimeError.h"

#include <algorithm>
#include <ostream>

namespace qncal::firmcal {

namespace {

constexpr int done = 0;
constexpr int failed = 1;
constexpr int wrongUsage = 2;

using AddCommands = void (*)(CLI::App&, CommandContext&);
constexpr AddCommands commandGroups[] = {
    addInitCommand,     addDemoCommand,   addItemCommands,         addAgendaCommand,  addTemplateCommands,
    addHolidayCommands, addDayCommands,   addCalendarFileCommands, addClientCommands, addUserCommands,
    addSqlCommand,      addDoctorCommand, addRemindCommand,        addNotifyCommand,  addSchemeCommands,
    addFieldsCommands,  addDialogCommand,
};

void addGlobalOptions(CLI::App& program, GlobalOptions& options)
{
    program.add_option("-d,--database", options.database, "The database file")
        ->type_name("FILE")
        ->envname(databaseVariable);
    program.add_option("-u,--user", options.user, "The user you are or look at, by name or id")->type_name("USER");
    program.add_option("--country", options.country, "CA or US, instead of the database's")->type_name("COUNTRY");
    program.add_option("--province", options.province, "ON, QC, ..., instead of the database's")->type_name("PROVINCE");
    program.add_option("--now", options.now, "Work as if it were this moment, e.g. 2026-03-02T09:00")
        ->type_name("MOMENT");
    program.add_option("--error-log", options.errorLog, "Append errors with their routine stack to this file")
        ->type_name("FILE");
    program.add_flag("--json", options.json, "Print data as JSON");
    CLI::Option* yes = program.add_flag("--yes", options.yes, "Answer every question with yes");
    program.add_flag("--no", options.no, "Answer every question with no")->excludes(yes);
}

/// Leaves out which options exclude each other; the parser says so when it matters.
class HelpFormatter : public CLI::Formatter {
public:
    HelpFormatter() { column_width(34); }
    std::string make_option_opts(const CLI::Option* option) const override
    {
        const std::string type = option->get_type_name();
        const std::string variable = option->get_envname();
        return (type.empty() || option->get_positional() ? "" : " " + type)
               + (variable.empty() ? "" : " (or " + variable + ")");
    }
};

/// The commands that the user has named, the program itself first.
std::vector<const CLI::App*> namedCommands(const CLI::App& program)
{
    std::vector<const CLI::App*> commands{&program};
    while (!commands.back()->get_subcommands().empty())
        commands.push_back(commands.back()->get_subcommands().front());
    return commands;
}

/// What is wrong with a command line, in the words of this program where the parser's are not clear.
std::string usageText(const CLI::App& program, const CLI::ParseError& error)
{
    const bool needsCommand = namedCommands(program).back()->get_require_subcommand_min() > 0;
    if (error.get_exit_code() != static_cast<int>(CLI::ExitCodes::RequiredError) || !needsCommand)
        return error.what();
    const std::vector<std::string> unknown = program.remaining(true);
    return unknown.empty() ? "a command is missing" : "there is no command '" + unknown.front() + "'";
}

std::string whereToLook(const CLI::App& program)
{
    std::string path;
    for (const CLI::App* command : namedCommands(program))
        path += command->get_name() + " ";
    return "; see '" + path + "--help'";
}

int fail(const Streams& streams, const std::string& text, int status)
{
    std::string line = text;
    std::ranges::replace(line, '\n', ' ');
    streams.err << "firmcal: " << line << '\n';
    return status;
}

} // namespace

int run(const std::vector<std::string>& arguments, const Streams& streams)
{
    CLI::App program("Calendar of an accounting firm: appointments, tasks and time entries.", "firmcal");
    CommandContext context(streams);
    addGlobalOptions(program, context.options());
    program.fallthrough();
    program.require_subcommand(1);
    program.formatter(std::make_shared<HelpFormatter>());
    program.footer("Examples:\n"
                   "  firmcal demo firm.db\n"
                   "  firmcal -d firm.db agenda --week\n"
                   "  firmcal -d firm.db item add \"Year-end review\" --date monday --start 9:30\n"
                   "'firmcal COMMAND --help' tells about a command. The options above go with every command.");
    program.parse_complete_callback([&context] { context.applyClock(); });
    for (const AddCommands addCommands : commandGroups)
        addCommands(program, context);

    try {
        // The parser takes its arguments from the back.
        program.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
        context.finish();
        return done;
    } catch (const CLI::Success& help) {
        return program.exit(help, streams.out, streams.err);
    } catch (const CLI::ParseError& error) {
        return fail(streams, usageText(program, error) + whereToLook(program), wrongUsage);
    } catch (const UsageError& error) {
        return fail(streams, error.what() + whereToLook(program), wrongUsage);
    } catch (const std::exception& error) {
        return fail(streams, error.what(), failed);
    }
}

} // namespace qncal::firmcal
