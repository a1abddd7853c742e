#include "core/HostReferences.h"

#include "core/routineScope.h"

#include <utility>

namespace qncal {

namespace {

template <class Service>
bool storeOnce(std::shared_ptr<Service>& slot, std::shared_ptr<Service> service)
{
    if (slot || !service)
        return false;
    slot = std::move(service);
    return true;
}

} // namespace

void HostReferences::errorClass(std::shared_ptr<ErrorControlService> errorControl)
{
    ServiceRegistry& registry = serviceRegistry();
    if (!storeOnce(registry.errorControl, std::move(errorControl)))
        return;
    skipOnError([&] { utilityService().setErrorControl(registry.errorControl); });
    skipOnError([&] { dateTimeService().setErrorControl(registry.errorControl); });
    registry.errorControlPresent = true;
}

void HostReferences::MsgboxClass(std::shared_ptr<MessageDialogService> messageDialogs)
{
    ServiceRegistry& registry = serviceRegistry();
    if (storeOnce(registry.messageDialogs, std::move(messageDialogs)))
        registry.messageDialogsPresent = true;
}

std::shared_ptr<MessageDialogService> HostReferences::MsgboxClass() const { return serviceRegistry().messageDialogs; }

void HostReferences::DatabaseReference(std::shared_ptr<DatabaseService> database)
{
    storeOnce(serviceRegistry().database, std::move(database));
}

std::shared_ptr<DatabaseService> HostReferences::DatabaseReference() const { return serviceRegistry().database; }

void HostReferences::autoNotifyCtrlReference(std::shared_ptr<AutoNotifyService> autoNotify)
{
    storeOnce(serviceRegistry().autoNotify, std::move(autoNotify));
}

void HostReferences::LocaleReference(std::shared_ptr<LocaleService> locale)
{
    storeOnce(serviceRegistry().locale, std::move(locale));
}

void HostReferences::clientDropDownCtrlReference(std::shared_ptr<ClientDropDownService> clientDropDown)
{
    serviceRegistry().clientDropDown = std::move(clientDropDown);
}

} // namespace qncal
