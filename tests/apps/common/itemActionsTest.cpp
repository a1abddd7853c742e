#include "common/itemActions.h"

#include "common/Failure.h"
#include "services/HostEnvironment.h"
#include "support/ComponentTest.h"

namespace qncal::firmcal {
namespace {

/// In a host of its own within the world's database, as a program has it.
class ItemActionsTest : public test::ComponentTest {
protected:
    ItemActionsTest()
    {
        item.calendarItemType(enumLocalCalendarAppointmentItem);
        item.addNewItem();
        item.Subject("Year end");
        item.userIDNum(1);
        item.DateFrom(today());
        item.TimeFrom(Date::timeOf(6));
        item.TimeTo(Date::timeOf(7));
        save(watch, item);
    }
    template <class Action>
    static std::string failureOf(Action action)
    {
        try {
            action();
        } catch (const Failure& failure) {
            return failure.what();
        }
        return {};
    }

    host::HostEnvironment host{{.database = database, .messages = messages}};
    ErrorWatch watch{host.errors()};
    clsCalendarItem item;
};

TEST_F(ItemActionsTest, AnItemIsLoadedByItsNumber)
{
    clsCalendarItem loaded;
    load(watch, loaded, enumLocalCalendarAppointmentItem, item.itemID());
    EXPECT_EQ(describe(loaded), "appointment 1: Tue, Mar 31, 2026, 06:00-07:00, Year end");
    EXPECT_EQ(failureOf([&] { load(watch, loaded, enumLocalCalendarDocketItem, 9); }), "no time entry 9");
}

TEST_F(ItemActionsTest, ANoToTheQuestionKeepsTheItem)
{
    const std::string question = "Delete appointment 1: Tue, Mar 31, 2026, 06:00-07:00, Year end?";
    messages->expectQuestion(question, MessageDialogService::answerNo);
    EXPECT_FALSE(removeAfterQuestion(watch, *messages, item));
    EXPECT_EQ(rowCount("Appointments"), 1);
    messages->expectQuestion(question, MessageDialogService::answerYes);
    EXPECT_TRUE(removeAfterQuestion(watch, *messages, item));
    EXPECT_EQ(rowCount("Appointments"), 0);
}

TEST_F(ItemActionsTest, TheBestTimeIsNotSaved)
{
    placeBest(watch, item, today());
    EXPECT_EQ(item.TimeFrom(), Date::timeOf(9));
    EXPECT_EQ(item.TimeTo(), Date::timeOf(10));
    clsCalendarItem stored;
    load(watch, stored, enumLocalCalendarAppointmentItem, item.itemID());
    EXPECT_EQ(stored.TimeFrom(), Date::timeOf(6));
}

TEST_F(ItemActionsTest, AnEndAfterMidnightIsRefused)
{
    item.TimeFrom(Date::timeOf(23));
    item.TimeTo(Date::timeOf(1));
    EXPECT_EQ(failureOf([&] { refuseEndAfterMidnight(item); }), "the item would begin at 23:00 and end after midnight");
}

TEST_F(ItemActionsTest, WhatTheComponentKeepsToItselfIsThrownOnce)
{
    database->close();
    EXPECT_NE(failureOf([&] { save(watch, item); }), "");
    EXPECT_EQ(failureOf([&] { watch.throwIfReported(); }), "");
}

} // namespace
} // namespace qncal::firmcal
