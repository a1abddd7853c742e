#include "firmcal-desktop/commandLine.h"

#include "common/openDatabase.h"

#include <CLI/CLI.hpp>

namespace qncal::desktop {

std::variant<Options, int> readCommandLine(const std::vector<std::string>& arguments, std::ostream& out,
                                           std::ostream& err)
{
    constexpr int wrongUsage = 2;
    Options options;
    CLI::App program("Calendar of an accounting firm in windows.", "firmcal-desktop");
    program.add_option("-d,--database", options.database, "The database file")
        ->type_name("FILE")
        ->envname(firmcal::databaseVariable);
    program.add_option("-u,--user", options.user, "The user whose items and reminders are shown; all without it")
        ->type_name("USER");
    program.set_version_flag("--version", "firmcal-desktop " QNCAL_VERSION);
    program.footer("'firmcal demo FILE' makes a database with an invented firm.\n"
                   "Example:\n"
                   "  firmcal-desktop --database firm.db");
    try {
        // The parser takes its arguments from the back.
        program.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
        return options;
    } catch (const CLI::Success& help) {
        return program.exit(help, out, err);
    } catch (const CLI::ParseError& error) {
        err << "firmcal-desktop: " << error.what() << "; see 'firmcal-desktop --help'\n";
        return wrongUsage;
    }
}

} // namespace qncal::desktop
