#include "common/Failure.h"
#include "common/itemKind.h"
#include "common/valueText.h"
#include "core/AutoNotifyService.h"
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

std::string channelWord(std::int32_t channel)
{
    switch (channel) {
    case AutoNotifyService::email:
        return "email";
    case AutoNotifyService::fax:
        return "fax";
    case AutoNotifyService::phone:
        return "phone";
    case AutoNotifyService::letter:
        return "letter";
    default: // as another program may have written it
        return {};
    }
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
        if (stream.bad())
            throw Failure("the mail settings " + file + " cannot be read");
    }
    try {
        host::readSmtpEnvironment(settings);
        if (!file.empty() || !settings.server.empty())
            host::checkSmtpSettings(settings);
    } catch (const std::exception& error) {
        throw Failure(std::string("the mail settings: ") + error.what());
    }
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

/// Null when the item is gone.
nlohmann::ordered_json itemJson(const host::NotifiedItem& item)
{
    if (item.id < 0)
        return nullptr;
    return {{"kind", kindWord(item.kind)},
            {"id", item.id},
            {"subject", item.subject},
            {"start", dayText(item.start) + "T" + timeText(item.start)}};
}

void printDeliveries(CommandContext& context, const std::vector<Delivery>& deliveries)
{
    if (context.options().json) {
        auto json = nlohmann::ordered_json::array();
        for (const Delivery& delivery : deliveries)
            json.push_back({{"id", delivery.id},
                            {"channel", channelWord(delivery.channel)},
                            {"state", stepWord(delivery.step)},
                            {"item", itemJson(delivery.item)},
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
        table.add({std::to_string(delivery.id), std::string(stepWord(delivery.step)), channelWord(delivery.channel),
                   delivery.recipient, clientText(delivery), itemText(delivery), delivery.reason});
    table.print(context.out());
}

/// Nothing is noted unless all of it can be.
void requireSettleable(const host::NotificationDelivery& delivery, const std::vector<std::int32_t>& ids)
{
    for (const std::int32_t id : ids) {
        const std::string number = std::to_string(id);
        switch (delivery.canSettle(id)) {
        case host::Settlement::done:
            break;
        case host::Settlement::noSuch:
            throw Failure("there is no notification " + number);
        case host::Settlement::sentAlready:
            throw Failure("notification " + number + " was sent already");
        case host::Settlement::beingSent:
            throw Failure("notification " + number + " is being sent at this moment");
        }
    }
}

void settle(CommandContext& context, host::NotificationDelivery& delivery, const NotifyOptions& options)
{
    requireSettleable(delivery, options.done);
    requireSettleable(delivery, options.again);
    for (const std::int32_t id : options.done) {
        delivery.markSent(id);
        context.out() << "notification " << id << " is done\n";
    }
    for (const std::int32_t id : options.again) {
        delivery.tryAgain(id);
        context.out() << "notification " << id << " will be tried again\n";
    }
}

void complainAbout(const std::vector<Delivery>& deliveries)
{
    const auto count = [&](DeliveryStep step) { return std::ranges::count(deliveries, step, &Delivery::step); };
    const auto failed = count(DeliveryStep::failed);
    const auto unknown = count(DeliveryStep::unknown);
    std::string text;
    if (failed > 0)
        text = std::to_string(failed) + " failed and will be tried again; --again ID does so at once";
    if (unknown > 0)
        text += (text.empty() ? "" : "; ") + std::to_string(unknown)
                + " may have been sent or not: settle with --done ID or --again ID";
    if (!text.empty())
        throw Failure(text);
}

std::vector<Delivery> deliver(CommandContext& context, host::NotificationDelivery& delivery)
{
    const auto lock = host::DeliveryLock::ofDatabase(context.options().database);
    if (!lock.error().empty())
        throw Failure("the lock of the notifications cannot be had: " + lock.error());
    if (!lock.isHeld())
        throw Failure("another 'firmcal notify --once' is at work on this database");
    return delivery.run(lock);
}

void notify(CommandContext& context, const NotifyOptions& options)
{
    context.host();
    const host::SmtpSettings settings = readSettings(options.settings);
    host::SmtpTransport mail(settings);
    host::NotificationDelivery::Means means;
    means.letterFolder = options.letters;
    if (!settings.server.empty()) {
        means.mail = &mail;
        means.sender = settings.from;
        means.secureRecord = [&context] { context.database().idle(); };
    }
    host::NotificationDelivery delivery(context.sharedDatabase(), std::move(means));
    if (!options.done.empty() || !options.again.empty())
        return settle(context, delivery, options);
    if (!options.once)
        return printDeliveries(context, delivery.plan());
    const std::vector<Delivery> deliveries = deliver(context, delivery);
    context.database().flush();
    printDeliveries(context, deliveries);
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
        ->excludes(once)
        ->excludes(dryRun);
    command->add_option("--again", options->again, "Try these again at once, also those that may have been sent")
        ->type_name("ID")
        ->excludes(once)
        ->excludes(dryRun);
    command->footer("Exit status 1 when something failed or has to be looked at.\n"
                    "The settings are lines 'name = value': server, port, security (starttls, tls, none), user,\n"
                    "password, from, fromName, certificates, timeout (seconds). The variables FIRMCAL_SMTP_SERVER,\n"
                    "_PORT, _SECURITY, _USER, _PASSWORD, _FROM, _FROM_NAME, _CERTIFICATES and _TIMEOUT go before\n"
                    "them. A server is reached with STARTTLS unless security says otherwise.\n"
                    "Examples:\n"
                    "  firmcal notify\n"
                    "  firmcal notify --once --smtp mail.conf --letters letters\n"
                    "  firmcal notify --done 14 15");
    command->callback([&context, options] { notify(context, *options); });
}

} // namespace qncal::firmcal
