#include "store/StoreEngine.h"

#include "store/ddl.h"
#include "store/dialect/LikePattern.h"
#include "store/dialect/Parser.h"
#include "store/planSelect.h"
#include "store/storeError.h"

#include <sqlite3.h>

#include <algorithm>
#include <utility>

namespace qncal::host {

namespace {

/// Texts that differ in more than their literals are few; lists of IN may make many shapes.
constexpr std::size_t mostPlans = 512;
/// Deletions that open record sets may be behind with.
constexpr std::size_t mostDeletions = 4096;

std::string_view textArgument(sqlite3_value* value)
{
    const auto* start = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return start ? std::string_view(start, static_cast<std::size_t>(sqlite3_value_bytes(value))) : std::string_view();
}

/// LIKE of the dialect: the engine's own knows other wildcards.
void likeFunction(sqlite3_context* context, int, sqlite3_value** arguments)
{
    using dialect::LikePattern;
    if (sqlite3_value_type(arguments[0]) == SQLITE_NULL || sqlite3_value_type(arguments[1]) == SQLITE_NULL)
        return;
    try {
        auto* pattern = static_cast<LikePattern*>(sqlite3_get_auxdata(context, 0));
        const bool known = pattern != nullptr;
        std::unique_ptr<LikePattern> fresh;
        if (!known) {
            fresh = std::make_unique<LikePattern>(textArgument(arguments[0]));
            pattern = fresh.get();
        }
        sqlite3_result_int(context, pattern->matches(textArgument(arguments[1])) ? 1 : 0);
        if (!known)
            sqlite3_set_auxdata(context, 0, fresh.release(),
                                [](void* kept) { delete static_cast<LikePattern*>(kept); });
    } catch (const std::bad_alloc&) {
        sqlite3_result_error_nomem(context);
    }
}

SqliteConnection openConnection(const std::string& path, SqliteConnection::Access access,
                                std::span<const schema::Table> tables, std::int32_t version,
                                const StoreEngine::Limits& limits)
{
    SqliteConnection connection(path, access, limits.busyTimeout);
    if (sqlite3_db_readonly(connection.raw(), "main") == 1)
        throw RunTimeError(storeError::readOnly, "The file is read-only");
    if (limits.largestFile > 0) {
        const std::int64_t pages = limits.largestFile / connection.queryInteger("PRAGMA page_size");
        connection.execute("PRAGMA max_page_count = " + std::to_string(pages));
    }
    sqlite3_create_function(connection.raw(), "like", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, likeFunction,
                            nullptr, nullptr);
    prepareSchema(connection, tables, version);
    connection.queryText("PRAGMA journal_mode = WAL");
    connection.execute("PRAGMA synchronous = NORMAL");
    connection.execute("PRAGMA wal_autocheckpoint = 0");
    return connection;
}

} // namespace

StoreEngine::StoreEngine(const std::string& path, SqliteConnection::Access access,
                         std::span<const schema::Table> tables, std::int32_t version, const Limits& limits)
    : connection_(openConnection(path, access, tables, version, limits)), logPages_(std::make_unique<int>(0)),
      mostLogPages_(limits.longestLog / connection_.queryInteger("PRAGMA page_size")), catalogue_(tables, connection_)
{
    sqlite3_wal_hook(
        connection_.raw(),
        [](void* pages, sqlite3*, const char*, int count) {
            *static_cast<int*>(pages) = count;
            return SQLITE_OK;
        },
        logPages_.get());
}

std::shared_ptr<SelectPlan> StoreEngine::plan(std::string_view sql)
{
    text_.read(sql);
    if (const auto known = plans_.find(text_.shape()); known != plans_.end())
        return known->second;
    const dialect::Select select = dialect::parseSelect(sql);
    auto plan = std::make_shared<SelectPlan>(planSelect(select, sql, catalogue_), connection_);
    ++statistics_.plans;
    if (select.bindsLiterals)
        return plan;
    if (plans_.size() >= mostPlans)
        plans_.clear();
    plans_.emplace(text_.shape(), plan);
    return plan;
}

void StoreEngine::checkpoint()
{
    // Failure is no harm: the log stays and is written back another time.
    sqlite3_wal_checkpoint_v2(connection_.raw(), nullptr, SQLITE_CHECKPOINT_PASSIVE, nullptr, nullptr);
    *logPages_ = 0;
}

void StoreEngine::recordSetClosed()
{
    if (*logPages_ > mostLogPages_)
        checkpoint();
    // With no record set open nobody needs to hear of the records deleted so far.
    if (handles_.openCount() == 0)
        forgetDeletions();
}

void StoreEngine::recordDeleted()
{
    // A handle that was never closed must not let the lists grow for ever.
    const auto isLong = [](const auto& table) { return table->deletions().size() >= mostDeletions; };
    if (std::ranges::none_of(catalogue_.tables(), isLong))
        return;
    handles_.forEachOpen([](RecordCursor& cursor) { cursor.settleDeletions(); });
    forgetDeletions();
}

void StoreEngine::forgetDeletions()
{
    for (const auto& table : catalogue_.tables())
        table->forgetDeletions();
}

void StoreEngine::finish()
{
    try {
        for (const auto& table : catalogue_.tables())
            table->returnKeys();
    } catch (const RunTimeError&) {
        // Keys that nobody used are lost, as a caller's abandoned ones are.
    }
    checkpoint();
}

} // namespace qncal::host
