#include "common/Failure.h"
#include "common/itemKind.h"
#include "common/valueText.h"
#include "firmcal/CommandContext.h"
#include "firmcal/commands.h"
#include "firmcal/kindOption.h"
#include "firmcal/readValue.h"
#include "icalendar/CalendarExport.h"
#include "icalendar/CalendarImport.h"
#include "utilities/Clock.h"

#include <CLI/App.hpp>
#include <nlohmann/json.hpp>

#include <array>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <sstream>
#include <utility>

namespace qncal::firmcal {

namespace {

using Json = nlohmann::ordered_json;
using host::icalendar::ImportRemark;
using host::icalendar::ImportReport;

constexpr int horizonMonths = 12;

/// Shows how far the work is, on a terminal alone.
std::function<void(int, int)> progressOn(const Streams& streams, const std::string& what)
{
    if (!streams.errIsTerminal)
        return {};
    return [&streams, what](int done, int total) {
        constexpr int step = 25;
        if (done == total || done % step == 0)
            streams.err << "\r" << what << ": " << done << " of " << total << (done == total ? "\n" : "") << std::flush;
    };
}

/// How a sort of remark reads in the list, and its word in JSON.
struct SortWords {
    std::string_view title;
    std::string_view word;
};
const SortWords& wordsOf(ImportRemark::Sort sort)
{
    static constexpr std::array<SortWords, 4> words{{{"Kept in the notes, as there is no place for it:", "kept"},
                                                     {"Otherwise than in the file:", "changed"},
                                                     {"Lost:", "lost"},
                                                     {"Not imported:", "skipped"}}};
    return words.at(static_cast<std::size_t>(sort));
}

struct ImportArguments {
    std::string file;
    std::string until;
    std::string zone;
    bool dryRun = false;
};

std::vector<host::icalendar::CalendarComponent> readFile(const std::string& file)
{
    std::ifstream in(file, std::ios::binary);
    if (!in || std::filesystem::is_directory(file))
        throw Failure("cannot read " + file);
    try {
        return host::icalendar::readCalendars(in);
    } catch (const host::icalendar::CalendarError& error) {
        throw Failure(file + ": " + error.what());
    }
}

void printImportAsJson(CommandContext& context, const ImportArguments& arguments, Date lastDay,
                       const ImportReport& report)
{
    Json remarks = Json::array();
    for (const ImportRemark& remark : report.remarks)
        remarks.push_back({{"sort", wordsOf(remark.sort).word},
                           {"line", remark.line},
                           {"subject", remark.subject},
                           {"text", remark.text}});
    context.printJson({{"file", arguments.file},
                       {"dryRun", arguments.dryRun},
                       {"until", dayText(lastDay)},
                       {"components", report.components},
                       {"added", report.added},
                       {"updated", report.updated},
                       {"unchanged", report.unchanged},
                       {"skipped", report.skipped},
                       {"remarks", std::move(remarks)}});
}

void printImport(CommandContext& context, const ImportArguments& arguments, Date lastDay, const ImportReport& report)
{
    std::ostream& out = context.out();
    out << (arguments.dryRun ? "Would import " : "Imported ") << report.components << " components of "
        << arguments.file << ": " << report.added << " items added, " << report.updated << " updated, "
        << report.unchanged << " as they were, " << report.skipped << " components not imported.\n"
        << "Repeating items are on the calendar until " << dayText(lastDay) << ".\n";
    for (const auto sort : {ImportRemark::Sort::skipped, ImportRemark::Sort::lost, ImportRemark::Sort::changed,
                            ImportRemark::Sort::kept}) {
        bool titled = false;
        for (const ImportRemark& remark : report.remarks) {
            if (remark.sort != sort)
                continue;
            if (!std::exchange(titled, true))
                out << '\n' << wordsOf(sort).title << '\n';
            out << "  " << (remark.line > 0 ? "line " + std::to_string(remark.line) + ": " : "") << remark.subject
                << (remark.subject.empty() ? "" : ": ") << remark.text << '\n';
        }
    }
}

void importFile(CommandContext& context, const ImportArguments& arguments)
{
    const auto calendars = readFile(arguments.file);
    const Date lastDay = arguments.until.empty() ? today().addMonths(horizonMonths) : readDay(arguments.until);
    ImportReport report;
    try {
        report = host::icalendar::importCalendars(
            context.host(), calendars, {.lastDay = lastDay, .timeZone = arguments.zone, .dryRun = arguments.dryRun},
            progressOn(context.streams(), "Importing"));
    } catch (const host::icalendar::CalendarError& error) {
        throw Failure(error.what());
    }
    if (context.options().json)
        printImportAsJson(context, arguments, lastDay, report);
    else
        printImport(context, arguments, lastDay, report);
    if (report.components == 0 && report.skipped > 0)
        throw Failure("nothing of " + arguments.file + " could be imported");
}

struct ExportArguments {
    std::string file;
    std::string from;
    std::string to;
    std::vector<std::string> kinds;
    std::vector<std::string> users;
    bool replace = false;
};

void exportFile(CommandContext& context, const ExportArguments& arguments)
{
    const bool toStream = arguments.file == "-";
    if (!toStream && !arguments.replace && std::filesystem::exists(arguments.file))
        throw Failure(arguments.file + " exists; --replace overwrites it");
    host::HostEnvironment& host = context.host();
    host::icalendar::ExportOptions options;
    for (const std::string& kind : arguments.kinds)
        options.kinds.push_back(readKind(kind));
    if (options.kinds.empty())
        options.kinds.assign(allKinds.begin(), allKinds.end());
    for (const std::string& user : arguments.users)
        options.users.push_back(context.userNamed(user).id);
    if (const auto user = context.user(); user && options.users.empty())
        options.users.push_back(user->id);
    if (!arguments.from.empty())
        options.from = readDay(arguments.from);
    if (!arguments.to.empty())
        options.to = readDay(arguments.to);

    std::ostringstream calendar;
    const auto report =
        host::icalendar::exportCalendar(host, options, calendar, progressOn(context.streams(), "Exporting"));
    context.throwIfComponentFailed();
    if (toStream) {
        context.out() << calendar.str();
        return;
    }
    std::ofstream out(arguments.file, std::ios::binary | std::ios::trunc);
    out << calendar.str();
    if (!out.flush())
        throw Failure("cannot write " + arguments.file);
    if (context.options().json)
        context.printJson({{"file", arguments.file}, {"items", report.items}, {"components", report.components}});
    else
        context.out() << "Exported " << report.items << " items to " << arguments.file << " as " << report.components
                      << " components.\n";
}

void addImportCommand(CLI::App& program, CommandContext& context)
{
    CLI::App* command = program.add_subcommand("import", "Import an iCalendar file (.ics)");
    auto arguments = std::make_shared<ImportArguments>();
    command->add_option("FILE", arguments->file, "The file to read")->required();
    command->add_option("--until", arguments->until, "The last day of repeating items; a year from today without it")
        ->type_name("DATE");
    command->add_option("--zone", arguments->zone, "The calendar's time zone, e.g. America/Toronto")->type_name("NAME");
    command->add_flag("--dry-run", arguments->dryRun, "Tell what would be done, write nothing");
    command->footer("Items go to their attendees; those without a known one to --user, or to the first user.\n"
                    "A file that is imported again updates its items.\n"
                    "Examples:\n"
                    "  firmcal -d firm.db import meetings.ics --dry-run\n"
                    "  firmcal -d firm.db -u \"Maya Singh\" import holidays.ics --until 2027-12-31");
    command->callback([&context, arguments] { importFile(context, *arguments); });
}

void addExportCommand(CLI::App& program, CommandContext& context)
{
    CLI::App* command = program.add_subcommand("export", "Export items as an iCalendar file (.ics)");
    auto arguments = std::make_shared<ExportArguments>();
    command->add_option("FILE", arguments->file, "The file to write; - for standard output")->required();
    command->add_option("--kind", arguments->kinds, "appointment, task or docket; all without it")->type_name("KIND");
    command->add_option("--for", arguments->users, "Whose items; --user's or everybody's without it")
        ->type_name("USER");
    command->add_option("--from", arguments->from, "The first day")->type_name("DATE");
    command->add_option("--to", arguments->to, "The last day")->type_name("DATE");
    command->add_flag("--replace", arguments->replace, "Overwrite a file that exists");
    command->footer("Examples:\n"
                    "  firmcal -d firm.db export firm.ics\n"
                    "  firmcal -d firm.db export maya.ics --for \"Maya Singh\" --kind appointment --from today");
    command->callback([&context, arguments] { exportFile(context, *arguments); });
}

} // namespace

void addCalendarFileCommands(CLI::App& program, CommandContext& context)
{
    addImportCommand(program, context);
    addExportCommand(program, context);
}

} // namespace qncal::firmcal
