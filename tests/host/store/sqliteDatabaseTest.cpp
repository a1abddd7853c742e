#include "host/store/SqliteDatabaseTest.h"
#include "host/store/OtherProgram.h"

#include "store/storeError.h"
#include "utilities/RunTimeError.h"

#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>

namespace qncal::host {
namespace {

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

TEST_F(SqliteDatabaseTest, ALogThatNoQuietMomentWritesBackStaysWithinItsBound)
{
    constexpr std::int64_t bound = 256 * 1024;
    const auto logOf = [&](std::int64_t longestLog) {
        const std::string path = folder_.file(std::to_string(longestLog));
        const auto store = SqliteDatabase::create(path, {.longestLog = longestLog});
        for (int i = 0; i < 300; ++i)
            addAppointment(*store, std::string(10000, 'x'));
        EXPECT_EQ(appointmentCount(*store), 300);
        return static_cast<std::int64_t>(std::filesystem::file_size(path + "-wal"));
    };
    EXPECT_LT(logOf(bound), 2 * bound);
    EXPECT_GT(logOf(64 * bound), 8 * bound) << "the rows alone are longer than that";
}

/// An administrator may write everything; permissions hold for everybody else.
class OrdinaryUser {
public:
    OrdinaryUser()
    {
        if (geteuid() == 0) {
            EXPECT_EQ(seteuid(nobody), 0);
        }
    }
    ~OrdinaryUser() { EXPECT_EQ(seteuid(getuid()), 0); }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;

private:
    static constexpr uid_t nobody = 65534;
};

TEST_F(SqliteDatabaseTest, AReadOnlyFileOrFolderIsRefused)
{
    namespace fs = std::filesystem;
    const auto readable = fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read;
    const auto enterable = fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec;
    SqliteDatabase::create(path_)->close();
    fs::permissions(path_, readable);
    fs::permissions(folder_.path(), readable | enterable);
    {
        const OrdinaryUser user;
        EXPECT_EQ(errorOf([&] { SqliteDatabase::open(path_); }, "read-only"), storeError::readOnly);
        EXPECT_EQ(errorOf([&] { SqliteDatabase::create(folder_.file("new.db")); }, "cannot be opened"),
                  storeError::cannotOpen);
    }
    fs::permissions(path_, readable | fs::perms::owner_write | fs::perms::others_write);
    {
        const OrdinaryUser user;
        EXPECT_THROW(SqliteDatabase::open(path_), RunTimeError) << "the log cannot be made beside the file";
    }
    fs::permissions(folder_.path(), fs::perms::owner_all);
    EXPECT_TRUE(SqliteDatabase::open(path_)->isConnected());
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

} // namespace
} // namespace qncal::host
