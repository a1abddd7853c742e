#include "core/clsCalendarSetCtrl.h"
#include "settings/ColourSchemePage.h"
#include "settings/frmApptCustomFields.h"
#include "settings/frmApptStatusOptions.h"
#include "settings/frmChangeApptStatusFields.h"
#include "settings/modColourSchemes.h"
#include "support/RoutineSweep.h"
#include "support/rowName.h"

#include <gtest/gtest.h>

// The settings dialogs under a user's hand, with every service call in them failing once.

namespace qncal {
namespace {

using test::SweptRoutine;
using test::TestWorld;
using Run = std::function<std::string()>;
using Script = std::function<void(host::Hand&)>;

/// A dialog that `open` shows; the script is the user's hand on it, each time it is shown.
SweptRoutine dialog(const char* name, Script hand, std::function<void()> open, bool withDefinitions = true)
{
    return {name, "", [=](TestWorld& world) -> Run {
                if (withDefinitions)
                    world.addRow("CustomFields", {{"TaskStatusName1", "Done"},
                                                  {"TaskUseStatusIcon1", "True"},
                                                  {"TaskStatusIcon1", "7"},
                                                  {"TaskCustomName1", "Room"}});
                world.dialogs->whenAnyShown(hand);
                return [open] {
                    open();
                    return std::string();
                };
            }};
}

void nameAField(host::Hand& hand)
{
    hand.type("txtField(2)", "Late");
    hand.click("cmdApply");
    hand.type("txtField(3)", "Lost");
    hand.click("cmdOK");
}

void defineAStatus(host::Hand& hand)
{
    hand.check("chkField(0)", true);
    hand.check("chkSample(9)", true);
    hand.click("cmdOK");
}

/// A page of colour schemes with two of them in the database, and what the user does there.
SweptRoutine onColourSchemes(const char* name, std::function<std::string(ColourSchemePage&)> act,
                             const char* defaultResult = "")
{
    return {name, defaultResult, [act](TestWorld& world) -> Run {
                for (const char* scheme : {"Amber", "Blue"})
                    world.addRow("ColourSchemes", {{"SchemeName", scheme}, {"SchemeType", "1"}, {"BackColour", "9"}});
                struct Page {
                    Form form{"frmDayTimerSettings"};
                    ColourSchemePage page{form};
                };
                auto shown = std::make_shared<Page>();
                shown->page.setup(enumLocalCalendarTaskItem);
                return [shown, act] { return act(shown->page); };
            }};
}

SweptRoutine clickOnColourSchemes(const char* name, void (ColourSchemePage::*routine)())
{
    return onColourSchemes(name, [routine](ColourSchemePage& page) {
        page.txtSchemeName.text("Coral");
        (page.*routine)();
        return std::string();
    });
}

std::vector<SweptRoutine> routines()
{
    const auto openStatusFields = [] { frmChangeApptStatusFields().Initialize(enumLocalCalendarTaskItem); };
    const auto openStatusOptions = [] { frmApptStatusOptions().Initialize(enumLocalCalendarTaskItem, "Done", 1); };
    return {
        dialog("NameTheStatusFields", nameAField, openStatusFields),
        dialog("NameTheStatusFieldsForTheFirstTime", nameAField, openStatusFields, false),
        dialog("NameTheCustomFields", nameAField, [] { frmApptCustomFields().Initialize(enumLocalCalendarTaskItem); }),
        dialog(
            "CancelTheNames", [](host::Hand& hand) { hand.click("cmdCancel"); }, openStatusFields),
        dialog("DefineAStatus", defineAStatus, openStatusOptions),
        dialog("DefineAStatusForTheFirstTime", defineAStatus, openStatusOptions, false),
        dialog(
            "CancelAStatus", [](host::Hand& hand) { hand.click("cmdCancel"); }, openStatusOptions),
        clickOnColourSchemes("AddAScheme", &ColourSchemePage::cmdAddScheme_Click),
        clickOnColourSchemes("DeleteAScheme", &ColourSchemePage::cmdDeleteScheme_Click),
        clickOnColourSchemes("SaveAScheme", &ColourSchemePage::cmdSaveScheme_Click),
        clickOnColourSchemes("FillTheSchemes", &ColourSchemePage::populateColourSchemes),
        clickOnColourSchemes("ShowAScheme", &ColourSchemePage::populateSchemeInformation),
        onColourSchemes("PickAScheme",
                        [](ColourSchemePage& page) {
                            page.lvSchemes.selectedRow(1);
                            return std::string();
                        }),
        onColourSchemes(
            "TellWhetherASchemeWasSaved",
            [](ColourSchemePage& page) {
                bool saved = false;
                page.saveSchemeChanges(saved);
                return std::string(booleanText(saved));
            },
            "False"),
        {"ListSchemesInAnotherDialog", "",
         [](TestWorld& world) -> Run {
             world.addRow("ColourSchemes", {{"SchemeName", "Amber"}, {"SchemeType", "1"}});
             return [] {
                 Form form("frmOther");
                 ComboBox combo(form, "cboScheme");
                 modColourSchemes::populateColourSchemes(combo, 1);
                 return std::string();
             };
         }},
    };
}

/// The openers of the entry class, down to the rows that their dialogs write.
std::vector<SweptRoutine> openers()
{
    const auto opener = [](const char* name, Script hand, std::function<void(clsCalendarSetCtrl&)> open) {
        SweptRoutine routine = dialog(name, hand, [] {});
        const auto prepareDialog = routine.prepare;
        routine.prepare = [prepareDialog, open](TestWorld& world) -> Run {
            prepareDialog(world);
            return [control = std::make_shared<clsCalendarSetCtrl>(), open] {
                open(*control);
                return std::string();
            };
        };
        return routine;
    };
    return {
        opener("OpenStatusFields", nameAField,
               [](clsCalendarSetCtrl& control) { control.openChangeApptStatusFieldsForm(enumFormShowTasks); }),
        opener("OpenStatusOptions", defineAStatus,
               [](clsCalendarSetCtrl& control) { control.openApptStatusOptionsForm(enumFormShowTasks, "Done", 1); }),
        opener(
            "OpenSettings", [](host::Hand&) {},
            [](clsCalendarSetCtrl& control) { control.openDayTimerSettingsForm(enumFormShowTasks, 1, 1); }),
        opener(
            "OpenDuplicates", [](host::Hand&) {},
            [](clsCalendarSetCtrl& control) { control.openDuplicateAppointmentsForm(); }),
    };
}

class settingsFaultSweepTest : public testing::TestWithParam<SweptRoutine> {};

TEST_P(settingsFaultSweepTest, EveryFaultLeaves) { test::expectFaultsLeave(GetParam()); }
TEST_P(settingsFaultSweepTest, EveryLastingFaultLeaves) { test::expectLastingFaultsLeave(GetParam()); }
TEST_P(settingsFaultSweepTest, EveryFaultIsRetriedAlone) { test::expectFaultsRetry(GetParam()); }
TEST_P(settingsFaultSweepTest, EveryEmptySlotLeaves) { test::expectEmptySlotsLeave(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Routines, settingsFaultSweepTest, testing::ValuesIn(routines()), test::rowName);
INSTANTIATE_TEST_SUITE_P(Openers, settingsFaultSweepTest, testing::ValuesIn(openers()), test::rowName);

} // namespace
} // namespace qncal
