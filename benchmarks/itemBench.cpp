#include "BenchFile.h"
#include "compare.h"

#include "items/clsCalendarItem.h"
#include "services/HostEnvironment.h"
#include "templates/clsInsertFieldsInRTB.h"
#include "templates/mergeFieldCodes.h"

#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <memory>
#include <string>
#include <vector>

/// What an item costs, with the whole reference host around it, beside bare statements of the engine on the same
/// file.

namespace qncal {
namespace {

using bench::BenchFile;
using bench::bindTexts;
using bench::compareWith;
using bench::itemCount;
using bench::run;
using bench::sampleValue;
using host::HostEnvironment;
using host::HostServices;

constexpr int savedItems = 100;
constexpr std::string_view plainText = "Meeting";

BenchFile& file() { return BenchFile::shared(); }

HostServices hostOnFile() { return HostServices{.database = file().sharedStore()}; }

const schema::Table& appointments() { return *schema::findTable("Appointments"); }
const schema::Table& tasks() { return *schema::findTable("Tasks"); }

std::unique_ptr<clsCalendarItem> newItem(enumLocalCalendarItemType kind)
{
    auto item = std::make_unique<clsCalendarItem>();
    item->calendarItemType(kind);
    return item;
}

/// Items to be saved again and again, as a load left them and with plain texts as templates.
std::vector<std::unique_ptr<clsCalendarItem>> loadedItems(enumLocalCalendarItemType kind)
{
    std::vector<std::unique_ptr<clsCalendarItem>> items;
    for (int id = 1; id <= savedItems; ++id) {
        auto item = newItem(kind);
        item->itemID(id);
        item->loadCalendarItem();
        item->Remind(false);
        item->notifyType(0);
        item->contactIDNum(-1);
        item->companyIDNum(1 + id % bench::companyCount);
        item->TitleBarTextTemplate(std::string(plainText));
        item->DisplayTextTemplate(std::string(plainText));
        item->saveCalendarItem();
        items.push_back(std::move(item));
    }
    return items;
}

// Loading.

void loadRaw(benchmark::State& state, const schema::Table& table)
{
    std::vector<std::string> values(table.columns.size());
    int key = 0;
    for (auto _ : state) {
        file().readRaw(table, 1 + key++ % itemCount, values);
        benchmark::DoNotOptimize(values.data());
    }
}

void load(benchmark::State& state, enumLocalCalendarItemType kind)
{
    const HostEnvironment host(hostOnFile());
    const auto item = newItem(kind);
    int key = 0;
    for (auto _ : state) {
        item->itemID(1 + key++ % itemCount);
        benchmark::DoNotOptimize(item->loadCalendarItem());
    }
}

void itemLoadRaw(benchmark::State& state) { loadRaw(state, appointments()); }
BENCHMARK(itemLoadRaw);

void itemLoad(benchmark::State& state)
{
    compareWith(state, "itemLoadRaw", 1.5);
    load(state, enumLocalCalendarAppointmentItem);
}
BENCHMARK(itemLoad);

// Saving an item that exists.

/// A bare SELECT * by key and a bare UPDATE of `columns`.
void saveRaw(benchmark::State& state, const schema::Table& table, const std::vector<std::string_view>& columns)
{
    std::string assignments;
    std::vector<std::string> texts;
    for (const std::string_view column : columns) {
        assignments.append(assignments.empty() ? "" : ", ").append(column).append(" = ?");
        texts.push_back(sampleValue(*schema::findColumn(table, column), 7));
    }
    sqlite3_stmt* const update = file().prepared("UPDATE " + std::string(table.name) + " SET " + assignments + " WHERE "
                                                 + std::string(table.columns.front().name) + " = ?");
    std::vector<std::string> values(table.columns.size());
    int round = 0;
    for (auto _ : state) {
        const int key = 1 + round % savedItems;
        file().readRaw(table, key, values);
        texts.front() = "Subject " + std::to_string(round);
        bindTexts(update, texts);
        sqlite3_bind_int(update, static_cast<int>(texts.size()) + 1, key);
        run(update);
        ++round;
    }
    file().store().idle();
}

template <class Change>
void save(benchmark::State& state, const std::vector<std::unique_ptr<clsCalendarItem>>& items, Change change)
{
    int round = 0;
    for (auto _ : state) {
        clsCalendarItem& item = *items[static_cast<std::size_t>(round % savedItems)];
        change(item, round);
        benchmark::DoNotOptimize(item.saveCalendarItem());
        ++round;
    }
    file().store().idle();
}

void changeThreeColumns(clsCalendarItem& item, int round)
{
    item.Subject("Subject " + std::to_string(round));
    item.Custom1("Custom " + std::to_string(round));
    item.RepeatNum(round);
}

void saveThreeColumnsRaw(benchmark::State& state) { saveRaw(state, tasks(), {"Subject", "Custom1", "RepeatNum"}); }
BENCHMARK(saveThreeColumnsRaw);

/// No text to render and no reminders to look after: the row alone.
void itemSaveThreeColumns(benchmark::State& state)
{
    compareWith(state, "saveThreeColumnsRaw", 1.5);
    const HostEnvironment host(hostOnFile());
    save(state, loadedItems(enumLocalCalendarTaskItem), changeThreeColumns);
}
BENCHMARK(itemSaveThreeColumns);

/// An appointment looks for reminders and notifications to cancel as well.
void itemSaveThreeColumnsOfAppointment(benchmark::State& state)
{
    compareWith(state, "itemSaveThreeColumns", 1.5);
    const HostEnvironment host(hostOnFile());
    save(state, loadedItems(enumLocalCalendarAppointmentItem), changeThreeColumns);
}
BENCHMARK(itemSaveThreeColumnsOfAppointment);

/// The two statements that an appointment without reminders and notifications has more.
void itemCancelNothing(benchmark::State& state)
{
    compareWith(state, "saveThreeColumnsRaw", 0.5);
    const HostEnvironment host(hostOnFile());
    const auto item = newItem(enumLocalCalendarAppointmentItem);
    item->itemID(1);
    for (auto _ : state) {
        item->checkToCancelPopups(true);
        item->checkToCancelAutoNotifications(true);
    }
}
BENCHMARK(itemCancelNothing);

void saveAllColumnsRaw(benchmark::State& state)
{
    std::vector<std::string_view> columns{"Subject"};
    for (const schema::Column& column : appointments().columns.subspan(1))
        if (column.name != columns.front())
            columns.push_back(column.name);
    saveRaw(state, appointments(), columns);
}
BENCHMARK(saveAllColumnsRaw);

/// Both texts are rendered anew, with the name of the client in them.
void itemSaveWithTexts(benchmark::State& state)
{
    compareWith(state, "saveAllColumnsRaw", 3);
    const HostEnvironment host(hostOnFile());
    const auto items = loadedItems(enumLocalCalendarAppointmentItem);
    for (const auto& item : items) {
        item->TitleBarTextTemplate("«Appointment Name», «Appointment Start Time»");
        item->DisplayTextTemplate(item->DisplayTextDefaultTemplate());
    }
    save(state, items, [](clsCalendarItem& item, int round) { item.Subject("Subject " + std::to_string(round)); });
}
BENCHMARK(itemSaveWithTexts);

// Adding an item.

constexpr int addedItems = 2000;

void addItem(clsCalendarItem& item, int number)
{
    item.addNewItem();
    item.Subject("Review of file " + std::to_string(number));
    item.companyIDNum(7);
    item.Notes_RichText("Call back about the year end papers");
    item.TitleBarTextTemplate(std::string(plainText));
    item.DisplayTextTemplate(std::string(plainText));
    benchmark::DoNotOptimize(item.saveCalendarItem());
}

/// A bare INSERT of every column, with the values that an added item leaves.
void addRaw(benchmark::State& state)
{
    const HostEnvironment host(hostOnFile());
    const auto item = newItem(enumLocalCalendarTaskItem);
    addItem(*item, 0);
    file().store().idle();
    sqlite3_stmt* const select = file().prepared("SELECT * FROM Tasks WHERE TaskID = ?");
    sqlite3_bind_int(select, 1, item->itemID());
    sqlite3_step(select);
    std::vector<std::unique_ptr<sqlite3_value, void (*)(sqlite3_value*)>> values;
    std::string places;
    for (int column = 1; column < sqlite3_column_count(select); ++column) {
        values.emplace_back(sqlite3_value_dup(sqlite3_column_value(select, column)), sqlite3_value_free);
        places += ", ?";
    }
    sqlite3_reset(select);
    sqlite3_stmt* const insert = file().prepared("INSERT INTO Tasks VALUES (NULL" + places + ")");
    for (auto _ : state) {
        for (std::size_t i = 0; i < values.size(); ++i)
            sqlite3_bind_value(insert, static_cast<int>(i) + 1, values[i].get());
        run(insert);
    }
    file().store().idle();
}
BENCHMARK(addRaw)->Iterations(addedItems);

void itemAdd(benchmark::State& state)
{
    compareWith(state, "addRaw/iterations:2000", 1.5);
    const HostEnvironment host(hostOnFile());
    const auto item = newItem(enumLocalCalendarTaskItem);
    int round = 0;
    for (auto _ : state)
        addItem(*item, round++);
    file().store().idle();
}
BENCHMARK(itemAdd)->Iterations(addedItems);

// The merge fields of an appointment.

void threeRawLoads(benchmark::State& state)
{
    std::vector<std::string> values(appointments().columns.size());
    int key = 0;
    for (auto _ : state)
        for (int i = 0; i < 3; ++i) {
            file().readRaw(appointments(), 1 + key++ % itemCount, values);
            benchmark::DoNotOptimize(values.data());
        }
}
BENCHMARK(threeRawLoads);

/// The queries for the labels of the custom fields included.
void mergeFieldsOfAppointment(benchmark::State& state)
{
    compareWith(state, "threeRawLoads", 1);
    const HostEnvironment host(hostOnFile());
    for (auto _ : state) {
        clsInsertFieldsInRTB engine;
        engine.ListType(mergeListType::appointment);
        bool noListBox = true;
        engine.createDefaultFieldListStructure(noListBox, false);
        benchmark::DoNotOptimize(engine.FieldList());
    }
}
BENCHMARK(mergeFieldsOfAppointment);

} // namespace
} // namespace qncal
