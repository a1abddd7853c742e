#include "headless/Hand.h"

#include "controls/ListView.h"
#include "controls/RichTextBox.h"
#include "controls/TabStrip.h"
#include "controls/TextBox.h"
#include "controls/captionedControls.h"
#include "controls/listControls.h"
#include "controls/rangeControls.h"
#include "support/rowName.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace qncal::host {
namespace {

struct HandTest : testing::Test {
    std::function<void()> note(std::string event)
    {
        return [this, event] { events += event + " "; };
    }
    Form form{"frmTest"};
    Hand hand{form};
    std::string events;
};

struct KeysRow {
    const char* name;
    const char* text;
    std::int32_t start;
    std::int32_t length;
    const char32_t* keys;
    const char* after;
    std::int32_t caret;
};

class HandKeysTest : public testing::TestWithParam<KeysRow> {
protected:
    template <class Box>
    void press(Form& form, Box& box)
    {
        for (const char32_t* key = GetParam().keys; *key != 0; ++key)
            Hand(form).pressKey(box.path(), *key);
        EXPECT_EQ(box.text(), GetParam().after);
        EXPECT_EQ(box.selStart(), GetParam().caret);
        EXPECT_EQ(box.selLength(), 0);
    }
};

TEST_P(HandKeysTest, GoToTheCaretOfATextBox)
{
    Form form{"frmTest"};
    TextBox box{form, "txtName"};
    box.text(GetParam().text);
    box.selStart(GetParam().start);
    box.selLength(GetParam().length);
    press(form, box);
}

TEST_P(HandKeysTest, GoToTheCaretOfAComboBox)
{
    Form form{"frmTest"};
    ComboBox box{form, "cboName"};
    box.text(GetParam().text);
    box.select(GetParam().start, GetParam().length);
    press(form, box);
}

INSTANTIATE_TEST_SUITE_P(Places, HandKeysTest,
                         testing::Values(KeysRow{"AtTheEnd", "An", 2, 0, U"n", "Ann", 3},
                                         KeysRow{"AtTheStart", "nn", 0, 0, U"A", "Ann", 1},
                                         KeysRow{"Inside", "ä€", 1, 0, U"öü", "äöü€", 3},
                                         KeysRow{"InPlaceOfWhatIsMarked", "Anna", 1, 2, U"d", "Ada", 2},
                                         KeysRow{"Backspace", "Anna", 2, 0, U"\b", "Ana", 1},
                                         KeysRow{"BackspaceOnWhatIsMarked", "Anna", 1, 2, U"\b", "Aa", 1},
                                         KeysRow{"BackspaceAtTheStart", "Ann", 0, 0, U"\b", "Ann", 0},
                                         KeysRow{"EscapeTypesNothing", "Ann", 1, 0, U"\x1B", "Ann", 1}),
                         qncal::test::rowName);

TEST_F(HandTest, EnterEndsALineWhereThereAreLines)
{
    TextBox line{form, "txtLine"};
    TextBox lines{form, "txtLines"};
    lines.multiLine(true);
    hand.type("txtLine", "a\rb");
    hand.type("txtLines", "a\rb");
    EXPECT_EQ(line.text(), "ab");
    EXPECT_EQ(lines.text(), "a\nb");
}

TEST_F(HandTest, AKeyRaisesDownPressAndUpWithTheNumberOfTheKey)
{
    TextBox box{form, "txtName"};
    box.KeyDown = [this](std::int32_t& code) { events += "down " + std::to_string(code) + " "; };
    box.KeyPress = [this](std::int32_t& key) { events += "press " + std::to_string(key) + " "; };
    box.KeyUp = [this](std::int32_t code) { events += "up " + std::to_string(code) + " "; };
    hand.pressKey("txtName", 'a');
    EXPECT_EQ(events, "down 65 press 97 up 65 ");
    events.clear();
    hand.pressKey("txtName", U'é');
    EXPECT_EQ(events, "down 0 press 233 up 0 ");
    events.clear();
    hand.pressKeyCode("txtName", 46);
    EXPECT_EQ(events, "down 46 up 46 ");
    EXPECT_EQ(box.text(), "aé");
}

TEST_F(HandTest, AKeyThatIsSwallowedOnItsWayDownTypesNothing)
{
    TextBox box{form, "txtName"};
    box.KeyDown = [](std::int32_t& code) { code = 0; };
    box.KeyPress = [this](std::int32_t&) { events += "press"; };
    hand.pressKey("txtName", 'a');
    EXPECT_EQ(box.text(), "");
    EXPECT_EQ(events, "");
}

TEST_F(HandTest, TypesIntoARichText)
{
    RichTextBox box{form, "rtbNotes"};
    box.textRTF("{\\rtf1 old\\par}");
    hand.type("rtbNotes", "new");
    EXPECT_EQ(box.text(), "new");
    box.textRTF("{\\rtf1 ab\\par}");
    box.selStart(1);
    hand.pressKey("rtbNotes", U'-');
    EXPECT_EQ(box.text(), "a-b");
    box.selLength(1);
    EXPECT_THROW(hand.pressKey("rtbNotes", U'x'), std::runtime_error);
    box.readOnly(true);
    EXPECT_THROW(hand.type("rtbNotes", "x"), std::runtime_error);
}

TEST_F(HandTest, ClicksHeadingsChecksRowsAndClicksTwice)
{
    ListView view{form, "lvClients"};
    view.addColumn("Name");
    view.addRow({{"Bob"}, 1, false});
    view.addRow({{"Ann"}, 2, false});
    view.DblClick = note("twice");
    view.ItemCheck = [this](std::int32_t row) { events += "check " + std::to_string(row) + " "; };
    EXPECT_THROW(hand.checkRow("lvClients", "Ann", true), std::runtime_error) << "it has no boxes";
    view.checkBoxes(true);
    hand.checkRow("lvClients", "Ann", true);
    EXPECT_TRUE(view.isChecked(1));
    hand.clickColumn("lvClients", 0);
    EXPECT_TRUE(view.isChecked(0)) << "the check went with its row";
    hand.doubleClick("lvClients");
    EXPECT_EQ(events, "check 1 twice ");
    EXPECT_THROW(hand.checkRow("lvClients", "Cy", true), std::runtime_error);
}

TEST_F(HandTest, ADateHasACalendarAndMayBeCleared)
{
    DateTimePicker picker{form, "dtpFrom"};
    picker.DropDown = note("down");
    picker.Change = note("change");
    picker.CloseUp = note("close");
    EXPECT_THROW(hand.clearDate("dtpFrom"), std::runtime_error) << "it has no box";
    hand.pickDate("dtpFrom", Date::of(2026, 3, 31));
    EXPECT_EQ(events, "down change close ");
    picker.checkBox(true);
    hand.clearDate("dtpFrom");
    EXPECT_FALSE(picker.hasValue());
    events.clear();
    picker.format(DateTimePicker::Format::time);
    hand.pickDate("dtpFrom", Date::timeOf(9));
    EXPECT_EQ(events, "change ") << "a time has no calendar";
}

TEST_F(HandTest, TellsWhichMouseButtonWentUp)
{
    RichTextBox box{form, "rtbNotes"};
    box.MouseUp = [this](MouseButton button) { events += button == MouseButton::right ? "right " : "left "; };
    hand.rightClick("rtbNotes");
    hand.click("rtbNotes");
    EXPECT_EQ(events, "right left ");
}

TEST_F(HandTest, APickOfTheSelectedRowIsAClick)
{
    ComboBox box{form, "cboName"};
    box.addItem("Ann");
    box.Click = note("click");
    hand.pick("cboName", "Ann");
    hand.pick("cboName", "Ann");
    EXPECT_EQ(events, "click click ");
}

TEST_F(HandTest, WhatStandsOnAPageBehindIsHidden)
{
    TabStrip tabs{form, "tabPages"};
    tabs.addTab("General");
    tabs.addTab("Notes");
    TextBox box{form, "txtNotes"};
    box.container(tabs, 1);
    EXPECT_THROW(hand.type("txtNotes", "x"), std::runtime_error);
    EXPECT_NE(listControls(form).find("txtNotes  TextBox  \"\"  (hidden)"), std::string::npos);
    hand.pick("tabPages", "Notes");
    hand.type("txtNotes", "x");
    EXPECT_EQ(box.text(), "x");
}

TEST_F(HandTest, NothingComesOfAClickWhileAControlRefusesToBeLeft)
{
    TextBox box{form, "txtTime"};
    CommandButton button{form, "cmdOk"};
    box.Validate = [](bool& cancel) { cancel = true; };
    button.Click = note("click");
    hand.type("txtTime", "x");
    hand.click("cmdOk");
    EXPECT_EQ(events, "");
    EXPECT_TRUE(box.hasFocus());
    button.causesValidation(false);
    hand.click("cmdOk");
    EXPECT_EQ(events, "click ");
}

} // namespace
} // namespace qncal::host
