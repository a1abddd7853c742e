#include "core/ServiceRegistry.h"

#include "utilities/RunTimeError.h"

#include <string>

namespace qncal {

namespace {

template <class Service>
Service& inSlot(const std::shared_ptr<Service>& slot, const char* name)
{
    if (!slot)
        throw RunTimeError(errorNumber::objectNotSet, std::string("Object variable not set: ") + name);
    return *slot;
}

} // namespace

namespace {

/// Trivially destructible, so it can still be read when the registry of its thread is gone.
thread_local bool registryEnded = false;

struct ThreadRegistry {
    ServiceRegistry services;
    ~ThreadRegistry() { registryEnded = true; }
};

} // namespace

ServiceRegistry& serviceRegistry()
{
    // A static object of a host outlives its thread's registry; it meets empty slots.
    static ServiceRegistry& empty = *new ServiceRegistry;
    if (registryEnded)
        return empty;
    thread_local ThreadRegistry registry;
    return registry.services;
}

void createComponentServices()
{
    ServiceRegistry& registry = serviceRegistry();
    registry.file = std::make_shared<FileService>();
    registry.utility = std::make_shared<UtilityService>();
    registry.dateTime = std::make_shared<DateTimeService>();
}

void releaseComponentServices()
{
    ServiceRegistry& registry = serviceRegistry();
    registry.file.reset();
    registry.utility.reset();
    registry.dateTime.reset();
}

ErrorControlService& errorControlService() { return inSlot(serviceRegistry().errorControl, "ErrorControlService"); }
MessageDialogService& messageDialogService()
{
    return inSlot(serviceRegistry().messageDialogs, "MessageDialogService");
}
DatabaseService& databaseService() { return inSlot(serviceRegistry().database, "DatabaseService"); }
AutoNotifyService& autoNotifyService() { return inSlot(serviceRegistry().autoNotify, "AutoNotifyService"); }
LocaleService& localeService() { return inSlot(serviceRegistry().locale, "LocaleService"); }
ClientDropDownService& clientDropDownService()
{
    return inSlot(serviceRegistry().clientDropDown, "ClientDropDownService");
}
UtilityService& utilityService() { return inSlot(serviceRegistry().utility, "UtilityService"); }
DateTimeService& dateTimeService() { return inSlot(serviceRegistry().dateTime, "DateTimeService"); }
FileService& fileService() { return inSlot(serviceRegistry().file, "FileService"); }

} // namespace qncal
