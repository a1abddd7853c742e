#pragma once

#include "core/schema.h"
#include "store/SqliteDatabase.h"
#include "support/TemporaryFolder.h"

#include <sqlite3.h>

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace qncal::bench {

/// How many records the tables of a `BenchFile` start with; their keys count from 1.
inline constexpr int itemCount = 2000;
inline constexpr int companyCount = 50;

/// A likely value of a column, in the texts that the store takes.
std::string sampleValue(const schema::Column& column, int number);

/// A temporary database file with appointments, tasks, companies and labels of custom fields. The store has it open,
/// and beside it a bare connection with the same settings.
class BenchFile {
public:
    BenchFile();
    ~BenchFile();
    BenchFile(const BenchFile&) = delete;
    BenchFile& operator=(const BenchFile&) = delete;

    /// The file that the benchmarks of this run share.
    static BenchFile& shared();

    host::SqliteDatabase& store() { return *store_; }
    std::shared_ptr<host::SqliteDatabase> sharedStore() { return store_; }
    sqlite3* raw() { return raw_; }
    /// A statement of the bare connection, prepared once.
    sqlite3_stmt* prepared(const std::string& sql);
    /// A bare SELECT * by key, every column copied into a text; `values` has an entry for each column.
    void readRaw(const schema::Table& table, int key, std::vector<std::string>& values);

private:
    test::TemporaryFolder folder_;
    std::shared_ptr<host::SqliteDatabase> store_;
    sqlite3* raw_ = nullptr;
    std::unordered_map<std::string, sqlite3_stmt*> statements_;
    /// The statements of `readRaw`: nothing but the engine is to cost there.
    std::unordered_map<const schema::Table*, sqlite3_stmt*> readers_;
};

/// Binds texts to the parameters of a bare statement from the first on. They must stay in place until it is run.
void bindTexts(sqlite3_stmt* statement, const std::vector<std::string>& values);
/// Runs a bare statement without a result.
void run(sqlite3_stmt* statement);

} // namespace qncal::bench
