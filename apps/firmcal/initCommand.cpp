#include "firmcal/CommandContext.h"
#include "firmcal/commands.h"
#include "firmcal/newDatabase.h"

#include <ostream>

namespace qncal::firmcal {

void addInitCommand(CLI::App& program, CommandContext& context)
{
    CLI::App* command = program.add_subcommand("init", "Make an empty database");
    auto file = std::make_shared<std::string>();
    command->add_option("FILE", *file, "The file to make")->required();
    command->footer("--country and --province set the firm's region, which is kept in the database.\n"
                    "Example:\n"
                    "  firmcal init firm.db --country CA --province QC");
    command->callback([&context, file] {
        makeDatabase(context, *file, [] {});
        context.out() << "Made " << *file << '\n';
    });
}

} // namespace qncal::firmcal
