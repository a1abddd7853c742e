#include "host/store/OtherProgram.h"
#include "host/store/StoreFactory.h"
#include "host/store/programsAtOnce.h"

#include "store/storeError.h"

#include <gtest/gtest.h>

#include <chrono>
#include <future>

/// Programs that do the same at the same time.

namespace qncal::host {
namespace {

class ConcurrentProcessTest : public testing::Test {
protected:
    TemporaryFolder folder_;
    std::string path_ = folder_.file("store.db");
};

TEST_F(ConcurrentProcessTest, AMigrationLooksAgainUnderTheLock)
{
    SqliteDatabase::create(path_)->close();
    OtherProgram other(path_);
    other.run("PRAGMA user_version = 0");
    other.run("BEGIN IMMEDIATE; PRAGMA user_version = 99");
    // It finds version 0 and waits for the lock, or comes late and finds 99 at once: the answer is one.
    auto opening = std::async(std::launch::async, [&] { return errorOf([&] { SqliteDatabase::open(path_); }); });
    opening.wait_for(std::chrono::milliseconds(100));
    other.run("COMMIT");
    EXPECT_EQ(opening.get(), storeError::cannotOpen);
    EXPECT_EQ(other.value("PRAGMA user_version"), "99");
}

TEST_F(ConcurrentProcessTest, ProgramsThatMakeTheSameFileAtOnceAllOpenIt)
{
    runInProgramsAtOnce(4, [this] { SqliteDatabase::create(path_)->close(); });
}

TEST_F(ConcurrentProcessTest, TheSameRecordWrittenByTwoStoresKeepsBothFields)
{
    auto mine = SqliteDatabase::create(path_, {.busyTimeout = 1});
    const auto theirs = SqliteDatabase::open(path_, {.busyTimeout = 1});
    const auto open = [](SqliteDatabase& store) {
        return store.openRecordset("SELECT Appointments.* FROM Appointments;", 1, 3, true, {}, true);
    };
    const auto made = open(*mine);
    mine->addNew(made);
    mine->update(made);
    const auto first = open(*mine);
    const auto second = open(*theirs);
    EXPECT_TRUE(mine->getField(first, "Subject").isNull());
    EXPECT_TRUE(theirs->getField(second, "Subject").isNull());
    mine->setFieldValue(first, "Subject", "Mine", false, false, false);
    EXPECT_EQ(errorOf([&] { theirs->setFieldValue(second, "TitleText", "Theirs", false, false, false); }),
              storeError::locked)
        << "one writer at a time";
    mine->flush();
    theirs->setFieldValue(second, "TitleText", "Theirs", false, false, false);
    EXPECT_EQ(theirs->getField(second, "Subject"), Variant("Mine"));
    mine->closeRecordset(first);
    theirs->closeRecordset(second);
    const auto reader = open(*mine);
    EXPECT_EQ(mine->getField(reader, "Subject"), Variant("Mine"));
    EXPECT_EQ(mine->getField(reader, "TitleText"), Variant("Theirs"));
}

} // namespace
} // namespace qncal::host
