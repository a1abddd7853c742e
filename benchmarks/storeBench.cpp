#include "compare.h"

#include "store/SqliteDatabase.h"

#include "store/dialect/shape.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

/// What the store costs beside bare statements of the engine on the same file.

namespace qncal::host {
namespace {

using bench::compareWith;

constexpr int itemCount = 2000;
const std::string allTasks = "SELECT Tasks.* FROM Tasks;";

const schema::Table& tasks() { return *schema::findTable("Tasks"); }

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

std::int32_t openUpdatable(SqliteDatabase& store, std::string_view sql)
{
    return store.openRecordset(sql, 1, DatabaseService::updatable, true, {}, true);
}

void addTask(SqliteDatabase& store, int number)
{
    const auto handle = openUpdatable(store, allTasks);
    store.addNew(handle);
    for (const schema::Column& column : tasks().columns.subspan(1))
        store.setFieldValue(handle, column.name, sampleValue(column, number), false, false, false);
    store.update(handle);
    store.closeRecordset(handle);
}

/// A database file with tasks, used by the store and by bare statements alike.
class File {
public:
    File()
    {
        std::string name = (std::filesystem::temp_directory_path() / "qncalBenchXXXXXX").string();
        folder_ = mkdtemp(name.data());
        path_ = (folder_ / "store.db").string();
        store_ = SqliteDatabase::create(path_);
        for (int number = 0; number < itemCount; ++number)
            addTask(*store_, number);
        store_->idle();
        sqlite3_open(path_.c_str(), &raw_);
        sqlite3_exec(raw_, "PRAGMA synchronous = NORMAL; PRAGMA wal_autocheckpoint = 0", nullptr, nullptr, nullptr);
    }
    ~File()
    {
        for (const auto& [sql, statement] : statements_)
            sqlite3_finalize(statement);
        sqlite3_close(raw_);
        store_.reset();
        std::filesystem::remove_all(folder_);
    }
    File(const File&) = delete;
    File& operator=(const File&) = delete;

    SqliteDatabase& store() { return *store_; }
    sqlite3* raw() { return raw_; }
    sqlite3_stmt* prepared(const std::string& sql)
    {
        sqlite3_stmt*& statement = statements_[sql];
        if (!statement)
            sqlite3_prepare_v2(raw_, sql.c_str(), -1, &statement, nullptr);
        return statement;
    }

private:
    std::filesystem::path folder_;
    std::string path_;
    std::unique_ptr<SqliteDatabase> store_;
    sqlite3* raw_ = nullptr;
    std::unordered_map<std::string, sqlite3_stmt*> statements_;
};

File& file()
{
    static File instance;
    return instance;
}

/// A bare SELECT * by key, every column copied into a text.
void readRaw(int key, std::vector<std::string>& values)
{
    sqlite3_stmt* const statement = file().prepared("SELECT * FROM Tasks WHERE TaskID = ?");
    sqlite3_bind_int(statement, 1, key);
    if (sqlite3_step(statement) == SQLITE_ROW)
        for (std::size_t column = 0; column < values.size(); ++column) {
            const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, static_cast<int>(column)));
            values[column] = text ? text : "";
        }
    sqlite3_reset(statement);
}

void bindAll(sqlite3_stmt* statement, const std::vector<std::string>& values)
{
    for (std::size_t i = 0; i < values.size(); ++i)
        sqlite3_bind_text(statement, static_cast<int>(i) + 1, values[i].c_str(), -1, SQLITE_STATIC);
}

void storeLoadRaw(benchmark::State& state)
{
    std::vector<std::string> values(tasks().columns.size());
    int key = 0;
    for (auto _ : state) {
        readRaw(1 + key++ % itemCount, values);
        benchmark::DoNotOptimize(values.data());
    }
}
BENCHMARK(storeLoadRaw);

void storeLoad(benchmark::State& state)
{
    compareWith(state, "storeLoadRaw", 1.5);
    SqliteDatabase& store = file().store();
    int key = 0;
    for (auto _ : state) {
        const auto handle = store.openRecordset(
            "SELECT Tasks.* FROM Tasks WHERE Tasks.TaskID=" + std::to_string(1 + key++ % itemCount) + ";", 1,
            DatabaseService::readOnly, true, {}, true);
        if (store.hasRecords(handle))
            for (const schema::Column& column : tasks().columns)
                benchmark::DoNotOptimize(store.getField(handle, column.name));
        store.closeRecordset(handle);
    }
}
BENCHMARK(storeLoad);

void storeSaveRaw(benchmark::State& state)
{
    std::vector<std::string> values(tasks().columns.size());
    sqlite3_stmt* const update = file().prepared("UPDATE Tasks SET Subject = ?, TextBody = ? WHERE TaskID = ?");
    int key = 0;
    for (auto _ : state) {
        const int id = 1 + key % itemCount;
        readRaw(id, values);
        bindAll(update, {"Subject " + std::to_string(key), "Notes " + std::to_string(key)});
        sqlite3_bind_int(update, 3, id);
        sqlite3_step(update);
        sqlite3_reset(update);
        ++key;
    }
    file().store().idle();
}
BENCHMARK(storeSaveRaw);

/// Every column is written, as a save does, and two of them change.
void storeSave(benchmark::State& state)
{
    compareWith(state, "storeSaveRaw", 1.5);
    SqliteDatabase& store = file().store();
    std::vector<std::vector<std::string>> values(itemCount);
    for (int item = 0; item < itemCount; ++item)
        for (const schema::Column& column : tasks().columns)
            values[static_cast<std::size_t>(item)].push_back(sampleValue(column, item));
    int round = 0;
    for (auto _ : state) {
        const int item = round % itemCount;
        const auto handle =
            openUpdatable(store, "SELECT Tasks.* FROM Tasks WHERE Tasks.TaskID=" + std::to_string(item + 1) + ";");
        std::vector<std::string>& record = values[static_cast<std::size_t>(item)];
        for (std::size_t i = 1; i < record.size(); ++i) {
            const schema::Column& column = tasks().columns[i];
            if (column.name == "Subject" || column.name == "TextBody")
                record[i] = "Text " + std::to_string(round);
            store.setFieldValue(handle, column.name, record[i], false, false, false);
        }
        store.closeRecordset(handle);
        ++round;
    }
    store.idle();
}
BENCHMARK(storeSave);

void storeAddRaw(benchmark::State& state)
{
    std::string places;
    std::vector<std::string> values;
    for (const schema::Column& column : tasks().columns.subspan(1)) {
        places += ", ?";
        values.push_back(sampleValue(column, 7));
    }
    sqlite3_stmt* const insert = file().prepared("INSERT INTO Tasks VALUES (NULL" + places + ")");
    for (auto _ : state) {
        bindAll(insert, values);
        sqlite3_step(insert);
        sqlite3_reset(insert);
    }
    file().store().idle();
}
BENCHMARK(storeAddRaw)->Iterations(2000);

void storeAdd(benchmark::State& state)
{
    compareWith(state, "storeAddRaw/iterations:2000", 1.5);
    std::vector<std::string> values;
    for (const schema::Column& column : tasks().columns.subspan(1))
        values.push_back(sampleValue(column, 7));
    SqliteDatabase& store = file().store();
    for (auto _ : state) {
        const auto handle = openUpdatable(store, allTasks);
        store.addNew(handle);
        for (std::size_t i = 0; i < values.size(); ++i)
            store.setFieldValue(handle, tasks().columns[i + 1].name, values[i], false, false, false);
        benchmark::DoNotOptimize(store.getField(handle, "TaskID"));
        store.update(handle);
        store.closeRecordset(handle);
    }
    store.idle();
}
BENCHMARK(storeAdd)->Iterations(2000);

/// Opening all of a table to add to it; the record is abandoned, so that the table keeps its size.
void openForAdding(benchmark::State& state, int rows)
{
    const auto store = SqliteDatabase::openInMemory();
    const auto filler = openUpdatable(*store, "SELECT Holidays.* FROM Holidays;");
    for (int row = 0; row < rows; ++row) {
        store->addNew(filler);
        store->update(filler);
    }
    store->closeRecordset(filler);
    for (auto _ : state) {
        const auto handle = openUpdatable(*store, "SELECT Holidays.* FROM Holidays;");
        store->addNew(handle);
        store->setNewField(handle, "HolidayType", "1");
        store->closeRecordset(handle);
    }
}

void storeOpenForAddingTo10(benchmark::State& state) { openForAdding(state, 10); }
BENCHMARK(storeOpenForAddingTo10)->Iterations(100000);

void storeOpenForAddingTo1000000(benchmark::State& state)
{
    compareWith(state, "storeOpenForAddingTo10/iterations:100000", 1.2);
    openForAdding(state, 1000000);
}
BENCHMARK(storeOpenForAddingTo1000000)->Iterations(100000);

const std::string longSelect =
    "SELECT Tasks.TaskID, Tasks.UserIDNum, Tasks.DateFrom, Tasks.TimeFrom, Tasks.TimeTo FROM Tasks WHERE "
    "((Tasks.UserIDNum=7) AND (Tasks.DateFrom=#2026-03-31#) AND (Tasks.TimeFrom>#9:00:00 AM# And "
    "Tasks.TimeFrom<#5:00:00 PM#)) OR ((Tasks.UserIDNum=7) AND (Tasks.TimeFrom<=#9:00:00 AM# And Tasks.TimeTo>=9));";

void dialectPrepareRaw(benchmark::State& state)
{
    std::string sql = longSelect;
    for (char& c : sql)
        if (c == '#')
            c = '\'';
    for (auto _ : state) {
        sqlite3_stmt* statement = nullptr;
        sqlite3_prepare_v2(file().raw(), sql.c_str(), static_cast<int>(sql.size()), &statement, nullptr);
        benchmark::DoNotOptimize(statement);
        sqlite3_finalize(statement);
    }
}
BENCHMARK(dialectPrepareRaw);

/// A statement of a known shape is cut into tokens and looked up.
void dialectLookUp(benchmark::State& state)
{
    compareWith(state, "dialectPrepareRaw", 0.2);
    dialect::ShapedText text;
    text.read(longSelect);
    std::unordered_map<std::string, int> shapes{{text.shape(), 1}};
    for (auto _ : state) {
        text.read(longSelect);
        benchmark::DoNotOptimize(shapes.find(text.shape()));
    }
}
BENCHMARK(dialectLookUp);

} // namespace
} // namespace qncal::host
