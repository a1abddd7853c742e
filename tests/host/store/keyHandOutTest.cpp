#include "host/store/OtherProgram.h"
#include "host/store/StoreFactory.h"

#include "store/storeError.h"

#include <gtest/gtest.h>

#include <string>

/// Keys are never given twice, whoever else puts records with keys of their own choice into the table.

namespace qncal::host {
namespace {

const std::string allArchived = "SELECT archiveTasks.* FROM archiveTasks;";

class KeyHandOutTest : public StoreInFileTest {
protected:
    OtherProgram other_{path_};
};

TEST_F(KeyHandOutTest, AKeyThatAnotherProgramChoseIsPassedOver)
{
    EXPECT_EQ(add("archiveTasks", "oldTaskID", {}), 1);
    other_.run("INSERT INTO archiveTasks (oldTaskID) VALUES (2), (3), (5)");
    EXPECT_EQ(add("archiveTasks", "oldTaskID", {}), 4);
    EXPECT_EQ(add("archiveTasks", "oldTaskID", {}), 6);
}

TEST_F(KeyHandOutTest, WhenAllKeysTakenAreInUseOthersAreTaken)
{
    EXPECT_EQ(add("archiveTasks", "oldTaskID", {}), 1);
    for (int key = 2; key <= 200; ++key)
        other_.run("INSERT INTO archiveTasks (oldTaskID) VALUES (" + std::to_string(key) + ")");
    EXPECT_EQ(add("archiveTasks", "oldTaskID", {}), 201);
}

TEST_F(KeyHandOutTest, ANewRecordWhoseKeyWasTakenMeanwhileCanBeStoredOnRetry)
{
    const auto handle = open(allArchived);
    store_->addNew(handle);
    store_->setNewField(handle, "Subject", "Mine");
    other_.run("INSERT INTO archiveTasks (oldTaskID, Subject) VALUES (1, 'Theirs')");
    EXPECT_EQ(errorOf([&] { store_->update(handle); }), storeError::duplicateKey);
    EXPECT_EQ(get(handle, "oldTaskID"), Variant(2)) << "the new key can be read before the retry";
    EXPECT_TRUE(store_->update(handle));
    EXPECT_EQ(other_.value("SELECT Subject FROM archiveTasks WHERE oldTaskID = 1"), "Theirs");
    EXPECT_EQ(other_.value("SELECT Subject FROM archiveTasks WHERE oldTaskID = 2"), "Mine");
}

TEST_F(KeyHandOutTest, AKeyThatTheCallerChoseIsNotExchanged)
{
    other_.run("INSERT INTO archiveTasks (oldTaskID) VALUES (7)");
    const auto handle = open(allArchived);
    store_->addNew(handle);
    store_->setNewField(handle, "oldTaskID", "7");
    EXPECT_EQ(errorOf([&] { store_->update(handle); }), storeError::duplicateKey);
    EXPECT_EQ(errorOf([&] { store_->update(handle); }), storeError::duplicateKey);
    EXPECT_EQ(get(handle, "oldTaskID"), Variant(7));
}

// Handles, which are handed out as well.

TEST_F(KeyHandOutTest, AClosedHandleDoesNotComeToLifeAgain)
{
    const auto closed = open(allArchived);
    store_->closeRecordset(closed);
    for (int i = 0; i < 100000; ++i) {
        const auto handle = open(allArchived);
        ASSERT_NE(handle, closed) << "after " << i;
        store_->closeRecordset(handle);
    }
    EXPECT_FALSE(store_->isRecordsetOpen(closed));
}

TEST_F(KeyHandOutTest, AHandleThatIsNeverClosedStillLearnsOfManyDeletions)
{
    const auto left = open("SELECT archiveTasks.* FROM archiveTasks ORDER BY archiveTasks.Subject;");
    constexpr int records = 5000;
    other_.run("WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " + std::to_string(records + 1)
               + ") INSERT INTO archiveTasks (oldTaskID, Subject) SELECT i, 's' FROM n");
    EXPECT_EQ(store_->getRecordCount(left), records + 1);
    EXPECT_EQ(get(left, "Subject"), Variant("s"));
    const auto handle = open(allArchived);
    for (int i = 0; i < records; ++i, store_->moveNext(handle))
        store_->deleteRecord(handle);
    store_->closeRecordset(handle);
    EXPECT_EQ(store_->getRecordCount(left), 1);
}

} // namespace
} // namespace qncal::host
