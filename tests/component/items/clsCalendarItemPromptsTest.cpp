#include "controls/rangeControls.h"
#include "items/clsCalendarItem.h"
#include "support/ComponentTest.h"
#include "support/RoutineSweep.h"
#include "support/rowName.h"

#include <gtest/gtest.h>

#include <ostream>

// The two prompts for a time, which are the same but for the field that they ask for.

namespace qncal {
namespace {

struct Prompt {
    const char* name;
    const char* title;
    bool (clsCalendarItem::*ask)();
    Date (clsCalendarItem::*time)() const;
    /// Only a new end changes it.
    float duration;

    friend void PrintTo(const Prompt& prompt, std::ostream* out) { *out << prompt.name; }
};

const Prompt prompts[] = {
    {"Start", "Select Start Time", &clsCalendarItem::promptFormToChangeStartTime, &clsCalendarItem::TimeFrom, 2.5F},
    {"End", "Select End Time", &clsCalendarItem::promptFormToChangeEndTime, &clsCalendarItem::TimeTo, 1.25F},
};

class PromptTest : public test::ComponentTestWith<Prompt> {
protected:
    PromptTest()
    {
        item.calendarItemType(enumLocalCalendarAppointmentItem);
        item.TimeFrom(Date::timeOf(8, 5));
        item.TimeTo(Date::timeOf(10, 35));
    }
    bool ask() { return (item.*GetParam().ask)(); }
    Date time() const { return (item.*GetParam().time)(); }

    clsCalendarItem item;
};

TEST_P(PromptTest, BeginsWithTheItemsTimeAndSetsTheChosenOneAsAUserWould)
{
    ASSERT_TRUE(item.saveCalendarItem());
    const Date before = time();
    dialogs->whenShown("frmSelectStartTime", [&](host::Hand& hand) {
        EXPECT_TRUE(hand.form().isModal());
        EXPECT_EQ(hand.form().caption(), GetParam().title);
        EXPECT_EQ(hand.as<DateTimePicker>("dtpTime").value(), before);
        hand.pickDate("dtpTime", Date::timeOf(9, 20));
        hand.click("cmdOpts(0)");
    });
    EXPECT_TRUE(ask());
    EXPECT_EQ(time(), Date::timeOf(9, 20));
    EXPECT_TRUE(item.IsDirty());
    EXPECT_FLOAT_EQ(item.timeduration(), GetParam().duration);
}

TEST_P(PromptTest, ChangesNothingWhenCancelled)
{
    const Date from = item.TimeFrom();
    const Date to = item.TimeTo();
    for (const auto& leave :
         {+[](host::Hand& hand) { hand.click("cmdOpts(1)"); }, +[](host::Hand& hand) { hand.closeByBox(); },
          +[](host::Hand& hand) { hand.pressEscape(); }}) {
        dialogs->whenShown("frmSelectStartTime", [&](host::Hand& hand) {
            hand.pickDate("dtpTime", Date::timeOf(14, 20));
            leave(hand);
        });
        EXPECT_FALSE(ask());
        EXPECT_EQ(item.TimeFrom(), from);
        EXPECT_EQ(item.TimeTo(), to);
    }
}

/// The prompt answered with Ok.
test::SweptRoutine swept(const Prompt& prompt)
{
    return {prompt.name, "False",
            [prompt](test::TestWorld& world) -> std::function<std::string()> {
                world.dialogs->whenAnyShown([](host::Hand& hand) {
                    hand.pickDate("dtpTime", Date::timeOf(9, 20));
                    hand.click("cmdOpts(0)");
                });
                auto item = std::make_shared<clsCalendarItem>();
                item->calendarItemType(enumLocalCalendarAppointmentItem);
                return [item, prompt] { return std::string(booleanText(((*item).*prompt.ask)())); };
            },
            false};
}

TEST_P(PromptTest, LeavesWithEveryFault) { test::expectFaultsLeave(swept(GetParam())); }
TEST_P(PromptTest, RetriesEveryFaultAlone) { test::expectFaultsRetry(swept(GetParam())); }
TEST_P(PromptTest, LeavesWithEveryEmptySlot) { test::expectEmptySlotsLeave(swept(GetParam())); }

INSTANTIATE_TEST_SUITE_P(Prompts, PromptTest, testing::ValuesIn(prompts), test::rowName);

} // namespace
} // namespace qncal
