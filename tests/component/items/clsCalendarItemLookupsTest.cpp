#include "items/clsCalendarItem.h"
#include "support/ComponentTest.h"
#include "support/RecordingDatabase.h"

namespace qncal {
namespace {

class clsCalendarItemLookupsTest : public test::ComponentTest {
protected:
    clsCalendarItemLookupsTest()
    {
        item.calendarItemType(enumLocalCalendarTaskItem);
        serviceRegistry().database = recording;
    }

    std::shared_ptr<test::RecordingDatabase> recording = std::make_shared<test::RecordingDatabase>(database);
    clsCalendarItem item;
};

TEST_F(clsCalendarItemLookupsTest, FindsTheTaskOfAScheduleRow)
{
    const std::int32_t id = addRow("Tasks", {{"ScheduleIDNum", "40"}});
    item.CalendarItemArchiveStatus(CalendarItemArchiveStatus_Archived);
    EXPECT_TRUE(item.getTaskIDFromScheduleID(40));
    EXPECT_EQ(item.itemID(), id);
    EXPECT_EQ(item.CalendarItemArchiveStatus(), CalendarItemArchiveStatus_Normal);
    EXPECT_EQ(recording->openedSql(),
              std::vector<std::string>{"SELECT Tasks.TaskID, Tasks.ScheduleIDNum FROM Tasks WHERE ScheduleIDNum=40;"});
}

TEST_F(clsCalendarItemLookupsTest, FindsATaskThatIsOnlyInTheArchive)
{
    addRow("archiveTasks", {{"oldTaskID", "77"}, {"ScheduleIDNum", "40"}});
    EXPECT_TRUE(item.getTaskIDFromScheduleID(40));
    EXPECT_EQ(item.itemID(), 77);
    EXPECT_EQ(item.CalendarItemArchiveStatus(), CalendarItemArchiveStatus_Archived);
    EXPECT_EQ(recording->openedSql().back(),
              "SELECT archiveTasks.oldTaskID, archiveTasks.ScheduleIDNum FROM archiveTasks WHERE ScheduleIDNum=40;");
    EXPECT_TRUE(recording->open.empty());
}

TEST_F(clsCalendarItemLookupsTest, AnUnknownScheduleRowChangesNothing)
{
    item.itemID(5);
    EXPECT_FALSE(item.getTaskIDFromScheduleID(40));
    EXPECT_EQ(item.itemID(), 5);
    EXPECT_EQ(item.CalendarItemArchiveStatus(), CalendarItemArchiveStatus_Normal);
}

TEST_F(clsCalendarItemLookupsTest, OnlyTasksAndScheduleIdsFromZeroOnAreLookedUp)
{
    EXPECT_FALSE(item.getTaskIDFromScheduleID(-1));
    item.calendarItemType(enumLocalCalendarAppointmentItem);
    recording->opened.clear();
    EXPECT_FALSE(item.getTaskIDFromScheduleID(40));
    EXPECT_TRUE(recording->opened.empty());
}

TEST_F(clsCalendarItemLookupsTest, FindsTheScheduleRowOfATask)
{
    item.itemID(addRow("Tasks", {{"ScheduleIDNum", "40"}}));
    EXPECT_EQ(item.getScheduleIDFromTaskID(), 40);
    EXPECT_EQ(recording->opened.size(), 1u);
}

TEST_F(clsCalendarItemLookupsTest, FindsTheScheduleRowOfAnArchivedTask)
{
    addRow("archiveTasks", {{"oldTaskID", "77"}, {"ScheduleIDNum", "41"}});
    item.itemID(77);
    EXPECT_EQ(item.getScheduleIDFromTaskID(), 41);
    EXPECT_EQ(recording->openedSql(),
              (std::vector<std::string>{
                  "SELECT Tasks.TaskID, Tasks.ScheduleIDNum FROM Tasks WHERE TaskID=77;",
                  "SELECT archiveTasks.oldTaskID, archiveTasks.ScheduleIDNum FROM archiveTasks WHERE oldTaskID=77;"}));
}

TEST_F(clsCalendarItemLookupsTest, ATaskWithoutAScheduleRowHasNone)
{
    EXPECT_EQ(item.getScheduleIDFromTaskID(), -1);
    item.itemID(addRow("Tasks", {}));
    EXPECT_EQ(item.getScheduleIDFromTaskID(), -1);
}

TEST_F(clsCalendarItemLookupsTest, OtherKindsHaveNoArchive)
{
    item.calendarItemType(enumLocalCalendarAppointmentItem);
    item.itemID(5);
    EXPECT_EQ(item.getScheduleIDFromTaskID(), -1);
    item.itemID(addRow("Appointments", {{"ScheduleIDNum", "42"}}));
    EXPECT_EQ(item.getScheduleIDFromTaskID(), 42);
    EXPECT_EQ(clsCalendarItem().getScheduleIDFromTaskID(), -1);
}

TEST_F(clsCalendarItemLookupsTest, EveryLookupOpensToReadOnly)
{
    addRow("archiveTasks", {{"oldTaskID", "77"}, {"ScheduleIDNum", "40"}});
    item.getTaskIDFromScheduleID(40);
    item.getScheduleIDFromTaskID();
    item.getColourSchemeNameFromColourSchemeID();
    item.populateColourSchemeColours();
    ASSERT_EQ(recording->opened.size(), 6u);
    for (const auto& [sql, lock] : recording->opened)
        EXPECT_EQ(lock, DatabaseService::readOnly) << sql;
    EXPECT_TRUE(recording->open.empty());
}

TEST_F(clsCalendarItemLookupsTest, WithoutAConnectionNothingIsFound)
{
    addRow("Tasks", {{"ScheduleIDNum", "40"}});
    recording->connected = false;
    EXPECT_FALSE(item.getTaskIDFromScheduleID(40));
    item.itemID(1);
    EXPECT_EQ(item.getScheduleIDFromTaskID(), -1);
    EXPECT_EQ(item.getColourSchemeNameFromColourSchemeID(), "");
    item.populateColourSchemeColours();
    EXPECT_TRUE(recording->opened.empty());
}

} // namespace
} // namespace qncal
