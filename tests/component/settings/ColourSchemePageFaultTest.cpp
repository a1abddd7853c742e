#include "settings/ColourSchemePage.h"

#include "support/FaultInjector.h"
#include "support/TestWorld.h"
#include "support/rowName.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace qncal {
namespace {

/// What makes another scheme the current one.
struct OperationRow {
    const char* name;
    void (*run)(ColourSchemePage& page);
};

class ColourSchemeFaultTest : public testing::TestWithParam<OperationRow> {};

TEST_P(ColourSchemeFaultTest, ASchemeThatCannotBeReadIsNeverStoredOver)
{
    // Each service call of the operation fails in a run of its own; what follows is a save of what the page shows.
    for (int call = 1, calls = 1; call <= calls; ++call) {
        test::TestWorld world;
        const auto add = [&](const char* name, const char* colour) {
            return world.addRow("ColourSchemes",
                                {{"SchemeName", name}, {"SchemeType", "0"}, {"TitleBackColour", colour}});
        };
        add("Amber", "1");
        const std::int32_t blue = add("Blue", "9");
        Form dialog{"frmDayTimerSettings"};
        ColourSchemePage schemes{dialog};
        schemes.setup(enumLocalCalendarAppointmentItem);
        {
            test::FaultInjector faults;
            faults.failCall(call);
            GetParam().run(schemes);
            calls = std::max(calls, faults.calls());
        }
        world.errors->takeErrors();
        bool saved = false;
        schemes.saveSchemeChanges(saved);
        EXPECT_EQ(world.cell("ColourSchemes", blue, "SchemeName"), "Blue") << "call " << call;
        EXPECT_EQ(world.cell("ColourSchemes", blue, "TitleBackColour"), "9") << "call " << call;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Operations, ColourSchemeFaultTest,
    testing::Values(OperationRow{"Add", [](ColourSchemePage& page) { page.cmdAddScheme_Click(); }},
                    OperationRow{"Delete", [](ColourSchemePage& page) { page.cmdDeleteScheme_Click(); }},
                    OperationRow{"PickTheOther", [](ColourSchemePage& page) { page.lvSchemes.selectedRow(1); }}),
    test::rowName);

} // namespace
} // namespace qncal
