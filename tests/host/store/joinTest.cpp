#include "host/store/OtherProgram.h"
#include "host/store/StoreFactory.h"

#include "store/storeError.h"

#include <gtest/gtest.h>

#include <string>

/// Record sets over several tables beside other handles and other programs.

namespace qncal::host {
namespace {

const std::string allTasks = "SELECT Tasks.* FROM Tasks;";
const std::string inner =
    "SELECT Schedule.*, Tasks.* FROM Schedule INNER JOIN Tasks ON Schedule.ScheduleID = Tasks.ScheduleIDNum ORDER BY "
    "Tasks.TaskID;";
const std::string outer = "SELECT Tasks.*, Schedule.ScheduleName FROM Tasks LEFT JOIN Schedule ON Tasks.ScheduleIDNum "
                          "= Schedule.ScheduleID ORDER BY Tasks.TaskID;";

/// Tasks A and B on the schedule entry Year end, and C on none.
class JoinTest : public StoreInFileTest {
protected:
    JoinTest()
    {
        add("Schedule", "ScheduleID", {{"ScheduleName", "Year end"}});
        const std::pair<const char*, const char*> tasks[] = {{"A", "1"}, {"B", "1"}, {"C", "9"}};
        for (const auto& [subject, schedule] : tasks)
            add("Tasks", "TaskID", {{"Subject", subject}, {"ScheduleIDNum", schedule}});
    }

    OtherProgram other_{path_};
};

TEST_F(JoinTest, AWriteThatFailedWorksOnRetryInWhicheverTable)
{
    const auto handle = open(inner);
    set(handle, "Subject", "A changed");
    store_->flush();
    other_.lock();
    EXPECT_EQ(errorOf([&] { set(handle, "ScheduleName", "Changed"); }), storeError::locked);
    other_.unlock();
    set(handle, "ScheduleName", "Changed");
    store_->closeRecordset(handle);
    EXPECT_EQ(other_.value("SELECT ScheduleName FROM Schedule"), "Changed");
    EXPECT_EQ(other_.value("SELECT Subject FROM Tasks WHERE TaskID = 1"), "A changed");
}

TEST_F(JoinTest, ADeletionInEitherTableIsSeenByAnOpenJoin)
{
    const auto joined = open(inner);
    EXPECT_EQ(store_->getRecordCount(joined), 2);
    EXPECT_EQ(get(joined, "Subject"), Variant("A"));
    const auto task = open("SELECT Tasks.* FROM Tasks WHERE Tasks.TaskID=2;");
    store_->deleteRecord(task);
    EXPECT_EQ(store_->getRecordCount(joined), 1);
    const auto entry = open("SELECT Schedule.* FROM Schedule;");
    store_->deleteRecord(entry);
    EXPECT_EQ(store_->getRecordCount(joined), 0);
    EXPECT_FALSE(store_->hasRecords(joined));
    EXPECT_EQ(errorOf([&] { get(joined, "Subject"); }), storeError::noCurrentRecord);
}

TEST_F(JoinTest, TheMissingSideOfAnOuterJoinIsNoDeletion)
{
    const auto joined = open(outer);
    EXPECT_EQ(store_->getRecordCount(joined), 3);
    store_->setPosition(joined, 3);
    EXPECT_TRUE(get(joined, "ScheduleName").isNull());
    const auto entry = open("SELECT Schedule.* FROM Schedule;");
    store_->deleteRecord(entry);
    EXPECT_EQ(store_->getRecordCount(joined), 1);
    EXPECT_EQ(get(joined, "Subject"), Variant("C"));
    set(joined, "Subject", "C changed");
    EXPECT_EQ(errorOf([&] { set(joined, "ScheduleName", "x"); }), storeError::noCurrentRecord);
    store_->closeRecordset(joined);
    EXPECT_EQ(other_.value("SELECT Subject FROM Tasks WHERE TaskID = 3"), "C changed");
}

TEST_F(JoinTest, AHandleOnOneTableAndAJoinSeeEachOthersWrites)
{
    const auto joined = open(inner);
    const auto single = open(allTasks);
    set(joined, "Subject", "By the join");
    EXPECT_EQ(get(single, "Subject"), Variant("By the join"));
    set(single, "Subject", "By the table");
    EXPECT_EQ(get(joined, "Subject"), Variant("By the table"));
}

TEST_F(JoinTest, AComputedColumnFollowsTheRecordSetsOwnWrite)
{
    const auto handle = open("SELECT Tasks.*, Subject & '!' AS Loud FROM Tasks WHERE Tasks.TaskID=1;");
    EXPECT_EQ(get(handle, "Loud"), Variant("A!"));
    set(handle, "Subject", "Changed");
    EXPECT_EQ(get(handle, "Loud"), Variant("Changed!"));
}

TEST_F(JoinTest, ATableThatStandsInASetTwiceShowsAWriteInBoth)
{
    const auto handle = open("SELECT One.Subject AS First, Two.Subject AS Second FROM Tasks AS One INNER JOIN Tasks AS "
                             "Two ON One.TaskID = Two.TaskID WHERE One.TaskID=1;");
    EXPECT_EQ(get(handle, "Second"), Variant("A"));
    set(handle, "First", "Changed");
    EXPECT_EQ(get(handle, "Second"), Variant("Changed"));
}

} // namespace
} // namespace qncal::host
