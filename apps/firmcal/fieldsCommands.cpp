#include "common/Failure.h"
#include "common/itemKind.h"
#include "common/statusFields.h"
#include "firmcal/CommandContext.h"
#include "firmcal/Table.h"
#include "firmcal/UsageError.h"
#include "firmcal/commands.h"
#include "firmcal/kindOption.h"
#include "firmcal/readValue.h"
#include "services/Rows.h"
#include "settings/frmApptStatusOptions.h"
#include "settings/kindWords.h"
#include "utilities/text.h"

#include <nlohmann/json.hpp>

#include <optional>
#include <ostream>

namespace qncal::firmcal {

namespace {

using Json = nlohmann::ordered_json;

constexpr int fieldCount = 5;
constexpr const char* selectFields = "SELECT CustomFields.* FROM CustomFields;";

struct FieldOptions {
    std::string kind = "appointment";
    std::string field;
    std::optional<std::string> name;
    std::string colour;
    std::string icon;
};

/// One of the five status or the five custom fields of a kind.
struct Field {
    enumLocalCalendarItemType kind;
    bool isStatus;
    int number;

    /// "ApptStatusName1" for "Name".
    std::string column(std::string_view before, std::string_view after) const
    {
        return std::string(textOfKind(columnPrefixes, kind)) + std::string(before) + (isStatus ? "Status" : "Custom")
               + std::string(after) + std::to_string(number);
    }
    std::string nameColumn() const { return column("", "Name"); }
};

Field readField(const FieldOptions& options)
{
    const std::string word = lowerAscii(options.field);
    for (const bool isStatus : {true, false}) {
        const std::string_view stem = isStatus ? "status" : "custom";
        if (word.size() == stem.size() + 1 && word.starts_with(stem) && word.back() >= '1'
            && word.back() < '1' + fieldCount)
            return {readKind(options.kind), isStatus, word.back() - '0'};
    }
    throw UsageError("no field '" + options.field + "' (status1 to status5, custom1 to custom5)");
}

void showFields(CommandContext& context, const FieldOptions& options)
{
    const enumLocalCalendarItemType kind = readKind(options.kind);
    DatabaseService& database = context.host().database();
    Table table({{"Field"}, {"Name"}, {"Colour"}, {"Icon"}});
    Json json{{"kind", kindWord(kind)}, {"fields", Json::array()}};
    int number = 0;
    for (const StatusField& status : statusFields(database, kind)) {
        const std::string field = "status" + std::to_string(++number);
        const std::string colour = status.colour ? colourText(*status.colour) : std::string();
        table.add({field, status.name, colour, status.icon ? std::to_string(*status.icon) : std::string()});
        json["fields"].push_back({{"field", field},
                                  {"name", status.name},
                                  {"colour", status.colour ? Json(colour) : Json()},
                                  {"icon", status.icon ? Json(*status.icon) : Json()}});
    }
    const host::Rows row = host::Rows::read(database, selectFields);
    for (number = 1; number <= fieldCount; ++number) {
        const std::string field = "custom" + std::to_string(number);
        const Field custom{kind, false, number};
        const std::string name = row.isEmpty() ? std::string() : row.text(custom.nameColumn());
        table.add({field, name, "", ""});
        json["fields"].push_back({{"field", field}, {"name", name}});
    }
    if (context.options().json)
        context.printJson(json);
    else
        table.print(context.out());
}

std::string acceptedIcons() { return "1 to " + std::to_string(frmApptStatusOptions::iconCount) + ", or none"; }

bool isNone(const std::string& text) { return equalsNoCase(text, "none"); }

std::int32_t readIcon(const std::string& text)
{
    const std::int32_t icon = readInteger(text);
    if (!isStatusIcon(icon))
        throw Failure("'" + text + "' is no icon (" + acceptedIcons() + ")");
    return icon;
}

void setField(CommandContext& context, const FieldOptions& options)
{
    const Field field = readField(options);
    if (!options.name && options.colour.empty() && options.icon.empty())
        throw UsageError("nothing to set; give --name, --colour or --icon");
    if (!field.isStatus && (!options.colour.empty() || !options.icon.empty()))
        throw UsageError("a custom field has a name alone, no colour and no icon");
    std::vector<host::FieldText> changes;
    const std::string name = field.nameColumn();
    const std::string useColour = field.column("Use", "Colour");
    const std::string colour = field.column("", "Colour");
    const std::string useIcon = field.column("Use", "Icon");
    const std::string icon = field.column("", "Icon");
    if (options.name)
        changes.emplace_back(name, *options.name);
    if (!options.colour.empty()) {
        changes.emplace_back(useColour, booleanText(!isNone(options.colour)));
        if (!isNone(options.colour))
            changes.emplace_back(colour, std::to_string(parseColour(options.colour)));
    }
    if (!options.icon.empty()) {
        changes.emplace_back(useIcon, booleanText(!isNone(options.icon)));
        if (!isNone(options.icon))
            changes.emplace_back(icon, std::to_string(readIcon(options.icon)));
    }
    DatabaseService& database = context.host().database();
    host::Rows row = host::Rows::change(database, selectFields);
    if (row.isEmpty()) {
        host::addRow(database, "CustomFields", changes);
    } else {
        for (const auto& [column, value] : changes)
            row.set(column, value);
        row.close();
    }
    context.out() << lowerAscii(options.field) << " of " << kindNounPlural(field.kind) << " changed\n";
}

} // namespace

void addFieldsCommands(CLI::App& program, CommandContext& context)
{
    CLI::App* fields = program.add_subcommand("fields", "Show and name the status and custom fields of items");
    fields->require_subcommand(1);
    fields->footer("'firmcal fields COMMAND --help' tells about a command.");

    CLI::App* show = fields->add_subcommand("show", "Show the fields of a kind of item");
    auto shown = std::make_shared<FieldOptions>();
    addKindOption(*show, shown->kind);
    show->footer("Example:\n  firmcal fields show --kind task");
    show->callback([&context, shown] { showFields(context, *shown); });

    CLI::App* set = fields->add_subcommand("set", "Change a field of a kind of item");
    auto changed = std::make_shared<FieldOptions>();
    set->add_option("FIELD", changed->field, "status1 to status5, custom1 to custom5")->required();
    addKindOption(*set, changed->kind);
    set->add_option("--name", changed->name, "Its name")->type_name("NAME");
    set->add_option("--colour", changed->colour, "The colour that shows a status, or none")->type_name("#RRGGBB");
    set->add_option("--icon", changed->icon, "The icon that shows a status, " + acceptedIcons())->type_name("ICON");
    set->footer("Examples:\n"
                "  firmcal fields set status1 --name Completed --colour \"#00AA00\" --icon 3\n"
                "  firmcal fields set custom2 --kind task --name Room");
    set->callback([&context, changed] { setField(context, *changed); });
}

} // namespace qncal::firmcal
