#include "component/items/StoredItemTest.h"

namespace qncal {
namespace {

class clsCalendarItemDeleteTest : public test::StoredItemTest {};
class clsCalendarItemDeleteKindTest : public test::StoredItemKindTest {};

TEST_P(clsCalendarItemDeleteKindTest, DeletesTheRowWithItsNotifications)
{
    const auto& [kind, table, key] = GetParam();
    const std::int32_t id = addRow(table, {});
    addRow("ClientNotification", {{table == "Appointments" ? "AppointmentNum"
                                   : table == "Tasks"      ? "TaskNum"
                                                           : "DocketNum",
                                   std::to_string(id)},
                                  {"NotificationSent", "True"}});
    useKind(kind);
    item.itemID(id);
    EXPECT_TRUE(item.deleteCalendarItem());
    EXPECT_EQ(rowCount(table), 0);
    EXPECT_EQ(rowCount("ClientNotification"), 0);
    EXPECT_EQ(recording->opened.front(),
              (std::pair<std::string, std::int32_t>{"SELECT " + table + "." + key + " FROM " + table + " WHERE " + table
                                                        + "." + key + "=" + std::to_string(id) + ";",
                                                    3}));
    EXPECT_TRUE(recording->open.empty());
    EXPECT_FALSE(item.deleteCalendarItem()) << "the row has gone";
}

INSTANTIATE_TEST_SUITE_P(Kinds, clsCalendarItemDeleteKindTest, testing::ValuesIn(test::kindRows),
                         [](const auto& row) { return row.param.table; });

TEST_F(clsCalendarItemDeleteTest, DeletingWithoutAnIdTouchesNothing)
{
    addRow("Appointments", {});
    useKind(enumLocalCalendarAppointmentItem);
    EXPECT_FALSE(item.deleteCalendarItem());
    EXPECT_TRUE(recording->operations.empty());
    EXPECT_EQ(rowCount("Appointments"), 1);
}

TEST_F(clsCalendarItemDeleteTest, DeletingTakesAllRemindersAlong)
{
    const std::int32_t id = addRow("Tasks", {});
    addRow("Reminders", {{"TaskIDNum", std::to_string(id)}, {"Completed", "True"}});
    addRow("Reminders", {{"TaskIDNum", std::to_string(id)}});
    addRow("Reminders", {{"AppointmentIDNum", std::to_string(id)}});
    useKind(enumLocalCalendarTaskItem);
    item.itemID(id);
    EXPECT_TRUE(item.deleteCalendarItem());
    EXPECT_EQ(rowCount("Reminders"), 1);
    EXPECT_EQ(recording->openedSql()[1],
              "SELECT Reminders.TaskIDNum, Reminders.Completed FROM Reminders WHERE TaskIDNum = " + std::to_string(id)
                  + ";");
    EXPECT_EQ(recording->openedSql()[2],
              "SELECT ClientNotification.TaskNum, ClientNotification.NotificationSent FROM ClientNotification WHERE "
              "TaskNum = "
                  + std::to_string(id) + ";");
}

TEST_F(clsCalendarItemDeleteTest, ATimeEntryHasNoRemindersToCancel)
{
    useKind(enumLocalCalendarDocketItem);
    item.itemID(1);
    item.checkToCancelPopups(false);
    EXPECT_TRUE(recording->opened.empty());
}

} // namespace
} // namespace qncal
