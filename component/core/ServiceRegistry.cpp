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

/// This thread's registry once it was asked for. Trivial, so it can still be read when that registry is gone.
thread_local ServiceRegistry* currentRegistry = nullptr;

/// A static object of a host outlives its thread's registry; it meets empty slots, which stay so: all threads that
/// end share them.
ServiceRegistry& emptyRegistry()
{
    static ServiceRegistry& empty = *new ServiceRegistry;
    return empty;
}

struct ThreadRegistry {
    ServiceRegistry services;
    ~ThreadRegistry() { currentRegistry = &emptyRegistry(); }
};

ServiceRegistry& startRegistry()
{
    thread_local ThreadRegistry registry;
    currentRegistry = &registry.services;
    return registry.services;
}

} // namespace

ServiceRegistry& serviceRegistry() { return currentRegistry ? *currentRegistry : startRegistry(); }

void createComponentServices()
{
    ServiceRegistry& registry = serviceRegistry();
    if (&registry == &emptyRegistry())
        return;
    registry.file = std::make_shared<FileService>();
    registry.utility = std::make_shared<UtilityService>();
    registry.dateTime = std::make_shared<DateTimeService>();
}

void releaseComponentServices()
{
    ServiceRegistry& registry = serviceRegistry();
    if (&registry == &emptyRegistry())
        return;
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
