#include "support/RoutineSweep.h"

#include "core/forwarding/ForwardingErrorControlService.h"
#include "support/FaultInjector.h"
#include "utilities/RunTimeError.h"

#include <gtest/gtest.h>

namespace qncal::test {

namespace {

/// What one run of a routine leaves behind.
struct Outcome {
    std::string result;
    std::string rows;
    std::vector<std::string> labels;
    int calls = 0;
};

std::vector<std::string> labelsSince(const TestWorld& world, std::size_t first)
{
    const auto& labels = world.errors->labels();
    return {labels.begin() + static_cast<std::ptrdiff_t>(first), labels.end()};
}

/// All that the services were made to keep.
std::string rowsOf(TestWorld& world)
{
    std::string text = world.allRows();
    for (const std::string& call : world.autoNotify->calls)
        text += call + "\n";
    return text;
}

Outcome runWithoutFault(const SweptRoutine& routine)
{
    TestWorld world;
    const auto run = routine.prepare(world);
    const std::size_t before = world.errors->labels().size();
    FaultInjector faults;
    faults.failCall(0);
    Outcome outcome;
    outcome.result = run();
    outcome.calls = faults.calls();
    outcome.labels = labelsSince(world, before);
    outcome.rows = rowsOf(world);
    return outcome;
}

/// True when the failure belonged to the outermost routine: reported while only its label stood on the stack, or,
/// for a label that could not be pushed, while none did.
class OwnFailure : public ForwardingErrorControlService {
public:
    explicit OwnFailure(const std::shared_ptr<RecordingErrorControl>& errors)
        : ForwardingErrorControlService(errors), stack_(errors->stack())
    {
    }
    bool seen = false;

    void setError(const ErrorState& error) override
    {
        seen = seen || stack_.size() <= (error.text == "Fault in enterRoutine" ? 0u : 1u);
        ForwardingErrorControlService::setError(error);
    }

private:
    const std::vector<std::string>& stack_;
};

void expectLeft(const SweptRoutine& routine, void (FaultInjector::*fail)(int))
{
    const int calls = runWithoutFault(routine).calls;
    ASSERT_GT(calls, 0);
    for (int n = 1; n <= calls; ++n) {
        TestWorld world;
        const auto run = routine.prepare(world);
        const auto own = std::make_shared<OwnFailure>(world.errors);
        serviceRegistry().errorControl = own;
        FaultInjector faults;
        (faults.*fail)(n);
        std::string result;
        EXPECT_NO_THROW(result = run());
        const std::string where = "call " + std::to_string(n) + ", " + faults.failedOperation();
        if (own->seen) {
            EXPECT_EQ(result, routine.defaultResult) << where;
        }
        EXPECT_TRUE(world.errors->stack().empty()) << where;
        for (const ErrorState& error : world.errors->takeErrors())
            EXPECT_EQ(error.number, errorNumber::invalidProcedureCall) << where << ": " << error.text;
    }
}

} // namespace

void expectFaultsLeave(const SweptRoutine& routine) { expectLeft(routine, &FaultInjector::failCall); }

void expectLastingFaultsLeave(const SweptRoutine& routine) { expectLeft(routine, &FaultInjector::failFromCall); }

void expectFaultsRetry(const SweptRoutine& routine)
{
    const Outcome clean = runWithoutFault(routine);
    for (int n = 1; n <= clean.calls; ++n) {
        TestWorld world;
        const auto run = routine.prepare(world);
        const std::size_t before = world.errors->labels().size();
        FaultInjector faults;
        world.errors->answer(ErrorAction::retry);
        faults.failCall(n);
        const std::string result = run();
        const std::string where = "call " + std::to_string(n) + ", " + faults.failedOperation();
        // A handle that is closed at the end of its object's life is closed in silence.
        EXPECT_LE(world.errors->takeErrors().size(), 1u) << where;
        EXPECT_EQ(result, clean.result) << where;
        EXPECT_EQ(labelsSince(world, before), clean.labels) << where;
        EXPECT_EQ(rowsOf(world), clean.rows) << where;
        // A read is the field and its null test, and runs again as a whole.
        EXPECT_LE(faults.calls(), clean.calls + 2) << where << ": something was done twice";
    }
}

void expectEmptySlotsLeave(const SweptRoutine& routine)
{
    enum class Slot { errorControl, database, utility, dateTime, clientDropDown, autoNotify };
    for (const Slot slot :
         {Slot::errorControl, Slot::database, Slot::utility, Slot::dateTime, Slot::clientDropDown, Slot::autoNotify}) {
        TestWorld world;
        const auto run = routine.prepare(world);
        const ServiceRegistry full = serviceRegistry();
        ServiceRegistry& registry = serviceRegistry();
        switch (slot) {
        case Slot::errorControl:
            registry.errorControl.reset();
            break;
        case Slot::database:
            registry.database.reset();
            break;
        case Slot::utility:
            registry.utility.reset();
            break;
        case Slot::dateTime:
            registry.dateTime.reset();
            break;
        case Slot::clientDropDown:
            registry.clientDropDown.reset();
            break;
        case Slot::autoNotify:
            registry.autoNotify.reset();
            break;
        }
        std::string result;
        EXPECT_NO_THROW(result = run());
        const bool cannotWork = slot == Slot::errorControl || (slot == Slot::database && routine.needsDatabase);
        if (cannotWork) {
            EXPECT_EQ(result, routine.defaultResult) << "slot " << static_cast<int>(slot);
        }
        EXPECT_TRUE(world.errors->stack().empty());
        for (const ErrorState& error : world.errors->takeErrors())
            EXPECT_EQ(error.number, errorNumber::objectNotSet) << error.text;
        serviceRegistry() = full;
    }
}

} // namespace qncal::test
