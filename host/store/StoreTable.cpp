#include "store/StoreTable.h"

#include <algorithm>
#include <iterator>

namespace qncal::host {

namespace {

/// One write of the bookkeeping row serves as many new records.
constexpr std::int64_t keysTakenAtOnce = 64;
/// A bound on statements kept for one table; sets of changed columns repeat, so that it is hardly ever met.
constexpr std::size_t mostStatements = 128;

} // namespace

StoreTable::StoreTable(const schema::Table& table, SqliteConnection& connection)
    : schema_(table), connection_(connection)
{
    for (const schema::Column& column : table.columns)
        columnNames_.add(column.name);
}

std::int64_t StoreTable::takeKey()
{
    // Whoever chooses keys may have chosen one of those taken: a former number, say, that goes into an archive.
    do {
        if (nextKey_ == endKey_)
            takeKeys();
        ++nextKey_;
    } while (holds(nextKey_ - 1));
    return nextKey_ - 1;
}

bool StoreTable::holds(std::int64_t key)
{
    if (!find_)
        find_ = connection_.prepareToKeep("SELECT 1 FROM " + quotedName(schema_.name) + " WHERE " + keyName() + " = ?");
    const StatementRun run(find_);
    find_.bind(1, key);
    return find_.step();
}

/// The engine's own number of the last key given moves past the keys taken, so that a record which an SQL tool
/// adds gets none of them.
void StoreTable::takeKeys()
{
    SqliteTransaction transaction(connection_);
    SqliteStatement find = connection_.prepare("SELECT seq FROM sqlite_sequence WHERE name = ?1");
    find.bind(1, schema_.name);
    const bool known = find.step();
    const std::int64_t last = known ? find.integer(0) : 0;
    find.reset();
    SqliteStatement store = connection_.prepare(known ? "UPDATE sqlite_sequence SET seq = ?2 WHERE name = ?1"
                                                      : "INSERT INTO sqlite_sequence (name, seq) VALUES (?1, ?2)");
    store.bind(1, schema_.name);
    store.bind(2, last + keysTakenAtOnce);
    store.step();
    store.reset();
    transaction.commit();
    nextKey_ = last + 1;
    endKey_ = nextKey_ + keysTakenAtOnce;
}

void StoreTable::returnKeys()
{
    if (nextKey_ == endKey_)
        return;
    SqliteStatement store = connection_.prepare("UPDATE sqlite_sequence SET seq = ?1 WHERE name = ?2 AND seq = ?3");
    store.bind(1, nextKey_ - 1);
    store.bind(2, schema_.name);
    store.bind(3, endKey_ - 1);
    store.step();
    nextKey_ = endKey_ = 0;
}

const Row& StoreTable::defaults()
{
    if (defaults_.size() == 0) {
        std::string literals;
        for (const schema::Column& column : schema_.columns)
            literals += (literals.empty() ? "" : ", ")
                        + (column.defaultValue.empty() ? std::string("NULL") : std::string(column.defaultValue));
        SqliteStatement statement = connection_.prepare("SELECT " + literals);
        statement.step();
        defaults_.readFrom(statement, static_cast<int>(schema_.columns.size()));
    }
    return defaults_;
}

SqliteStatement& StoreTable::statementFor(std::unordered_map<std::string, SqliteStatement>& cache, bool update,
                                          const std::vector<Change>& values)
{
    cacheKey_.clear();
    for (const auto& [column, value] : values) {
        cacheKey_ += static_cast<char>(column & 0xFF);
        cacheKey_ += static_cast<char>(column >> 8);
    }
    if (const auto known = cache.find(cacheKey_); known != cache.end())
        return known->second;
    if (cache.size() >= mostStatements)
        cache.clear();
    SqliteStatement statement = connection_.prepareToKeep(update ? updateText(values) : insertText(values));
    return cache.emplace(cacheKey_, std::move(statement)).first->second;
}

std::string StoreTable::insertText(const std::vector<Change>& values) const
{
    std::string names;
    std::string places;
    for (const auto& [column, value] : values) {
        names += (names.empty() ? "" : ", ") + quotedName(schema_.columns[column].name);
        places += places.empty() ? "?" : ", ?";
    }
    return "INSERT INTO " + quotedName(schema_.name) + " (" + names + ") VALUES (" + places + ")";
}

std::string StoreTable::updateText(const std::vector<Change>& values) const
{
    std::string assignments;
    for (const auto& [column, value] : values)
        assignments += (assignments.empty() ? "" : ", ") + quotedName(schema_.columns[column].name) + " = ?";
    return "UPDATE " + quotedName(schema_.name) + " SET " + assignments + " WHERE " + keyName() + " = ?";
}

void StoreTable::tellNoMore(const TableReader& reader)
{
    // Mostly the last: who opens a record set closes it before another.
    const auto found = std::find(readers_.rbegin(), readers_.rend(), &reader);
    if (found != readers_.rend())
        readers_.erase(std::next(found).base());
}

void StoreTable::tellReaders()
{
    // One that fails is still there, and the write does not happen.
    while (!readers_.empty())
        readers_.back()->beforeWrite();
}

void StoreTable::insert(const std::vector<Change>& values)
{
    tellReaders();
    SqliteStatement& statement = statementFor(inserts_, false, values);
    const StatementRun run(statement);
    int index = 0;
    for (const auto& [column, value] : values)
        statement.bind(++index, value);
    statement.step();
    ++version_;
    // A key that the caller chose may be one of those waiting to be given.
    if (const auto& [column, key] = values.front(); column == 0 && key.integer >= nextKey_ && key.integer < endKey_)
        nextKey_ = key.integer + 1;
}

bool StoreTable::update(std::int64_t key, const std::vector<Change>& values)
{
    tellReaders();
    SqliteStatement& statement = statementFor(updates_, true, values);
    const StatementRun run(statement);
    int index = 0;
    for (const auto& [column, value] : values)
        statement.bind(++index, value);
    statement.bind(++index, key);
    statement.step();
    ++version_;
    return connection_.changes() > 0;
}

bool StoreTable::remove(std::int64_t key)
{
    tellReaders();
    if (!remove_)
        remove_ = connection_.prepareToKeep("DELETE FROM " + quotedName(schema_.name) + " WHERE " + keyName() + " = ?");
    const StatementRun run(remove_);
    remove_.bind(1, key);
    remove_.step();
    ++version_;
    deletions_.push_back(key);
    return connection_.changes() > 0;
}

} // namespace qncal::host
