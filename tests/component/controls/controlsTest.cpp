#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/ListView.h"
#include "controls/TabStrip.h"
#include "controls/TextBox.h"
#include "controls/captionedControls.h"
#include "controls/listControls.h"
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

TEST_F(ControlsTest, AComboBoxTakesTheTextOfThePickedRow)
{
    ComboBox box(form, "cboField");
    box.addItem("<No Scheme Selected>", -1);
    box.addItem("Blue", 7);
    box.Click = count;
    box.listIndex(1);
    EXPECT_EQ(box.text(), "Blue");
    EXPECT_EQ(box.selectedItemData(), 7);
    EXPECT_FALSE(box.selectItemData(99));
    EXPECT_EQ(box.listIndex(), -1);
    EXPECT_EQ(changes, 2);
}

TEST_F(ControlsTest, AComboBoxCompletesWhatIsTypedFromTheFirstMatchingRow)
{
    ComboBox box(form, "cboField");
    box.addItem("9:00 AM");
    box.addItem("9:15 AM");
    box.autoComplete("9:1");
    EXPECT_EQ(box.text(), "9:15 AM");
    EXPECT_EQ(box.listIndex(), -1) << "not all of the row was typed";
    box.autoComplete("9:00 am");
    EXPECT_EQ(box.listIndex(), 0);
    box.autoComplete("noon");
    EXPECT_EQ(box.text(), "noon");
}

TEST_F(ControlsTest, AKeyReplacesWhatTheUserMarkedAndIsLeftAloneInsideOfTheText)
{
    ComboBox box(form, "cboField");
    box.addItem("9:15 AM");
    box.addItem("10:00 AM");
    std::int32_t key = '9';
    box.autoCompleteKey(key);
    EXPECT_EQ(box.text(), "9:15 AM");
    EXPECT_EQ(key, 0);
    box.select(0, 7);
    key = '1';
    box.autoCompleteKey(key);
    EXPECT_EQ(box.text(), "10:00 AM");
    EXPECT_EQ(box.selStart(), 1);
    EXPECT_EQ(box.selLength(), 7);
    box.select(2, 0);
    key = '5';
    box.autoCompleteKey(key);
    EXPECT_EQ(key, '5');
    EXPECT_EQ(box.text(), "10:00 AM");
}

TEST_F(ControlsTest, ATextThatCodeSetsHasTheCaretAtItsEnd)
{
    ComboBox box(form, "cboField");
    box.addItem("9:15 AM");
    box.select(1, 1);
    box.text("10");
    EXPECT_EQ(box.selStart(), 2);
    EXPECT_EQ(box.selLength(), 0);
    box.listIndex(0);
    EXPECT_EQ(box.selStart(), 7);
}

TEST_F(ControlsTest, AFixedComboBoxTakesOnlyTheTextOfARow)
{
    ComboBox box(form, "cboField");
    box.editable(false);
    box.addItem("Blue", 7);
    box.text("Blue");
    EXPECT_EQ(box.listIndex(), 0);
    box.text("Red");
    EXPECT_EQ(box.listIndex(), -1);
    EXPECT_EQ(box.text(), "");
}

TEST_F(ControlsTest, RemovingARowKeepsTheSelectionOnItsRow)
{
    ListBox box(form, "lstUsers");
    for (int i = 0; i < 3; ++i)
        box.addItem("user " + std::to_string(i), i);
    box.listIndex(2);
    box.removeItem(0);
    EXPECT_EQ(box.selectedItemData(), 2);
    box.insertItem(0, "first", 9);
    EXPECT_EQ(box.selectedItemData(), 2);
    box.removeItem(2);
    EXPECT_EQ(box.listIndex(), -1);
}

TEST_F(ControlsTest, AListViewSortsByColumnAndKeepsTheSelectedRow)
{
    ListView view(form, "lvSchemes");
    view.addColumn("Name");
    view.addRow({{"beta"}, 1, false});
    view.addRow({{"Alpha"}, 2, false});
    view.addRow({{"gamma"}, 3, false});
    view.selectedRow(0);
    view.clickColumn(0);
    EXPECT_EQ(view.rows()[0].itemData, 2);
    EXPECT_EQ(view.selectedItemData(), 1);
    view.clickColumn(0);
    EXPECT_EQ(view.rows()[0].itemData, 3);
    EXPECT_EQ(view.selectedItemData(), 1);
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
