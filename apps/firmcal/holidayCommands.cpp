#include "common/Failure.h"
#include "common/valueText.h"
#include "firmcal/CommandContext.h"
#include "firmcal/Table.h"
#include "firmcal/UsageError.h"
#include "firmcal/commands.h"
#include "firmcal/readValue.h"
#include "items/modHolidayCtrl.h"
#include "services/holidayRows.h"
#include "utilities/Clock.h"
#include "utilities/replaceText.h"
#include "utilities/text.h"

#include <nlohmann/json.hpp>

#include <array>
#include <ostream>

namespace qncal::firmcal {

namespace {

using Json = nlohmann::ordered_json;
using host::HolidayRow;
using host::StatutoryHoliday;

constexpr int firstYear = 1900;
constexpr int lastYear = 2199;

/// The values of `HolidayType` in words.
struct HolidayType {
    std::int16_t type;
    std::string_view name;
};
constexpr std::array<HolidayType, 3> holidayTypes{{{1, "national"}, {3, "regional"}, {2, "working"}}};

std::int16_t readHolidayType(std::string_view text)
{
    for (const HolidayType& known : holidayTypes) {
        if (equalsNoCase(text, known.name))
            return known.type;
    }
    throw UsageError("no type of holiday '" + std::string(text) + "' (national, regional, working)");
}

std::string holidayTypeName(std::int16_t type)
{
    for (const HolidayType& known : holidayTypes) {
        if (known.type == type)
            return std::string(known.name);
    }
    return "working (" + std::to_string(type) + ")";
}

Json holidayJson(const StatutoryHoliday& holiday)
{
    return {{"date", dayText(holiday.date)}, {"name", holiday.name}, {"type", holidayTypeName(holiday.type)}};
}

std::string describe(const StatutoryHoliday& holiday)
{
    return readableDay(holiday.date) + (holiday.name.empty() ? "" : ": " + holiday.name);
}

void addYearOption(CLI::App& command, int& year)
{
    command.add_option("--year", year, "The year; this one without it")
        ->type_name("YEAR")
        ->check(CLI::Range(firstYear, lastYear));
}

int yearOrThis(int year) { return year > 0 ? year : today().civilDate().year; }

void printHolidays(CommandContext& context, const std::vector<StatutoryHoliday>& holidays)
{
    if (context.options().json) {
        Json json = Json::array();
        for (const StatutoryHoliday& holiday : holidays)
            json.push_back(holidayJson(holiday));
        return context.printJson(json);
    }
    Table table({{"Date"}, {"Name"}, {"Type"}});
    for (const StatutoryHoliday& holiday : holidays)
        table.add({readableDay(holiday.date), holiday.name, holidayTypeName(holiday.type)});
    if (!table.isEmpty())
        table.print(context.out());
}

void listHolidays(CommandContext& context, int year)
{
    const int listed = yearOrThis(year);
    std::vector<StatutoryHoliday> holidays;
    for (HolidayRow& row :
         host::readHolidays(context.host().database(), Date::of(listed, 1, 1), Date::of(listed, 12, 31)))
        holidays.push_back(std::move(row.holiday));
    printHolidays(context, holidays);
    if (holidays.empty() && !context.options().json)
        context.out() << "No holidays in " << listed << "; 'firmcal holidays generate' adds those by law.\n";
}

void addOneHoliday(CommandContext& context, const std::string& date, const std::string& name, const std::string& type)
{
    const StatutoryHoliday holiday{readDay(date), name, readHolidayType(type)};
    DatabaseService& database = context.host().database();
    for (const HolidayRow& row : host::readHolidays(database, holiday.date, holiday.date)) {
        if (equalsNoCase(row.holiday.name, name))
            throw Failure(describe(row.holiday) + " is there already");
    }
    host::addHoliday(database, holiday);
    if (context.options().json)
        return context.printJson(holidayJson(holiday));
    context.out() << "Added " << describe(holiday) << '\n';
}

void removeHolidays(CommandContext& context, const std::string& date, const std::string& name)
{
    const Date day = readDay(date);
    DatabaseService& database = context.host().database();
    std::vector<StatutoryHoliday> removed;
    for (HolidayRow& row : host::readHolidays(database, day, day)) {
        if (!name.empty() && !equalsNoCase(row.holiday.name, name))
            continue;
        host::removeHoliday(database, row.id);
        removed.push_back(std::move(row.holiday));
    }
    if (removed.empty())
        throw Failure("no holiday " + (name.empty() ? "" : "'" + name + "' ") + "on " + readableDay(day));
    if (context.options().json)
        return printHolidays(context, removed);
    for (const StatutoryHoliday& holiday : removed)
        context.out() << "Removed " << describe(holiday) << '\n';
}

void generateHolidays(CommandContext& context, int year, int years)
{
    const int first = yearOrThis(year);
    host::HostEnvironment& host = context.host();
    std::vector<StatutoryHoliday> added;
    for (int i = 0; i < years; ++i) {
        for (StatutoryHoliday& holiday : host::addStatutoryHolidays(host.database(), host.locale().values(), first + i))
            added.push_back(std::move(holiday));
    }
    printHolidays(context, added);
    if (added.empty() && !context.options().json)
        context.out() << "Nothing to add; the holidays are there already.\n";
}

void addBusinessDays(CommandContext& context, std::int32_t days, const std::string& from)
{
    context.host();
    const Date start = readDay(from);
    const Date end = modHolidayCtrl::dateAddBusinessDaysWithoutWeekendsAndHolidays(days, start);
    context.throwIfComponentFailed();
    if (context.options().json)
        return context.printJson({{"from", dayText(start)}, {"days", days}, {"date", dayText(end)}});
    context.out() << readableDay(end) << '\n';
}

} // namespace

void addHolidayCommands(CLI::App& program, CommandContext& context)
{
    CLI::App* group = program.add_subcommand("holidays", "List, add, remove and generate holidays");
    group->require_subcommand(1);
    group->footer("'firmcal holidays COMMAND --help' tells about a command.");

    CLI::App* list = group->add_subcommand("list", "List the holidays of a year");
    auto listed = std::make_shared<int>(0);
    addYearOption(*list, *listed);
    list->footer("Examples:\n  firmcal holidays list\n  firmcal holidays list --year 2027 --json");
    list->callback([&context, listed] { listHolidays(context, *listed); });

    CLI::App* add = group->add_subcommand("add", "Add a holiday of your own");
    auto date = std::make_shared<std::string>();
    auto name = std::make_shared<std::string>();
    auto type = std::make_shared<std::string>("national");
    add->add_option("DATE", *date, "The day: 2026-12-24, +3d")->required();
    add->add_option("NAME", *name, "What it is called")->required();
    add->add_option("--type", *type, "national (the default), regional, or working for a day that is no day off")
        ->type_name("TYPE");
    add->footer("Examples:\n"
                "  firmcal holidays add 2026-12-24 \"Christmas Eve\"\n"
                "  firmcal holidays add 2026-10-31 Halloween --type working");
    add->callback([&context, date, name, type] { addOneHoliday(context, *date, *name, *type); });

    CLI::App* remove = group->add_subcommand("remove", "Remove the holidays of a day");
    auto removedDate = std::make_shared<std::string>();
    auto removedName = std::make_shared<std::string>();
    remove->add_option("DATE", *removedDate, "The day")->required();
    remove->add_option("NAME", *removedName, "Only the one of this name");
    remove->footer("Example:\n  firmcal holidays remove 2026-12-24");
    remove->callback([&context, removedDate, removedName] { removeHolidays(context, *removedDate, *removedName); });

    CLI::App* generate = group->add_subcommand("generate", "Add the holidays by law in the firm's region");
    auto year = std::make_shared<int>(0);
    auto years = std::make_shared<int>(1);
    addYearOption(*generate, *year);
    generate->add_option("--years", *years, "So many years; 1 without it")
        ->type_name("COUNT")
        ->check(CLI::Range(1, 50));
    generate->footer("What is there already is left as it is.\n"
                     "Examples:\n"
                     "  firmcal holidays generate --years 3\n"
                     "  firmcal holidays generate --year 2027 --province QC");
    generate->callback([&context, year, years] { generateHolidays(context, *year, *years); });
}

void addDayCommands(CLI::App& program, CommandContext& context)
{
    CLI::App* group = program.add_subcommand("day", "Count business days");
    group->require_subcommand(1);
    CLI::App* add = group->add_subcommand("add", "Tell the day that lies so many business days away");
    auto days = std::make_shared<std::int32_t>(0);
    auto from = std::make_shared<std::string>("today");
    constexpr int mostDays = 10000;
    add->add_option("DAYS", *days, "How many business days; a negative number counts back")
        ->required()
        ->check(CLI::Range(-mostDays, mostDays));
    add->add_option("--from", *from, "The day to count from; today without it")->type_name("DATE");
    add->footer("Weekends and holidays do not count. 0 from a day off is the next business day.\n"
                "Examples:\n"
                "  firmcal day add 10\n"
                "  firmcal day add -5 --from 2026-04-30");
    add->callback([&context, days, from] { addBusinessDays(context, *days, *from); });
}

} // namespace qncal::firmcal
