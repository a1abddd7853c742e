#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/TabStrip.h"
#include "controls/TextBox.h"
#include "controls/captionedControls.h"
#include "controls/rangeControls.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace qncal {
namespace {

struct ControlsTest : testing::Test {
    Form form{"frmTest"};
    int changes = 0;
    int updates = 0;
    std::function<void()> count = [this] { ++changes; };
};

TEST_F(ControlsTest, AnEqualValueRaisesNothing)
{
    TextBox box(form, "txtName");
    box.Change = count;
    box.updated.subscribe([this] { ++updates; });
    box.text("Ann");
    box.text("Ann");
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(updates, 1);
}

TEST_F(ControlsTest, CodeAndHandRaiseTheSameChangeEvent)
{
    CheckBox box(form, "chkField");
    box.Click = count;
    box.value(1);
    box.value(2);
    EXPECT_EQ(changes, 2);
    EXPECT_FALSE(box.isChecked()) << "greyed is not checked";
}

TEST_F(ControlsTest, AnOptionTurnsOffTheOthersOfItsGroupOnly)
{
    ControlArray<OptionButton> options(form, "optView", 0, 2);
    OptionButton other(form, "optOther");
    other.value(true);
    options(2).Click = count;
    options(0).value(true);
    options(2).value(true);
    options(2).value(true);
    EXPECT_FALSE(options(0).value());
    EXPECT_TRUE(options(2).value());
    EXPECT_TRUE(other.value());
    EXPECT_EQ(changes, 1);
}

TEST_F(ControlsTest, AControlArrayKeepsTheIndicesItWasGiven)
{
    ControlArray<TextBox> fields(form, "txtField", 1, 5);
    EXPECT_EQ(fields.lowerBound(), 1);
    EXPECT_EQ(fields.upperBound(), 5);
    EXPECT_EQ(fields(5).path(), "txtField(5)");
    EXPECT_EQ(form.findControl("TXTFIELD(3)"), &fields(3));
    EXPECT_THROW(fields(0), std::out_of_range);
    EXPECT_THROW(fields(6), std::out_of_range);
}

TEST_F(ControlsTest, ARangeKeepsItsValueInsideItsBounds)
{
    UpDown arrows(form, "udHours");
    arrows.Change = count;
    arrows.bounds(1, 3);
    EXPECT_EQ(arrows.value(), 1);
    arrows.up();
    arrows.up();
    arrows.up();
    EXPECT_EQ(arrows.value(), 3);
    EXPECT_EQ(changes, 3) << "into the bounds, and two steps";
}

TEST_F(ControlsTest, ADatePickerWithABoxMayHoldNoValue)
{
    DateTimePicker picker(form, "dtpNotification");
    picker.Change = count;
    picker.clearValue();
    EXPECT_TRUE(picker.hasValue()) << "without a box there is always a value";
    picker.checkBox(true);
    picker.clearValue();
    EXPECT_FALSE(picker.hasValue());
    picker.value(Date::of(2026, 3, 31));
    EXPECT_TRUE(picker.hasValue());
    EXPECT_EQ(changes, 2);
}

TEST_F(ControlsTest, FocusMovesWithTheEventsOfBothControls)
{
    TextBox first(form, "txtFirst");
    TextBox second(form, "txtSecond");
    std::string order;
    first.LostFocus = [&] { order += "lost "; };
    second.GotFocus = [&] { order += "got"; };
    first.setFocus();
    second.setFocus();
    EXPECT_EQ(order, "lost got");
    first.enabled(false);
    first.setFocus();
    EXPECT_TRUE(second.hasFocus());
}

TEST_F(ControlsTest, ATabStripTellsThePageThatWasLeft)
{
    TabStrip tabs(form, "tabPages");
    tabs.addTab("General");
    tabs.addTab("Notes");
    int left = -1;
    tabs.Click = [&](std::int32_t previous) { left = previous; };
    tabs.selectedTab(1);
    tabs.selectedTab(7);
    EXPECT_EQ(left, 0);
    EXPECT_EQ(tabs.selectedTab(), 1);
}

TEST_F(ControlsTest, AWindowIsToldWhenAControlOrAFormEnds)
{
    std::vector<std::string> ended;
    {
        Form shortLived("frmShort");
        shortLived.destroyed.subscribe([&] { ended.push_back("form"); });
        TextBox box(shortLived, "txtName");
        box.destroyed.subscribe([&] {
            ended.push_back("control");
            EXPECT_FALSE(shortLived.findControl("txtName"));
        });
    }
    EXPECT_EQ(ended, (std::vector<std::string>{"control", "form"}));
}

TEST_F(ControlsTest, AControlThatEndsLeavesItsForm)
{
    {
        TextBox box(form, "txtName");
        box.setFocus();
        EXPECT_EQ(form.controls().size(), 1u);
    }
    EXPECT_TRUE(form.controls().empty());
    EXPECT_EQ(form.focusedControl(), nullptr);
}

} // namespace
} // namespace qncal
