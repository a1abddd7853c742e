#include "settings/frmApptCustomFields.h"
#include "settings/frmApptStatusOptions.h"
#include "settings/frmChangeApptStatusFields.h"

#include "support/ComponentTest.h"
#include "support/rowName.h"

#include <gtest/gtest.h>

namespace qncal {
namespace {

struct KindRow {
    const char* name;
    enumLocalCalendarItemType kind;
    const char* prefix;
    const char* statusTitle;
    const char* statusIntroduction;
    const char* customTitle;
    const char* customIntroduction;
    const char* optionsTitle;
    const char* optionsFrame;
};

const KindRow kinds[] = {
    {"Appointment", enumLocalCalendarAppointmentItem, "Appt", "Appointment Status Fields",
     "You can define status information for your appointments by entering the names below:",
     "Appointment Custom Fields",
     "You can define custom fields for your appointments by entering the field names below:",
     "Appointment Status Options", "Appointment Check Box 2"},
    {"Task", enumLocalCalendarTaskItem, "Task", "Task Status Fields",
     "You can define status information for your tasks by entering the names below:", "Task Custom Fields",
     "You can define custom fields for your tasks by entering the field names below:", "Task Check Box Options",
     "Task Check Box 2"},
    {"TimeEntry", enumLocalCalendarDocketItem, "Docket", "Time Entry Status Fields",
     "You can define status information for your time entries by entering the names below:", "Time Entry Custom Fields",
     "You can define custom fields for your time entries by entering the field names below:",
     "Time Entry Check Box Options", "Time Entry Check Box 2"},
};

class FieldDefinitionsTest : public test::ComponentTestWith<KindRow> {
protected:
    FieldDefinitionsTest() { row = addRow("CustomFields", {}); }
    std::string column(const std::string& rest) const { return GetParam().prefix + rest; }
    std::string stored(const std::string& rest) { return cell("CustomFields", row, column(rest)); }
    void store(const std::string& rest, const std::string& value) { setCell("CustomFields", row, column(rest), value); }

    std::int32_t row = -1;
};

TEST_P(FieldDefinitionsTest, StatusNamesAreShownAndStored)
{
    store("StatusName1", "Done");
    frmChangeApptStatusFields form;
    dialogs->whenShown("frmChangeApptStatusFields", [&](host::Hand& hand) {
        EXPECT_EQ(form.caption(), GetParam().statusTitle);
        EXPECT_EQ(form.lblIntroduction.caption(), GetParam().statusIntroduction);
        EXPECT_EQ(form.txtField(1).text(), "Done");
        EXPECT_EQ(form.txtField(5).text(), "");
        EXPECT_EQ(form.lblCaption(5).caption(), "Status Field 5:");
        EXPECT_EQ(form.lblField(4).caption(), "Default: Out-of-Office");
        EXPECT_EQ(form.cmdAdvancedOptions(3).caption(), "View Advanced Options");
        hand.type("txtField(5)", "Urgent");
        hand.type("txtField(1)", "");
        EXPECT_TRUE(form.changed());
        hand.click("cmdOK");
        EXPECT_FALSE(form.isVisible());
    });
    form.Initialize(GetParam().kind);
    EXPECT_EQ(stored("StatusName5"), "Urgent");
    EXPECT_EQ(stored("StatusName1"), "") << "empty names are allowed";
}

TEST_P(FieldDefinitionsTest, CustomFieldNamesAreShownAndStored)
{
    store("CustomName2", "Room");
    frmApptCustomFields form;
    dialogs->whenShown("frmApptCustomFields", [&](host::Hand& hand) {
        EXPECT_EQ(form.caption(), GetParam().customTitle);
        EXPECT_EQ(form.lblIntroduction.caption(), GetParam().customIntroduction);
        EXPECT_EQ(form.txtField(2).text(), "Room");
        EXPECT_EQ(form.lblCaption(1).caption(), "Custom Field 1:");
        hand.click("cmdAdvancedOptions(2)");
        hand.type("txtField(3)", "Floor");
        hand.click("cmdOK");
    });
    form.Initialize(GetParam().kind);
    EXPECT_EQ(stored("CustomName3"), "Floor");
    EXPECT_EQ(dialogs->shownForms(), std::vector<std::string>{"frmApptCustomFields"});
}

TEST_P(FieldDefinitionsTest, ApplyThenCancelKeepsWhatApplyStored)
{
    frmChangeApptStatusFields form;
    dialogs->whenShown("frmChangeApptStatusFields", [&](host::Hand& hand) {
        hand.type("txtField(1)", "Applied");
        hand.click("cmdApply");
        EXPECT_TRUE(form.isVisible());
        hand.type("txtField(1)", "Thrown away");
        hand.pressEscape();
    });
    form.Initialize(GetParam().kind);
    EXPECT_EQ(stored("StatusName1"), "Applied");
}

TEST_P(FieldDefinitionsTest, AdvancedOptionsOpenOnTheStatusAndTheNameComesBack)
{
    store("StatusName2", "Cancelled");
    frmChangeApptStatusFields form;
    dialogs->whenShown("frmChangeApptStatusFields", [&](host::Hand& hand) {
        hand.click("cmdAdvancedOptions(2)");
        EXPECT_EQ(form.txtField(2).text(), "Called off");
    });
    dialogs->whenShown("frmApptStatusOptions", [&](host::Hand& hand) {
        EXPECT_EQ(hand.form().caption(), GetParam().optionsTitle);
        EXPECT_EQ(hand.as<Panel>("Frame1").caption(), GetParam().optionsFrame);
        EXPECT_EQ(hand.as<TextBox>("txtField").text(), "Cancelled");
        hand.type("txtField", "Called off");
        hand.click("cmdOK");
    });
    form.Initialize(GetParam().kind);
    EXPECT_EQ(stored("StatusName2"), "Called off");
}

TEST_P(FieldDefinitionsTest, StatusOptionsAreShownAndStored)
{
    store("UseStatusColour3", "True");
    store("StatusColour3", "255");
    store("StatusIcon3", "7");
    frmApptStatusOptions form;
    dialogs->whenShown("frmApptStatusOptions", [&](host::Hand& hand) {
        EXPECT_EQ(form.chkField(0).value(), 1);
        EXPECT_EQ(form.chkField(1).value(), 0);
        EXPECT_EQ(form.cpBackgroundColour.colour(), 255);
        EXPECT_TRUE(form.chkSample(7).isChecked());
        hand.check("chkField(1)", true);
        hand.check("chkSample(42)", true);
        EXPECT_FALSE(form.chkSample(7).isChecked()) << "the icons are a radio group";
        hand.pickColour("cpBackgroundColour", 65280);
        hand.click("cmdOK");
        EXPECT_FALSE(form.isVisible());
    });
    form.Initialize(GetParam().kind, "Later", 3);
    EXPECT_EQ(stored("StatusName3"), "Later");
    EXPECT_EQ(stored("UseStatusColour3"), "True");
    EXPECT_EQ(stored("UseStatusIcon3"), "True");
    EXPECT_EQ(stored("StatusColour3"), "65280");
    EXPECT_EQ(stored("StatusIcon3"), "42");
}

INSTANTIATE_TEST_SUITE_P(Kinds, FieldDefinitionsTest, testing::ValuesIn(kinds), test::rowName);

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
