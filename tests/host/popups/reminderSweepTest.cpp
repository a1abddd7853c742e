#include "popups/ReminderLoop.h"

#include "host/popups/RecordingDisplay.h"
#include "host/store/StoreFactory.h"
#include "services/Rows.h"
#include "store/SqliteDatabase.h"
#include "utilities/Clock.h"
#include "utilities/RunTimeError.h"

#include <gmock/gmock.h>
#include <sqlite3.h>

#include <algorithm>
#include <iterator>

// The statements of a sweep, and what becomes of one in a file that another program has locked.

namespace qncal::host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;

/// Keeps the statements that any connection of this process runs while it lives.
class StatementTrace {
public:
    StatementTrace()
    {
        statements().clear();
        sqlite3_auto_extension(reinterpret_cast<void (*)()>(&install));
    }
    ~StatementTrace() { sqlite3_reset_auto_extension(); }
    StatementTrace(const StatementTrace&) = delete;
    StatementTrace& operator=(const StatementTrace&) = delete;

    static std::vector<std::string>& statements()
    {
        static std::vector<std::string> all;
        return all;
    }

private:
    static int install(sqlite3* connection, char**, const void*)
    {
        return sqlite3_trace_v2(
            connection, SQLITE_TRACE_STMT,
            [](unsigned, void*, void* statement, void*) {
                statements().emplace_back(sqlite3_sql(static_cast<sqlite3_stmt*>(statement)));
                return 0;
            },
            nullptr);
    }
};

/// How the engine answers a statement on the file.
std::string planOf(const std::string& file, const std::string& sql)
{
    sqlite3* connection = nullptr;
    sqlite3_open(file.c_str(), &connection);
    std::string plan;
    const auto line = [](void* self, int, char** values, char**) {
        *static_cast<std::string*>(self) += std::string(values[3]) + "\n";
        return 0;
    };
    EXPECT_EQ(sqlite3_exec(connection, ("EXPLAIN QUERY PLAN " + sql).c_str(), line, &plan, nullptr), SQLITE_OK);
    sqlite3_close(connection);
    return plan;
}

void execute(const std::string& file, const char* sql)
{
    sqlite3* connection = nullptr;
    sqlite3_open(file.c_str(), &connection);
    EXPECT_EQ(sqlite3_exec(connection, sql, nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(connection);
}

class ReminderFileTest : public testing::Test {
protected:
    ReminderFileTest()
    {
        addRow(*database, "Reminders",
               {{"UserIDNum", "1"}, {"ReminderDate", "2026-03-02"}, {"ReminderTime", "08:59:00"}});
        database->flush();
    }

    TemporaryFolder folder;
    std::string file = folder.file("reminders.db");
    ClockOverride clock{Date::of(2026, 3, 2, 9)};
    test::RecordingDisplay display;
    const StatementTrace trace;
    std::shared_ptr<SqliteDatabase> database = SqliteDatabase::create(file, SqliteDatabase::Options{.busyTimeout = 10});
};

TEST_F(ReminderFileTest, EveryStatementOfASweepSearchesTheIndexOfTheDueRows)
{
    StatementTrace::statements().clear();
    ReminderLoop(database, display, 1).sweep();
    std::vector<std::string> sweeping;
    std::ranges::copy_if(StatementTrace::statements(), std::back_inserter(sweeping), [](const std::string& sql) {
        return sql.find("FROM \"Reminders\"") != std::string::npos && sql.find("\"Completed\" =") != std::string::npos;
    });
    ASSERT_THAT(sweeping, SizeIs(4)) << testing::PrintToString(StatementTrace::statements());
    for (const std::string& sql : sweeping) {
        const std::string plan = planOf(file, sql);
        EXPECT_THAT(plan, HasSubstr("Reminders_Completed_ReminderDate_ReminderTime")) << sql;
        EXPECT_THAT(plan, Not(HasSubstr("SCAN"))) << sql;
        EXPECT_THAT(plan, Not(HasSubstr("TEMP B-TREE"))) << sql;
    }

    database->close();
    execute(file, "DROP INDEX Reminders_Completed_ReminderDate_ReminderTime");
    for (const std::string& sql : sweeping)
        EXPECT_THAT(planOf(file, sql), HasSubstr("SCAN")) << "what it would be without the index: " << sql;
}

TEST_F(ReminderFileTest, WhatCouldNotBeMarkedInALockedDatabaseComesAgain)
{
    ReminderLoop loop(database, display);
    sqlite3* other = nullptr;
    sqlite3_open(file.c_str(), &other);
    ASSERT_EQ(sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);
    EXPECT_THROW(loop.sweep(), RunTimeError);
    EXPECT_THAT(display.calls, ElementsAre("show 1"));
    ASSERT_EQ(sqlite3_exec(other, "COMMIT", nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(other);
    EXPECT_EQ(loop.sweep(), 1u);
    EXPECT_EQ(loop.sweep(), 0u);
}

} // namespace
} // namespace qncal::host
