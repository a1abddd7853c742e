#include "core/clsCalendarSetCtrl.h"
#include "core/forwarding/ForwardingClientDropDownService.h"
#include "core/forwarding/ForwardingFormRegistry.h"
#include "support/ComponentTest.h"
#include "support/RoutineSweep.h"

#include <gmock/gmock.h>

// The window of duplicates, opened step by step through the host's registry of windows.

namespace qncal {
namespace {

using Calls = std::vector<std::string>;

class RecordingRegistry : public ForwardingFormRegistry {
public:
    using ForwardingFormRegistry::ForwardingFormRegistry;
    /// Every call on the registry and its entries, in order.
    Calls calls;

protected:
    void beforeCall(std::string_view operation) override { calls.emplace_back(operation); }
};

class OpenDuplicatesTest : public test::ComponentTest {
protected:
    OpenDuplicatesTest()
    {
        dialogs->whenAnyShown([](host::Hand&) {});
    }

    test::TestFormRegistry::Entry& entry() { return windows->entries.at(29); }

    std::shared_ptr<test::TestFormRegistry> windows = clientDropDown->formRegistry;
    clsCalendarSetCtrl control;
};

TEST_F(OpenDuplicatesTest, OpensTheWindowOnceAndBringsItToTheFrontAgain)
{
    control.openDuplicateAppointmentsForm();
    EXPECT_EQ(errors->labels().front(), "qnCalendarSettingsCtrl.dll-clsCalendarSetCtrl-openDuplicateAppointmentsForm");
    const auto form = entry().form();
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(entry().key(), 29);

    control.openDuplicateAppointmentsForm();
    EXPECT_EQ(entry().form(), form);
    EXPECT_EQ(windows->entries.size(), 1u);
    EXPECT_EQ(entry().initialized, 1);
    EXPECT_EQ(entry().shownModeless, 2);
    EXPECT_EQ(entry().shownModal, 0);
    EXPECT_EQ(entry().broughtToFront, 2);
}

/// Client lists with a registry of windows of the test's own.
class ClientsWithRegistry : public ForwardingClientDropDownService {
public:
    ClientsWithRegistry(std::shared_ptr<ClientDropDownService> target, std::shared_ptr<FormRegistry> registry)
        : ForwardingClientDropDownService(std::move(target)), registry_(std::move(registry))
    {
    }
    std::shared_ptr<FormRegistry> getFormRegistry() override { return registry_; }

private:
    std::shared_ptr<FormRegistry> registry_;
};

TEST_F(OpenDuplicatesTest, AsksTheRegistryStepByStep)
{
    const auto registry = std::make_shared<RecordingRegistry>(windows);
    serviceRegistry().clientDropDown = std::make_shared<ClientsWithRegistry>(clientDropDown, registry);
    control.openDuplicateAppointmentsForm();
    EXPECT_EQ(registry->calls, (Calls{"isRegistered", "addKey", "currentEntry", "key", "form", "initialize",
                                      "currentEntry", "show", "bringToFront"}));
    registry->calls.clear();
    control.openDuplicateAppointmentsForm();
    EXPECT_EQ(registry->calls, (Calls{"isRegistered", "currentEntry", "show", "bringToFront"}));
}

TEST_F(OpenDuplicatesTest, AKeyWithoutAFormIsReported)
{
    windows->addKey(29);
    control.openDuplicateAppointmentsForm();
    EXPECT_EQ(entry().form(), nullptr);
    EXPECT_EQ(errors->takeErrors().size(), 1u);
}

TEST_F(OpenDuplicatesTest, AMissingServiceOrRegistryIsReportedAndNothingOpened)
{
    clientDropDown->formRegistry.reset();
    for (int turn = 0; turn < 2; ++turn) {
        control.openDuplicateAppointmentsForm();
        const auto reported = errors->takeErrors();
        ASSERT_EQ(reported.size(), 1u) << turn;
        EXPECT_EQ(reported[0].number, 91) << turn;
        serviceRegistry().clientDropDown.reset();
    }
    EXPECT_TRUE(dialogs->shownForms().empty());
}

/// Opens the window and tells how often it came to the front; `openedBefore` to reach the one that stands.
test::SweptRoutine swept(bool openedBefore)
{
    return {"openDuplicateAppointmentsForm", openedBefore ? "1" : "0",
            [openedBefore](test::TestWorld& world) -> std::function<std::string()> {
                world.dialogs->whenAnyShown([](host::Hand&) {});
                auto control = std::make_shared<clsCalendarSetCtrl>();
                if (openedBefore)
                    control->openDuplicateAppointmentsForm();
                return [control, windows = world.clientDropDown->formRegistry] {
                    control->openDuplicateAppointmentsForm();
                    const auto found = windows->entries.find(29);
                    return std::to_string(found == windows->entries.end() ? 0 : found->second.broughtToFront);
                };
            },
            false};
}

TEST(OpenDuplicatesSweep, EveryFaultLeaves)
{
    test::expectFaultsLeave(swept(false));
    test::expectFaultsLeave(swept(true));
}

TEST(OpenDuplicatesSweep, EveryFaultIsRetriedAlone)
{
    test::expectFaultsRetry(swept(false));
    test::expectFaultsRetry(swept(true));
}

TEST(OpenDuplicatesSweep, EveryEmptySlotLeaves)
{
    test::expectEmptySlotsLeave(swept(false));
    test::expectEmptySlotsLeave(swept(true));
}

} // namespace
} // namespace qncal
