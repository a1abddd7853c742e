#include "support/TestWorld.h"

#include "core/schema.h"

#include <gtest/gtest.h>

namespace qncal::test {

namespace {

std::int32_t open(DatabaseService& database, const std::string& sql, std::int32_t lock)
{
    return database.openRecordset(sql, DatabaseService::cursorType, lock, true, {}, true);
}

std::string keyColumn(std::string_view table) { return std::string(schema::findTable(table)->columns.front().name); }

std::string rowByKey(std::string_view table, std::int32_t key)
{
    const std::string name(table);
    return "SELECT " + name + ".* FROM " + name + " WHERE " + name + "." + keyColumn(table) + "=" + std::to_string(key)
           + ";";
}

std::string asText(const Variant& value) { return value.isNull() ? "Null" : value.toText(); }

} // namespace

TestWorld::TestWorld()
{
    ServiceRegistry& registry = serviceRegistry();
    registry = {};
    registry.errorControl = errors;
    registry.errorControlPresent = true;
    registry.messageDialogs = messages;
    registry.messageDialogsPresent = true;
    registry.database = database;
    registry.autoNotify = autoNotify;
    registry.locale = locale;
    registry.clientDropDown = clientDropDown;
    createComponentServices();
    setDialogHost(dialogs);
}

TestWorld::~TestWorld()
{
    for (const std::string& form : dialogs->unexpectedForms())
        ADD_FAILURE() << "unexpected form: " << form;
    EXPECT_EQ(dialogs->waitingScripts(), 0u) << "a form that was waited for never came";
    setDialogHost(nullptr);
    serviceRegistry() = {};
}

std::int32_t TestWorld::addRow(std::string_view table, const Values& values)
{
    const std::string name(table);
    const std::int32_t handle = open(*database, "SELECT " + name + ".* FROM " + name + ";", DatabaseService::updatable);
    database->addNew(handle);
    for (const auto& [column, value] : values)
        database->setNewField(handle, column, value);
    const std::int32_t key = database->getField(handle, keyColumn(table)).toInteger();
    database->update(handle);
    database->closeRecordset(handle);
    return key;
}

std::string TestWorld::cell(std::string_view table, std::int32_t key, std::string_view column)
{
    const std::int32_t handle = open(*database, rowByKey(table, key), DatabaseService::readOnly);
    std::string text = database->hasRecords(handle) ? asText(database->getField(handle, column)) : "no row";
    database->closeRecordset(handle);
    return text;
}

void TestWorld::setCell(std::string_view table, std::int32_t key, std::string_view column, std::string_view value)
{
    const std::int32_t handle = open(*database, rowByKey(table, key), DatabaseService::updatable);
    database->setFieldValue(handle, column, value, false, false, false);
    database->closeRecordset(handle);
}

std::int32_t TestWorld::rowCount(std::string_view table)
{
    const std::string name(table);
    const std::int32_t handle = open(*database, "SELECT " + name + ".* FROM " + name + ";", DatabaseService::readOnly);
    const std::int32_t count = database->getRecordCount(handle);
    database->closeRecordset(handle);
    return count;
}

std::string TestWorld::allRows()
{
    std::string text;
    for (const schema::Table& table : schema::tables()) {
        const std::string name(table.name);
        const std::int32_t handle =
            open(*database, "SELECT " + name + ".* FROM " + name + ";", DatabaseService::readOnly);
        for (; database->hasRecords(handle) && !database->isEOF(handle); database->moveNext(handle)) {
            text += name;
            for (const schema::Column& column : table.columns)
                text += "|" + asText(database->getField(handle, column.name));
            text += "\n";
        }
        database->closeRecordset(handle);
    }
    return text;
}

} // namespace qncal::test
