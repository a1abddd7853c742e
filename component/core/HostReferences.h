#pragma once

#include "core/ServiceRegistry.h"

#include <memory>

namespace qncal {

/// The reference properties through which a host hands its services to the component, the same on
/// `clsCalendarSetCtrl` and `clsCalendarItem`. The first set of each fills the registry and later sets are
/// ignored without a message; only `clientDropDownCtrlReference` takes every set.
class HostReferences {
public:
    /// The first set also gives the reference to the `UtilityService` and `DateTimeService` of that moment.
    void errorClass(std::shared_ptr<ErrorControlService> errorControl);
    void MsgboxClass(std::shared_ptr<MessageDialogService> messageDialogs);
    void DatabaseReference(std::shared_ptr<DatabaseService> database);
    /// The stored reference, or none.
    std::shared_ptr<DatabaseService> DatabaseReference() const;
    void autoNotifyCtrlReference(std::shared_ptr<AutoNotifyService> autoNotify);
    void LocaleReference(std::shared_ptr<LocaleService> locale);
    void clientDropDownCtrlReference(std::shared_ptr<ClientDropDownService> clientDropDown);

protected:
    ~HostReferences() = default;
    /// Inside the component only: the host cannot read this reference back.
    std::shared_ptr<MessageDialogService> MsgboxClass() const;
};

} // namespace qncal
