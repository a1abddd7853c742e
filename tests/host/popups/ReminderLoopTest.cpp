#include "popups/ReminderLoop.h"

#include "host/popups/RecordingDisplay.h"
#include "host/services/HostTest.h"
#include "items/clsCalendarItem.h"
#include "support/DatabaseThatFailsLate.h"
#include "utilities/Clock.h"
#include "utilities/RunTimeError.h"
#include "utilities/dateText.h"

#include <gmock/gmock.h>

namespace qncal::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Outcome = ReminderLoop::Outcome;

class ReminderLoopTest : public test::HostTest {
protected:
    /// March 2, 2026 at that time.
    static Date at(int hour, int minute, int second = 0) { return Date::of(2026, 3, 2, hour, minute, second); }

    std::int32_t addReminder(Date moment, std::int32_t user = 1, bool completed = false)
    {
        return addRow(*database, "Reminders",
                      {{"UserIDNum", std::to_string(user)},
                       {"ReminderType", "1"},
                       {"ReminderDate", defaultDateText(moment.dateOnly())},
                       {"ReminderTime", formatDate(moment, "hh:nn:ss")},
                       {"TextBody", "Call Ann"},
                       {"Completed", booleanText(completed)}});
    }
    Rows row(std::int32_t id)
    {
        return Rows::change(*database,
                            "SELECT Reminders.* FROM Reminders WHERE ReminderID=" + std::to_string(id) + ";");
    }
    void moveTo(std::int32_t id, Date moment)
    {
        Rows reminder = row(id);
        reminder.set("ReminderDate", defaultDateText(moment.dateOnly()));
        reminder.set("ReminderTime", formatDate(moment, "hh:nn:ss"));
    }
    std::vector<std::string> sweepCalls()
    {
        display.calls.clear();
        loop.sweep();
        return display.calls;
    }

    Date present = at(9, 0);
    ClockOverride clock{[this] { return present; }};
    test::RecordingDisplay display;
    ReminderLoop loop{database, display};
};

TEST_F(ReminderLoopTest, ShowsWhatIsDueOnceAndMarksIt)
{
    const auto id = addReminder(at(9, 0), 7);
    EXPECT_EQ(loop.sweep(), 1u);
    EXPECT_THAT(display.shown, ElementsAre(Reminder{id, 7, 1, at(9, 0), "Call Ann"}));
    EXPECT_TRUE(row(id).boolean("Completed"));
    EXPECT_EQ(row(id).field("ShownFor"), Variant(at(9, 0)));
    EXPECT_EQ(loop.sweep(), 0u);
    EXPECT_THAT(sweepCalls(), IsEmpty());
}

TEST_F(ReminderLoopTest, ShowsInTheOrderOfTheirMoments)
{
    const auto later = addReminder(at(8, 59));
    const auto sooner = addReminder(at(8, 57));
    EXPECT_THAT(sweepCalls(), ElementsAre("show " + std::to_string(sooner), "show " + std::to_string(later)));
}

TEST_F(ReminderLoopTest, LeavesWhatComesLaterOrIsCompleted)
{
    addReminder(at(9, 0, 1));
    addReminder(at(0, 0).addDays(1));
    addReminder(at(8, 59), 1, true);
    EXPECT_THAT(sweepCalls(), IsEmpty());
}

TEST_F(ReminderLoopTest, ShowsAReminderOfMidnight)
{
    const auto id = addReminder(at(0, 0));
    present = at(0, 1);
    EXPECT_THAT(sweepCalls(), ElementsAre("show " + std::to_string(id)));
}

TEST_F(ReminderLoopTest, BringsMissedOnesOnceAsOneDigest)
{
    const auto yesterday = addReminder(at(8, 0).addDays(-1));
    const auto lastYear = addReminder(at(8, 0).addDays(-365));
    const auto justLate = addReminder(at(8, 54, 59));
    const auto due = addReminder(at(8, 55));
    const auto number = [](std::int32_t id) { return std::to_string(id); };
    EXPECT_THAT(sweepCalls(),
                ElementsAre("missed " + number(lastYear) + " " + number(yesterday) + " " + number(justLate),
                            "show " + number(due)));
    EXPECT_THAT(sweepCalls(), IsEmpty());
    ReminderLoop next(database, display);
    EXPECT_EQ(next.sweep(), 0u);
}

TEST_F(ReminderLoopTest, ShowsTheRemindersOfOneUserAlone)
{
    addReminder(at(9, 0), 1);
    const auto own = addReminder(at(9, 0), 2);
    addReminder(at(7, 0), 1);
    ReminderLoop ofUser(database, display, 2);
    EXPECT_EQ(ofUser.sweep(), 1u);
    EXPECT_THAT(display.calls, ElementsAre("show " + std::to_string(own)));
}

TEST_F(ReminderLoopTest, SnoozingMovesTheRow)
{
    const auto id = addReminder(at(9, 0));
    display.stay = ReminderDisplay::Stay::onScreen;
    loop.sweep();
    EXPECT_EQ(loop.snooze(id, 15), Outcome::done);
    EXPECT_EQ(row(id).field("ReminderTime"), Variant(Date::timeOf(9, 15)));
    EXPECT_THAT(sweepCalls(), IsEmpty());
    present = at(9, 15);
    EXPECT_THAT(sweepCalls(), ElementsAre("show " + std::to_string(id)));
}

TEST_F(ReminderLoopTest, SnoozingPastMidnightMovesTheDay)
{
    present = at(23, 50);
    const auto id = addReminder(at(23, 50));
    loop.sweep();
    loop.snooze(id, 20);
    EXPECT_EQ(row(id).field("ReminderDate"), Variant(Date::of(2026, 3, 3)));
    EXPECT_EQ(row(id).field("ReminderTime"), Variant(Date::timeOf(0, 10)));
}

TEST_F(ReminderLoopTest, SnoozingInsideOfTheShowingHolds)
{
    const auto id = addReminder(at(9, 0));
    display.whileShown = [&](const Reminder& reminder) { loop.snooze(reminder.id, 5); };
    loop.sweep();
    EXPECT_FALSE(row(id).boolean("Completed"));
    present = at(9, 5);
    EXPECT_THAT(sweepCalls(), ElementsAre("show " + std::to_string(id)));
}

TEST_F(ReminderLoopTest, RefusesToSnoozeBackwards)
{
    const auto id = addReminder(at(9, 0));
    EXPECT_THROW(loop.snooze(id, 0), RunTimeError);
    EXPECT_EQ(row(id).field("ReminderTime"), Variant(Date::timeOf(9)));
}

TEST_F(ReminderLoopTest, DismissingAheadOfTheMomentKeepsItFromComing)
{
    const auto id = addReminder(at(10, 0));
    EXPECT_EQ(loop.dismiss(id), Outcome::done);
    loop.sweep();
    present = at(10, 0);
    EXPECT_THAT(sweepCalls(), IsEmpty());
}

TEST_F(ReminderLoopTest, AnItemDeletedWhileItsReminderIsOnTheScreenTakesItAway)
{
    clsCalendarItem item;
    item.calendarItemType(enumLocalCalendarAppointmentItem);
    item.addNewItem();
    item.DateFrom(at(0, 0));
    item.TimeFrom(Date::timeOf(9, 15));
    item.TimeTo(Date::timeOf(10));
    item.Remind(true);
    item.reminderPeriod("15 Min");
    ASSERT_TRUE(item.saveCalendarItem());
    display.stay = ReminderDisplay::Stay::onScreen;
    loop.sweep();
    ASSERT_EQ(display.shown.size(), 1u);
    const std::int32_t id = display.shown.front().id;
    EXPECT_THAT(sweepCalls(), IsEmpty()) << "it stays while its row does";

    ASSERT_TRUE(item.deleteCalendarItem());
    EXPECT_EQ(loop.snooze(id, 5), Outcome::deleted);
    EXPECT_EQ(loop.dismiss(id), Outcome::deleted);
    EXPECT_TRUE(row(id).isEmpty());
}

TEST_F(ReminderLoopTest, WithdrawsFromTheScreenWhatIsGone)
{
    const auto gone = addReminder(at(9, 0));
    addReminder(at(9, 0));
    display.stay = ReminderDisplay::Stay::onScreen;
    loop.sweep();
    row(gone).deleteCurrent();
    EXPECT_THAT(sweepCalls(), ElementsAre("withdraw " + std::to_string(gone)));
    EXPECT_THAT(sweepCalls(), IsEmpty());
}

TEST_F(ReminderLoopTest, WhatIsDeletedWhileAnotherIsShownIsNotShown)
{
    addReminder(at(8, 58));
    const auto second = addReminder(at(8, 59));
    display.whileShown = [&](const Reminder&) {
        if (!row(second).isEmpty())
            row(second).deleteCurrent();
    };
    EXPECT_EQ(loop.sweep(), 1u);
}

TEST_F(ReminderLoopTest, ATickWhileADisplayWaitsShowsNothingTwice)
{
    addReminder(at(9, 0));
    std::size_t inner = 99;
    display.whileShown = [&](const Reminder&) { inner = loop.sweep(); };
    EXPECT_EQ(loop.sweep(), 1u);
    EXPECT_EQ(inner, 0u);
}

TEST_F(ReminderLoopTest, AFailedShowingComesAgain)
{
    addReminder(at(9, 0));
    display.whileShown = [](const Reminder&) { throw std::runtime_error("no display"); };
    EXPECT_THROW(loop.sweep(), std::runtime_error);
    display.whileShown = nullptr;
    EXPECT_EQ(loop.sweep(), 1u);
}

TEST_F(ReminderLoopTest, AReminderThatWasMovedAheadComesAgain)
{
    const auto id = addReminder(at(9, 0));
    loop.sweep();
    moveTo(id, at(11, 0));
    EXPECT_THAT(sweepCalls(), IsEmpty());
    present = at(11, 0);
    EXPECT_THAT(sweepCalls(), ElementsAre("show " + std::to_string(id)));
}

TEST_F(ReminderLoopTest, AReminderThatMovedAheadWhileNobodySweptIsMissedAndComes)
{
    const auto moved = addReminder(at(9, 0));
    loop.sweep();
    moveTo(moved, at(11, 0));
    present = at(11, 30);
    const auto other = addReminder(at(11, 30));
    ReminderLoop next(database, display);
    display.calls.clear();
    next.sweep();
    EXPECT_THAT(display.calls, ElementsAre("missed " + std::to_string(moved), "show " + std::to_string(other)));
    display.calls.clear();
    next.sweep();
    EXPECT_THAT(display.calls, IsEmpty());
}

TEST_F(ReminderLoopTest, AllThatMovedAheadComeAgainHoweverMany)
{
    std::vector<std::int32_t> moved;
    for (int i = 0; i < 70; ++i)
        moved.push_back(addReminder(at(8, 59, i % 60)));
    loop.sweep();
    for (const std::int32_t id : moved)
        moveTo(id, at(10, 0, id % 60));
    present = at(10, 1);
    display.shown.clear();
    EXPECT_EQ(loop.sweep(), moved.size());
    EXPECT_EQ(display.shown.size(), moved.size());
    EXPECT_EQ(loop.sweep(), 0u);
}

TEST_F(ReminderLoopTest, AReminderOfAnotherUserThatMovedComesToThatUser)
{
    const auto others = addReminder(at(9, 0), 2);
    ReminderLoop ofSecond(database, display, 2);
    ofSecond.sweep();
    moveTo(others, at(10, 0));
    present = at(10, 5);
    addReminder(at(10, 5), 1);
    ReminderLoop ofFirst(database, display, 1);
    ofFirst.sweep();
    display.calls.clear();
    ofSecond.sweep();
    EXPECT_THAT(display.calls, ElementsAre("show " + std::to_string(others)));
}

TEST_F(ReminderLoopTest, AReminderThatMovedBackWasSeenAlready)
{
    const auto id = addReminder(at(9, 0));
    loop.sweep();
    moveTo(id, at(7, 0));
    EXPECT_THAT(sweepCalls(), IsEmpty());
}

TEST_F(ReminderLoopTest, SavingTheItemOfASnoozedReminderThatCameDoesNotBringItAgain)
{
    const auto id = addReminder(at(9, 0));
    loop.sweep();
    loop.snooze(id, 25);
    present = at(9, 25);
    loop.sweep();
    moveTo(id, at(9, 0));
    EXPECT_THAT(sweepCalls(), IsEmpty());
}

TEST_F(ReminderLoopTest, AReminderDismissedAheadComesWhenItMovesNearer)
{
    const auto id = addReminder(at(16, 0));
    loop.dismiss(id);
    moveTo(id, at(12, 0));
    EXPECT_THAT(sweepCalls(), IsEmpty());
    present = at(12, 0);
    EXPECT_THAT(sweepCalls(), ElementsAre("show " + std::to_string(id)));
}

TEST_F(ReminderLoopTest, WithdrawsFromTheScreenWhatHasMoved)
{
    const auto id = addReminder(at(9, 0));
    display.stay = ReminderDisplay::Stay::onScreen;
    loop.sweep();
    moveTo(id, at(9, 30));
    EXPECT_THAT(sweepCalls(), ElementsAre("withdraw " + std::to_string(id)));
    present = at(9, 30);
    EXPECT_THAT(sweepCalls(), ElementsAre("show " + std::to_string(id)));
}

TEST_F(ReminderLoopTest, AnAnswerToAReminderThatHasMovedLeavesItsNewMoment)
{
    display.stay = ReminderDisplay::Stay::onScreen;
    for (const bool snoozes : {false, true}) {
        present = at(9, 0);
        const auto id = addReminder(present);
        loop.sweep();
        moveTo(id, at(11, 0));
        EXPECT_EQ(snoozes ? loop.snooze(id, 5) : loop.dismiss(id), Outcome::done);
        present = at(10, 0);
        EXPECT_THAT(sweepCalls(), IsEmpty());
        present = at(11, 0);
        EXPECT_THAT(sweepCalls(), ElementsAre("show " + std::to_string(id)));
        EXPECT_EQ(loop.dismiss(id), Outcome::done);
        EXPECT_TRUE(row(id).boolean("Completed"));
    }
}

TEST_F(ReminderLoopTest, AReminderWithoutATimeIsDueAtTheBeginningOfItsDay)
{
    const auto id = addReminder(at(0, 0));
    row(id).set("ReminderTime", {});
    present = at(0, 1);
    EXPECT_THAT(sweepCalls(), ElementsAre("show " + std::to_string(id)));
}

TEST_F(ReminderLoopTest, AReminderWithoutADayNeverComes)
{
    row(addReminder(at(9, 0))).set("ReminderDate", {});
    EXPECT_THAT(sweepCalls(), IsEmpty());
}

TEST_F(ReminderLoopTest, AClockThatIsPutBackBringsNothingTwice)
{
    addReminder(at(9, 0));
    loop.sweep();
    present = at(8, 30);
    EXPECT_THAT(sweepCalls(), IsEmpty());
    present = at(9, 30);
    EXPECT_THAT(sweepCalls(), IsEmpty());
}

TEST_F(ReminderLoopTest, DoesNothingWithoutAConnection)
{
    addReminder(at(9, 0));
    database->close();
    EXPECT_EQ(loop.sweep(), 0u);
}

TEST_F(ReminderLoopTest, ReadsAsMuchAmongManyRemindersAsAmongFew)
{
    const auto addOthers = [&](int count) {
        for (int i = 1; i <= count; ++i) {
            addReminder(at(9, 0).addDays(i), 1, false);
            addReminder(at(9, 0).addDays(-i), 1, true);
        }
    };
    const auto readBySweep = [&] {
        addReminder(at(9, 0));
        const StoreStatistics before = database->statistics();
        loop.sweep();
        const StoreStatistics after = database->statistics();
        return after.recordsRead + after.keysRead - before.recordsRead - before.keysRead;
    };
    addOthers(5);
    const auto few = readBySweep();
    addOthers(500);
    EXPECT_EQ(readBySweep(), few);
}

TEST_F(ReminderLoopTest, AReminderThatCannotBeOpenedAgainIsTold)
{
    const auto id = addReminder(at(9, 0));
    loop.sweep();
    moveTo(id, at(10, 0));
    ReminderLoop failing{std::make_shared<qncal::test::DatabaseThatFailsLate>(database), display};
    EXPECT_THROW(failing.sweep(), RunTimeError);
}

} // namespace
} // namespace qncal::host
