#include "reminders/reminderPeriods.h"

#include <gtest/gtest.h>

namespace qncal {
namespace {

struct PeriodRow {
    const char* period;
    int minutes;
    const char* length;
    bool hasPopupWording;
};

class ReminderPeriodTest : public testing::TestWithParam<PeriodRow> {};

TEST_P(ReminderPeriodTest, HasItsOffsetAndWords)
{
    const ReminderPeriod& period = reminderPeriod(GetParam().period);
    const std::string in = std::string(" in ") + GetParam().length;
    EXPECT_EQ(period.minutes, GetParam().minutes);
    EXPECT_EQ(period.taskWording, " is due" + in);
    EXPECT_EQ(period.appointmentWording, in);
    EXPECT_EQ(period.appointmentPopupWording, GetParam().hasPopupWording ? in : "");
}

INSTANTIATE_TEST_SUITE_P(
    Periods, ReminderPeriodTest,
    testing::Values(PeriodRow{"5 Min", 5, "5 minutes", true}, PeriodRow{"10 Min", 10, "10 minutes", true},
                    PeriodRow{"15 Min", 15, "15 minutes", true}, PeriodRow{"20 Min", 20, "20 minutes", true},
                    PeriodRow{"30 Min", 30, "30 minutes", true}, PeriodRow{"1 Hr", 60, "1 hour", true},
                    PeriodRow{"2 Hr", 120, "2 hours", true}, PeriodRow{"3 Hr", 180, "3 hours", true},
                    PeriodRow{"6 Hr", 360, "6 hours", true}, PeriodRow{"12 Hr", 720, "12 hours", true},
                    PeriodRow{"1 Day", 1440, "1 day", true}, PeriodRow{"2 Days", 2880, "2 days", true},
                    PeriodRow{"3 Days", 4320, "3 days", true}, PeriodRow{"5 Days", 7200, "5 days", false},
                    PeriodRow{"1 Week", 10080, "1 week", true}, PeriodRow{"10 Days", 14400, "10 days", false},
                    PeriodRow{"2 Weeks", 20160, "2 weeks", true}, PeriodRow{"5 Weeks", 50400, "5 weeks", false}),
    [](const auto& row) {
        std::string name = row.param.period;
        name.erase(name.find(' '), 1);
        return "P" + name;
    });

TEST(ReminderPeriod, OutsideOfTheTableHasNoOffsetAndNoWords)
{
    EXPECT_EQ(reminderPeriod("4 Min").minutes, 0);
    EXPECT_EQ(reminderPeriod("").taskWording, "");
}

} // namespace
} // namespace qncal
