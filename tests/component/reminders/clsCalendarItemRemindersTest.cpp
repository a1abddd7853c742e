#include "items/clsCalendarItem.h"

#include "support/ComponentTest.h"
#include "support/RecordingDatabase.h"
#include "support/rowName.h"

#include <gmock/gmock.h>

// The reminders that an item makes, cancels and puts into words.

namespace qncal {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

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
    std::int32_t addReminder(const char* type, const char* completed, const char* user = "1")
    {
        return addRow("Reminders", {{"UserIDNum", user},
                                    {"AppointmentIDNum", std::to_string(item.itemID())},
                                    {"ReminderType", type},
                                    {"Completed", completed}});
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

TEST_F(ItemReminderTest, SavingWithTheReminderOffKeepsTheCompletedOnes)
{
    ASSERT_TRUE(item.saveCalendarItem());
    const auto completed = addReminder("3", "True");
    item.Remind(false);
    ASSERT_TRUE(item.saveCalendarItem());
    EXPECT_EQ(rowCount("Reminders"), 1);
    EXPECT_EQ(cell("Reminders", completed, "Completed"), "True");
}

TEST_F(ItemReminderTest, SchedulingWithTheReminderOffDeletesTheUsersCompletedOnesToo)
{
    ASSERT_TRUE(item.saveCalendarItem());
    addReminder("3", "True");
    const auto otherUser = addReminder("3", "False", "2");
    const auto otherType = addReminder("5", "False");
    item.Remind(false);
    item.schedulePopupReminderForItem();
    EXPECT_EQ(rowCount("Reminders"), 2);
    EXPECT_EQ(cell("Reminders", otherUser, "UserIDNum"), "2");
    EXPECT_EQ(cell("Reminders", otherType, "ReminderType"), "5");
}

TEST_F(ItemReminderTest, CancelledPopupsKeepTheCompletedOnesOnlyWhenAskedTo)
{
    ASSERT_TRUE(item.saveCalendarItem());
    addReminder("3", "True");
    item.checkToCancelPopups(true);
    EXPECT_EQ(rowCount("Reminders"), 1);
    item.checkToCancelPopups(false);
    EXPECT_EQ(rowCount("Reminders"), 0);
}

TEST_F(ItemReminderTest, CancellingFindsTheItemsRowsToDelete)
{
    const auto recording = std::make_shared<test::RecordingDatabase>(database);
    serviceRegistry().database = recording;
    item.itemID(17);
    for (const auto kind : {enumLocalCalendarAppointmentItem, enumLocalCalendarTaskItem, enumLocalCalendarDocketItem}) {
        item.calendarItemType(kind);
        recording->opened.clear();
        item.checkToCancelPopups(true);
        if (kind == enumLocalCalendarDocketItem) {
            EXPECT_THAT(recording->opened, IsEmpty());
            continue;
        }
        const std::string column = kind == enumLocalCalendarTaskItem ? "TaskIDNum" : "AppointmentIDNum";
        EXPECT_THAT(recording->opened,
                    ElementsAre(Pair("SELECT Reminders." + column + ", Reminders.Completed FROM Reminders WHERE "
                                         + column + " = 17;",
                                     DatabaseService::updatable)));
    }
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

TEST_F(ItemReminderTest, ATaskWithoutAScheduleIsToldAllTheSame)
{
    clsCalendarItem task;
    fill(task, enumLocalCalendarTaskItem);
    ASSERT_TRUE(task.saveCalendarItem());
    task.schedulePopupReminderForItem();
    EXPECT_EQ(cell("Reminders", 1, "TextBody"), "Your upcoming  task is due in 15 minutes");
}

TEST_F(ItemReminderTest, ATimeEntryHasNoReminders)
{
    clsCalendarItem entry;
    fill(entry, enumLocalCalendarDocketItem);
    ASSERT_TRUE(entry.saveCalendarItem());
    entry.schedulePopupReminderForItem();
    EXPECT_EQ(rowCount("Reminders"), 0);
    EXPECT_EQ(entry.getPopUpReminderPopupText(), "");
}

TEST_F(ItemReminderTest, WithoutAConnectionNothingIsOpened)
{
    const auto recording = std::make_shared<test::RecordingDatabase>(database);
    recording->connected = false;
    serviceRegistry().database = recording;
    for (const auto kind : {enumLocalCalendarAppointmentItem, enumLocalCalendarTaskItem}) {
        item.calendarItemType(kind);
        recording->opened.clear(); // the kind's templates
        for (const bool remind : {true, false}) {
            item.Remind(remind);
            item.schedulePopupReminderForItem();
        }
        item.checkToCancelPopups(false);
        EXPECT_EQ(item.getPopupReminderCurrentStatusText(), "");
        EXPECT_THAT(recording->opened, IsEmpty());
    }
}

constexpr auto appointment = enumLocalCalendarAppointmentItem;
constexpr auto task = enumLocalCalendarTaskItem;

struct PopupRow {
    const char* name;
    enumLocalCalendarItemType kind;
    bool hasClient;
    const char* period;
    const char* text;
};

class ItemPopupTextTest : public test::ComponentTestWith<PopupRow> {};

TEST_P(ItemPopupTextTest, IsToldFromTheItemsOwnFields)
{
    clientDropDown->contacts[5] = {{"DisplayName", "Ann Reed"}};
    clsCalendarItem item;
    item.calendarItemType(GetParam().kind);
    item.Subject("Year end");
    item.TimeFrom(Date::timeOf(9, 30));
    item.reminderPeriod(GetParam().period);
    if (GetParam().hasClient)
        item.contactIDNum(5);
    EXPECT_EQ(item.getPopUpReminderPopupText(), GetParam().text);
}

/// Three periods have no words for an appointment here, and a task without a client borrows the appointment's.
INSTANTIATE_TEST_SUITE_P(
    Items, ItemPopupTextTest,
    testing::Values(
        PopupRow{"Appointment", appointment, false, "15 Min",
                 "Appointment: Year end\r\nYou have an appointment in 15 minutes at 9:30 am."},
        PopupRow{"AppointmentOfAClient", appointment, true, "15 Min",
                 "Appointment: Year end\r\nYou have an appointment with Ann Reed in 15 minutes at 9:30 am."},
        PopupRow{"AppointmentIn5Days", appointment, true, "5 Days",
                 "Appointment: Year end\r\nYou have an appointment with Ann Reed at 9:30 am."},
        PopupRow{"AppointmentIn10Days", appointment, false, "10 Days",
                 "Appointment: Year end\r\nYou have an appointment at 9:30 am."},
        PopupRow{"AppointmentIn5Weeks", appointment, false, "5 Weeks",
                 "Appointment: Year end\r\nYou have an appointment at 9:30 am."},
        PopupRow{"AppointmentOutsideOfTheTable", appointment, false, "4 Min",
                 "Appointment: Year end\r\nYou have an appointment at 9:30 am."},
        PopupRow{"Task", task, false, "15 Min", "Task: Year end\r\nYour task is due in 15 minutes"},
        PopupRow{"TaskOfAClient", task, true, "15 Min",
                 "Task: Year end\r\nYour task for Ann Reed is due in 15 minutes"},
        PopupRow{"TaskIn5Days", task, false, "5 Days", "Task: Year end\r\nYour task is due in 5 days"},
        PopupRow{"TaskOfAClientIn5Days", task, true, "5 Days",
                 "Task: Year end\r\nYour task for Ann Reed is due in 5 days"},
        PopupRow{"TaskOutsideOfTheTable", task, false, "4 Min", "Task: Year end\r\nYour task is due"},
        PopupRow{"TaskOfAClientOutsideOfTheTable", task, true, "4 Min", "Task: Year end\r\nYour task for Ann Reed"}),
    test::rowName);

} // namespace
} // namespace qncal
