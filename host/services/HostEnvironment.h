#pragma once

#include "core/ServiceRegistry.h"
#include "services/ClientDropDown.h"
#include "services/ErrorControl.h"
#include "services/Locale.h"

#include <functional>
#include <memory>
#include <string>

namespace qncal::host {

/// The services that a host hands to the component. Whatever is left out is filled with this library's own.
struct HostServices {
    /// The one service without a default.
    std::shared_ptr<DatabaseService> database = {};
    std::shared_ptr<ErrorControl> errors = {};
    /// By default messages go to standard error and every question is answered No.
    std::shared_ptr<MessageDialogService> messages = {};
    std::shared_ptr<Locale> locale = {};
    std::shared_ptr<ClientDropDown> clients = {};
    std::shared_ptr<AutoNotifyService> notifications = {};
};

/// A host around the component: while it lives, the component on this thread works with its services.
///
///     qncal::host::HostEnvironment host("firm.db");
///     qncal::clsCalendarItem item;
///     item.calendarItemType(qncal::enumLocalCalendarAppointmentItem);
///     item.Subject("Year end");
///     item.saveCalendarItem();
///
/// The references that a host sets stay in the component until the thread ends, and later sets are ignored. An
/// environment therefore takes the place of what is set on its thread, and puts it back at the end of its life.
/// Environments of one thread end in the reverse order of their creation.
class HostEnvironment {
public:
    /// Over a database file that exists. Throws `RunTimeError` when it cannot be opened.
    explicit HostEnvironment(const std::string& databaseFile);
    explicit HostEnvironment(HostServices services);
    ~HostEnvironment();
    HostEnvironment(const HostEnvironment&) = delete;
    HostEnvironment& operator=(const HostEnvironment&) = delete;

    /// What a dialog host is to do at each turn of its loop: writes that the database put off must not be left
    /// standing while the user thinks. What fails here is told by the next call. Outlives the environment.
    ///
    ///     dialogs->onTurn(host.turnAction());
    std::function<void()> turnAction() const;

    DatabaseService& database() const { return *services_.database; }
    ErrorControl& errors() const { return *services_.errors; }
    MessageDialogService& messages() const { return *services_.messages; }
    Locale& locale() const { return *services_.locale; }
    ClientDropDown& clients() const { return *services_.clients; }
    AutoNotifyService& notifications() const { return *services_.notifications; }

private:
    HostServices services_;
    ServiceRegistry previous_;
};

} // namespace qncal::host
