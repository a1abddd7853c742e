#include "demo/demoFirm.h"
#include "firmcal/CommandContext.h"
#include "firmcal/commands.h"
#include "firmcal/newDatabase.h"

#include <ostream>

namespace qncal::firmcal {

namespace {

struct Options {
    std::string file;
    host::DemoOptions firm;
};

/// Shows how far the work is, on a terminal alone.
host::DemoProgress progressOn(const Streams& streams)
{
    if (!streams.errIsTerminal)
        return {};
    return [&streams](int done, int total) {
        streams.err << "\rMaking items: " << done << " of " << total << (done == total ? "\n" : "") << std::flush;
    };
}

void makeDemo(CommandContext& context, Options options)
{
    if (options.file.empty())
        options.file = context.options().database.empty() ? "demo.db" : context.options().database;
    makeDatabase(context, options.file,
                 [&] { host::fillDemoFirm(context.host(), options.firm, progressOn(context.streams())); });
    context.out() << "Made " << options.file << " with " << options.firm.employees << " users, "
                  << options.firm.companies << " companies, " << options.firm.contacts << " contacts and "
                  << options.firm.items << " items.\nTry: firmcal -d " << options.file << " agenda --week\n";
}

} // namespace

void addDemoCommand(CLI::App& program, CommandContext& context)
{
    CLI::App* command = program.add_subcommand("demo", "Make a database with an invented firm");
    auto options = std::make_shared<Options>();
    command->add_option("FILE", options->file, "The file to make; --database or demo.db without it");
    command->add_option("--seed", options->firm.seed, "Which of all invented firms")->type_name("NUMBER");
    command->add_option("--items", options->firm.items, "How many calendar items; 600 without it")
        ->type_name("COUNT")
        ->check(CLI::Range(0, 100000));
    command->footer("The same seed, region and day (--now) give the same firm.\n"
                    "Examples:\n"
                    "  firmcal demo firm.db --province QC\n"
                    "  firmcal demo us.db --country US --seed 7 --now 2026-03-02T09:00");
    command->callback([&context, options] { makeDemo(context, *options); });
}

} // namespace qncal::firmcal
