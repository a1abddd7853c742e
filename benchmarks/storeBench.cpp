#include "BenchFile.h"
#include "compare.h"

#include "store/dialect/shape.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

/// What the store costs beside bare statements of the engine on the same file.

namespace qncal::host {
namespace {

using bench::BenchFile;
using bench::bindTexts;
using bench::compareWith;
using bench::HeapUse;
using bench::itemCount;
using bench::run;
using bench::sampleValue;
using test::TemporaryFolder;

const std::string allTasks = "SELECT Tasks.* FROM Tasks;";

const schema::Table& tasks() { return *schema::findTable("Tasks"); }

std::int32_t openUpdatable(SqliteDatabase& store, std::string_view sql)
{
    return store.openRecordset(sql, 1, DatabaseService::updatable, true, {}, true);
}

BenchFile& file() { return BenchFile::shared(); }

void storeLoadRaw(benchmark::State& state)
{
    std::vector<std::string> values(tasks().columns.size());
    int key = 0;
    for (auto _ : state) {
        file().readRaw(tasks(), 1 + key++ % itemCount, values);
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
        file().readRaw(tasks(), id, values);
        const std::vector<std::string> texts{"Subject " + std::to_string(key), "Notes " + std::to_string(key)};
        bindTexts(update, texts);
        sqlite3_bind_int(update, 3, id);
        run(update);
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
        bindTexts(insert, values);
        run(insert);
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

/// A database file whose table of holidays has so many rows.
std::unique_ptr<SqliteDatabase> openFilled(const TemporaryFolder& folder, int rows)
{
    const std::string path = folder.file("store.db");
    SqliteDatabase::create(path)->close();
    sqlite3* raw = nullptr;
    sqlite3_open(path.c_str(), &raw);
    const std::string fill = "WITH RECURSIVE row(number) AS (SELECT 1 UNION ALL SELECT number + 1 FROM row LIMIT "
                             + std::to_string(rows)
                             + ") INSERT INTO Holidays (HolidayDate, HolidayType) SELECT '2026-01-01', 1 FROM row";
    sqlite3_exec(raw, fill.c_str(), nullptr, nullptr, nullptr);
    sqlite3_close(raw);
    return SqliteDatabase::open(path);
}

/// Opening all of a table to add to it; the record is abandoned, so that the table keeps its size.
void openForAdding(benchmark::State& state, int rows)
{
    const TemporaryFolder folder;
    const auto store = openFilled(folder, rows);
    const auto openOne = [&store] {
        const auto handle = openUpdatable(*store, "SELECT Holidays.* FROM Holidays;");
        store->addNew(handle);
        store->setNewField(handle, "HolidayType", "1");
        return handle;
    };
    HeapUse heap;
    const auto first = openOne();
    heap.note();
    store->closeRecordset(first);
    for (auto _ : state)
        store->closeRecordset(openOne());
    heap.report(state);
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

/// The same through the store: a record set is opened by a statement of a known shape, read nothing of, and closed.
void storeOpenKnownShape(benchmark::State& state)
{
    compareWith(state, "dialectPrepareRaw", 0.2);
    SqliteDatabase& store = file().store();
    for (auto _ : state)
        store.closeRecordset(store.openRecordset(longSelect, 1, DatabaseService::readOnly, true, {}, true));
}
BENCHMARK(storeOpenKnownShape);

} // namespace
} // namespace qncal::host
