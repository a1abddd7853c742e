#pragma once

#include "core/schema.h"
#include "store/Row.h"
#include "store/SqliteConnection.h"
#include "utilities/NameIndex.h"

#include <cstdint>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace qncal::host {

/// Somebody whose answer a write to a table may change, and who must have it before.
class TableReader {
public:
    virtual ~TableReader() = default;
    /// Called before each write until the reader calls `tellNoMore`, which it does at the latest now.
    virtual void beforeWrite() = 0;
};

/// One table of an open database: the statements that write it, the numbering of its keys, and what record sets
/// need to know to see each other's writes. The first column is the key.
class StoreTable {
public:
    StoreTable(const schema::Table& table, SqliteConnection& connection);

    const schema::Table& schema() const { return schema_; }
    const schema::Column& column(std::size_t place) const { return schema_.columns[place]; }
    const NameIndex& columnNames() const { return columnNames_; }
    std::string keyName() const { return quotedName(schema_.columns.front().name); }

    /// A key that nobody has and nobody else, in whatever process, will be given.
    std::int64_t takeKey();
    /// True when there is a record with that key.
    bool holds(std::int64_t key);
    /// Gives back the keys that were taken from the file but from no caller.
    void returnKeys();

    /// What a new record holds in each column that no one set.
    const Row& defaults();

    void tellBeforeWrite(TableReader& reader) { readers_.push_back(&reader); }
    void tellNoMore(const TableReader& reader);

    using Change = std::pair<std::uint16_t, StoredValue>;
    void insert(const std::vector<Change>& values);
    /// False when there is no such record any more.
    bool update(std::int64_t key, const std::vector<Change>& values);
    bool remove(std::int64_t key);

    /// Grows with every write, so that a copy of a record knows its age.
    std::uint64_t version() const { return version_; }
    /// The keys deleted since the last `forgetDeletions`, in their order.
    const std::vector<std::int64_t>& deletions() const { return deletions_; }
    void forgetDeletions() { deletions_.clear(); }

private:
    void takeKeys();
    void tellReaders();
    SqliteStatement& statementFor(std::unordered_map<std::string, SqliteStatement>& cache, bool update,
                                  const std::vector<Change>& values);
    std::string insertText(const std::vector<Change>& values) const;
    std::string updateText(const std::vector<Change>& values) const;

    const schema::Table& schema_;
    SqliteConnection& connection_;
    NameIndex columnNames_;
    std::unordered_map<std::string, SqliteStatement> inserts_;
    std::unordered_map<std::string, SqliteStatement> updates_;
    std::string cacheKey_;
    SqliteStatement remove_, find_;
    Row defaults_;
    std::int64_t nextKey_ = 0;
    std::int64_t endKey_ = 0;
    std::uint64_t version_ = 0;
    std::vector<std::int64_t> deletions_;
    std::vector<TableReader*> readers_;
};

} // namespace qncal::host
