#include "common/Failure.h"
#include "core/schema.h"
#include "firmcal/CommandContext.h"
#include "firmcal/Table.h"
#include "firmcal/commands.h"
#include "firmcal/databaseCheck.h"
#include "store/SqliteDatabase.h"

#include <nlohmann/json.hpp>

#include <ostream>

namespace qncal::firmcal {

namespace {

std::string verdict(const CheckResult& result)
{
    if (result.found == 0)
        return "ok";
    const std::string found = std::to_string(result.found);
    if (!result.canMend)
        return found + " found, to be decided by you";
    return result.mended > 0 ? found + " found, " + std::to_string(result.mended) + " mended" : found + " found";
}

void printResults(CommandContext& context, const std::vector<CheckResult>& results)
{
    if (context.options().json) {
        auto json = nlohmann::ordered_json::array();
        for (const CheckResult& result : results)
            json.push_back({{"check", result.check},
                            {"found", result.found},
                            {"mended", result.mended},
                            {"places", result.places}});
        return context.printJson({{"schemaVersion", schema::version}, {"checks", json}});
    }
    Table table({{"Check"}, {"Result"}});
    table.add({"schema version", std::to_string(schema::version)});
    table.add({"database file", "ok"});
    for (const CheckResult& result : results)
        table.add({result.check, verdict(result)});
    table.printRows(context.out(), "");
    for (const CheckResult& result : results) {
        for (const std::string& place : result.places)
            context.out() << place << '\n';
    }
}

void examine(CommandContext& context, bool repair)
{
    host::SqliteDatabase& database = context.database();
    if (const std::string damage = checkFile(context.options().database); !damage.empty())
        throw Failure("the database file is damaged: " + damage);
    const std::vector<CheckResult> results = checkRows(database, repair);
    database.flush();
    printResults(context, results);
    int left = 0;
    bool canMend = false;
    for (const CheckResult& result : results) {
        left += result.found - result.mended;
        canMend = canMend || (result.canMend && result.found > result.mended);
    }
    if (left > 0)
        throw Failure(std::to_string(left) + (left == 1 ? " problem" : " problems") + " left"
                      + (canMend ? "; 'firmcal doctor --repair' mends what can be mended" : ""));
}

} // namespace

void addDoctorCommand(CLI::App& program, CommandContext& context)
{
    CLI::App* command = program.add_subcommand("doctor", "Check a database, and mend it");
    auto repair = std::make_shared<bool>(false);
    command->add_flag("--repair", *repair, "Mend what can be mended");
    command->footer("Exit status 1 while problems are left.\n"
                    "Examples:\n  firmcal -d firm.db doctor\n  firmcal -d firm.db doctor --repair");
    command->callback([&context, repair] { examine(context, *repair); });
}

} // namespace qncal::firmcal
