#include "common/Failure.h"
#include "common/itemKind.h"
#include "common/valueText.h"
#include "firmcal/CommandContext.h"
#include "firmcal/Table.h"
#include "firmcal/commands.h"
#include "notifications/DeliveryLock.h"
#include "notifications/NotificationDelivery.h"
#include "notifications/SmtpTransport.h"
#include "store/SqliteDatabase.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <fstream>
#include <ostream>

namespace qncal::firmcal {

namespace {

using host::Delivery;
using host::DeliveryStep;

struct NotifyOptions {
    bool dryRun = false;
    bool once = false;
    std::string settings;
    std::string letters;
    std::vector<std::int32_t> done;
    std::vector<std::int32_t> again;
};

std::string_view stepWord(DeliveryStep step)
{
    switch (step) {
    case DeliveryStep::attempt:
        return "due";
    case DeliveryStep::byHand:
        return "to do";
    case DeliveryStep::later:
        return "later";
    case DeliveryStep::sent:
        return "sent";
    case DeliveryStep::failed:
        return "failed";
    case DeliveryStep::tooLate:
        return "too late";
    case DeliveryStep::cancelled:
        return "cancelled";
    case DeliveryStep::unknown:
        return "look at it";
    }
    return {};
}

host::SmtpSettings readSettings(const std::string& file)
{
    host::SmtpSettings settings;
    if (!file.empty()) {
        std::ifstream stream(file);
        if (!stream)
            throw Failure("the mail settings " + file + " cannot be read");
        try {
            host::readSmtpSettings(stream, settings);
        } catch (const std::exception& error) {
            throw Failure(file + ": " + error.what());
        }
    }
    host::readSmtpEnvironment(settings);
    return settings;
}

std::string clientText(const Delivery& delivery)
{
    if (delivery.person.empty() || delivery.person == delivery.client)
        return delivery.client;
    return delivery.person + " c/o " + delivery.client;
}

std::string itemText(const Delivery& delivery)
{
    if (delivery.item.id < 0)
        return {};
    return std::string(kindNoun(delivery.item.kind)) + " " + std::to_string(delivery.item.id) + ", "
           + readableDay(delivery.item.start) + " " + timeText(delivery.item.start) + ": " + delivery.item.subject;
}

void printDeliveries(CommandContext& context, const std::vector<Delivery>& deliveries)
{
    if (context.options().json) {
        auto json = nlohmann::ordered_json::array();
        for (const Delivery& delivery : deliveries)
            json.push_back({{"id", delivery.id},
                            {"channel", host::channelName(delivery.channel)},
                            {"state", stepWord(delivery.step)},
                            {"kind", kindWord(delivery.item.kind)},
                            {"item", delivery.item.id},
                            {"subject", delivery.item.subject},
                            {"start", dayText(delivery.item.start) + "T" + timeText(delivery.item.start)},
                            {"client", delivery.client},
                            {"person", delivery.person},
                            {"to", delivery.recipient},
                            {"attempts", delivery.attempts},
                            {"reason", delivery.reason}});
        return context.printJson(json);
    }
    if (deliveries.empty()) {
        context.out() << "No notifications.\n";
        return;
    }
    Table table({{"ID", Table::Align::right}, {"State"}, {"Channel"}, {"To"}, {"Client"}, {"Item"}, {"Reason"}});
    for (const Delivery& delivery : deliveries)
        table.add({std::to_string(delivery.id), std::string(stepWord(delivery.step)),
                   host::channelName(delivery.channel), delivery.recipient, clientText(delivery), itemText(delivery),
                   delivery.reason});
    table.print(context.out());
}

void settle(CommandContext& context, host::NotificationDelivery& delivery, const NotifyOptions& options)
{
    for (const std::int32_t id : options.done) {
        if (!delivery.markSent(id))
            throw Failure("no notification " + std::to_string(id) + " is waiting");
        context.out() << "notification " << id << " is done\n";
    }
    for (const std::int32_t id : options.again) {
        if (!delivery.tryAgain(id))
            throw Failure("no notification " + std::to_string(id) + " is waiting");
        context.out() << "notification " << id << " will be sent again\n";
    }
}

void complainAbout(const std::vector<Delivery>& deliveries)
{
    const auto count = [&](DeliveryStep step) { return std::ranges::count(deliveries, step, &Delivery::step); };
    const auto failed = count(DeliveryStep::failed);
    const auto unknown = count(DeliveryStep::unknown);
    std::string text;
    if (failed > 0)
        text = std::to_string(failed) + " failed and will be tried again";
    if (unknown > 0)
        text += (text.empty() ? "" : "; ") + std::to_string(unknown)
                + " may have been sent or not: settle with --done ID or --again ID";
    if (!text.empty())
        throw Failure(text);
}

void notify(CommandContext& context, const NotifyOptions& options)
{
    context.host();
    const host::SmtpSettings settings = readSettings(options.settings);
    host::SmtpTransport mail(settings);
    host::NotificationDelivery::Means means;
    if (!settings.server.empty()) {
        host::checkSmtpSettings(settings);
        means = {&mail, settings.from, options.letters};
    } else {
        means.letterFolder = options.letters;
    }
    host::NotificationDelivery delivery(context.sharedDatabase(), std::move(means));
    if (!options.done.empty() || !options.again.empty())
        return settle(context, delivery, options);
    if (!options.once)
        return printDeliveries(context, delivery.plan());
    const host::DeliveryLock lock(context.options().database + "-notify");
    if (!lock.isHeld())
        throw Failure("another 'firmcal notify --once' is at work on this database");
    const std::vector<Delivery> deliveries = delivery.run();
    printDeliveries(context, deliveries);
    context.database().flush();
    complainAbout(deliveries);
}

} // namespace

void addNotifyCommand(CLI::App& program, CommandContext& context)
{
    CLI::App* command = program.add_subcommand("notify", "Notify clients of their items, or list whom to notify");
    auto options = std::make_shared<NotifyOptions>();
    CLI::Option* dryRun =
        command->add_flag("--dry-run", options->dryRun, "List what is due and change nothing (the default)");
    CLI::Option* once =
        command->add_flag("--once", options->once, "Send e-mails, write letters, and list faxes and calls")
            ->excludes(dryRun);
    command->add_option("--smtp", options->settings, "The settings of the mail server")
        ->type_name("FILE")
        ->envname("FIRMCAL_SMTP_SETTINGS");
    command->add_option("--letters", options->letters, "The folder where letters are written")->type_name("FOLDER");
    command->add_option("--done", options->done, "These were faxed, called, or did arrive")
        ->type_name("ID")
        ->excludes(once);
    command->add_option("--again", options->again, "Send these again, although they may have been sent")
        ->type_name("ID")
        ->excludes(once);
    command->footer("Exit status 1 while something failed or has to be looked at.\n"
                    "The settings are lines 'name = value': server, port, security (starttls, tls, none), user,\n"
                    "password, from, fromName, certificates, timeout. Variables FIRMCAL_SMTP_SERVER, _PASSWORD and so\n"
                    "on go before them. A server is reached with STARTTLS unless security says otherwise.\n"
                    "Examples:\n"
                    "  firmcal notify\n"
                    "  firmcal notify --once --smtp mail.conf --letters letters\n"
                    "  firmcal notify --done 14 15");
    command->callback([&context, options] { notify(context, *options); });
}

} // namespace qncal::firmcal
