#include "controls/Form.h"

#include "controls/TabStrip.h"
#include "controls/TextBox.h"
#include "controls/captionedControls.h"

#include <gtest/gtest.h>

#include <string>

namespace qncal {
namespace {

struct FormTest : testing::Test {
    Form form{"frmTest"};
    TextBox first{form, "txtFirst"};
    TextBox second{form, "txtSecond"};
    std::string events;
};

TEST_F(FormTest, AControlMayRefuseToBeLeft)
{
    first.Validate = [this](bool& cancel) {
        events += "ask ";
        cancel = first.text().empty();
    };
    first.LostFocus = [this] { events += "lost "; };
    int moved = 0;
    form.focusMoved.subscribe([&] { ++moved; });
    first.setFocus();
    second.setFocus();
    EXPECT_TRUE(first.hasFocus());
    EXPECT_EQ(moved, 2) << "the window is told to put the focus back";
    first.text("9:00");
    second.setFocus();
    EXPECT_TRUE(second.hasFocus());
    EXPECT_EQ(events, "ask ask lost ");
}

TEST_F(FormTest, ACancelButtonIsReachedWithoutTheQuestion)
{
    CommandButton cancelButton{form, "cmdCancel"};
    cancelButton.causesValidation(false);
    first.Validate = [](bool& cancel) { cancel = true; };
    first.setFocus();
    cancelButton.setFocus();
    EXPECT_TRUE(cancelButton.hasFocus());
}

TEST_F(FormTest, AQuestionThatMovesTheFocusItselfIsAskedOnce)
{
    first.Validate = [this](bool& cancel) {
        events += "ask";
        second.setFocus();
        cancel = true;
    };
    first.setFocus();
    form.focus(nullptr);
    EXPECT_TRUE(second.hasFocus());
    EXPECT_EQ(events, "ask");
}

TEST_F(FormTest, TheFormHearsOfAKeyFirstAndEitherMaySwallowIt)
{
    form.KeyDown = [this](std::int32_t& key) {
        events += "form " + std::to_string(key) + " ";
        if (key == 17)
            key = 0;
    };
    first.KeyDown = [this](std::int32_t& key) {
        events += "box " + std::to_string(key) + " ";
        if (key == 9)
            key = 0;
    };
    form.KeyUp = [this](std::int32_t key) { events += "up " + std::to_string(key) + " "; };
    first.KeyUp = [this](std::int32_t) { events += "boxup"; };
    EXPECT_FALSE(first.keyDown(17));
    EXPECT_FALSE(first.keyDown(9));
    EXPECT_TRUE(first.keyDown(65));
    first.keyUp(17);
    EXPECT_EQ(events, "form 17 form 9 box 9 form 65 box 65 up 17 boxup");
}

struct ContainerTest : FormTest {
    ContainerTest()
    {
        tabs.addTab("General");
        tabs.addTab("Notes");
        panel.container(tabs, 1);
        first.container(panel);
    }
    void expectFirst(bool shown, bool reachable, const char* why) const
    {
        EXPECT_EQ(first.isShown(), shown) << why;
        EXPECT_EQ(first.isReachable(), reachable) << why;
    }
    TabStrip tabs{form, "tabPages"};
    Panel panel{form, "picNotes"};
};

TEST_F(ContainerTest, AControlIsReachedOnlyThroughAllThatItStandsOn)
{
    expectFirst(false, false, "another page is in front");
    tabs.selectedTab(1);
    expectFirst(true, true, "its page is in front");
    panel.enabled(false);
    expectFirst(true, false, "its panel is disabled");
    panel.visible(false);
    expectFirst(false, false, "its panel is hidden");
    panel.enabled(true);
    panel.visible(true);
    tabs.tabVisible(1, false);
    expectFirst(false, false, "its page has no tab");
    tabs.tabVisible(1, true);
    first.enabled(false);
    expectFirst(true, false, "it is disabled itself");
    EXPECT_TRUE(second.isReachable()) << "on the form itself";
}

TEST_F(ContainerTest, WhatCannotBeReachedTakesNoFocusAndIsNotPressed)
{
    CommandButton button{form, "cmdOk"};
    button.container(panel);
    int clicks = 0;
    button.Click = [&] { ++clicks; };
    first.setFocus();
    button.press();
    EXPECT_FALSE(first.hasFocus());
    EXPECT_EQ(clicks, 0);
    tabs.selectedTab(1);
    first.setFocus();
    button.press();
    EXPECT_TRUE(first.hasFocus());
    EXPECT_EQ(clicks, 1);
}

TEST_F(ContainerTest, WindowsHearOfWhatChangesBelowThem)
{
    int updates = 0;
    first.updated.subscribe([&] { ++updates; });
    tabs.selectedTab(1);
    panel.enabled(false);
    panel.visible(false);
    tabs.tabVisible(0, false);
    EXPECT_EQ(updates, 4);
    second.enabled(false);
    EXPECT_EQ(updates, 4);
}

} // namespace
} // namespace qncal
