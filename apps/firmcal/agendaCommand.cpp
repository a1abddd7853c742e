#include "common/Failure.h"
#include "common/days.h"
#include "common/itemKind.h"
#include "firmcal/CommandContext.h"
#include "firmcal/Table.h"
#include "firmcal/commands.h"
#include "firmcal/itemCommands.h"
#include "firmcal/itemRowJson.h"
#include "firmcal/itemTexts.h"
#include "firmcal/readValue.h"
#include "utilities/dateText.h"
#include "utilities/text.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <ostream>
#include <sstream>

namespace qncal::firmcal {

namespace {

struct AgendaOptions {
    std::string from = "today";
    bool day = false;
    bool week = false;
    int days = 1;
    bool texts = false;
};

Span spanOf(const AgendaOptions& options)
{
    const Date from = readDay(options.from);
    if (options.week)
        return weekOf(from);
    return {from, from.addDays(options.day ? 0 : options.days - 1)};
}

ItemTexts textsOf(CommandContext& context, const ItemRow& row)
{
    clsCalendarItem item;
    load(context, item, row.kind, row.id);
    return readableTexts(context, item);
}

/// Both texts of an item on one line.
std::string textLine(const ItemTexts& texts)
{
    std::string line;
    std::istringstream lines(texts.title + '\n' + texts.display);
    for (std::string part; std::getline(lines, part);) {
        const std::string_view words = trimmed(part);
        if (!words.empty())
            line.append(line.empty() ? "" : ", ").append(words);
    }
    return line;
}

void printDay(CommandContext& context, Date day, std::span<const ItemRow> items, bool withUser, bool withTexts)
{
    host::HostEnvironment& host = context.host();
    const std::string holidays = holidaysOn(host.database(), day);
    context.out() << formatDate(day, "dddd, mmmm d, yyyy") << (holidays.empty() ? "" : "  [" + holidays + "]") << '\n';
    Table table({{"Time"}, {"Kind"}, {"ID", Table::Align::right}, {"Subject or text"}, {"Client"}, {"User"}});
    for (const ItemRow& row : items)
        table.add({timesText(row), std::string(kindNoun(row.kind)), std::to_string(row.id),
                   withTexts ? textLine(textsOf(context, row)) : row.subject,
                   withTexts ? std::string() : clientName(host.clients(), row.companyID, row.contactID),
                   withUser ? host.clients().getUserName(row.userID) : std::string()});
    table.printRows(context.out(), "  ");
    if (items.empty())
        context.out() << "  nothing\n";
}

nlohmann::ordered_json itemsJson(CommandContext& context, std::span<const ItemRow> items, bool withTexts)
{
    auto json = nlohmann::ordered_json::array();
    for (const ItemRow& row : items) {
        json.push_back(rowJson(row, context.host().clients()));
        if (withTexts) {
            const ItemTexts texts = textsOf(context, row);
            json.back()["title"] = texts.title;
            json.back()["display"] = texts.display;
        }
    }
    return json;
}

void printAgenda(CommandContext& context, const AgendaOptions& options)
{
    const Span span = spanOf(options);
    host::HostEnvironment& host = context.host();
    ItemFilter filter;
    filter.kinds.assign(allKinds.begin(), allKinds.end());
    filter.from = span.from;
    filter.to = span.to;
    if (const auto user = context.user())
        filter.userID = user->id;
    const std::vector<ItemRow> items = readItems(host.database(), filter);
    if (context.options().json)
        return context.printJson(itemsJson(context, items, options.texts));
    for (Date day = span.from; day <= span.to; day = day.addDays(1)) {
        if (day != span.from)
            context.out() << '\n';
        const auto dayOf = [](const ItemRow& row) { return row.date.serial(); };
        const auto first = std::ranges::lower_bound(items, day.serial(), {}, dayOf);
        const auto last = std::ranges::upper_bound(items, day.serial(), {}, dayOf);
        printDay(context, day, {first, last}, !filter.userID, options.texts);
    }
}

} // namespace

void addAgendaCommand(CLI::App& program, CommandContext& context)
{
    CLI::App* command = program.add_subcommand("agenda", "Show the items of a day, a week or some days");
    auto options = std::make_shared<AgendaOptions>();
    command->add_option("--from", options->from, "The first day; today without it")->type_name("DATE");
    CLI::Option* day = command->add_flag("--day", options->day, "That day alone (the default)");
    CLI::Option* week = command->add_flag("--week", options->week, "Monday to Sunday of its week")->excludes(day);
    command->add_option("--days", options->days, "So many days")
        ->type_name("COUNT")
        ->check(CLI::Range(1, 366))
        ->excludes(day)
        ->excludes(week);
    command->add_flag("--texts", options->texts, "The texts that the calendar shows, instead of subject and client");
    command->footer("Without --user the items of all users.\n"
                    "Examples:\n"
                    "  firmcal agenda --user \"Maya Singh\" --week\n"
                    "  firmcal agenda --from monday --days 3 --texts");
    command->callback([&context, options] { printAgenda(context, *options); });
}

} // namespace qncal::firmcal
