#include "common/itemKind.h"
#include "common/valueText.h"
#include "firmcal/CommandContext.h"
#include "firmcal/itemCommands.h"
#include "firmcal/readValue.h"
#include "services/saveItem.h"

#include <nlohmann/json.hpp>

#include <ostream>

namespace qncal::firmcal {

namespace {

struct BestTimeOptions {
    ItemReference item;
    bool apply = false;
};

struct MoveOptions {
    ItemReference item;
    std::string date;
    int hour = 0;
    bool hasHour = false;
    bool best = false;
};

void saveMoved(CommandContext& context, clsCalendarItem& item)
{
    host::notifyTheDayBefore(item);
    save(context, item, "Moved");
}

void findBestTime(CommandContext& context, const BestTimeOptions& options)
{
    clsCalendarItem item;
    load(context, item, options.item);
    placeBest(context.errors(), item, item.DateFrom());
    if (options.apply)
        return saveMoved(context, item);
    if (context.options().json)
        return context.printJson({{"kind", kindWord(item.calendarItemType())},
                                  {"itemID", item.itemID()},
                                  {"DateFrom", dayText(item.DateFrom())},
                                  {"TimeFrom", timeText(item.TimeFrom())},
                                  {"TimeTo", timeText(item.TimeTo())}});
    context.out() << "Best time for " << describe(item) << '\n';
}

void moveItem(CommandContext& context, const MoveOptions& options)
{
    const Date day = readDay(options.date);
    clsCalendarItem item;
    load(context, item, options.item);
    if (options.best) {
        placeBest(context.errors(), item, day);
    } else {
        item.moveCalendarItemToNewDateAndHourSlot(day, options.hasHour ? Date::timeOf(options.hour) : item.TimeFrom());
        context.throwIfComponentFailed();
        refuseEndAfterMidnight(item);
    }
    saveMoved(context, item);
}

} // namespace

void addPlacementCommands(CLI::App& item, CommandContext& context)
{
    CLI::App* bestTime = item.add_subcommand("best-time", "Propose a time for an item in its user's day");
    auto bestTimeOptions = std::make_shared<BestTimeOptions>();
    addReference(*bestTime, bestTimeOptions->item);
    bestTime->add_flag("--apply", bestTimeOptions->apply, "Move the item there");
    bestTime->footer(
        "The first room for its length among the user's items of its kind, from 9:00 to 17:00; the item's\n"
        "own place counts as taken. A day without room gives its first gap of any size, or else an hour\n"
        "by chance.\n"
        "Examples:\n"
        "  firmcal item best-time 12\n"
        "  firmcal item best-time 7 --kind task --apply");
    bestTime->callback([&context, bestTimeOptions] { findBestTime(context, *bestTimeOptions); });

    CLI::App* move = item.add_subcommand("move", "Move an item to another day");
    auto options = std::make_shared<MoveOptions>();
    addReference(*move, options->item);
    move->add_option("--to", options->date, "The day: 2026-03-31, tomorrow, monday, +3d")
        ->type_name("DATE")
        ->required();
    CLI::Option* hour = move->add_option("--hour", options->hour, "To this hour, 0 to 23; the minutes stay")
                            ->type_name("HOUR")
                            ->check(CLI::Range(0, 23))
                            ->each([options](const std::string&) { options->hasHour = true; });
    move->add_flag("--best", options->best, "To the best time of that day; see 'firmcal item best-time'")
        ->excludes(hour);
    move->footer("Without --hour and --best it keeps its time.\n"
                 "Examples:\n"
                 "  firmcal item move 12 --to friday\n"
                 "  firmcal item move 12 --to 2026-03-31 --hour 14\n"
                 "  firmcal item move 7 --kind task --to tomorrow --best");
    move->callback([&context, options] { moveItem(context, *options); });
}

} // namespace qncal::firmcal
