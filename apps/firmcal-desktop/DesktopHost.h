#pragma once

#include "common/ErrorWatch.h"
#include "core/clsCalendarSetCtrl.h"
#include "qt/QtDialogHost.h"
#include "services/HostEnvironment.h"
#include "store/SqliteDatabase.h"

#include <memory>
#include <optional>
#include <string>

namespace qncal::desktop {

/// The host around the component while the program runs: a database, and forms and messages as windows. Needs a
/// `QApplication`.
class DesktopHost {
public:
    /// `user` is a name or an id; empty for nobody signed in. Throws `Failure` when there is no such user.
    explicit DesktopHost(std::shared_ptr<host::SqliteDatabase> database, const std::string& user = {});
    ~DesktopHost();
    DesktopHost(const DesktopHost&) = delete;
    DesktopHost& operator=(const DesktopHost&) = delete;

    std::shared_ptr<host::SqliteDatabase> sharedDatabase() const { return database_; }
    DatabaseService& database() const { return *database_; }
    host::ClientDropDown& clients() const { return environment_.clients(); }
    MessageDialogService& messages() const { return environment_.messages(); }
    host::QtDialogHost& dialogs() const { return *dialogs_; }
    firmcal::ErrorWatch& errors() { return errors_; }
    /// The component's door to its settings dialogs.
    clsCalendarSetCtrl& settings() { return settings_; }
    /// The signed-in user, if any.
    std::optional<UserEntry> user() const { return user_; }

    /// Tells the user what went wrong.
    void tell(std::string_view text) const;

private:
    std::shared_ptr<host::SqliteDatabase> database_;
    std::shared_ptr<host::QtDialogHost> dialogs_;
    host::HostEnvironment environment_;
    clsCalendarSetCtrl settings_;
    firmcal::ErrorWatch errors_;
    std::shared_ptr<DialogHost> previousDialogs_;
    std::optional<UserEntry> user_;
};

} // namespace qncal::desktop
