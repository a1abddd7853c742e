#include "core/routineScope.h"

#include "core/ServiceRegistry.h"
#include "support/RecordingErrorControl.h"
#include "utilities/RunTimeError.h"

#include <gtest/gtest.h>

namespace qncal {
namespace {

class RoutineScopeTest : public testing::Test {
protected:
    void SetUp() override { serviceRegistry().errorControl = errors; }
    void TearDown() override { serviceRegistry() = {}; }

    std::shared_ptr<test::RecordingErrorControl> errors = std::make_shared<test::RecordingErrorControl>();
};

TEST_F(RoutineScopeTest, PushesAndPopsItsLabel)
{
    const int result = routine("a-b-c", 0, [&] {
        EXPECT_EQ(errors->stack(), std::vector<std::string>{"a-b-c"});
        return 7;
    });
    EXPECT_EQ(result, 7);
    EXPECT_TRUE(errors->stack().empty());
    EXPECT_EQ(errors->labels(), std::vector<std::string>{"a-b-c"});
}

TEST_F(RoutineScopeTest, RetryRunsTheFailedStatementAloneAgain)
{
    errors->answer(ErrorAction::retry);
    int before = 0;
    int tries = 0;
    const int result = routine("a-b-c", 0, [&] {
        ++before;
        return statement([&] {
            if (++tries < 3)
                throw RunTimeError(errorNumber::typeMismatch, "no");
            return tries;
        });
    });
    EXPECT_EQ(result, 3);
    EXPECT_EQ(before, 1);
    EXPECT_EQ(errors->takeErrors().size(), 2u);
}

TEST_F(RoutineScopeTest, EveryOtherAnswerLeavesWithTheDefault)
{
    for (const int answer : {2, 3, 0, 99}) {
        errors->answer(static_cast<ErrorAction>(answer));
        bool after = false;
        const int result = routine("a-b-c", -1, [&] {
            statement([] { throw RunTimeError(errorNumber::typeMismatch, "no"); });
            after = true;
            return 1;
        });
        EXPECT_EQ(result, -1);
        EXPECT_FALSE(after);
        EXPECT_TRUE(errors->stack().empty());
        ASSERT_EQ(errors->takeErrors().size(), 1u);
    }
}

TEST_F(RoutineScopeTest, AnErrorOutsideOfAStatementIsReportedOnceAndLeaves)
{
    errors->answer(ErrorAction::retry);
    EXPECT_EQ(routine("a-b-c", -1, []() -> int { throw RunTimeError(errorNumber::overflow, "much"); }), -1);
    const auto reported = errors->takeErrors();
    ASSERT_EQ(reported.size(), 1u);
    EXPECT_EQ(reported[0].number, errorNumber::overflow);
    EXPECT_EQ(reported[0].text, "much");
}

TEST_F(RoutineScopeTest, WithoutErrorControlTheRoutineDoesNothingAndTheErrorIsDropped)
{
    serviceRegistry().errorControl.reset();
    bool ran = false;
    EXPECT_EQ(routine("a-b-c", -1,
                      [&] {
                          ran = true;
                          return 1;
                      }),
              -1);
    EXPECT_FALSE(ran);
}

TEST_F(RoutineScopeTest, SkipOnErrorPassesOverTheFailingStatementOnly)
{
    bool after = false;
    routine("a-b-c", [&] {
        skipOnError([] { statement([] { throw RunTimeError(errorNumber::typeMismatch, "no"); }); });
        skipOnError([&] { after = true; });
    });
    EXPECT_TRUE(after);
    EXPECT_TRUE(errors->takeErrors().empty());
}

TEST_F(RoutineScopeTest, AnInnerRoutineKeepsItsErrorsFromTheOuterOne)
{
    errors->answer(ErrorAction::leave);
    const int result = routine("outer", 0, [&] {
        const int inner = routine("inner", 5, [&]() -> int {
            return statement([]() -> int { throw RunTimeError(errorNumber::typeMismatch, "no"); });
        });
        return inner + 1;
    });
    EXPECT_EQ(result, 6);
    EXPECT_EQ(errors->takeErrors().size(), 1u);
    EXPECT_TRUE(errors->stack().empty());
}

TEST_F(RoutineScopeTest, ALabelThatCouldNotBePushedIsNotPopped)
{
    const int result = routine("outer", 0, [&] {
        errors->failNextEnter();
        routine("inner", [] { FAIL() << "must not run"; });
        EXPECT_EQ(errors->stack(), std::vector<std::string>{"outer"});
        return 1;
    });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(errors->takeErrors().size(), 1u);
}

/// An error control of which one call throws.
class BrokenErrorControl : public test::RecordingErrorControl {
public:
    std::string broken;

    void leaveRoutine() override
    {
        RecordingErrorControl::leaveRoutine();
        failIf("leaveRoutine");
    }
    void setError(const ErrorState& error) override
    {
        failIf("setError");
        RecordingErrorControl::setError(error);
    }
    void reportError() override
    {
        failIf("reportError");
        RecordingErrorControl::reportError();
    }
    std::int16_t getErrorAction() override
    {
        failIf("getErrorAction");
        return RecordingErrorControl::getErrorAction();
    }

private:
    void failIf(const char* call) const
    {
        if (broken == call)
            throw RunTimeError(errorNumber::invalidProcedureCall, call);
    }
};

TEST(BrokenErrorControlTest, NothingCrossesTheRoutine)
{
    for (const char* broken : {"leaveRoutine", "setError", "reportError", "getErrorAction"}) {
        const auto control = std::make_shared<BrokenErrorControl>();
        control->broken = broken;
        serviceRegistry().errorControl = control;
        EXPECT_EQ(routine("a-b-c", -1, [] { return 1; }), 1) << broken;
        const int failed = routine("a-b-c", -1, []() -> int {
            return statement([]() -> int { throw RunTimeError(errorNumber::typeMismatch, "no"); });
        });
        EXPECT_EQ(failed, -1) << broken;
        EXPECT_TRUE(control->stack().empty()) << broken;
        control->takeErrors();
        serviceRegistry() = {};
    }
}

TEST_F(RoutineScopeTest, AnAccessorReadByTheHostPassesOverItsFailureAlsoFromWithinAServiceCall)
{
    const auto read = [] { accessor([] { statement([] { throw RunTimeError(errorNumber::typeMismatch, "no"); }); }); };
    EXPECT_NO_THROW(read()) << "outside of any routine";
    bool after = false;
    routine("a-b-c", [&] {
        statement(read);
        callHost(read);
        after = true;
    });
    EXPECT_TRUE(after);
    EXPECT_TRUE(errors->takeErrors().empty());
    routine("a-b-c", [&] { read(); });
    EXPECT_EQ(errors->takeErrors().size(), 1u) << "read by a routine it is that routine's failure";
}

} // namespace
} // namespace qncal
