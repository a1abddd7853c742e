#include "services/ErrorControl.h"

#include "core/ServiceRegistry.h"
#include "core/routineScope.h"
#include "utilities/Clock.h"
#include "utilities/RunTimeError.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

namespace qncal::host {
namespace {

class ErrorControlTest : public testing::Test {
protected:
    void SetUp() override { serviceRegistry().errorControl = errors; }
    void TearDown() override { serviceRegistry() = {}; }

    /// A routine whose one statement fails `failures` times before it succeeds.
    bool succeedsAfter(int failures)
    {
        int attempts = 0;
        return routine("Vestrel.exe-test-inner", false, [&] {
            return statement([&] {
                if (++attempts <= failures)
                    throw RunTimeError(13, "Type mismatch");
                return true;
            });
        });
    }

    ClockOverride clock{Date::of(2026, 3, 2, 9, 15, 0)};
    std::shared_ptr<ErrorControl> errors = std::make_shared<ErrorControl>();
};

TEST_F(ErrorControlTest, KeepsTheErrorWithTheRoutinesThatWereRunning)
{
    routine("Vestrel.exe-test-outer", [&] { succeedsAfter(1); });
    ASSERT_EQ(errors->reports().size(), 1u);
    const ErrorReport& report = errors->reports().front();
    EXPECT_EQ(report.error.number, 13);
    EXPECT_EQ(report.error.text, "Type mismatch");
    EXPECT_EQ(report.routines, (std::vector<std::string>{"Vestrel.exe-test-outer", "Vestrel.exe-test-inner"}));
    EXPECT_EQ(report.when, Date::of(2026, 3, 2, 9, 15, 0));
    EXPECT_TRUE(errors->routines().empty());
}

TEST_F(ErrorControlTest, LeavesByDefault) { EXPECT_FALSE(succeedsAfter(1)); }

TEST_F(ErrorControlTest, RetriesAsOftenAsAskedThenLeaves)
{
    errors->setPolicy(retryOnError(2));
    EXPECT_TRUE(succeedsAfter(2));
    EXPECT_FALSE(succeedsAfter(3));
    EXPECT_EQ(errors->reportCount(), 5u);
    EXPECT_TRUE(succeedsAfter(2)) << "an error left behind does not count against the next routine";
}

TEST_F(ErrorControlTest, AsksThePerson)
{
    std::istringstream in("r\nl\n");
    std::ostringstream out;
    errors->setPolicy(askOnError(in, out));
    EXPECT_TRUE(succeedsAfter(1));
    EXPECT_FALSE(succeedsAfter(1));
    EXPECT_FALSE(succeedsAfter(1)) << "the input has ended";
    EXPECT_NE(out.str().find("Error 13: Type mismatch\nRetry or leave? [r/L] "), std::string::npos);
}

TEST_F(ErrorControlTest, LogsTheStackInnermostFirst)
{
    std::ostringstream log;
    errors->logTo(&log);
    routine("Vestrel.exe-test-outer", [&] { succeedsAfter(1); });
    EXPECT_EQ(log.str(), "2026-03-02 09:15:00 error 13: Type mismatch\n"
                         "    in Vestrel.exe-test-inner\n"
                         "    in Vestrel.exe-test-outer\n");
}

TEST_F(ErrorControlTest, LogsToTheEndOfAFile)
{
    const std::filesystem::path file = std::filesystem::path(testing::TempDir()) / "errorControlTest.log";
    std::filesystem::remove(file);
    errors->logTo(file);
    succeedsAfter(1);
    errors->logTo(nullptr);
    errors->logTo(file);
    succeedsAfter(1);
    std::ifstream log(file);
    const std::string text{std::istreambuf_iterator<char>(log), {}};
    EXPECT_EQ(text.size(), 2 * text.substr(0, text.find("\n2026") + 1).size()) << text;
    std::filesystem::remove(file);
}

TEST_F(ErrorControlTest, ALogThatCannotBeWrittenIsAnError)
{
    EXPECT_THROW(errors->logTo(std::filesystem::path("/nonexistent/folder/errors.log")), RunTimeError);
}

TEST_F(ErrorControlTest, KeepsTheLastReportsOnly)
{
    for (std::size_t i = 0; i < ErrorControl::keptReports + 5; ++i)
        succeedsAfter(1);
    EXPECT_EQ(errors->reports().size(), ErrorControl::keptReports);
    EXPECT_EQ(errors->reportCount(), ErrorControl::keptReports + 5);
    errors->clear();
    EXPECT_TRUE(errors->reports().empty());
}

TEST_F(ErrorControlTest, APopTooManyIsHarmless)
{
    errors->leaveRoutine();
    EXPECT_TRUE(errors->routines().empty());
}

} // namespace
} // namespace qncal::host
