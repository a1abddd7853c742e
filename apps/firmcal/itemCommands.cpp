#include "firmcal/itemCommands.h"

#include "common/Failure.h"
#include "common/itemKind.h"
#include "firmcal/CommandContext.h"
#include "firmcal/ItemProperty.h"
#include "firmcal/Table.h"
#include "firmcal/UsageError.h"
#include "firmcal/commands.h"
#include "firmcal/itemChanges.h"
#include "firmcal/kindOption.h"

#include <nlohmann/json.hpp>

#include <ostream>

namespace qncal::firmcal {

namespace {

using Json = nlohmann::ordered_json;

Json itemJson(clsCalendarItem& item)
{
    Json json{{"kind", kindWord(item.calendarItemType())}, {"itemID", item.itemID()}};
    for (const ItemProperty& known : itemProperties()) {
        if (known.get)
            json[std::string(known.name)] = known.get(item);
    }
    return json;
}

void addItem(CommandContext& context, const std::string& kind, const ItemChanges& changes)
{
    context.host();
    const auto user = context.user();
    clsCalendarItem item;
    item.calendarItemType(readKind(kind));
    item.addNewItem();
    if (user)
        item.userIDNum(user->id);
    apply(context, item, changes);
    save(context, item, "Added");
}

void setItem(CommandContext& context, const ItemReference& reference, const ItemChanges& changes)
{
    if (changes == ItemChanges{})
        throw UsageError("nothing to change");
    clsCalendarItem item;
    load(context, item, reference);
    apply(context, item, changes);
    save(context, item, "Changed");
}

/// What is empty, off or none says nothing.
bool isWorthShowing(const Json& value)
{
    if (value.is_string())
        return !value.get_ref<const std::string&>().empty();
    if (value.is_boolean())
        return value.get<bool>();
    return value.is_number_float() || value.get<std::int32_t>() > 0;
}

std::string plainText(const Json& value)
{
    if (value.is_string())
        return value.get<std::string>();
    if (value.is_boolean())
        return value.get<bool>() ? "yes" : "no";
    return value.dump();
}

void showItem(CommandContext& context, const ItemReference& reference, bool allFields)
{
    clsCalendarItem item;
    load(context, item, reference);
    if (context.options().json)
        return context.printJson(itemJson(item));
    context.out() << describe(item) << "\n\n";
    Table table({{"Field"}, {"Value"}});
    host::ClientDropDown& clients = context.host().clients();
    for (const ItemProperty& known : itemProperties()) {
        if (!known.get)
            continue;
        const Json value = known.get(item);
        const bool isIdle = known.name == "notifiedDate" && item.notifyType() == 0;
        if (!allFields && (known.isDetail || isIdle || !isWorthShowing(value)))
            continue;
        std::string shown = plainText(value);
        const auto withName = [&](const std::string& name) { shown += name.empty() ? "" : "  (" + name + ")"; };
        if (known.name == "userIDNum")
            withName(clients.getUserName(item.userIDNum()));
        if (known.name == "companyIDNum")
            withName(clients.getCompanyName(item.companyIDNum()));
        if (known.name == "contactIDNum")
            withName(clients.getContactName(item.contactIDNum()));
        table.add({std::string(known.name), shown});
    }
    table.printRows(context.out(), "  ");
}

void listFields(CommandContext& context)
{
    if (context.options().json) {
        Json fields = Json::array();
        for (const ItemProperty& known : itemProperties())
            fields.push_back({{"name", known.name},
                              {"type", known.type},
                              {"canRead", static_cast<bool>(known.get)},
                              {"canSet", static_cast<bool>(known.set)}});
        return context.printJson(fields);
    }
    Table table({{"Field"}, {"Takes"}, {""}});
    for (const ItemProperty& known : itemProperties())
        table.add({std::string(known.name), std::string(known.type),
                   !known.set   ? "can only be read"
                   : !known.get ? "can only be set"
                                : ""});
    table.print(context.out());
}

void addAddCommand(CLI::App& item, CommandContext& context)
{
    CLI::App* command = item.add_subcommand("add", "Add an appointment, task or time entry");
    auto kind = std::make_shared<std::string>("appointment");
    auto changes = std::make_shared<ItemChanges>();
    command->add_option("SUBJECT", changes->subject, "What it is about")->required();
    addKindOption(*command, *kind);
    addChangeOptions(*command, *changes);
    command->footer("Without a date it is today; without times it is 09:00 to 10:00.\n"
                    "Examples:\n"
                    "  firmcal item add \"Year-end review\" --date monday --start 9:30 --hours 1.5 --company 3\n"
                    "  firmcal item add \"File T2\" --kind task --date +2w --for \"Maya Singh\" --set Remind=yes");
    command->callback([&context, kind, changes] { addItem(context, *kind, *changes); });
}

void addSetCommand(CLI::App& item, CommandContext& context)
{
    CLI::App* command = item.add_subcommand("set", "Change fields of an item");
    auto reference = std::make_shared<ItemReference>();
    auto changes = std::make_shared<ItemChanges>();
    addReference(*command, *reference);
    command->add_option("--subject", changes->subject, "What it is about")->type_name("TEXT");
    addChangeOptions(*command, *changes);
    command->footer("An item that gets a new start keeps its length.\n"
                    "Examples:\n"
                    "  firmcal item set 12 --date tomorrow --start 14:00\n"
                    "  firmcal item set 7 --kind task --set Status1=yes --set \"Custom1=Waiting for slips\"");
    command->callback([&context, reference, changes] { setItem(context, *reference, *changes); });
}

void addShowCommand(CLI::App& item, CommandContext& context)
{
    CLI::App* command = item.add_subcommand("show", "Show the fields of an item");
    auto reference = std::make_shared<ItemReference>();
    auto allFields = std::make_shared<bool>(false);
    addReference(*command, *reference);
    command->add_flag("--all", *allFields, "Also the fields that are empty, off or none");
    command->footer("Examples:\n  firmcal item show 12\n  firmcal item show 7 --kind task --all");
    command->callback([&context, reference, allFields] { showItem(context, *reference, *allFields); });
}

void addFieldsCommand(CLI::App& item, CommandContext& context)
{
    CLI::App* command = item.add_subcommand("fields", "List the fields that --set takes");
    command->footer("Example:\n  firmcal item fields --json");
    command->callback([&context] { listFields(context); });
}

void addDeleteCommand(CLI::App& item, CommandContext& context)
{
    CLI::App* command = item.add_subcommand("delete", "Delete an item with its reminders and notifications");
    auto reference = std::make_shared<ItemReference>();
    addReference(*command, *reference);
    command->footer("Asks first; --yes answers.\nExample:\n  firmcal item delete 12 --yes");
    command->callback([&context, reference] { deleteItem(context, readKind(reference->kind), reference->id); });
}

void addArchiveCommand(CLI::App& item, CommandContext& context)
{
    CLI::App* command = item.add_subcommand("archive", "Move a task to the archive of tasks");
    auto id = std::make_shared<std::int32_t>(-1);
    command->add_option("ID", *id, "The task's number")->required();
    command->footer("Archived tasks are listed by 'firmcal item list --archived'.\nExample:\n  firmcal item archive 7");
    command->callback([&context, id] { archiveTask(context, *id); });
}

} // namespace

void addReference(CLI::App& command, ItemReference& reference)
{
    command.add_option("ID", reference.id, "The item's number")->required();
    addKindOption(command, reference.kind);
}

void load(CommandContext& context, clsCalendarItem& item, const ItemReference& reference)
{
    load(context, item, readKind(reference.kind), reference.id);
}

void load(CommandContext& context, clsCalendarItem& item, enumLocalCalendarItemType kind, std::int32_t id)
{
    load(context.errors(), item, kind, id);
}

void save(CommandContext& context, clsCalendarItem& item, std::string_view done)
{
    save(context.errors(), item);
    if (context.options().json)
        context.printJson(itemJson(item));
    else
        context.out() << done << ' ' << describe(item) << '\n';
}

void addItemCommands(CLI::App& program, CommandContext& context)
{
    CLI::App* item = program.add_subcommand("item", "Add, show, list, change, move, delete and archive items");
    item->require_subcommand(1);
    item->footer("'firmcal item COMMAND --help' tells about a command.");
    addAddCommand(*item, context);
    addShowCommand(*item, context);
    addListCommand(*item, context);
    addSetCommand(*item, context);
    addDeleteCommand(*item, context);
    addArchiveCommand(*item, context);
    addRenderCommand(*item, context);
    addPlacementCommands(*item, context);
    addFieldsCommand(*item, context);
}

} // namespace qncal::firmcal
