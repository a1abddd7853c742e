#include "settings/ColourSchemePage.h"
#include "settings/colourSchemes.h"
#include "settings/frmApptCustomFields.h"
#include "settings/frmApptStatusOptions.h"
#include "settings/frmChangeApptStatusFields.h"
#include "support/RoutineSweep.h"
#include "support/rowName.h"

#include <gtest/gtest.h>

// Every routine of the settings dialogs, with every service call in it failing once.

namespace qncal {
namespace {

using test::SweptRoutine;
using test::TestWorld;
using Run = std::function<std::string()>;

void addSchemes(TestWorld& world)
{
    for (const char* name : {"Amber", "Blue"})
        world.addRow("ColourSchemes",
                     {{"SchemeName", name}, {"SchemeType", "0"}, {"TitleBackColour", "1"}, {"ForeColour", "4"}});
}

/// The page of a dialog, with the first of two schemes on it.
struct Page {
    Form form{"frmDayTimerSettings"};
    ColourSchemePage page{form};
    explicit Page(TestWorld& world)
    {
        addSchemes(world);
        page.setup(enumLocalCalendarAppointmentItem);
        page.cpBackColour(1).colour(123);
    }
};

SweptRoutine onPage(const char* name, std::function<void(ColourSchemePage&)> call)
{
    return {name, "", [call](TestWorld& world) -> Run {
                return [call, page = std::make_shared<Page>(world)] {
                    call(page->page);
                    return std::string();
                };
            }};
}

template <class Names>
SweptRoutine onNames(const char* name, void (*call)(Names&))
{
    return {name, "", [call](TestWorld& world) -> Run {
                world.addRow("CustomFields", {{"TaskStatusName1", "Done"}, {"TaskCustomName1", "Room"}});
                world.dialogs->whenAnyShown([](host::Hand&) {});
                auto form = std::make_shared<Names>();
                form->Initialize(enumLocalCalendarTaskItem);
                form->txtField(3).text("New");
                return [form, call] {
                    call(*form);
                    return std::string();
                };
            }};
}

SweptRoutine onOptions(const char* name, std::function<std::string(frmApptStatusOptions&)> call,
                       const std::string& defaultResult = {})
{
    return {name, defaultResult, [call](TestWorld& world) -> Run {
                world.addRow("CustomFields", {{"ApptUseStatusColour2", "True"},
                                              {"ApptStatusColour2", "255"},
                                              {"ApptUseStatusIcon2", "True"},
                                              {"ApptStatusIcon2", "7"}});
                world.dialogs->whenAnyShown([](host::Hand&) {});
                auto form = std::make_shared<frmApptStatusOptions>();
                form->Initialize(enumLocalCalendarAppointmentItem, "Done", 2);
                return [form, call] { return call(*form); };
            }};
}

std::vector<SweptRoutine> routines()
{
    return {
        onPage("PopulateSchemes", [](ColourSchemePage& page) { page.populateColourSchemes(); }),
        onPage("PopulateScheme", [](ColourSchemePage& page) { page.populateSchemeInformation(); }),
        {"SaveScheme", "False",
         [](TestWorld& world) -> Run {
             return [page = std::make_shared<Page>(world)] {
                 bool saved = true;
                 page->page.saveSchemeChanges(saved);
                 return std::string(saved ? "True" : "False");
             };
         }},
        onPage("AddScheme", [](ColourSchemePage& page) { page.cmdAddScheme_Click(); }),
        onPage("DeleteScheme", [](ColourSchemePage& page) { page.cmdDeleteScheme_Click(); }),
        onPage("SaveClick", [](ColourSchemePage& page) { page.cmdSaveScheme_Click(); }),
        onPage("PickAnotherScheme", [](ColourSchemePage& page) { page.lvSchemes.selectedRow(1); }),
        onPage("NameTheScheme", [](ColourSchemePage& page) { page.txtSchemeName.text("Coral"); }),
        {"SchemesOfOtherDialogs", "",
         [](TestWorld& world) -> Run {
             addSchemes(world);
             auto form = std::make_shared<Form>("frmAppt");
             auto combo = std::make_shared<ComboBox>(*form, "cboScheme");
             return [form, combo] {
                 modColourSchemes::populateColourSchemes(*combo, 0);
                 return std::string();
             };
         }},
        onNames<frmChangeApptStatusFields>("OpenStatusNames",
                                           [](auto& form) { form.Initialize(enumLocalCalendarTaskItem); }),
        onNames<frmChangeApptStatusFields>("ApplyStatusNames", [](auto& form) { form.cmdApply_Click(); }),
        onNames<frmChangeApptStatusFields>("AdvancedOptions", [](auto& form) { form.cmdAdvancedOptions_Click(1); }),
        onNames<frmApptCustomFields>("OkCustomNames", [](auto& form) { form.cmdOK_Click(); }),
        onOptions("OpenOptions",
                  [](frmApptStatusOptions& form) {
                      form.Initialize(enumLocalCalendarAppointmentItem, "Done", 2);
                      return std::string();
                  }),
        onOptions(
            "SaveOptions",
            [](frmApptStatusOptions& form) {
                bool ok = true;
                form.saveFields(ok);
                return std::string(ok ? "True" : "False");
            },
            "False"),
        onOptions("OkOptions",
                  [](frmApptStatusOptions& form) {
                      form.cmdOK_Click();
                      return std::string();
                  }),
    };
}

class SettingsFaultSweep : public testing::TestWithParam<SweptRoutine> {};

TEST_P(SettingsFaultSweep, EveryFaultLeavesTheRoutine) { test::expectFaultsLeave(GetParam()); }
TEST_P(SettingsFaultSweep, EveryFaultCanBeRetriedAlone) { test::expectFaultsRetry(GetParam()); }
TEST_P(SettingsFaultSweep, AnEmptySlotLeavesTheRoutine) { test::expectEmptySlotsLeave(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Routines, SettingsFaultSweep, testing::ValuesIn(routines()), test::rowName);

} // namespace
} // namespace qncal
