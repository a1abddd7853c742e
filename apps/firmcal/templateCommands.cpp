#include "common/Failure.h"
#include "common/itemKind.h"
#include "controls/richTextStream.h"
#include "firmcal/CommandContext.h"
#include "firmcal/Table.h"
#include "firmcal/UsageError.h"
#include "firmcal/commands.h"
#include "firmcal/kindOption.h"
#include "firmcal/mergeFields.h"
#include "firmcal/templateText.h"
#include "utilities/replaceText.h"

#include <nlohmann/json.hpp>

#include <ostream>

namespace qncal::firmcal {

namespace {

using Json = nlohmann::ordered_json;

/// The options of a command that looks at a template without storing it.
struct TryOptions {
    std::string kind = "appointment";
    TemplateSource source;
    bool rich = false;
};

/// The options of a command about the firm's templates of a kind.
struct FirmOptions {
    std::string kind = "appointment";
    TemplateSource source;
    bool title = false;
    bool display = false;
};

void addListOption(CLI::App& command, std::string& kind)
{
    command
        .add_option("-k,--kind", kind, "appointment (the default), task, docket; for letters company, contact, address")
        ->type_name("KIND");
}

void listFields(CommandContext& context, const std::string& kind, const std::string& text)
{
    const MergeFieldList& list = mergeFieldList(kind);
    context.host();
    Json json = Json::array();
    Table table({{"Field"}, {"Type"}, {"Sample"}, {"Category"}});
    for (const MergeFieldGroup& group : mergeFieldGroups(list)) {
        for (const MergeField& field : group.fields) {
            if (!text.empty() && findNoCase(field.name, text) == std::string::npos)
                continue;
            table.add({field.expression, std::string(field.type), field.sample, field.category});
            json.push_back({{"name", field.name},
                            {"expression", field.expression},
                            {"type", field.type},
                            {"sample", field.sample},
                            {"category", field.category},
                            {"databaseField", field.databaseField},
                            {"maximumLength", field.maximumLength},
                            {"heading", group.heading}});
        }
    }
    context.throwIfComponentFailed();
    if (context.options().json)
        return context.printJson(json);
    if (table.isEmpty())
        throw Failure("no field has '" + text + "' in its name");
    table.print(context.out());
}

/// The template of the command line, or else the firm's display template of the kind.
std::string templateToTry(CommandContext& context, const TryOptions& options, const MergeFieldList& list)
{
    context.host();
    if (isGiven(options.source))
        return readTemplate(context, options.source);
    if (list.kind == enumLocalCalendarUnknownItem)
        throw UsageError("the firm keeps no template of that kind; give one as FILE or --text");
    return firmTemplate(list.kind, ItemText::display);
}

void check(CommandContext& context, const TryOptions& options)
{
    const MergeFieldList& list = mergeFieldList(options.kind);
    const std::string text = templateToTry(context, options, list);
    if (!context.options().json) {
        checkTemplate(context, list, text);
        context.out() << "The template is clean.\n";
        return;
    }
    try {
        checkTemplate(context, list, text);
        context.printJson({{"clean", true}});
    } catch (const Failure& fault) {
        context.printJson({{"clean", false}, {"message", fault.what()}});
        throw;
    }
}

void test(CommandContext& context, const TryOptions& options)
{
    const MergeFieldList& list = mergeFieldList(options.kind);
    const std::string text = templateToTry(context, options, list);
    checkTemplate(context, list, text);
    const auto engine = sampleEngine(list);
    engine->TemplateText(text);
    const std::string merged = engine->parseRTBComment();
    context.throwIfComponentFailed();
    const std::string shown = options.rich ? merged : readableText(merged);
    if (context.options().json)
        context.printJson({{"text", shown}});
    else
        context.out() << shown << '\n';
}

void show(CommandContext& context, const FirmOptions& options)
{
    const enumLocalCalendarItemType kind = readKind(options.kind);
    context.host();
    const std::string title = firmTemplate(kind, ItemText::titleBar);
    const std::string display = firmTemplate(kind, ItemText::display);
    context.throwIfComponentFailed();
    if (context.options().json)
        return context.printJson({{"kind", kindWord(kind)}, {"title", title}, {"display", display}});
    if (options.title || options.display) {
        context.out() << (options.title ? title : display) << '\n';
        return;
    }
    context.out() << "Title bar\n"
                  << indented(title.empty() ? "(none)" : readableText(title), "  ") << "\nDisplay text\n"
                  << indented(readableText(display), "  ") << '\n';
}

void store(CommandContext& context, const FirmOptions& options)
{
    const enumLocalCalendarItemType kind = readKind(options.kind);
    if (!isGiven(options.source))
        throw UsageError("a template is missing: FILE or --text");
    context.host();
    const std::string text = readTemplate(context, options.source);
    if (text.empty())
        throw Failure("the template is empty; 'firmcal template reset' puts the default back");
    checkTemplate(context, mergeFieldList(kindWord(kind)), text);
    storeFirmTemplate(context.host().database(), kind, options.title ? ItemText::titleBar : ItemText::display, text);
    context.out() << "Stored the " << (options.title ? "title bar" : "display") << " template of every "
                  << kindNoun(kind) << ".\n";
}

void reset(CommandContext& context, const FirmOptions& options)
{
    const enumLocalCalendarItemType kind = readKind(options.kind);
    DatabaseService& database = context.host().database();
    if (!options.display)
        storeFirmTemplate(database, kind, ItemText::titleBar, defaultTemplate(kind, ItemText::titleBar));
    if (!options.title)
        storeFirmTemplate(database, kind, ItemText::display, defaultTemplate(kind, ItemText::display));
    context.out() << "Every " << kindNoun(kind) << " has the default"
                  << (options.title     ? " title bar template"
                      : options.display ? " display template"
                                        : " templates")
                  << " again.\n";
}

void addTryCommand(CLI::App& group, CommandContext& context, const char* name, const char* description,
                   const char* footer, void (*run)(CommandContext&, const TryOptions&), bool canBeRich)
{
    CLI::App* command = group.add_subcommand(name, description);
    auto options = std::make_shared<TryOptions>();
    addSourceOptions(*command, options->source);
    addListOption(*command, options->kind);
    if (canBeRich)
        command->add_flag("--rtf", options->rich, "The text as it is, rich text included, instead of what it reads as");
    command->footer(footer);
    command->callback([&context, options, run] { run(context, *options); });
}

void addFirmCommand(CLI::App& group, CommandContext& context, const char* name, const char* description,
                    const char* footer, void (*run)(CommandContext&, const FirmOptions&), bool takesTemplate)
{
    CLI::App* command = group.add_subcommand(name, description);
    auto options = std::make_shared<FirmOptions>();
    if (takesTemplate)
        addSourceOptions(*command, options->source);
    addKindOption(*command, options->kind);
    CLI::Option* title = command->add_flag("--title", options->title, "The template of the title bar alone");
    command->add_flag("--display", options->display, "The template of the display text alone")->excludes(title);
    command->footer(footer);
    command->callback([&context, options, run] { run(context, *options); });
}

void addFieldsCommand(CLI::App& group, CommandContext& context)
{
    CLI::App* command = group.add_subcommand("fields", "List the fields that a template may have, with sample values");
    auto kind = std::make_shared<std::string>("appointment");
    auto text = std::make_shared<std::string>();
    command->add_option("NAME", *text, "Only those with this text in their name");
    addListOption(*command, *kind);
    command->footer("The names differ by country and province; --country and --province show those of others.\n"
                    "Examples:\n"
                    "  firmcal template fields --kind task date\n"
                    "  firmcal template fields --kind company --province QC number");
    command->callback([&context, kind, text] { listFields(context, *kind, *text); });
}

} // namespace

void addTemplateCommands(CLI::App& program, CommandContext& context)
{
    CLI::App* group = program.add_subcommand("template", "Write the templates of the items' texts");
    group->require_subcommand(1);
    group->footer("'firmcal template COMMAND --help' tells about a command.");
    addFieldsCommand(*group, context);
    addTryCommand(*group, context, "check", "Tell whether a template is clean, or what its fault is",
                  "Without a template the firm's own display template. << and >> stand for « and ».\n"
                  "Exit status 1 when there is a fault.\n"
                  "Examples:\n"
                  "  firmcal template check --text \"«Appointment Name» on «(Appointment Date, mmm d yyyy)»\"\n"
                  "  firmcal template check letter.rtf --kind company",
                  check, false);
    addTryCommand(*group, context, "test", "Merge a template with sample values",
                  "Without a template the firm's own display template.\n"
                  "Examples:\n"
                  "  firmcal template test --kind docket\n"
                  "  echo \"«Task Name», due «(Task Due Date, mmm d yyyy)»\" | firmcal template test - --kind task",
                  test, true);
    addFirmCommand(*group, context, "show", "Show the firm's templates of a kind of item",
                   "With --title or --display that template as it is stored, for editing.\n"
                   "Examples:\n"
                   "  firmcal template show --kind task\n"
                   "  firmcal template show --display > template.txt",
                   show, false);
    addFirmCommand(*group, context, "set", "Store a template for the whole firm, once it is clean",
                   "The display template without --title.\n"
                   "Examples:\n"
                   "  firmcal template set template.txt\n"
                   "  firmcal template set --kind task --title --text \"«Company Name»\"",
                   store, true);
    addFirmCommand(*group, context, "reset", "Put the default templates of a kind of item back",
                   "Both templates without --title and --display. The title bar's default is none.\n"
                   "Example:\n"
                   "  firmcal template reset --kind docket",
                   reset, false);
}

} // namespace qncal::firmcal
