#include "host/store/StoreContract.h"

#include "utilities/RunTimeError.h"

namespace qncal::host {
namespace {

const std::string schedulesAndTasks =
    "SELECT Schedule.*, Tasks.* FROM Schedule INNER JOIN Tasks ON Schedule.ScheduleID = Tasks.ScheduleIDNum ORDER BY "
    "Tasks.TaskID;";

/// Record sets over several tables: three tasks, the first two on one schedule entry, the third on another.
class StoreJoins : public StoreTest {
protected:
    void SetUp() override
    {
        StoreTest::SetUp();
        for (const char* name : {"Year end", "Payroll"})
            add("Schedule", "ScheduleID", {{"ScheduleName", name}, {"Custom1", "of the schedule"}});
        const std::pair<const char*, const char*> tasks[] = {{"A", "1"}, {"B", "1"}, {"C", "2"}};
        for (const auto& [subject, schedule] : tasks)
            add("Tasks", "TaskID",
                {{"Subject", subject}, {"ScheduleIDNum", schedule}, {"Custom1", "of the task"}, {"UserIDNum", "7"}});
        step();
    }
    Texts texts(std::string_view sql, std::string_view field)
    {
        Texts found;
        for (const Variant& value : column(sql, field))
            found.push_back(value.isNull() ? "Null" : value.toText());
        return found;
    }
    Texts subjects() { return texts("SELECT Tasks.* FROM Tasks;", "Subject"); }
    Texts scheduleNames() { return texts("SELECT Schedule.* FROM Schedule;", "ScheduleName"); }
};

INSTANTIATE_TEST_SUITE_P(Stores, StoreJoins, testing::ValuesIn(storeFactories()), storeName);

TEST_P(StoreJoins, AWriteGoesToTheTableOfItsColumn)
{
    const auto handle = openUpdatable(schedulesAndTasks);
    store().moveNext(handle);
    set(handle, "Subject", "B changed");
    set(handle, "ScheduleName", "Year end changed");
    EXPECT_EQ(store().getField(handle, "Subject"), Variant("B changed"));
    store().closeRecordset(handle);
    step();
    EXPECT_EQ(subjects(), (Texts{"A", "B changed", "C"}));
    EXPECT_EQ(scheduleNames(), (Texts{"Year end changed", "Payroll"}));
}

TEST_P(StoreJoins, AWriteShowsInEveryRecordThatHoldsTheSameRow)
{
    const auto reader = openReadOnly(schedulesAndTasks);
    EXPECT_EQ(store().getField(reader, "ScheduleName"), Variant("Year end"));
    const auto writer = openUpdatable(schedulesAndTasks);
    store().moveNext(writer);
    set(writer, "ScheduleName", "Changed");
    EXPECT_EQ(store().getField(reader, "ScheduleName"), Variant("Changed"));
    store().moveNext(reader);
    EXPECT_EQ(store().getField(reader, "ScheduleName"), Variant("Changed"));
    store().moveNext(reader);
    EXPECT_EQ(store().getField(reader, "ScheduleName"), Variant("Payroll"));
}

TEST_P(StoreJoins, ANameOfSeveralTablesMeansTheFirstAndAQualifiedOneItsTable)
{
    const auto handle = openUpdatable(schedulesAndTasks);
    EXPECT_EQ(store().getField(handle, "Custom1"), Variant("of the schedule"));
    EXPECT_EQ(store().getField(handle, "Tasks.Custom1"), Variant("of the task"));
    set(handle, "Tasks.Custom1", "changed");
    store().closeRecordset(handle);
    step();
    EXPECT_EQ(texts("SELECT Tasks.* FROM Tasks;", "Custom1"), (Texts{"changed", "of the task", "of the task"}));
    EXPECT_EQ(texts("SELECT Schedule.* FROM Schedule;", "Custom1"), (Texts{"of the schedule", "of the schedule"}));
}

TEST_P(StoreJoins, AColumnUnderTwoNamesHasOneValue)
{
    const auto handle = openUpdatable("SELECT Tasks.*, Tasks.Custom1 AS TaskCustom1 FROM Schedule INNER JOIN Tasks ON "
                                      "Schedule.ScheduleID = Tasks.ScheduleIDNum;");
    set(handle, "TaskCustom1", "changed");
    EXPECT_EQ(store().getField(handle, "Custom1"), Variant("changed"));
    set(handle, "Custom1", "again");
    EXPECT_EQ(store().getField(handle, "TaskCustom1"), Variant("again"));
    store().closeRecordset(handle);
    step();
    EXPECT_EQ(texts("SELECT Tasks.* FROM Tasks;", "Custom1"), (Texts{"again", "of the task", "of the task"}));
}

TEST_P(StoreJoins, FindGoesToTheFirstEqualRecordOrStays)
{
    struct Row {
        const char* field;
        const char* value;
        bool found;
        const char* subject;
        std::int32_t position;
    };
    const Row rows[] = {
        {"ScheduleName", "payroll", true, "C", 3},
        {"ScheduleIDNum", "1", true, "A", 1},
        {"Tasks.Custom1", "of the task", true, "A", 1},
        {"Subject", "C", true, "C", 3},
        {"UserIDNum", "8", false, "B", 2},
        {"NoSuchField", "1", false, "B", 2},
    };
    for (const Row& row : rows) {
        const auto handle = openReadOnly(schedulesAndTasks);
        store().moveNext(handle);
        EXPECT_EQ(find(handle, row.field, row.value), row.found) << row.field;
        EXPECT_EQ(store().getField(handle, "Subject"), Variant(row.subject)) << row.field;
        EXPECT_EQ(store().getPosition(handle), row.position) << row.field;
        store().closeRecordset(handle);
    }
}

TEST_P(StoreJoins, AFoundRecordIsTheOneThatIsWritten)
{
    const auto handle = openUpdatable(schedulesAndTasks);
    ASSERT_TRUE(find(handle, "Subject", "C"));
    set(handle, "ScheduleName", "Wages");
    EXPECT_FALSE(find(handle, "ScheduleName", "Payroll"));
    EXPECT_TRUE(find(handle, "ScheduleName", "Wages"));
    store().closeRecordset(handle);
    step();
    EXPECT_EQ(scheduleNames(), (Texts{"Year end", "Wages"}));
}

TEST_P(StoreJoins, TheMissingSideOfAnOuterJoinReadsNullAndRefusesAWrite)
{
    add("Schedule", "ScheduleID", {{"ScheduleName", "Without a task"}});
    step();
    const auto handle = openUpdatable("SELECT Schedule.ScheduleName, Tasks.Subject FROM Schedule LEFT JOIN Tasks ON "
                                      "Schedule.ScheduleID = Tasks.ScheduleIDNum ORDER BY Schedule.ScheduleID;");
    ASSERT_TRUE(find(handle, "ScheduleName", "Without a task"));
    EXPECT_TRUE(store().getField(handle, "Subject").isNull());
    EXPECT_THROW(set(handle, "Subject", "D"), RunTimeError);
    EXPECT_TRUE(set(handle, "ScheduleName", "Still without"));
    store().closeRecordset(handle);
    step();
    EXPECT_EQ(scheduleNames(), (Texts{"Year end", "Payroll", "Still without"}));
}

TEST_P(StoreJoins, NothingIsAddedToAJoinOrDeletedFromIt)
{
    const auto handle = openUpdatable(schedulesAndTasks);
    EXPECT_THROW(store().addNew(handle), RunTimeError);
    EXPECT_THROW(store().deleteRecord(handle), RunTimeError);
    store().closeRecordset(handle);
    EXPECT_EQ(subjects(), (Texts{"A", "B", "C"}));
}

TEST_P(StoreJoins, AComputedColumnRefusesAWrite)
{
    const auto handle =
        openUpdatable("SELECT Tasks.TaskID, Tasks.Subject & ' on ' & Schedule.ScheduleName AS Line FROM Schedule INNER "
                      "JOIN Tasks ON Schedule.ScheduleID = Tasks.ScheduleIDNum ORDER BY Tasks.TaskID;");
    EXPECT_EQ(store().getField(handle, "Line"), Variant("A on Year end"));
    EXPECT_THROW(set(handle, "Line", "x"), RunTimeError);
}

} // namespace
} // namespace qncal::host
