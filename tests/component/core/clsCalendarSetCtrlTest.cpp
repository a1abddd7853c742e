#include "core/clsCalendarSetCtrl.h"

#include "settings/frmApptStatusOptions.h"
#include "settings/frmChangeApptStatusFields.h"
#include "settings/frmDayTimerSettings.h"
#include "support/ComponentTest.h"

namespace qncal {
namespace {

class clsCalendarSetCtrlTest : public test::ComponentTest {
protected:
    /// The labels pushed by what the opener itself did: its own comes first.
    std::string openerLabel() const { return errors->labels().empty() ? std::string() : errors->labels().front(); }

    clsCalendarSetCtrl control;
};

TEST_F(clsCalendarSetCtrlTest, OpensTheSettingsDialogModally)
{
    bool modal = false;
    dialogs->whenShown("frmDayTimerSettings", [&](host::Hand& hand) {
        modal = hand.form().isModal();
        const auto& form = dynamic_cast<frmDayTimerSettings&>(hand.form());
        EXPECT_EQ(form.calendarKind(), enumLocalCalendarTaskItem);
        EXPECT_EQ(form.editedUserID(), 7);
        EXPECT_EQ(form.goToTab(), 2);
    });
    control.openDayTimerSettingsForm(enumFormShowTasks, 7, 2);
    EXPECT_TRUE(modal);
    EXPECT_EQ(openerLabel(), "qnCalendarSettingsCtrl.dll-clsCalendarSetCtrl-openDayTimerSettingsForm");
}

TEST_F(clsCalendarSetCtrlTest, OpensTheStatusOptionsDialogModally)
{
    bool modal = false;
    dialogs->whenShown("frmApptStatusOptions", [&](host::Hand& hand) {
        modal = hand.form().isModal();
        const auto& form = dynamic_cast<frmApptStatusOptions&>(hand.form());
        EXPECT_EQ(form.calendarKind(), enumLocalCalendarDocketItem);
        EXPECT_EQ(form.txtField.text(), "Completed");
        EXPECT_EQ(form.fieldNumber(), 3);
    });
    control.openApptStatusOptionsForm(enumFormShowDockets, "Completed", 3);
    EXPECT_TRUE(modal);
    EXPECT_EQ(openerLabel(), "qnCalendarSettingsCtrl.dll-clsCalendarSetCtrl-openApptStatusOptionsForm");
}

TEST_F(clsCalendarSetCtrlTest, OpensTheStatusFieldsDialogModally)
{
    bool modal = false;
    dialogs->whenShown("frmChangeApptStatusFields", [&](host::Hand& hand) {
        modal = hand.form().isModal();
        EXPECT_EQ(dynamic_cast<frmChangeApptStatusFields&>(hand.form()).calendarKind(),
                  enumLocalCalendarAppointmentItem);
    });
    control.openChangeApptStatusFieldsForm(enumFormShowAppointments);
    EXPECT_TRUE(modal);
    EXPECT_EQ(openerLabel(), "qnCalendarSettingsCtrl.dll-clsCalendarSetCtrl-openChangeApptStatusFieldsForm");
}

TEST_F(clsCalendarSetCtrlTest, AViewOutsideOfTheThreeOpensNothing)
{
    for (const int view : {3, 4, -1}) {
        control.openDayTimerSettingsForm(static_cast<enumFormDayTimerType>(view), 7);
        control.openApptStatusOptionsForm(static_cast<enumFormDayTimerType>(view), "Completed", 3);
        control.openChangeApptStatusFieldsForm(static_cast<enumFormDayTimerType>(view));
    }
    EXPECT_TRUE(dialogs->shownForms().empty());
    for (const std::string& label : errors->labels())
        EXPECT_TRUE(label.starts_with("qnCalendarSettingsCtrl.dll-clsCalendarSetCtrl-")) << label;
}

TEST_F(clsCalendarSetCtrlTest, TerminateEmptiesItsThreeSlotsAlone)
{
    const ServiceRegistry before = serviceRegistry();
    control.Terminate();
    EXPECT_EQ(openerLabel(), "Vestrel.exe-clsCalendarSetCtrl-Terminate");
    EXPECT_EQ(serviceRegistry().file, nullptr);
    EXPECT_EQ(serviceRegistry().utility, nullptr);
    EXPECT_EQ(serviceRegistry().dateTime, nullptr);
    EXPECT_EQ(serviceRegistry().errorControl, before.errorControl);
    EXPECT_EQ(serviceRegistry().database, before.database);
    EXPECT_EQ(serviceRegistry().clientDropDown, before.clientDropDown);
}

TEST_F(clsCalendarSetCtrlTest, TerminateWorksWithoutAnErrorControl)
{
    serviceRegistry().errorControl.reset();
    control.Terminate();
    EXPECT_EQ(serviceRegistry().file, nullptr);
    EXPECT_EQ(serviceRegistry().utility, nullptr);
    EXPECT_EQ(serviceRegistry().dateTime, nullptr);
}

TEST_F(clsCalendarSetCtrlTest, RaisesExitProgramToItsSubscribers)
{
    int raised = 0;
    control.ExitProgram.subscribe([&] { ++raised; });
    control.raiseExitProgram();
    EXPECT_EQ(raised, 1);
}

} // namespace
} // namespace qncal
