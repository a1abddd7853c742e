#include "services/HostEnvironment.h"

#include "core/HostReferences.h"
#include "services/NotificationLedger.h"
#include "services/TerminalMessages.h"
#include "store/SqliteDatabase.h"
#include "utilities/RunTimeError.h"

#include <iostream>
#include <utility>

namespace qncal::host {

namespace {

/// The reference properties without the classes that carry them.
struct References : HostReferences {};

HostServices completed(HostServices services)
{
    if (!services.database)
        throw RunTimeError(errorNumber::objectNotSet, "A host environment needs a database");
    if (!services.errors)
        services.errors = std::make_shared<ErrorControl>();
    if (!services.messages)
        services.messages = std::make_shared<TerminalMessages>(std::cin, std::cerr, TerminalMessages::Mode::unattended);
    if (!services.locale)
        services.locale = std::make_shared<Locale>();
    if (!services.clients)
        services.clients = std::make_shared<ClientDropDown>(services.database);
    if (!services.notifications)
        services.notifications = std::make_shared<NotificationLedger>(services.database);
    return services;
}

} // namespace

HostEnvironment::HostEnvironment(const std::string& databaseFile)
    : HostEnvironment(HostServices{.database = SqliteDatabase::open(databaseFile)})
{
}

HostEnvironment::HostEnvironment(HostServices services)
    : services_(completed(std::move(services))), previous_(std::exchange(serviceRegistry(), {}))
{
    createComponentServices();
    References references;
    references.errorClass(services_.errors);
    references.MsgboxClass(services_.messages);
    references.DatabaseReference(services_.database);
    references.autoNotifyCtrlReference(services_.notifications);
    references.LocaleReference(services_.locale);
    references.clientDropDownCtrlReference(services_.clients);
}

std::function<void()> HostEnvironment::turnAction() const
{
    return [database = std::weak_ptr<DatabaseService>(services_.database)] {
        const auto kept = database.lock();
        auto* const store = dynamic_cast<SqliteDatabase*>(kept.get());
        if (!store || !store->isConnected())
            return;
        try {
            store->flush();
        } catch (const RunTimeError&) {
            // The writes go on waiting, and the next call that needs them fails.
        }
    };
}

HostEnvironment::~HostEnvironment() { serviceRegistry() = std::move(previous_); }

} // namespace qncal::host
