#pragma once

#include "common/ErrorWatch.h"
#include "firmcal/Streams.h"
#include "services/HostEnvironment.h"
#include "utilities/Clock.h"

#include <nlohmann/json_fwd.hpp>

#include <memory>
#include <optional>
#include <string>

namespace qncal::host {
class SqliteDatabase;
}

namespace qncal::firmcal {

/// The options that stand before or after any command.
struct GlobalOptions {
    std::string database;
    std::string user;
    std::string country;
    std::string province;
    std::string now;
    std::string errorLog;
    bool json = false;
    bool yes = false;
    bool no = false;
};

/// What a command works with: the global options, the streams, and the host, opened when it is first asked for.
class CommandContext {
public:
    explicit CommandContext(Streams streams) : streams_(streams) {}

    GlobalOptions& options() { return options_; }
    const GlobalOptions& options() const { return options_; }
    std::ostream& out() const { return streams_.out; }
    std::ostream& err() const { return streams_.err; }
    const Streams& streams() const { return streams_; }

    /// Sets the clock by `--now`. Called once the command line is read.
    void applyClock();

    /// The host over the database of `--database`. Throws `Failure` without that option.
    host::HostEnvironment& host();
    host::SqliteDatabase& database();
    /// For what keeps the database along with the host.
    std::shared_ptr<host::SqliteDatabase> sharedDatabase();
    /// The host over a database that the command itself has created or opened.
    host::HostEnvironment& host(std::shared_ptr<host::SqliteDatabase> database);

    /// Writes out what the database still holds back. Throws when it cannot be stored.
    void finish();

    /// The user of `--user`; none without that option. Throws `Failure` when there is no such user.
    std::optional<UserEntry> user();
    /// A user by name or id. Throws `Failure` when there is none.
    UserEntry userNamed(const std::string& nameOrID);

    /// The watch over the errors of the host.
    ErrorWatch& errors();
    void throwIfComponentFailed() { errors().throwIfReported(); }

    void printJson(const nlohmann::ordered_json& value) const;

private:
    Streams streams_;
    GlobalOptions options_;
    std::optional<ClockOverride> clock_;
    std::shared_ptr<host::SqliteDatabase> database_;
    std::unique_ptr<host::HostEnvironment> host_;
    std::optional<ErrorWatch> errors_;
};

} // namespace qncal::firmcal
