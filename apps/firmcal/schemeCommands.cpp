#include "common/Failure.h"
#include "common/itemKind.h"
#include "firmcal/CommandContext.h"
#include "firmcal/Table.h"
#include "firmcal/commands.h"
#include "firmcal/kindOption.h"
#include "firmcal/readValue.h"
#include "services/Rows.h"
#include "settings/modColourSchemes.h"
#include "utilities/readableValue.h"
#include "utilities/text.h"

#include <nlohmann/json.hpp>

#include <array>
#include <optional>
#include <ostream>

namespace qncal::firmcal {

namespace {

using modColourSchemes::colourColumns;

/// The options that name the colours, in the order of `colourColumns`.
constexpr std::array<const char*, 4> colourOptions{"--title-back", "--title-fore", "--back", "--fore"};
constexpr std::array<const char*, 4> colourMeanings{"The title bar's background", "The title bar's text",
                                                    "The body's background", "The body's text"};

struct SchemeOptions {
    std::string kind;
    std::string scheme;
    std::optional<std::string> name;
    std::array<std::string, 4> colours;
};

std::optional<enumLocalCalendarItemType> kindIn(const SchemeOptions& options)
{
    return options.kind.empty() ? std::nullopt : std::optional(readKind(options.kind));
}

std::string selectSchemes(std::optional<enumLocalCalendarItemType> kind)
{
    return "SELECT ColourSchemes.* FROM ColourSchemes"
           + (kind ? " WHERE SchemeType=" + std::to_string(*kind) : std::string())
           + " ORDER BY SchemeType, SchemeName, ColourSchemeID;";
}

std::string byKey(std::int32_t id)
{
    return "SELECT ColourSchemes.* FROM ColourSchemes WHERE ColourSchemeID=" + std::to_string(id) + ";";
}

std::string colourOf(const host::Rows& row, std::string_view column)
{
    const auto colour = integerIn(row.field(column));
    return colour ? colourText(*colour) : std::string();
}

void listSchemes(CommandContext& context, const SchemeOptions& options)
{
    Table table({{"ID", Table::Align::right}, {"Kind"}, {"Name"}, {"Title"}, {"Title text"}, {"Body"}, {"Body text"}});
    auto json = nlohmann::ordered_json::array();
    for (host::Rows row = host::Rows::read(context.host().database(), selectSchemes(kindIn(options))); !row.atEnd();
         row.moveNext()) {
        const auto kind = static_cast<enumLocalCalendarItemType>(row.integer("SchemeType"));
        std::vector<std::string> cells{std::to_string(row.integer("ColourSchemeID")), std::string(kindNoun(kind)),
                                       row.text("SchemeName")};
        nlohmann::ordered_json scheme{
            {"id", row.integer("ColourSchemeID")}, {"kind", kindWord(kind)}, {"name", row.text("SchemeName")}};
        for (const std::string_view column : colourColumns) {
            cells.push_back(colourOf(row, column));
            scheme[std::string(column)] =
                cells.back().empty() ? nlohmann::ordered_json() : nlohmann::ordered_json(cells.back());
        }
        table.add(std::move(cells));
        json.push_back(std::move(scheme));
    }
    if (context.options().json)
        return context.printJson(json);
    if (table.isEmpty())
        context.out() << "No colour schemes.\n";
    else
        table.print(context.out());
}

/// A scheme by its number, or by a name that only one scheme has.
std::int32_t schemeID(CommandContext& context, const SchemeOptions& options)
{
    std::vector<std::int32_t> found;
    for (host::Rows row = host::Rows::read(context.host().database(), selectSchemes(kindIn(options))); !row.atEnd();
         row.moveNext()) {
        const std::int32_t id = row.integer("ColourSchemeID");
        if (std::to_string(id) == options.scheme)
            return id;
        if (equalsNoCase(row.text("SchemeName"), options.scheme))
            found.push_back(id);
    }
    if (found.empty())
        throw Failure("no colour scheme '" + options.scheme + "'; 'firmcal scheme list' shows them");
    if (found.size() > 1)
        throw Failure("more than one colour scheme is named '" + options.scheme + "'; give its number, or --kind");
    return found.front();
}

void writeScheme(host::Rows& row, const SchemeOptions& options)
{
    // Read first: a wrong colour must leave the whole scheme as it was.
    std::array<std::string, 4> values;
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (!options.colours[i].empty())
            values[i] = std::to_string(parseColour(options.colours[i]));
    }
    if (options.name)
        row.set("SchemeName", *options.name);
    for (std::size_t i = 0; i < values.size(); ++i) {
        if (!values[i].empty())
            row.set(colourColumns[i], values[i]);
    }
}

void addScheme(CommandContext& context, SchemeOptions options)
{
    const enumLocalCalendarItemType kind = kindIn(options).value_or(enumLocalCalendarAppointmentItem);
    options.name = options.scheme;
    host::Rows row = host::Rows::change(context.host().database(), "SELECT ColourSchemes.* FROM ColourSchemes;");
    row.addNew();
    row.set("SchemeType", std::to_string(kind));
    writeScheme(row, options);
    const std::int32_t id = row.integer("ColourSchemeID");
    row.update();
    row.close();
    context.out() << "colour scheme " << id << " added\n";
}

void setScheme(CommandContext& context, const SchemeOptions& options)
{
    const std::int32_t id = schemeID(context, options);
    host::Rows row = host::Rows::change(context.host().database(), byKey(id));
    writeScheme(row, options);
    row.close();
    context.out() << "colour scheme " << id << " changed\n";
}

void deleteScheme(CommandContext& context, const SchemeOptions& options)
{
    const std::int32_t id = schemeID(context, options);
    const std::int16_t answer = context.host().messages().askQuestion(
        "Delete colour scheme " + std::to_string(id) + "?", MessageDialogService::informationStyle, nullptr);
    if (answer != MessageDialogService::answerYes)
        throw Failure("the colour scheme was not deleted");
    host::Rows row = host::Rows::change(context.host().database(), byKey(id));
    row.deleteCurrent();
    row.close();
    context.out() << "colour scheme " << id << " deleted\n";
}

CLI::App* addSubcommand(CLI::App& scheme, CommandContext& context, const char* name, const char* description,
                        const std::shared_ptr<SchemeOptions>& options,
                        void (*run)(CommandContext&, const SchemeOptions&))
{
    CLI::App* command = scheme.add_subcommand(name, description);
    command->add_option("-k,--kind", options->kind, "appointment, task or docket")->type_name("KIND");
    command->callback([&context, options, run] { run(context, *options); });
    return command;
}

void addColourOptions(CLI::App& command, SchemeOptions& options)
{
    for (std::size_t i = 0; i < colourOptions.size(); ++i)
        command.add_option(colourOptions[i], options.colours[i], colourMeanings[i])->type_name("#RRGGBB");
}

} // namespace

void addSchemeCommands(CLI::App& program, CommandContext& context)
{
    CLI::App* scheme = program.add_subcommand("scheme", "List, add, change and delete colour schemes");
    scheme->require_subcommand(1);
    scheme->footer("'firmcal scheme COMMAND --help' tells about a command.");
    const auto options = [] { return std::make_shared<SchemeOptions>(); };

    addSubcommand(*scheme, context, "list", "List colour schemes by kind and name", options(), listSchemes)
        ->footer("Example:\n  firmcal scheme list --kind task");

    auto added = options();
    CLI::App* add = addSubcommand(*scheme, context, "add", "Add a colour scheme", added,
                                  [](CommandContext& where, const SchemeOptions& what) { addScheme(where, what); });
    add->add_option("NAME", added->scheme, "The scheme's name")->required();
    addColourOptions(*add, *added);
    add->footer("For appointments unless --kind says otherwise.\n"
                "Example:\n  firmcal scheme add Urgent --kind task --title-back \"#CC0000\" --title-fore \"#FFFFFF\"");

    auto changed = options();
    CLI::App* set = addSubcommand(*scheme, context, "set", "Change a colour scheme", changed, setScheme);
    set->add_option("SCHEME", changed->scheme, "A name, or a number")->required();
    set->add_option("--name", changed->name, "A new name")->type_name("NAME");
    addColourOptions(*set, *changed);
    set->footer("Example:\n  firmcal scheme set Urgent --name \"Very urgent\" --back \"#FFEEEE\"");

    auto deleted = options();
    CLI::App* remove = addSubcommand(*scheme, context, "delete", "Delete a colour scheme", deleted, deleteScheme);
    remove->add_option("SCHEME", deleted->scheme, "A name, or a number")->required();
    remove->footer("Asks first; --yes answers. Items of the scheme keep their colours.\n"
                   "Example:\n  firmcal scheme delete 3 --yes");
}

} // namespace qncal::firmcal
