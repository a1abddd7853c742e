#pragma once

#include "host/store/StoreFactory.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <cstdint>
#include <string>
#include <string_view>

namespace qncal::host {

inline std::int32_t openUpdatable(SqliteDatabase& store, std::string_view sql)
{
    return store.openRecordset(sql, 1, DatabaseService::updatable, true, {}, true);
}

inline void addAppointment(SqliteDatabase& store, const std::string& subject)
{
    const auto handle = openUpdatable(store, allAppointments);
    store.addNew(handle);
    store.setNewField(handle, "Subject", subject);
    store.update(handle);
    store.closeRecordset(handle);
}

inline std::int32_t appointmentCount(SqliteDatabase& store)
{
    const auto handle = openUpdatable(store, allAppointments);
    const auto count = store.getRecordCount(handle);
    store.closeRecordset(handle);
    return count;
}

/// Runs SQL on a file as another program would.
inline void runElsewhere(const std::string& path, const char* sql)
{
    sqlite3* connection = nullptr;
    ASSERT_EQ(sqlite3_open(path.c_str(), &connection), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(connection, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(connection);
    sqlite3_close(connection);
}

class SqliteDatabaseTest : public ::testing::Test {
protected:
    TemporaryFolder folder_;
    std::string path_ = folder_.file("store.db");
};

} // namespace qncal::host
