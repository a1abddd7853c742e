#include "controls/listControls.h"

#include "controls/Form.h"
#include "support/rowName.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace qncal {
namespace {

struct ListControlsTest : testing::Test {
    Form form{"frmTest"};
    int changes = 0;
    std::function<void()> count = [this] { ++changes; };
};

TEST_F(ListControlsTest, AComboBoxTakesTheTextOfThePickedRow)
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

TEST_F(ListControlsTest, AComboBoxCompletesWhatIsTypedFromTheFirstMatchingRow)
{
    ComboBox box(form, "cboField");
    box.addItem("9:00 AM");
    box.addItem("9:15 AM");
    box.autoComplete("9:1");
    EXPECT_EQ(box.text(), "9:15 AM");
    EXPECT_EQ(box.listIndex(), 1);
    box.autoComplete("9:00 am");
    EXPECT_EQ(box.listIndex(), 0);
    box.autoComplete("noon");
    EXPECT_EQ(box.text(), "noon");
    EXPECT_EQ(box.listIndex(), -1);
}

TEST_F(ListControlsTest, AKeyReplacesWhatTheUserMarkedAndIsLeftAloneInsideOfTheText)
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

TEST_F(ListControlsTest, ATextThatCodeSetsHasTheCaretAtItsEnd)
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

TEST_F(ListControlsTest, AFixedComboBoxTakesOnlyTheTextOfARow)
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

TEST_F(ListControlsTest, RemovingARowKeepsTheSelectionOnItsRow)
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

struct TextRow {
    const char* name;
    const char* text;
    std::int32_t selected;
    const char* events;
};

class ComboTextTest : public testing::TestWithParam<TextRow> {};

TEST_P(ComboTextTest, TheTextDecidesWhichRowIsSelected)
{
    Form form{"frmTest"};
    ComboBox box(form, "cboScheme");
    box.addItem("Blue", 7);
    box.addItem("Green", 8);
    box.addItem("Blue", 9);
    box.listIndex(2);
    std::string events;
    box.Change = [&] { events += "Change " + std::to_string(box.selectedItemData()) + "; "; };
    box.Click = [&] { events += "Click " + box.text(); };
    box.text(GetParam().text);
    EXPECT_EQ(box.text(), GetParam().text);
    EXPECT_EQ(box.selectedItemData(), GetParam().selected);
    EXPECT_EQ(events, GetParam().events) << "both values are in place before either event";
}

INSTANTIATE_TEST_SUITE_P(Texts, ComboTextTest,
                         testing::Values(TextRow{"AnotherRow", "Green", 8, "Change 8; Click Green"},
                                         TextRow{"NoRow", "Red", -1, "Change -1; "},
                                         TextRow{"NothingAtAll", "", -1, "Change -1; "},
                                         TextRow{"TheSelectedRowOfTwoAlike", "Blue", 9, ""}),
                         test::rowName);

TEST_F(ListControlsTest, TheRowOfATextTypedInFullIsSelectedAgain)
{
    ComboBox box(form, "cboScheme");
    box.addItem("Blue", 7);
    box.listIndex(0);
    box.text("Blu");
    EXPECT_EQ(box.selectedItemData(), -1);
    box.Click = count;
    box.text("Blue");
    EXPECT_EQ(box.selectedItemData(), 7);
    EXPECT_EQ(changes, 1);
}

TEST_F(ListControlsTest, AUsersPickRaisesClickEvenOnTheSelectedRow)
{
    ComboBox box(form, "cboScheme");
    box.addItem("Blue", 7);
    box.Click = count;
    box.pick(0);
    box.pick(0);
    box.pick(5);
    EXPECT_EQ(box.listIndex(), 0);
    EXPECT_EQ(changes, 2);
    box.listIndex(0);
    EXPECT_EQ(changes, 2) << "code that selects the selected row changes nothing";
}

/// What empties a list, and what becomes of the text that stood there.
struct EmptyingRow {
    const char* name;
    bool editable;
    void (*empty)(ComboBox& box);
    const char* text;
};

class ComboEmptyingTest : public testing::TestWithParam<EmptyingRow> {};

TEST_P(ComboEmptyingTest, LosingTheSelectedRowIsAChangeOfTheSelection)
{
    Form form{"frmTest"};
    ComboBox box(form, "cboScheme");
    box.editable(GetParam().editable);
    box.addItem("Blue", 7);
    box.addItem("Green", 8);
    box.listIndex(0);
    int clicks = 0;
    box.Click = [&] {
        ++clicks;
        EXPECT_EQ(box.text(), GetParam().text);
    };
    GetParam().empty(box);
    EXPECT_EQ(box.listIndex(), -1);
    EXPECT_EQ(clicks, 1);
    GetParam().empty(box);
    EXPECT_EQ(clicks, 1) << "nothing was selected any more";
}

constexpr auto clearAll = [](ComboBox& box) { box.clear(); };
constexpr auto removeFirst = [](ComboBox& box) { box.removeItem(0); };

INSTANTIATE_TEST_SUITE_P(Ways, ComboEmptyingTest,
                         testing::Values(EmptyingRow{"ClearingAnEditableBox", true, clearAll, ""},
                                         EmptyingRow{"ClearingAFixedBox", false, clearAll, ""},
                                         EmptyingRow{"RemovingFromAnEditableBox", true, removeFirst, "Blue"},
                                         EmptyingRow{"RemovingFromAFixedBox", false, removeFirst, ""}),
                         test::rowName);

TEST_F(ListControlsTest, ClearingTakesATypedTextAsWell)
{
    ComboBox box(form, "cboScheme");
    box.text("Red");
    box.Change = count;
    box.clear();
    EXPECT_EQ(box.text(), "");
    EXPECT_EQ(changes, 1);
}

TEST_F(ListControlsTest, AListBoxTellsThatItsSelectionIsGone)
{
    ListBox box(form, "lstUsers");
    box.addItem("Ann", 1);
    box.addItem("Bob", 2);
    box.listIndex(1);
    box.Click = count;
    box.removeItem(0);
    EXPECT_EQ(changes, 0) << "Bob is selected still";
    box.clear();
    EXPECT_EQ(changes, 1);
}

} // namespace
} // namespace qncal
