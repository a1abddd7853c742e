#include "host/store/OtherProgram.h"
#include "host/store/StoreFactory.h"

#include "store/storeError.h"
#include "utilities/RunTimeError.h"

#include <gtest/gtest.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <string>

namespace qncal::host {
namespace {

const std::string allAppointments = "SELECT Appointments.* FROM Appointments;";

std::int32_t openUpdatable(SqliteDatabase& store, std::string_view sql)
{
    return store.openRecordset(sql, 1, DatabaseService::updatable, true, {}, true);
}

void addAppointment(SqliteDatabase& store, const std::string& subject)
{
    const auto handle = openUpdatable(store, allAppointments);
    store.addNew(handle);
    store.setNewField(handle, "Subject", subject);
    store.update(handle);
    store.closeRecordset(handle);
}

std::int32_t appointmentCount(SqliteDatabase& store)
{
    const auto handle = openUpdatable(store, allAppointments);
    const auto count = store.getRecordCount(handle);
    store.closeRecordset(handle);
    return count;
}

/// Runs SQL on a file as another program would.
void runElsewhere(const std::string& path, const char* sql)
{
    sqlite3* connection = nullptr;
    ASSERT_EQ(sqlite3_open(path.c_str(), &connection), SQLITE_OK);
    EXPECT_EQ(sqlite3_exec(connection, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(connection);
    sqlite3_close(connection);
}

std::int32_t errorOf(const std::function<void()>& operation, const std::string& words)
{
    try {
        operation();
    } catch (const RunTimeError& error) {
        EXPECT_NE(std::string(error.what()).find(words), std::string::npos) << error.what();
        return error.number();
    }
    ADD_FAILURE() << "no error";
    return 0;
}

class SqliteDatabaseTest : public ::testing::Test {
protected:
    TemporaryFolder folder_;
    std::string path_ = folder_.file("store.db");
};

TEST_F(SqliteDatabaseTest, OpensOnlyWhatIsThere)
{
    EXPECT_EQ(errorOf([&] { SqliteDatabase::open(path_); }, "There is no such file"), storeError::cannotOpen);
    EXPECT_FALSE(std::filesystem::exists(path_)) << "a failed open leaves nothing behind";
    EXPECT_EQ(errorOf([&] { SqliteDatabase::create(folder_.file("none/store.db")); }, "There is no folder"),
              storeError::cannotOpen);
    EXPECT_EQ(errorOf([&] { SqliteDatabase::open(folder_.path().string()); }, "It is a folder"),
              storeError::cannotOpen);
    EXPECT_TRUE(SqliteDatabase::create(path_)->isConnected());
}

TEST_F(SqliteDatabaseTest, RefusesAFileThatIsNoDatabase)
{
    std::ofstream(path_) << std::string(5000, 'x');
    EXPECT_EQ(errorOf([&] { SqliteDatabase::open(path_); }, "The file is no database"), storeError::cannotOpen);
}

TEST_F(SqliteDatabaseTest, RefusesTheDatabaseOfAnotherProgram)
{
    runElsewhere(path_, "CREATE TABLE theirs (a)");
    EXPECT_EQ(errorOf([&] { SqliteDatabase::open(path_); }, "of another program"), storeError::cannotOpen);
}

TEST_F(SqliteDatabaseTest, RefusesANewerVersion)
{
    SqliteDatabase::create(path_)->close();
    runElsewhere(path_, "PRAGMA user_version = 99");
    EXPECT_EQ(errorOf([&] { SqliteDatabase::open(path_); }, "has version 99"), storeError::cannotOpen);
}

TEST_F(SqliteDatabaseTest, BringsAnOlderVersionUpToDate)
{
    using schema::Column;
    using schema::ColumnType;
    static constexpr Column old[] = {{"AppointmentID", ColumnType::key}, {"Subject", ColumnType::text}};
    static constexpr schema::Table oldTables[] = {{"Appointments", old, ""}};
    auto store = SqliteDatabase::create(path_, {.tables = oldTables, .version = 0});
    addAppointment(*store, "Kept");
    store.reset();
    store = SqliteDatabase::open(path_);
    const auto handle = openUpdatable(*store, allAppointments);
    EXPECT_EQ(store->getField(handle, "Subject"), Variant("Kept"));
    EXPECT_TRUE(store->getField(handle, "DateFrom").isNull());
    store->setFieldValue(handle, "DateFrom", "2026-03-31", false, false, false);
    EXPECT_EQ(store->getField(handle, "DateFrom"), Variant(Date::of(2026, 3, 31)));
    EXPECT_TRUE(store->isRecordsetEmpty(openUpdatable(*store, "SELECT Tasks.* FROM Tasks;")));
}

TEST_F(SqliteDatabaseTest, ClosedItIsNotConnectedAndRefusesEverything)
{
    auto store = SqliteDatabase::create(path_);
    const auto handle = openUpdatable(*store, allAppointments);
    store->close();
    EXPECT_FALSE(store->isConnected());
    EXPECT_FALSE(store->isRecordsetOpen(handle));
    EXPECT_EQ(errorOf([&] { openUpdatable(*store, allAppointments); }, "No database is open"),
              storeError::notConnected);
    EXPECT_EQ(errorOf([&] { store->hasRecords(handle); }, "No database is open"), storeError::notConnected);
    store->closeRecordset(handle);
    store->close();
}

TEST_F(SqliteDatabaseTest, TheFileHoldsPlainTextThatAnyToolReads)
{
    auto store = SqliteDatabase::create(path_);
    const auto handle = openUpdatable(*store, allAppointments);
    store->addNew(handle);
    store->setNewField(handle, "DateFrom", "2026-03-31");
    store->setNewField(handle, "TimeFrom", "9:05:00 PM");
    store->setNewField(handle, "Remind", "True");
    store->update(handle);
    store->close();
    sqlite3* connection = nullptr;
    ASSERT_EQ(sqlite3_open(path_.c_str(), &connection), SQLITE_OK);
    sqlite3_stmt* statement = nullptr;
    ASSERT_EQ(sqlite3_prepare_v2(connection, "SELECT DateFrom || '|' || TimeFrom || '|' || Remind FROM Appointments",
                                 -1, &statement, nullptr),
              SQLITE_OK);
    ASSERT_EQ(sqlite3_step(statement), SQLITE_ROW);
    EXPECT_STREQ(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0)), "2026-03-31|21:05:00|1");
    sqlite3_finalize(statement);
    sqlite3_close(connection);
}

TEST_F(SqliteDatabaseTest, ALockedDatabaseIsAClearError)
{
    auto store = SqliteDatabase::create(path_, {.busyTimeout = 1});
    addAppointment(*store, "Before");
    const auto handle = openUpdatable(*store, allAppointments);
    OtherProgram other(path_);
    other.lock();
    EXPECT_EQ(errorOf([&] { store->setFieldValue(handle, "Subject", "After", false, false, false); },
                      "locked by another process"),
              storeError::locked);
    EXPECT_EQ(errorOf([&] { addAppointment(*store, "New"); }, "locked by another process"), storeError::locked);
}

TEST_F(SqliteDatabaseTest, AFullDiskIsAClearErrorAndReadingGoesOn)
{
    SqliteDatabase::create(path_)->close();
    const auto size = static_cast<std::int64_t>(std::filesystem::file_size(path_));
    auto store = SqliteDatabase::open(path_, {.largestFile = size + 4096 * 8});
    addAppointment(*store, "Fits");
    EXPECT_EQ(errorOf([&] { addAppointment(*store, std::string(100000, 'x')); }, "The disk is full"),
              storeError::diskFull);
    EXPECT_EQ(appointmentCount(*store), 1);
    addAppointment(*store, "Fits too");
    EXPECT_EQ(appointmentCount(*store), 2);
}

TEST_F(SqliteDatabaseTest, AReadOnlyFileIsRefused)
{
    SqliteDatabase::create(path_)->close();
    std::filesystem::permissions(path_, std::filesystem::perms::owner_read);
    if (access(path_.c_str(), W_OK) == 0)
        GTEST_SKIP() << "this user may write everything";
    EXPECT_EQ(errorOf([&] { SqliteDatabase::open(path_); }, "read-only"), storeError::readOnly);
}

TEST_F(SqliteDatabaseTest, ManyHandlesThatErrorsLeftOpenDoNotDisturb)
{
    auto store = SqliteDatabase::openInMemory();
    for (int i = 0; i < 2000; ++i) {
        const auto left = openUpdatable(*store, allAppointments);
        store->addNew(left);
    }
    addAppointment(*store, "One");
    EXPECT_EQ(appointmentCount(*store), 1);
}

// Nothing is read before it is asked for, proven by what the store counts.

class LazinessTest : public SqliteDatabaseTest {
protected:
    LazinessTest()
    {
        for (int i = 0; i < 1000; ++i)
            addAppointment(*store_, "Row");
    }
    std::uint64_t read() const { return store_->statistics().recordsRead + store_->statistics().keysRead; }

    std::unique_ptr<SqliteDatabase> store_ = SqliteDatabase::openInMemory();
};

TEST_F(LazinessTest, OpeningForAddingReadsNothing)
{
    const auto before = read();
    addAppointment(*store_, "New");
    EXPECT_EQ(read(), before);
}

TEST_F(LazinessTest, AskingForRecordsReadsOne)
{
    const auto before = read();
    const auto handle = openUpdatable(*store_, allAppointments);
    EXPECT_TRUE(store_->hasRecords(handle));
    EXPECT_FALSE(store_->isEOF(handle));
    EXPECT_EQ(store_->getField(handle, "Subject"), Variant("Row"));
    EXPECT_EQ(read(), before + 1);
}

TEST_F(LazinessTest, CountingReadsNone)
{
    const auto before = read();
    EXPECT_EQ(appointmentCount(*store_), 1000);
    EXPECT_EQ(read(), before);
}

TEST_F(LazinessTest, WalkingReadsABlockOfKeysAtATime)
{
    const auto handle = openUpdatable(*store_, allAppointments);
    const auto before = store_->statistics().keysRead;
    store_->moveNext(handle);
    EXPECT_LE(store_->statistics().keysRead - before, 256U);
    EXPECT_GT(store_->statistics().keysRead - before, 1U);
}

TEST_F(LazinessTest, ASavedRecordIsOneUpdateOfWhatChanged)
{
    const auto handle = openUpdatable(*store_, "SELECT Appointments.* FROM Appointments WHERE AppointmentID=5;");
    const auto before = store_->statistics().updates;
    store_->setFieldValue(handle, "Subject", "Row", false, false, false);
    store_->flush();
    EXPECT_EQ(store_->statistics().updates, before) << "an equal value is no change";
    store_->setFieldValue(handle, "Subject", "Changed", false, false, false);
    store_->setFieldValue(handle, "TitleText", "Too", false, false, false);
    EXPECT_EQ(store_->statistics().updates, before);
    store_->closeRecordset(handle);
    EXPECT_EQ(store_->statistics().updates, before + 1);
}

TEST_F(LazinessTest, AStatementOfAKnownShapeIsNotParsedAgain)
{
    const auto open = [&](int id) {
        store_->closeRecordset(openUpdatable(
            *store_, "SELECT Appointments.* FROM Appointments WHERE AppointmentID=" + std::to_string(id) + ";"));
    };
    open(1);
    const auto before = store_->statistics().plans;
    for (int id = 2; id < 50; ++id)
        open(id);
    EXPECT_EQ(store_->statistics().plans, before);
}

// Several processes on one file.

TEST_F(SqliteDatabaseTest, TwoProcessesThatAddAtOnceLoseNothingAndShareNoKey)
{
    constexpr int processes = 2;
    constexpr int records = 300;
    SqliteDatabase::create(path_)->close();
    pid_t children[processes] = {};
    for (pid_t& child : children) {
        child = fork();
        if (child != 0)
            continue;
        // The child must not run the parent's tests or exit handlers.
        try {
            auto store = SqliteDatabase::open(path_);
            for (int i = 0; i < records; ++i)
                addAppointment(*store, std::to_string(getpid()));
            store->close();
            _exit(0);
        } catch (const std::exception&) {
            _exit(1);
        }
    }
    for (const pid_t child : children) {
        int status = -1;
        ASSERT_EQ(waitpid(child, &status, 0), child);
        EXPECT_EQ(status, 0);
    }
    auto store = SqliteDatabase::open(path_);
    std::set<std::int32_t> keys;
    const auto handle = openUpdatable(*store, allAppointments);
    for (; !store->isEOF(handle); store->moveNext(handle))
        keys.insert(store->getField(handle, "AppointmentID").toInteger());
    EXPECT_EQ(keys.size(), static_cast<std::size_t>(processes * records));
}

TEST_F(SqliteDatabaseTest, TheNextProgramGoesOnWithTheNextKey)
{
    addAppointment(*SqliteDatabase::create(path_), "One");
    auto store = SqliteDatabase::open(path_);
    const auto handle = openUpdatable(*store, allAppointments);
    store->addNew(handle);
    EXPECT_EQ(store->getField(handle, "AppointmentID"), Variant(2));
}

TEST_F(SqliteDatabaseTest, ARecordThatAnSqlToolAddsTakesNoKeyThatWasGiven)
{
    auto store = SqliteDatabase::create(path_);
    const auto handle = openUpdatable(*store, allAppointments);
    store->addNew(handle);
    runElsewhere(path_, "INSERT INTO Appointments (Subject) VALUES ('theirs')");
    store->update(handle);
    addAppointment(*store, "Mine");
    EXPECT_EQ(appointmentCount(*store), 3);
}

TEST_F(SqliteDatabaseTest, AKeyThatTheCallerChoseIsNotGivenAgain)
{
    auto store = SqliteDatabase::create(path_);
    const auto handle = openUpdatable(*store, "SELECT archiveTasks.* FROM archiveTasks;");
    store->addNew(handle);
    store->setNewField(handle, "oldTaskID", "3");
    store->update(handle);
    for (int i = 0; i < 5; ++i) {
        store->addNew(handle);
        store->update(handle);
    }
    EXPECT_EQ(store->getRecordCount(handle), 6);
}

TEST_F(SqliteDatabaseTest, AMoveSeesWhatAnotherProcessWrote)
{
    auto mine = SqliteDatabase::create(path_);
    for (const char* subject : {"A", "B", "C"})
        addAppointment(*mine, subject);
    const auto handle = openUpdatable(*mine, "SELECT Appointments.* FROM Appointments ORDER BY Appointments.Subject;");
    EXPECT_EQ(mine->getField(handle, "Subject"), Variant("A"));
    runElsewhere(path_, "UPDATE Appointments SET TitleText = 'new' WHERE Subject = 'C'; DELETE FROM Appointments WHERE "
                        "Subject = 'B'");
    mine->moveNext(handle);
    EXPECT_EQ(mine->getField(handle, "TitleText"), Variant("new"));
    EXPECT_EQ(mine->getField(handle, "Subject"), Variant("C"));
}

} // namespace
} // namespace qncal::host
