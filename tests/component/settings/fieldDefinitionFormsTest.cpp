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
        constexpr const char* hints[] = {"Default: Completed", "Default: Cancelled", "Default: Postponed",
                                         "Default: Out-of-Office", "Default: Important"};
        for (int index = 1; index <= 5; ++index) {
            const std::string number = std::to_string(index);
            EXPECT_EQ(form.lblCaption(index).caption(), "Status Field " + number + ":");
            EXPECT_EQ(form.lblField(index).caption(), hints[index - 1]);
            EXPECT_EQ(form.cmdAdvancedOptions(index).caption(), "View Advanced Options");
            EXPECT_EQ(form.cmdAdvancedOptions(index).accessibleName(), "View Advanced Options, Status Field " + number);
        }
        hand.type("txtField(5)", "Urgent");
        hand.type("txtField(1)", "");
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
        for (int index = 1; index <= 5; ++index)
            EXPECT_EQ(form.lblCaption(index).caption(), "Custom Field " + std::to_string(index) + ":");
        hand.click("cmdAdvancedOptions(2)");
        hand.type("txtField(3)", "Floor");
        hand.click("cmdOK");
    });
    form.Initialize(GetParam().kind);
    EXPECT_EQ(stored("CustomName3"), "Floor");
    EXPECT_EQ(dialogs->shownForms(), std::vector<std::string>{"frmApptCustomFields"});
}

TEST_P(FieldDefinitionsTest, AnyChangeOfANameSetsTheFlagUntilTheDialogGoes)
{
    frmChangeApptStatusFields form;
    dialogs->whenShown("frmChangeApptStatusFields", [&](host::Hand& hand) {
        EXPECT_FALSE(form.changed()) << "no name was there to read";
        hand.type("txtField(2)", "x");
        EXPECT_TRUE(form.changed());
        hand.click("cmdCancel");
        EXPECT_FALSE(form.changed());
    });
    form.Initialize(GetParam().kind);
    store("StatusName1", "Done");
    dialogs->whenShown("frmChangeApptStatusFields",
                       [&](host::Hand&) { EXPECT_TRUE(form.changed()) << "reading a name is a change as well"; });
    form.Initialize(GetParam().kind);
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

} // namespace
} // namespace qncal
