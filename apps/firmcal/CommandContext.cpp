#include "firmcal/CommandContext.h"

#include "common/Failure.h"
#include "common/openDatabase.h"
#include "firmcal/readValue.h"
#include "services/TerminalMessages.h"
#include "store/SqliteDatabase.h"

#include <nlohmann/json.hpp>

#include <filesystem>
#include <ostream>

namespace qncal::firmcal {

namespace {

host::TerminalMessages::Mode messageMode(const GlobalOptions& options, const Streams& streams)
{
    using Mode = host::TerminalMessages::Mode;
    if (options.yes)
        return Mode::yes;
    if (options.no)
        return Mode::no;
    return streams.inIsTerminal ? Mode::ask : Mode::unattended;
}

std::shared_ptr<host::Locale> localeFor(const GlobalOptions& options, DatabaseService& database)
{
    host::Locale::Values values = localeOf(database);
    if (!options.country.empty()) {
        const auto country = host::countryFromText(options.country);
        if (!country)
            throw Failure("'" + options.country + "' is no country (CA, US)");
        values.country = *country;
    }
    if (!options.province.empty()) {
        const auto province = host::provinceFromText(options.province);
        if (!province)
            throw Failure("'" + options.province + "' is no province (AB, BC, MB, NB, NL, NS, ON, PE, QC, SK)");
        values.province = province->code;
    }
    return std::make_shared<host::Locale>(std::move(values));
}

} // namespace

void CommandContext::applyClock()
{
    if (!options_.now.empty())
        clock_.emplace(readMoment(options_.now));
}

host::HostEnvironment& CommandContext::host() { return host_ ? *host_ : host(openDatabase(options_.database)); }

host::SqliteDatabase& CommandContext::database()
{
    host();
    return *database_;
}

std::shared_ptr<host::SqliteDatabase> CommandContext::sharedDatabase()
{
    host();
    return database_;
}

host::HostEnvironment& CommandContext::host(std::shared_ptr<host::SqliteDatabase> database)
{
    database_ = std::move(database);
    host::HostServices services;
    services.database = database_;
    services.messages =
        std::make_shared<host::TerminalMessages>(streams_.in, streams_.err, messageMode(options_, streams_));
    services.locale = localeFor(options_, *database_);
    host_.reset();
    host_ = std::make_unique<host::HostEnvironment>(std::move(services));
    errors_.emplace(host_->errors());
    if (!options_.errorLog.empty())
        host_->errors().logTo(std::filesystem::path(options_.errorLog));
    if (const auto signedIn = user())
        host_->locale().values().signedInUserID = signedIn->id;
    return *host_;
}

void CommandContext::finish()
{
    if (database_)
        database_->close();
}

std::optional<UserEntry> CommandContext::user()
{
    if (options_.user.empty())
        return std::nullopt;
    return userNamed(options_.user);
}

UserEntry CommandContext::userNamed(const std::string& nameOrID)
{
    if (const auto found = host().clients().findUser(nameOrID))
        return *found;
    throw Failure("no user '" + nameOrID + "'; 'firmcal user list' shows them");
}

ErrorWatch& CommandContext::errors()
{
    host();
    return *errors_;
}

void CommandContext::printJson(const nlohmann::ordered_json& value) const
{
    out() << value.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) << '\n';
}

} // namespace qncal::firmcal
