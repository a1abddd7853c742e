#include "BenchFile.h"

#include "utilities/Date.h"
#include "utilities/dateText.h"

#include <utility>

namespace qncal::bench {

namespace {

void addRecord(host::SqliteDatabase& store, const schema::Table& table, int number)
{
    const std::string name(table.name);
    const auto handle = store.openRecordset("SELECT " + name + ".* FROM " + name + ";", DatabaseService::cursorType,
                                            DatabaseService::updatable, true, {}, true);
    store.addNew(handle);
    for (const schema::Column& column : table.columns.subspan(1))
        store.setFieldValue(handle, column.name, sampleValue(column, number), false, false, false);
    store.update(handle);
    store.closeRecordset(handle);
}

} // namespace

std::string sampleValue(const schema::Column& column, int number)
{
    using schema::ColumnType;
    switch (column.type) {
    case ColumnType::text:
        return "Review of file " + std::to_string(number);
    case ColumnType::memo:
        return "Call back about the year end papers, file " + std::to_string(number);
    case ColumnType::boolean:
        return number % 2 ? "True" : "False";
    case ColumnType::date:
        return defaultDateText(Date::of(2026, 1, 1).addDays(number % 365));
    case ColumnType::time:
        return defaultDateText(Date::timeOf(8 + number % 9, 30));
    default:
        return std::to_string(number % 50);
    }
}

BenchFile::BenchFile()
{
    const std::string path = folder_.file("store.db");
    store_ = host::SqliteDatabase::create(path);
    const std::pair<std::string_view, int> counts[] = {{"Appointments", itemCount},
                                                       {"Tasks", itemCount},
                                                       {"Companies", companyCount},
                                                       {"CustomFields", 1},
                                                       {"CustomAddressFields", 1}};
    for (const auto& [table, count] : counts)
        for (int number = 0; number < count; ++number)
            addRecord(*store_, *schema::findTable(table), number);
    store_->idle();
    sqlite3_open(path.c_str(), &raw_);
    sqlite3_exec(raw_, "PRAGMA synchronous = NORMAL; PRAGMA wal_autocheckpoint = 0", nullptr, nullptr, nullptr);
}

BenchFile::~BenchFile()
{
    for (const auto& [sql, statement] : statements_)
        sqlite3_finalize(statement);
    sqlite3_close(raw_);
}

BenchFile& BenchFile::shared()
{
    static BenchFile instance;
    return instance;
}

sqlite3_stmt* BenchFile::prepared(const std::string& sql)
{
    sqlite3_stmt*& statement = statements_[sql];
    if (!statement)
        sqlite3_prepare_v2(raw_, sql.c_str(), -1, &statement, nullptr);
    return statement;
}

void BenchFile::readRaw(const schema::Table& table, int key, std::vector<std::string>& values)
{
    sqlite3_stmt*& statement = readers_[&table];
    if (!statement)
        statement = prepared("SELECT * FROM " + std::string(table.name) + " WHERE "
                             + std::string(table.columns.front().name) + " = ?");
    sqlite3_bind_int(statement, 1, key);
    if (sqlite3_step(statement) == SQLITE_ROW)
        for (std::size_t column = 0; column < values.size(); ++column) {
            const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, static_cast<int>(column)));
            values[column] = text ? text : "";
        }
    sqlite3_reset(statement);
}

void bindTexts(sqlite3_stmt* statement, const std::vector<std::string>& values)
{
    for (std::size_t i = 0; i < values.size(); ++i)
        sqlite3_bind_text(statement, static_cast<int>(i) + 1, values[i].c_str(), -1, SQLITE_STATIC);
}

void run(sqlite3_stmt* statement)
{
    sqlite3_step(statement);
    sqlite3_reset(statement);
}

} // namespace qncal::bench
