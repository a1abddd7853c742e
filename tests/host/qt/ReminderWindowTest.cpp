#include "qt/ReminderWindow.h"

#include "host/qt/QtDialogTest.h"
#include "items/clsCalendarItem.h"
#include "popups/ReminderLoop.h"
#include "utilities/RunTimeError.h"
#include "utilities/dateText.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QTreeWidget>

#include <optional>
#include <stdexcept>

namespace qncal::test {
namespace {

/// A window, a loop that shows in it, and a clock that a test moves.
struct ReminderWindowTest : QtDialogTest {
    ReminderWindowTest()
    {
        window.answers({[this](std::int32_t id) { return loop.dismiss(id); },
                        [this](std::int32_t id, int minutes) { return loop.snooze(id, minutes); }});
    }

    std::int32_t addReminder(int minutesAgo, const std::string& text, int user = 1)
    {
        const Date due = present.addSeconds(-60 * minutesAgo);
        return addRow("Reminders", {{"UserIDNum", std::to_string(user)},
                                    {"ReminderType", "1"},
                                    {"ReminderDate", defaultDateText(due.dateOnly())},
                                    {"ReminderTime", formatDate(due, "hh:nn:ss")},
                                    {"TextBody", text},
                                    {"Completed", "False"}});
    }
    bool isCompleted(std::int32_t id) { return cell("Reminders", id, "Completed") == "True"; }
    void press(const char* button) { click(window, button); }
    void press(Qt::Key key) { pressWithAlt(window, key); }
    QTreeWidget& list() { return widget<QTreeWidget>(window, "reminderList"); }
    QString note() { return widget<QLabel>(window, "reminderNote").text(); }

    Date present = now();
    ClockOverride movingClock{[this] { return present; }};
    host::ReminderWindow window;
    host::ReminderLoop loop{database, window};
};

TEST_F(ReminderWindowTest, ListsWhatIsDueAndDismissesIt)
{
    const std::int32_t first =
        addReminder(1, "Appointment: Year end\r\nYou have an appointment with Ann in 15 minutes");
    const std::int32_t second = addReminder(0, "Task: File T2");
    EXPECT_EQ(loop.sweep(), 2u);
    ASSERT_TRUE(window.isVisible());
    EXPECT_EQ(window.reminderCount(), 2);
    EXPECT_EQ(list().currentItem()->text(1), "Appointment: Year end\nYou have an appointment with Ann in 15 minutes");

    press(Qt::Key_D);
    EXPECT_EQ(window.reminderCount(), 1);
    EXPECT_TRUE(window.isVisible());
    EXPECT_TRUE(isCompleted(first));
    EXPECT_EQ(list().currentItem()->text(1), "Task: File T2") << "the next one is at hand";
    press(Qt::Key_D);
    EXPECT_FALSE(window.isVisible()) << "nothing is left to answer";
    EXPECT_TRUE(isCompleted(second));
    EXPECT_EQ(loop.sweep(), 0u);
}

TEST_F(ReminderWindowTest, EnterDismisses)
{
    addReminder(0, "Call Ann");
    loop.sweep();
    QTest::keyClick(&window, Qt::Key_Return);
    EXPECT_EQ(window.reminderCount(), 0);
}

TEST_F(ReminderWindowTest, AllAreDismissedAtOnce)
{
    for (int i = 0; i < 3; ++i)
        addReminder(i, "Reminder " + std::to_string(i));
    addReminder(60, "Missed");
    loop.sweep();
    EXPECT_EQ(window.reminderCount(), 4);
    press(Qt::Key_A);
    EXPECT_EQ(window.reminderCount(), 0);
    EXPECT_FALSE(window.isVisible());
    for (std::int32_t id = 1; id <= 4; ++id)
        EXPECT_TRUE(isCompleted(id)) << id;
}

struct SnoozeCase {
    const char* period;
    int minutes;
};

struct ReminderSnoozeTest : ReminderWindowTest, testing::WithParamInterface<SnoozeCase> {};

TEST_P(ReminderSnoozeTest, ComesAgainAfterThePeriod)
{
    const std::int32_t id = addReminder(0, "Call Ann");
    loop.sweep();
    auto& periods = widget<QComboBox>(window, "snoozePeriod");
    periods.setFocus();
    QTest::keyClick(&periods, Qt::Key_Home);
    for (int step = 0; step < periods.count() && periods.currentText() != GetParam().period; ++step)
        QTest::keyClick(&periods, Qt::Key_Down);
    press(Qt::Key_S);
    EXPECT_EQ(window.reminderCount(), 0);
    EXPECT_FALSE(isCompleted(id));

    present = present.addSeconds(60 * GetParam().minutes - 1);
    EXPECT_EQ(loop.sweep(), 0u);
    present = present.addSeconds(1);
    EXPECT_EQ(loop.sweep(), 1u);
    EXPECT_TRUE(window.isVisible());
}

INSTANTIATE_TEST_SUITE_P(Periods, ReminderSnoozeTest,
                         testing::Values(SnoozeCase{"5 minutes", 5}, SnoozeCase{"10 minutes", 10},
                                         SnoozeCase{"15 minutes", 15}, SnoozeCase{"30 minutes", 30},
                                         SnoozeCase{"1 hour", 60}, SnoozeCase{"1 day", 24 * 60}),
                         [](const auto& row) { return "For" + std::to_string(row.param.minutes) + "Minutes"; });

TEST_F(ReminderWindowTest, TheMissedOnesComeAsOneDigest)
{
    addReminder(3 * 24 * 60, "Appointment: Year end\r\nYou have an appointment with Maple Leaf Bakery in 15 minutes");
    addReminder(100, "Task: File T2\r\nYour task for Ann Archer is due in 1 hour");
    addReminder(1, "Appointment: Bank\r\nYou have an appointment with Bob Baker in 15 minutes", 2);
    window.nameOfUser([](std::int32_t user) { return user == 1 ? "Ann Archer" : "Bob Baker"; });
    loop.sweep();
    ASSERT_EQ(list().topLevelItemCount(), 2);
    EXPECT_EQ(list().topLevelItem(0)->text(0), "Missed while nobody looked: 2");
    EXPECT_EQ(list().topLevelItem(0)->childCount(), 2);
    EXPECT_EQ(list().topLevelItem(1)->text(2), "Bob Baker");
    picture(window, "reminders");

    list().setCurrentItem(list().topLevelItem(0));
    press(Qt::Key_D);
    EXPECT_EQ(window.reminderCount(), 1) << "the heading stands for all below it";
    EXPECT_EQ(list().topLevelItemCount(), 1);
}

TEST_F(ReminderWindowTest, AReminderThatComesDueTakesNoSelectionAway)
{
    const std::int32_t first = addReminder(0, "First");
    loop.sweep();
    addReminder(0, "Second");
    loop.sweep();
    EXPECT_EQ(list().currentItem()->text(1), "First");
    press("dismiss");
    EXPECT_TRUE(isCompleted(first));
    EXPECT_EQ(window.reminderCount(), 1);
}

struct ReminderOfItemTest : ReminderWindowTest {
    ReminderOfItemTest()
    {
        item.calendarItemType(enumLocalCalendarAppointmentItem);
        item.addNewItem();
        item.Subject("Year end");
        item.userIDNum(1);
        item.Remind(true);
        item.TimeFrom(Date::timeOf(8, 45));
        item.TimeTo(Date::timeOf(9, 45));
        EXPECT_TRUE(item.saveCalendarItem());
        loop.sweep();
        EXPECT_EQ(window.reminderCount(), 1);
    }
    clsCalendarItem item;
};

TEST_F(ReminderOfItemTest, AnItemThatIsDeletedTakesItsReminderOffTheScreenAndTheWindowSaysSo)
{
    EXPECT_TRUE(item.deleteCalendarItem());
    loop.sweep();
    EXPECT_EQ(window.reminderCount(), 0);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(note(), "Appointment: Year end: the item was deleted or moved. A moved one comes again.");
    EXPECT_FALSE(widget<QPushButton>(window, "dismiss").isEnabled());
    EXPECT_FALSE(widget<QPushButton>(window, "snooze").isEnabled());
    EXPECT_FALSE(widget<QPushButton>(window, "dismissAll").isEnabled());
    picture(window, "reminders-deleted");
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(ReminderOfItemTest, AnAnswerToAReminderWhoseItemIsGoneBringsNothingBack)
{
    for (const char* button : {"dismiss", "snooze"}) {
        SCOPED_TRACE(button);
        EXPECT_TRUE(item.deleteCalendarItem());
        press(button);
        EXPECT_EQ(window.reminderCount(), 0);
        EXPECT_TRUE(window.isVisible());
        EXPECT_EQ(note(), "Appointment: Year end: the item was deleted, and its reminder with it.");
        EXPECT_EQ(rowCount("Reminders"), 0);
        item.itemID(-1);
        EXPECT_TRUE(item.saveCalendarItem());
        loop.sweep();
        EXPECT_EQ(note(), "") << "a new reminder wipes the line";
    }
}

TEST_F(ReminderOfItemTest, AnItemThatIsMovedTakesItsReminderAlong)
{
    item.TimeFrom(Date::timeOf(9, 45));
    item.TimeTo(Date::timeOf(10, 45));
    EXPECT_TRUE(item.saveCalendarItem());
    loop.sweep();
    EXPECT_EQ(window.reminderCount(), 0);
    EXPECT_EQ(note(), "Appointment: Year end: the item was deleted or moved. A moved one comes again.");
    present = present.addSeconds(60 * 60);
    loop.sweep();
    EXPECT_EQ(window.reminderCount(), 1);
}

TEST_F(ReminderWindowTest, ClosingTheWindowKeepsTheRemindersForTheNextTime)
{
    addReminder(0, "First");
    loop.sweep();
    window.close();
    EXPECT_FALSE(window.isVisible());
    present = present.addSeconds(60);
    EXPECT_EQ(loop.sweep(), 0u);
    addReminder(0, "Second");
    EXPECT_EQ(loop.sweep(), 1u);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(window.reminderCount(), 2);
}

TEST_F(ReminderWindowTest, WhatCannotBeStoredIsSaidAndTheReminderStays)
{
    addReminder(0, "Call Ann");
    loop.sweep();
    window.answers({[](std::int32_t) -> host::ReminderOutcome { throw RunTimeError(70, "the disk is full"); },
                    [](std::int32_t, int) -> host::ReminderOutcome { throw std::runtime_error("no connection"); }});
    press("dismiss");
    EXPECT_EQ(window.reminderCount(), 1);
    EXPECT_EQ(note(), "That could not be stored: the disk is full");
    press("snooze");
    EXPECT_EQ(window.reminderCount(), 1);
    EXPECT_EQ(note(), "That could not be stored: no connection") << "whatever kind it is of";
}

struct ReminderGroupTest : ReminderWindowTest {
    static host::Reminder reminder(std::int32_t id, const std::string& text) { return {id, 1, 0, now(), text}; }
};

TEST_F(ReminderGroupTest, AReminderOnTheListThatIsMissedNowMovesUnderTheHeading)
{
    window.show(reminder(1, "Call Ann"));
    window.showMissed({reminder(1, "Call Ann")});
    EXPECT_EQ(window.reminderCount(), 1);
    ASSERT_EQ(list().topLevelItemCount(), 1);
    EXPECT_EQ(list().topLevelItem(0)->text(0), "Missed while nobody looked: 1");
    EXPECT_EQ(list().topLevelItem(0)->childCount(), 1);
    EXPECT_EQ(list().selectedItems().size(), 1);
    window.showMissed({reminder(1, "Call Ann"), reminder(2, "File T2")});
    EXPECT_EQ(list().topLevelItem(0)->text(0), "Missed while nobody looked: 2");
    EXPECT_EQ(window.reminderCount(), 2);
}

TEST_F(ReminderGroupTest, ADigestOfNoneHasNoHeading)
{
    window.showMissed({});
    EXPECT_EQ(list().topLevelItemCount(), 0);
    EXPECT_FALSE(widget<QPushButton>(window, "dismiss").isEnabled());
}

TEST_F(ReminderGroupTest, AListThatWasClearedStartsAgain)
{
    window.showMissed({reminder(1, "Call Ann")});
    list().clear();
    window.showMissed({reminder(2, "File T2")});
    ASSERT_EQ(list().topLevelItemCount(), 1);
    EXPECT_EQ(list().topLevelItem(0)->text(0), "Missed while nobody looked: 1");
}

} // namespace
} // namespace qncal::test
