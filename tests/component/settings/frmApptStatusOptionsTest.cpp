#include "settings/frmApptStatusOptions.h"

#include "core/ServiceRegistry.h"
#include "settings/frmChangeApptStatusFields.h"
#include "support/ComponentTest.h"
#include "support/SpoiltDatabase.h"
#include "support/rowName.h"

#include <gtest/gtest.h>

namespace qncal {
namespace {

class StatusOptionsTest : public test::ComponentTest {
protected:
    int checkedIcons() const
    {
        int count = 0;
        for (int index = 1; index <= frmApptStatusOptions::iconCount; ++index)
            count += form.chkSample(index).isChecked() ? 1 : 0;
        return count;
    }
    void show(const host::HeadlessDialogHost::Script& script)
    {
        dialogs->whenShown("frmApptStatusOptions", script);
        form.Initialize(enumLocalCalendarAppointmentItem, name, 1);
    }
    std::string name = "Done";
    frmApptStatusOptions form;
};

TEST_F(StatusOptionsTest, AStoredIconOutsideTheSetLeavesEverySampleClear)
{
    const auto row = addRow("CustomFields", {});
    for (const char* icon : {"0", "43", "-1", ""}) {
        setCell("CustomFields", row, "ApptStatusIcon1", icon);
        show([&](host::Hand&) { EXPECT_EQ(checkedIcons(), 0) << "icon " << icon; });
    }
}

/// A cell that another program has spoilt, and what the dialog makes of it.
struct SpoiltCell {
    const char* name;
    const char* column;
    Variant value;
};

class SpoiltStatusTest : public StatusOptionsTest, public testing::WithParamInterface<SpoiltCell> {};

TEST_P(SpoiltStatusTest, TheDialogOpensAndTheCellCanBeMended)
{
    const auto row = addRow("CustomFields", {{"ApptUseStatusColour1", "True"},
                                             {"ApptUseStatusIcon1", "True"},
                                             {"ApptStatusColour1", "255"},
                                             {"ApptStatusIcon1", "7"}});
    const std::string spoilt = GetParam().column;
    const auto damage = std::make_shared<test::SpoiltDatabase>(database);
    damage->cells[spoilt] = GetParam().value;
    serviceRegistry().database = damage;
    show([&](host::Hand& hand) {
        EXPECT_EQ(form.chkField(0).isChecked(), spoilt != "ApptUseStatusColour1");
        EXPECT_EQ(form.chkField(1).isChecked(), spoilt != "ApptUseStatusIcon1");
        EXPECT_EQ(form.cpBackgroundColour.colour(), spoilt == "ApptStatusColour1" ? 0 : 255);
        EXPECT_EQ(checkedIcons(), spoilt == "ApptStatusIcon1" ? 0 : 1);
        hand.check("chkSample(9)", true);
        hand.click("cmdOK");
        EXPECT_FALSE(form.isVisible());
    });
    EXPECT_EQ(cell("CustomFields", row, "ApptStatusIcon1"), "9");
}

INSTANTIATE_TEST_SUITE_P(Cells, SpoiltStatusTest,
                         testing::Values(SpoiltCell{"Colour", "ApptStatusColour1", "red"},
                                         SpoiltCell{"ColourBeyond32Bits", "ApptStatusColour1", 5000000000.0},
                                         SpoiltCell{"Icon", "ApptStatusIcon1", "x"},
                                         SpoiltCell{"IconBeyond32Bits", "ApptStatusIcon1", 5000000000.0},
                                         SpoiltCell{"UseColour", "ApptUseStatusColour1", "maybe"},
                                         SpoiltCell{"UseIcon", "ApptUseStatusIcon1", "maybe"}),
                         test::rowName);

TEST_F(StatusOptionsTest, AnEmptyNameKeepsTheDialogOpen)
{
    name.clear();
    messages->expectMessage("You must enter a name in the text field before exiting this window.");
    show([&](host::Hand& hand) {
        hand.click("cmdOK");
        EXPECT_TRUE(form.isVisible());
        EXPECT_TRUE(form.txtField.hasFocus());
    });
    EXPECT_EQ(rowCount("CustomFields"), 0);
}

TEST_F(StatusOptionsTest, TheIconOptionWithoutAnIconKeepsTheDialogOpen)
{
    messages->expectMessage("You need to select one of the icons if you want to enable the display icon feature.");
    show([&](host::Hand& hand) {
        hand.check("chkField(1)", true);
        hand.click("cmdOK");
        EXPECT_TRUE(form.isVisible());
    });
}

TEST_F(StatusOptionsTest, AnIconCanBeTakenBack)
{
    show([&](host::Hand& hand) {
        hand.check("chkSample(3)", true);
        hand.check("chkSample(3)", false);
        EXPECT_EQ(checkedIcons(), 0);
        hand.click("cmdOK");
    });
    EXPECT_EQ(cell("CustomFields", 1, "ApptStatusIcon1"), "0");
}

TEST_F(StatusOptionsTest, ADatabaseWithoutDefinitionsGetsItsRow)
{
    show([](host::Hand& hand) { hand.click("cmdOK"); });
    EXPECT_EQ(rowCount("CustomFields"), 1);
    EXPECT_EQ(cell("CustomFields", 1, "ApptStatusName1"), "Done");
}

TEST_F(StatusOptionsTest, TheBarMovesThePanelOfIcons)
{
    form.picScrollBarContainer.height(120);
    EXPECT_EQ(form.vScrollBar.maximum(), form.picIconsOptions.height() - 120);
    form.vScrollBar.value(50);
    EXPECT_EQ(form.picIconsOptions.top(), -50);
    form.picScrollBarContainer.height(form.picIconsOptions.height());
    EXPECT_EQ(form.picIconsOptions.top(), 0);
    EXPECT_FALSE(form.vScrollBar.isEnabled());
}

TEST_F(StatusOptionsTest, WithoutAConnectionFieldsAreBlankAndNothingIsStored)
{
    database->close();
    show([&](host::Hand& hand) {
        EXPECT_EQ(checkedIcons(), 0);
        hand.click("cmdOK");
        EXPECT_TRUE(form.isVisible());
    });
    frmChangeApptStatusFields names;
    dialogs->whenShown("frmChangeApptStatusFields", [&](host::Hand& hand) {
        EXPECT_EQ(names.txtField(1).text(), "");
        hand.click("cmdOK");
    });
    names.Initialize(enumLocalCalendarTaskItem);
}

} // namespace
} // namespace qncal
