#include "items/clsCalendarItem.h"

#include "support/ComponentTest.h"
#include "support/rowName.h"

#include <gtest/gtest.h>

namespace qncal {
namespace {

/// Tomorrow at 9:30, a reminder 15 minutes ahead.
class ItemReminderTest : public test::ComponentTest {
protected:
    ItemReminderTest() { fill(item, enumLocalCalendarAppointmentItem); }

    static void fill(clsCalendarItem& filled, enumLocalCalendarItemType kind)
    {
        filled.calendarItemType(kind);
        filled.addNewItem();
        filled.userIDNum(1);
        filled.Subject("Year end");
        filled.DateFrom(today().addDays(1));
        filled.TimeFrom(Date::timeOf(9, 30));
        filled.TimeTo(Date::timeOf(10));
        filled.Remind(true);
    }

    clsCalendarItem item;
};

TEST_F(ItemReminderTest, SavingAnAppointmentMakesItsReminderAndSavingAgainMovesIt)
{
    ASSERT_TRUE(item.saveCalendarItem());
    EXPECT_EQ(cell("Reminders", 1, "AppointmentIDNum"), std::to_string(item.itemID()));
    EXPECT_EQ(cell("Reminders", 1, "ReminderType"), "3");
    EXPECT_EQ(cell("Reminders", 1, "ReminderDate"), "2026-04-01");
    EXPECT_EQ(cell("Reminders", 1, "ReminderTime"), "09:15:00");
    EXPECT_EQ(cell("Reminders", 1, "TextBody"),
              "Appointment: Year end\r\nYou have an appointment in 15 minutes at 9:30 am.");
    item.reminderPeriod("1 Week");
    ASSERT_TRUE(item.saveCalendarItem());
    EXPECT_EQ(rowCount("Reminders"), 1);
    EXPECT_EQ(cell("Reminders", 1, "ReminderDate"), "2026-03-25");
}

TEST_F(ItemReminderTest, TurningTheReminderOffKeepsTheCompletedOnes)
{
    ASSERT_TRUE(item.saveCalendarItem());
    addRow("Reminders", {{"AppointmentIDNum", std::to_string(item.itemID())}, {"Completed", "True"}});
    item.Remind(false);
    ASSERT_TRUE(item.saveCalendarItem());
    EXPECT_EQ(rowCount("Reminders"), 1);
    EXPECT_EQ(cell("Reminders", 2, "Completed"), "True");
}

TEST_F(ItemReminderTest, CancelledPopupsKeepTheCompletedOnesOnlyWhenAskedTo)
{
    ASSERT_TRUE(item.saveCalendarItem());
    addRow("Reminders", {{"AppointmentIDNum", std::to_string(item.itemID())}, {"Completed", "True"}});
    item.checkToCancelPopups(true);
    EXPECT_EQ(rowCount("Reminders"), 1);
    item.checkToCancelPopups(false);
    EXPECT_EQ(rowCount("Reminders"), 0);
}

TEST_F(ItemReminderTest, ATaskSchedulesWhenTheHostAsksAndHangsOnTheTask)
{
    const auto schedule = addRow("Schedule", {{"ScheduleName", "Payroll"}});
    clsCalendarItem task;
    fill(task, enumLocalCalendarTaskItem);
    task.ScheduleIDNum(schedule);
    ASSERT_TRUE(task.saveCalendarItem());
    EXPECT_EQ(rowCount("Reminders"), 0) << "a save schedules for appointments alone";
    task.schedulePopupReminderForItem();
    EXPECT_EQ(cell("Reminders", 1, "TaskIDNum"), std::to_string(task.itemID()));
    EXPECT_EQ(cell("Reminders", 1, "ReminderType"), "5");
    EXPECT_EQ(cell("Reminders", 1, "TextBody"), "Your upcoming Payroll task is due in 15 minutes");
    task.Remind(false);
    task.schedulePopupReminderForItem();
    EXPECT_EQ(rowCount("Reminders"), 0);
}

TEST_F(ItemReminderTest, ATimeEntryHasNoReminders)
{
    clsCalendarItem entry;
    fill(entry, enumLocalCalendarDocketItem);
    ASSERT_TRUE(entry.saveCalendarItem());
    entry.schedulePopupReminderForItem();
    EXPECT_EQ(rowCount("Reminders"), 0);
    EXPECT_EQ(entry.getPopupReminderCurrentStatusText(), "");
    EXPECT_EQ(entry.getPopUpReminderPopupText(), "");
}

TEST_F(ItemReminderTest, TheStoredStatusFollowsTheRow)
{
    ASSERT_TRUE(item.saveCalendarItem());
    EXPECT_EQ(item.getPopupReminderCurrentStatusText(), "You will be notified on Apr 1 26 at 9:15 am");
    setCell("Reminders", 1, "ReminderDate", defaultDateText(today()));
    EXPECT_EQ(item.getPopupReminderCurrentStatusText(), "This reminder was scheduled for Mar 31 26 at 9:15 am");
    setCell("Reminders", 1, "Completed", "True");
    EXPECT_EQ(item.getPopupReminderCurrentStatusText(), "This reminder has already occured");
    item.userIDNum(2);
    EXPECT_EQ(item.getPopupReminderCurrentStatusText(), "") << "another user has none";
}

struct PlannedRow {
    const char* name;
    Date start;
    const char* text;
};

class PlannedReminderTest : public test::ComponentTestWith<PlannedRow> {};

TEST_P(PlannedReminderTest, IsToldFromTheItemAlone)
{
    clsCalendarItem item;
    item.calendarItemType(enumLocalCalendarAppointmentItem);
    item.DateFrom(GetParam().start.dateOnly());
    item.TimeFrom(GetParam().start.timeOnly());
    EXPECT_EQ(item.getPopupReminderCurrentStatusText(false), GetParam().text);
}

/// The clock stands at 8:30 on 31 March 2026, the reminder 15 minutes ahead of the start.
INSTANTIATE_TEST_SUITE_P(
    Starts, PlannedReminderTest,
    testing::Values(PlannedRow{"Yesterday", Date::of(2026, 3, 30, 9), "This reminder has already occured"},
                    PlannedRow{"EarlierToday", Date::of(2026, 3, 31, 8), "This reminder has already occured"},
                    PlannedRow{"JustNow", Date::of(2026, 3, 31, 8, 45), "This reminder has already occured"},
                    PlannedRow{"LaterToday", Date::of(2026, 3, 31, 13), "You will be notified today at 12:45 pm"},
                    PlannedRow{"Tomorrow", Date::of(2026, 4, 1, 9), "You will be notified on Apr 1 26 at 8:45 am"}),
    test::rowName);

TEST_F(ItemReminderTest, AnItemPutsItsOwnReminderIntoWords)
{
    clientDropDown->contacts[5] = {{"DisplayName", "Ann Reed"}};
    EXPECT_EQ(item.getPopUpReminderPopupText(),
              "Appointment: Year end\r\nYou have an appointment in 15 minutes at 9:30 am.");
    item.contactIDNum(5);
    item.reminderPeriod("5 Days");
    EXPECT_EQ(item.getPopUpReminderPopupText(),
              "Appointment: Year end\r\nYou have an appointment with Ann Reed at 9:30 am.")
        << "this period has no words here";

    clsCalendarItem task;
    fill(task, enumLocalCalendarTaskItem);
    EXPECT_EQ(task.getPopUpReminderPopupText(), "Task: Year end\r\nYour task is due in 15 minutes");
    task.contactIDNum(5);
    EXPECT_EQ(task.getPopUpReminderPopupText(), "Task: Year end\r\nYour task for Ann Reed is due in 15 minutes");
}

} // namespace
} // namespace qncal
