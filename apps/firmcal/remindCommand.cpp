#include "common/Failure.h"
#include "common/valueText.h"
#include "firmcal/CommandContext.h"
#include "firmcal/commands.h"
#include "popups/ReminderLoop.h"
#include "store/SqliteDatabase.h"
#include "utilities/RunTimeError.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <chrono>
#include <ostream>
#include <thread>

namespace qncal::firmcal {

namespace {

using Json = nlohmann::ordered_json;

struct RemindOptions {
    bool once = true;
    bool follow = false;
    int interval = 30;
    int sweeps = 0;
    std::optional<std::int32_t> snooze;
    int minutes = 10;
    std::optional<std::int32_t> dismiss;
};

/// Prints reminders. As JSON they are collected for one sweep, or stand on a line each when they are followed.
class PrintedReminders : public host::ReminderDisplay {
public:
    PrintedReminders(CommandContext& context, bool follow) : context_(context), follow_(follow) {}

    Stay show(const host::Reminder& reminder) override
    {
        print(reminder, false);
        requirePrinted();
        return Stay::gone;
    }
    Stay showMissed(const std::vector<host::Reminder>& reminders) override
    {
        if (!context_.options().json)
            context_.out() << "Missed meanwhile:\n";
        for (const host::Reminder& reminder : reminders)
            print(reminder, true);
        requirePrinted();
        return Stay::gone;
    }
    /// Nothing printed can be taken away.
    void withdraw(std::int32_t) override {}

    const Json& collected() const { return collected_; }

private:
    /// A reminder counts as shown when it has left the program.
    void requirePrinted()
    {
        if (!context_.out().flush())
            throw Failure("the reminders cannot be printed");
    }
    void print(const host::Reminder& reminder, bool missed)
    {
        const std::string userName = context_.host().clients().getUserName(reminder.userID);
        if (!context_.options().json) {
            std::string text = reminder.text;
            std::erase(text, '\r');
            std::ranges::replace(text, '\n', ' ');
            context_.out() << (missed ? "  " : "") << readableDay(reminder.due) << ' ' << timeText(reminder.due)
                           << "  #" << reminder.id << (userName.empty() ? "" : "  " + userName + ":") << "  " << text
                           << '\n';
            return;
        }
        Json json{{"id", reminder.id},
                  {"due", dayText(reminder.due) + "T" + timeText(reminder.due)},
                  {"user", userName},
                  {"missed", missed},
                  {"text", reminder.text}};
        if (follow_)
            context_.out() << json.dump(-1, ' ', false, Json::error_handler_t::replace) << '\n';
        else
            collected_.push_back(std::move(json));
    }

    CommandContext& context_;
    bool follow_;
    Json collected_ = Json::array();
};

void answer(CommandContext& context, std::int32_t id, host::ReminderLoop::Outcome outcome, const std::string& done)
{
    if (outcome == host::ReminderLoop::Outcome::deleted)
        throw Failure("there is no reminder " + std::to_string(id) + "; it goes with its item");
    context.out() << "reminder " << id << ' ' << done << '\n';
}

void follow(CommandContext& context, host::ReminderLoop& loop, const RemindOptions& options)
{
    for (int sweep = 1;; ++sweep) {
        try {
            loop.sweep();
            // Nobody knows when this ends: what was shown is stored now.
            context.database().flush();
        } catch (const RunTimeError& error) {
            // Such as a database that another program keeps locked for long.
            context.err() << "firmcal: " << error.what() << "; looking again" << std::endl;
        }
        if (sweep == options.sweeps)
            return;
        std::this_thread::sleep_for(std::chrono::seconds(options.interval));
    }
}

void remind(CommandContext& context, const RemindOptions& options)
{
    const auto user = context.user();
    PrintedReminders display(context, options.follow);
    context.host();
    host::ReminderLoop loop(context.sharedDatabase(), display,
                            user ? std::optional(user->id) : std::optional<std::int32_t>());
    if (options.snooze)
        return answer(context, *options.snooze, loop.snooze(*options.snooze, options.minutes),
                      "comes again in " + std::to_string(options.minutes) + " minutes");
    if (options.dismiss)
        return answer(context, *options.dismiss, loop.dismiss(*options.dismiss), "is done");
    if (options.follow)
        return follow(context, loop, options);
    const std::size_t shown = loop.sweep();
    if (context.options().json)
        context.printJson(display.collected());
    else if (shown == 0)
        context.out() << "No reminders.\n";
}

} // namespace

void addRemindCommand(CLI::App& program, CommandContext& context)
{
    CLI::App* command = program.add_subcommand("remind", "Show the reminders that are due, each once");
    auto options = std::make_shared<RemindOptions>();
    CLI::Option* once = command->add_flag("--once", options->once, "Show what is due now (the default)");
    CLI::Option* following =
        command->add_flag("--follow", options->follow, "Stay, and show what comes due")->excludes(once);
    command->add_option("--interval", options->interval, "Seconds between two looks; 30 without it")
        ->type_name("SECONDS")
        ->check(CLI::Range(1, 3600))
        ->needs(following);
    command->add_option("--sweeps", options->sweeps, "End after so many looks")
        ->type_name("COUNT")
        ->check(CLI::PositiveNumber)
        ->needs(following);
    CLI::Option* snooze = command->add_option("--snooze", options->snooze, "Show a reminder again later")
                              ->type_name("ID")
                              ->excludes(following);
    command->add_option("--minutes", options->minutes, "How much later; 10 without it")
        ->type_name("MINUTES")
        ->check(CLI::Range(1, 525600))
        ->needs(snooze);
    command->add_option("--dismiss", options->dismiss, "Be done with a reminder, also ahead of its time")
        ->type_name("ID")
        ->excludes(following)
        ->excludes(snooze);
    command->footer("Without --user the reminders of all users.\n"
                    "Examples:\n"
                    "  firmcal remind --user \"Maya Singh\"\n"
                    "  firmcal remind --follow --json\n"
                    "  firmcal remind --snooze 12 --minutes 30");
    command->callback([&context, options] { remind(context, *options); });
}

} // namespace qncal::firmcal
