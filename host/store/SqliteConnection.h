#pragma once

#include "store/StoredValue.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

struct sqlite3;
struct sqlite3_stmt;

namespace qncal::host {

/// A prepared statement. Lives no longer than its connection.
class SqliteStatement {
public:
    SqliteStatement() = default;
    SqliteStatement(sqlite3* connection, std::string_view sql, bool longLived);

    explicit operator bool() const { return statement_ != nullptr; }
    int parameterCount() const;

    void bindNull(int index);
    void bind(int index, std::int64_t value);
    void bind(int index, double value);
    /// The text must stay in place until the statement is reset.
    void bind(int index, std::string_view text);
    void bind(int index, const StoredValue& value);

    /// True for a row, false at the end. On a failure the statement is reset and a `RunTimeError` thrown.
    bool step();
    /// Ends the run: a statement that is not at its end holds the engine to the state it began with.
    void reset() noexcept;

    /// Valid until the next step.
    StoredValue value(int column) const;
    std::int64_t integer(int column) const;
    double real(int column) const;
    std::string_view text(int column) const;

private:
    struct Finalizer {
        void operator()(sqlite3_stmt* statement) const noexcept;
    };
    std::unique_ptr<sqlite3_stmt, Finalizer> statement_;
};

/// Resets a statement when the use of it ends, whichever way.
class StatementRun {
public:
    explicit StatementRun(SqliteStatement& statement) : statement_(statement) {}
    ~StatementRun() { statement_.reset(); }
    StatementRun(const StatementRun&) = delete;
    StatementRun& operator=(const StatementRun&) = delete;

private:
    SqliteStatement& statement_;
};

/// An open SQLite database. Every failure of the engine is a `RunTimeError` with the engine's own words.
class SqliteConnection {
public:
    enum class Access : std::uint8_t { readWrite, create };

    SqliteConnection() = default;
    /// `path` may be ":memory:". Waits up to `busyTimeout` milliseconds for other processes.
    SqliteConnection(const std::string& path, Access access, int busyTimeout);

    explicit operator bool() const { return connection_ != nullptr; }
    SqliteStatement prepare(std::string_view sql);
    /// Prepared with the engine's advice that the statement is kept.
    SqliteStatement prepareToKeep(std::string_view sql);
    void execute(const std::string& sql);
    /// The first column of the first row; 0 when there is none.
    std::int64_t queryInteger(const std::string& sql);
    std::string queryText(const std::string& sql);
    std::int64_t changes() const;
    bool isInTransaction() const;
    /// Ends a transaction without a trace of it.
    void rollback() noexcept;
    /// The state of the database that the last statement saw: it differs after each write, whoever wrote.
    std::uint32_t dataVersion() const;
    sqlite3* raw() const { return connection_.get(); }

private:
    struct Closer {
        void operator()(sqlite3* connection) const noexcept;
    };
    std::unique_ptr<sqlite3, Closer> connection_;
};

/// A write transaction, taken at once so that it cannot fail half way for another writer; undone unless committed.
class SqliteTransaction {
public:
    explicit SqliteTransaction(SqliteConnection& connection);
    ~SqliteTransaction();
    SqliteTransaction(const SqliteTransaction&) = delete;
    SqliteTransaction& operator=(const SqliteTransaction&) = delete;
    void commit();

private:
    SqliteConnection& connection_;
    bool open_ = true;
};

/// Quotes a name for SQL text.
std::string quotedName(std::string_view name);

} // namespace qncal::host
