#include "firmcal-desktop/DesktopHost.h"

#include "common/Failure.h"
#include "common/openDatabase.h"
#include "qt/QtMessages.h"

namespace qncal::desktop {

namespace {

host::HostServices servicesOf(const std::shared_ptr<host::SqliteDatabase>& database,
                              const std::shared_ptr<host::QtDialogHost>& dialogs)
{
    host::HostServices services;
    services.database = database;
    services.messages = std::make_shared<host::QtMessages>(dialogs, "FirmCal");
    services.locale = std::make_shared<host::Locale>(firmcal::localeOf(*database));
    return services;
}

} // namespace

DesktopHost::DesktopHost(std::shared_ptr<host::SqliteDatabase> database, const std::string& user)
    : database_(std::move(database)), dialogs_(std::make_shared<host::QtDialogHost>()),
      environment_(servicesOf(database_, dialogs_)), errors_(environment_.errors()), previousDialogs_(dialogHost())
{
    if (!user.empty()) {
        user_ = clients().findUser(user);
        if (!user_)
            throw firmcal::Failure("no user '" + user + "'; 'firmcal user list' shows them");
        environment_.locale().values().signedInUserID = user_->id;
    }
    dialogs_->onTurn(environment_.turnAction());
    setDialogHost(dialogs_);
}

DesktopHost::~DesktopHost() { setDialogHost(previousDialogs_); }

void DesktopHost::tell(std::string_view text) const
{
    messages().showMessage(text, MessageDialogService::informationStyle, nullptr);
}

} // namespace qncal::desktop
