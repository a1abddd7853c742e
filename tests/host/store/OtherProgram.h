#pragma once

#include "host/store/StoreFactory.h"

#include "store/SqliteDatabase.h"
#include "utilities/RunTimeError.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace qncal::host {

/// Another program at work on the file of a store. Whatever it holds it lets go at its end.
class OtherProgram {
public:
    explicit OtherProgram(const std::string& path) { EXPECT_EQ(sqlite3_open(path.c_str(), &connection_), SQLITE_OK); }
    ~OtherProgram() { sqlite3_close(connection_); }
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

    void run(const std::string& sql)
    {
        EXPECT_EQ(tryRun(sql), SQLITE_OK) << sql << ": " << sqlite3_errmsg(connection_);
    }
    int tryRun(const std::string& sql) { return sqlite3_exec(connection_, sql.c_str(), nullptr, nullptr, nullptr); }
    /// The first column of the first row; empty when there is none.
    std::string value(const std::string& sql)
    {
        std::string found;
        sqlite3_exec(
            connection_, sql.c_str(),
            [](void* into, int, char** values, char**) {
                *static_cast<std::string*>(into) = values[0] ? values[0] : "";
                return 0;
            },
            &found, nullptr);
        return found;
    }
    void lock() { run("BEGIN IMMEDIATE"); }
    void unlock() { run("ROLLBACK"); }

private:
    sqlite3* connection_ = nullptr;
};

/// The number of the error that an operation raises; 0 for none.
template <class Operation>
std::int32_t errorOf(Operation&& operation)
{
    try {
        operation();
    } catch (const RunTimeError& error) {
        return error.number();
    }
    return 0;
}

/// A store in a file that others may reach too, and short ways to use it.
class StoreInFileTest : public ::testing::Test {
protected:
    std::int32_t open(const std::string& sql) { return store_->openRecordset(sql, 1, 3, true, {}, true); }
    bool set(std::int32_t handle, const std::string& field, const std::string& value)
    {
        return store_->setFieldValue(handle, field, value, false, false, false);
    }
    Variant get(std::int32_t handle, const std::string& field) { return store_->getField(handle, field); }
    bool find(std::int32_t handle, const std::string& field, const std::string& value)
    {
        std::string reserved[4];
        return store_->findRecord(handle, field, value, reserved[0], reserved[1], reserved[2], reserved[3]);
    }
    std::int32_t add(const std::string& table, const std::string& key,
                     const std::vector<std::pair<std::string, std::string>>& fields)
    {
        const auto handle = open("SELECT " + table + ".* FROM " + table + ";");
        store_->addNew(handle);
        for (const auto& [field, value] : fields)
            store_->setNewField(handle, field, value);
        const auto id = get(handle, key).toInteger();
        store_->update(handle);
        store_->closeRecordset(handle);
        return id;
    }
    std::int32_t addAppointment(const std::string& subject)
    {
        return add("Appointments", "AppointmentID", {{"Subject", subject}});
    }

    TemporaryFolder folder_;
    std::string path_ = folder_.file("store.db");
    std::unique_ptr<SqliteDatabase> store_ = SqliteDatabase::create(path_, {.busyTimeout = 1});
};

} // namespace qncal::host
