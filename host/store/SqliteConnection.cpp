#include "store/SqliteConnection.h"

#include "store/storeError.h"

#include <sqlite3.h>

namespace qncal::host {

namespace {

[[noreturn]] void fail(sqlite3* connection, int code)
{
    const std::string words = connection ? sqlite3_errmsg(connection) : sqlite3_errstr(code);
    switch (code & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        throw RunTimeError(storeError::locked, "The database is locked by another process");
    case SQLITE_FULL:
        throw RunTimeError(storeError::diskFull, "The disk is full: the database cannot grow");
    case SQLITE_READONLY:
        throw RunTimeError(storeError::readOnly, "The database cannot be written: " + words);
    case SQLITE_NOTADB:
        throw RunTimeError(storeError::cannotOpen, "The file is no database: " + words);
    case SQLITE_CANTOPEN:
        throw RunTimeError(storeError::cannotOpen, "The database file cannot be opened: " + words);
    case SQLITE_NOMEM:
        throw RunTimeError(errorNumber::outOfMemory, "Out of memory");
    case SQLITE_CONSTRAINT:
        throw RunTimeError(storeError::duplicateKey, "The record breaks a rule of its table: " + words);
    default:
        throw RunTimeError(storeError::engine, "Database error: " + words);
    }
}

} // namespace

void SqliteStatement::Finalizer::operator()(sqlite3_stmt* statement) const noexcept { sqlite3_finalize(statement); }

SqliteStatement::SqliteStatement(sqlite3* connection, std::string_view sql, bool longLived)
{
    sqlite3_stmt* statement = nullptr;
    const unsigned flags = longLived ? SQLITE_PREPARE_PERSISTENT : 0;
    const int code =
        sqlite3_prepare_v3(connection, sql.data(), static_cast<int>(sql.size()), flags, &statement, nullptr);
    statement_.reset(statement);
    if (code != SQLITE_OK)
        fail(connection, code);
}

int SqliteStatement::parameterCount() const { return sqlite3_bind_parameter_count(statement_.get()); }

void SqliteStatement::bindNull(int index) { sqlite3_bind_null(statement_.get(), index); }
void SqliteStatement::bind(int index, std::int64_t value) { sqlite3_bind_int64(statement_.get(), index, value); }
void SqliteStatement::bind(int index, double value) { sqlite3_bind_double(statement_.get(), index, value); }
void SqliteStatement::bind(int index, std::string_view text)
{
    // A null pointer would bind Null, and an empty view may have one.
    const char* const start = text.empty() ? "" : text.data();
    const int code = sqlite3_bind_text64(statement_.get(), index, start, text.size(), SQLITE_STATIC, SQLITE_UTF8);
    if (code != SQLITE_OK)
        fail(sqlite3_db_handle(statement_.get()), code);
}

void SqliteStatement::bind(int index, const StoredValue& value)
{
    switch (value.kind) {
    case StoredValue::Kind::integer:
        bind(index, value.integer);
        break;
    case StoredValue::Kind::real:
        bind(index, value.real);
        break;
    case StoredValue::Kind::text:
        bind(index, value.text);
        break;
    default:
        bindNull(index);
        break;
    }
}

bool SqliteStatement::step()
{
    const int code = sqlite3_step(statement_.get());
    if (code == SQLITE_ROW)
        return true;
    if (code == SQLITE_DONE)
        return false;
    sqlite3* const connection = sqlite3_db_handle(statement_.get());
    const int extended = sqlite3_reset(statement_.get());
    fail(connection, extended == SQLITE_OK ? code : extended);
}

void SqliteStatement::reset() noexcept { sqlite3_reset(statement_.get()); }

StoredValue SqliteStatement::value(int column) const
{
    switch (sqlite3_column_type(statement_.get(), column)) {
    case SQLITE_INTEGER:
        return {StoredValue::Kind::integer, integer(column)};
    case SQLITE_FLOAT:
        return {StoredValue::Kind::real, 0, real(column)};
    case SQLITE_NULL:
        return {};
    default:
        return {StoredValue::Kind::text, 0, 0, text(column)};
    }
}

std::int64_t SqliteStatement::integer(int column) const { return sqlite3_column_int64(statement_.get(), column); }
double SqliteStatement::real(int column) const { return sqlite3_column_double(statement_.get(), column); }
std::string_view SqliteStatement::text(int column) const
{
    const auto* start = reinterpret_cast<const char*>(sqlite3_column_text(statement_.get(), column));
    return start ? std::string_view(start, static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column)))
                 : std::string_view();
}

void SqliteConnection::Closer::operator()(sqlite3* connection) const noexcept { sqlite3_close_v2(connection); }

SqliteConnection::SqliteConnection(const std::string& path, Access access, int busyTimeout)
{
    const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_EXRESCODE
                      | (access == Access::create ? SQLITE_OPEN_CREATE : 0);
    sqlite3* connection = nullptr;
    const int code = sqlite3_open_v2(path.c_str(), &connection, flags, nullptr);
    connection_.reset(connection);
    if (code != SQLITE_OK)
        fail(connection, code);
    sqlite3_busy_timeout(connection, busyTimeout);
}

SqliteStatement SqliteConnection::prepare(std::string_view sql) { return {connection_.get(), sql, false}; }
SqliteStatement SqliteConnection::prepareToKeep(std::string_view sql) { return {connection_.get(), sql, true}; }

void SqliteConnection::execute(const std::string& sql)
{
    const int code = sqlite3_exec(connection_.get(), sql.c_str(), nullptr, nullptr, nullptr);
    if (code != SQLITE_OK)
        fail(connection_.get(), code);
}

std::int64_t SqliteConnection::queryInteger(const std::string& sql)
{
    SqliteStatement statement = prepare(sql);
    return statement.step() ? statement.integer(0) : 0;
}

std::string SqliteConnection::queryText(const std::string& sql)
{
    SqliteStatement statement = prepare(sql);
    return statement.step() ? std::string(statement.text(0)) : std::string();
}

std::int64_t SqliteConnection::changes() const { return sqlite3_changes64(connection_.get()); }
bool SqliteConnection::isInTransaction() const { return sqlite3_get_autocommit(connection_.get()) == 0; }

void SqliteConnection::rollback() noexcept { sqlite3_exec(connection_.get(), "ROLLBACK", nullptr, nullptr, nullptr); }

std::uint32_t SqliteConnection::dataVersion() const
{
    std::uint32_t version = 0;
    sqlite3_file_control(connection_.get(), "main", SQLITE_FCNTL_DATA_VERSION, &version);
    return version;
}

SqliteTransaction::SqliteTransaction(SqliteConnection& connection) : connection_(connection)
{
    connection_.execute("BEGIN IMMEDIATE");
}

SqliteTransaction::~SqliteTransaction()
{
    if (open_)
        connection_.rollback();
}

void SqliteTransaction::commit()
{
    connection_.execute("COMMIT");
    open_ = false;
}

std::string quotedName(std::string_view name)
{
    std::string quoted = "\"";
    for (const char c : name)
        quoted.append(c == '"' ? 2 : 1, c);
    return quoted + '"';
}

} // namespace qncal::host
