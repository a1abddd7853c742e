#include "store/SqliteDatabase.h"

#include "store/StoreEngine.h"
#include "store/dateStorage.h"
#include "store/dialect/LikePattern.h"
#include "store/storeError.h"

#include <filesystem>
#include <system_error>
#include <utility>

namespace qncal::host {

namespace {

using Access = SqliteConnection::Access;

constexpr const char* inMemory = ":memory:";

/// What the engine would only call unable to open.
void requirePlace(const std::string& path, Access access)
{
    const std::filesystem::path file(path);
    const std::filesystem::path folder = file.parent_path();
    std::error_code ignored;
    if (!folder.empty() && !std::filesystem::is_directory(folder, ignored))
        throw RunTimeError(storeError::cannotOpen, "There is no folder \"" + folder.string() + "\"");
    if (access == Access::readWrite && !std::filesystem::exists(file, ignored))
        throw RunTimeError(storeError::cannotOpen, "There is no such file");
    if (std::filesystem::is_directory(file, ignored))
        throw RunTimeError(storeError::cannotOpen, "It is a folder");
}

std::unique_ptr<StoreEngine> openEngine(const std::string& path, Access access, const SqliteDatabase::Options& options)
{
    try {
        if (path != inMemory)
            requirePlace(path, access);
        return std::make_unique<StoreEngine>(
            path, access, options.tables, options.version,
            StoreEngine::Limits{options.busyTimeout, options.largestFile, options.longestLog});
    } catch (const RunTimeError& error) {
        throw RunTimeError(error.number(), "Cannot open the database \"" + path + "\". " + error.what());
    }
}

/// Whoever is told of an error finds all writes before it in the database.
template <class Operation>
auto orFlush(StoreEngine& engine, Operation&& operation)
{
    try {
        return operation();
    } catch (const RunTimeError&) {
        engine.writes().flush();
        throw;
    }
}

} // namespace

SqliteDatabase::SqliteDatabase(std::unique_ptr<StoreEngine> engine) : engine_(std::move(engine)) {}

SqliteDatabase::~SqliteDatabase()
{
    try {
        close();
    } catch (const std::exception&) {
        // Nobody is left to tell; whoever wants to know calls `close`.
    }
}

std::unique_ptr<SqliteDatabase> SqliteDatabase::open(const std::string& path, const Options& options)
{
    return std::unique_ptr<SqliteDatabase>(new SqliteDatabase(openEngine(path, Access::readWrite, options)));
}

std::unique_ptr<SqliteDatabase> SqliteDatabase::create(const std::string& path, const Options& options)
{
    return std::unique_ptr<SqliteDatabase>(new SqliteDatabase(openEngine(path, Access::create, options)));
}

std::unique_ptr<SqliteDatabase> SqliteDatabase::openInMemory(const Options& options)
{
    return create(inMemory, options);
}

std::unique_ptr<SqliteDatabase> SqliteDatabase::open(const std::string& path) { return open(path, Options{}); }
std::unique_ptr<SqliteDatabase> SqliteDatabase::create(const std::string& path) { return create(path, Options{}); }
std::unique_ptr<SqliteDatabase> SqliteDatabase::openInMemory() { return openInMemory(Options{}); }

StoreEngine& SqliteDatabase::engine() const
{
    if (!engine_)
        throw RunTimeError(storeError::notConnected, "No database is open");
    return *engine_;
}

const StoreStatistics& SqliteDatabase::statistics() const { return engine().statistics(); }

std::vector<std::string> SqliteDatabase::fieldNames(std::int32_t handle) { return cursor(handle).fieldNames(); }

bool SqliteDatabase::isConnected() { return engine_ != nullptr; }

void SqliteDatabase::flush() { engine().writes().flush(); }

void SqliteDatabase::idle()
{
    flush();
    engine().checkpoint();
}

void SqliteDatabase::close()
{
    // Closed it is, whatever the last writes say.
    const std::unique_ptr<StoreEngine> closing = std::move(engine_);
    if (!closing)
        return;
    closing->writes().flush();
    closing->finish();
}

RecordCursor& SqliteDatabase::cursor(std::int32_t handle)
{
    if (RecordCursor* const found = engine().handles().find(handle))
        return *found;
    throw RunTimeError(storeError::badHandle, "The record set " + std::to_string(handle) + " is not open");
}

/// The record set of an operation that reads or moves: all writes before it must be there.
RecordCursor& SqliteDatabase::settledCursor(std::int32_t handle)
{
    RecordCursor& found = cursor(handle);
    engine_->writes().flush();
    return found;
}

/// The record set of a write to its current record. Its own buffered writes may go on waiting: its copy of the record
/// holds them.
RecordCursor& SqliteDatabase::ownSettledCursor(std::int32_t handle)
{
    RecordCursor& found = cursor(handle);
    WriteBuffer& writes = engine_->writes();
    if (!writes.isEmpty() && !writes.isOf(found))
        writes.flush();
    return found;
}

std::int32_t SqliteDatabase::openRecordset(std::string_view sql, std::int32_t, std::int32_t lock, bool,
                                           std::string_view, bool)
{
    StoreEngine& store = engine();
    store.writes().flush();
    auto plan = store.plan(sql);
    const auto [handle, opened] = store.handles().open();
    opened.open(std::move(plan), store.literals(), lock != readOnly, store.statistics());
    return handle;
}

void SqliteDatabase::closeRecordset(std::int32_t handle)
{
    if (!engine_)
        return;
    const RecordCursor* const closing = engine_->handles().find(handle);
    if (!closing)
        return;
    const bool isWriter = engine_->writes().isOf(*closing);
    if (isWriter)
        flushToClose(handle);
    engine_->handles().close(handle);
    if (!isWriter)
        engine_->writes().flush();
    engine_->recordSetClosed();
}

/// A first failure leaves the record set open, so that closing can be tried again. A second one ends it all the
/// same: a handle that cannot be closed would stand in the way of everything else.
void SqliteDatabase::flushToClose(std::int32_t handle)
{
    WriteBuffer& writes = engine_->writes();
    const bool isLastAttempt = writes.hasFailed();
    try {
        writes.flush();
    } catch (const RunTimeError&) {
        if (isLastAttempt) {
            writes.discard();
            engine_->handles().close(handle);
        }
        throw;
    }
}

bool SqliteDatabase::isRecordsetOpen(std::int32_t handle) { return engine_ && engine_->handles().find(handle); }
bool SqliteDatabase::hasRecords(std::int32_t handle) { return settledCursor(handle).hasRecords(); }
bool SqliteDatabase::isRecordsetEmpty(std::int32_t handle) { return !hasRecords(handle); }
bool SqliteDatabase::isEOF(std::int32_t handle) { return settledCursor(handle).isEOF(); }
bool SqliteDatabase::moveNext(std::int32_t handle) { return settledCursor(handle).moveNext(); }
bool SqliteDatabase::movePrevious(std::int32_t handle) { return settledCursor(handle).movePrevious(); }

std::int32_t SqliteDatabase::getRecordCount(std::int32_t handle)
{
    return static_cast<std::int32_t>(settledCursor(handle).count());
}

std::int32_t SqliteDatabase::getPosition(std::int32_t handle)
{
    return static_cast<std::int32_t>(settledCursor(handle).position());
}

bool SqliteDatabase::setPosition(std::int32_t handle, std::int32_t position)
{
    return settledCursor(handle).setPosition(position);
}

bool SqliteDatabase::findRecord(std::int32_t handle, std::string_view fieldName, std::string_view value, std::string&,
                                std::string&, std::string&, std::string&)
{
    return settledCursor(handle).find(fieldName, value);
}

Variant SqliteDatabase::getField(std::int32_t handle, std::string_view fieldName)
{
    return settledCursor(handle).field(fieldName);
}

bool SqliteDatabase::setFieldValue(std::int32_t handle, std::string_view fieldName, std::string_view value, bool, bool,
                                   bool)
{
    RecordCursor& found = ownSettledCursor(handle);
    orFlush(*engine_, [&] {
        if (found.isAdding()) {
            found.setNewField(fieldName, value);
        } else {
            engine_->writes().add(found, found.planWrite(fieldName, value));
        }
    });
    return true;
}

bool SqliteDatabase::addNew(std::int32_t handle)
{
    settledCursor(handle).beginRecord();
    return true;
}

bool SqliteDatabase::setNewField(std::int32_t handle, std::string_view fieldName, std::string_view value)
{
    cursor(handle).setNewField(fieldName, value);
    return true;
}

bool SqliteDatabase::update(std::int32_t handle)
{
    settledCursor(handle).storeRecord();
    return true;
}

bool SqliteDatabase::deleteRecord(std::int32_t handle)
{
    const bool deleted = settledCursor(handle).deleteRecord();
    engine_->recordDeleted();
    return deleted;
}

std::string SqliteDatabase::getSQLDate(const Date& date)
{
    std::string text;
    appendDateStorage(date, text);
    return text;
}

std::string SqliteDatabase::getSQLText(std::string_view text) { return dialect::LikePattern::literal(text); }

} // namespace qncal::host
