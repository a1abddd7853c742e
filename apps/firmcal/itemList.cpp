#include "common/Failure.h"
#include "common/itemKind.h"
#include "common/valueText.h"
#include "firmcal/CommandContext.h"
#include "firmcal/Table.h"
#include "firmcal/UsageError.h"
#include "firmcal/clientLookup.h"
#include "firmcal/itemCommands.h"
#include "firmcal/itemRowJson.h"
#include "firmcal/kindOption.h"
#include "firmcal/readValue.h"

#include <nlohmann/json.hpp>

#include <ostream>

namespace qncal::firmcal {

namespace {

struct ListOptions {
    std::vector<std::string> kinds;
    std::string from;
    std::string to;
    std::string company;
    std::string contact;
    std::string subject;
    bool archived = false;
};

ItemFilter filterOf(CommandContext& context, const ListOptions& options)
{
    ItemFilter filter;
    for (const std::string& kind : options.kinds)
        filter.kinds.push_back(readKind(kind));
    if (options.archived) {
        if (options.kinds.size() > 1 || (options.kinds.size() == 1 && filter.kinds[0] != enumLocalCalendarTaskItem))
            throw UsageError("--archived goes with tasks alone");
        filter.kinds = {enumLocalCalendarTaskItem};
    }
    if (filter.kinds.empty())
        filter.kinds.assign(allKinds.begin(), allKinds.end());
    if (!options.from.empty())
        filter.from = readDay(options.from);
    if (!options.to.empty())
        filter.to = readDay(options.to);
    if (!options.company.empty())
        filter.companyID = clientID(context, ClientKind::company, options.company);
    if (!options.contact.empty())
        filter.contactID = clientID(context, ClientKind::contact, options.contact);
    if (const auto user = context.user())
        filter.userID = user->id;
    filter.subject = options.subject;
    filter.archived = options.archived;
    return filter;
}

void listItems(CommandContext& context, const ListOptions& options)
{
    host::HostEnvironment& host = context.host();
    const std::vector<ItemRow> items = readItems(host.database(), filterOf(context, options));
    if (context.options().json) {
        auto json = nlohmann::ordered_json::array();
        for (const ItemRow& row : items)
            json.push_back(rowJson(row, host.clients()));
        return context.printJson(json);
    }
    if (items.empty()) {
        context.out() << "No items.\n";
        return;
    }
    Table table({{"Kind"}, {"ID", Table::Align::right}, {"Date"}, {"Time"}, {"User"}, {"Subject"}, {"Client"}});
    for (const ItemRow& row : items)
        table.add({std::string(kindNoun(row.kind)), std::to_string(row.id), dayText(row.date), timesText(row),
                   host.clients().getUserName(row.userID), row.subject,
                   clientName(host.clients(), row.companyID, row.contactID)});
    table.print(context.out());
}

} // namespace

void addListCommand(CLI::App& item, CommandContext& context)
{
    CLI::App* command = item.add_subcommand("list", "List items in order of date");
    auto options = std::make_shared<ListOptions>();
    command->add_option("-k,--kind", options->kinds, "appointment, task or docket; may be repeated; all without it")
        ->type_name("KIND");
    command->add_option("--from", options->from, "The first day")->type_name("DATE");
    command->add_option("--to", options->to, "The last day")->type_name("DATE");
    command->add_option("--company", options->company, "Only for this company, by name or number")
        ->type_name("COMPANY");
    command->add_option("--contact", options->contact, "Only for this contact, by name or number")
        ->type_name("CONTACT");
    command->add_option("--subject", options->subject, "Only with this text in the subject")->type_name("TEXT");
    command->add_flag("--archived", options->archived, "The archived tasks instead");
    command->footer("With --user only that user's items.\n"
                    "Examples:\n"
                    "  firmcal item list --from today --to +2w --kind task\n"
                    "  firmcal item list --subject review --user \"Maya Singh\" --json");
    command->callback([&context, options] { listItems(context, *options); });
}

} // namespace qncal::firmcal
