#include "icalendar/alarms.h"

#include "reminders/reminderPeriods.h"

#include <gtest/gtest.h>

namespace qncal::host::icalendar {
namespace {

const Span span{Date::of(2026, 3, 10, 10), Date::of(2026, 3, 10, 12), false};

CalendarComponent eventWith(const std::vector<std::string>& alarmLines)
{
    std::vector<std::string> lines{"BEGIN:VEVENT", "BEGIN:VALARM"};
    lines.insert(lines.end(), alarmLines.begin(), alarmLines.end());
    lines.insert(lines.end(), {"END:VALARM", "END:VEVENT"});
    return componentOf(lines);
}

struct AlarmRow {
    const char* name;
    std::string trigger;
    std::string period;
    int minutesBefore;
    bool isExact = false;
};

class AlarmTest : public testing::TestWithParam<AlarmRow> {};

TEST_P(AlarmTest, BecomesTheNearestPeriod)
{
    TimeZones zones("UTC");
    const auto reminder = reminderOf(eventWith({"ACTION:DISPLAY", GetParam().trigger}), span, zones);
    ASSERT_TRUE(reminder.has_value());
    EXPECT_EQ(reminder->period, GetParam().period);
    EXPECT_EQ(reminder->minutesBefore, GetParam().minutesBefore);
    EXPECT_EQ(reminder->isExact, GetParam().isExact);
}

INSTANTIATE_TEST_SUITE_P(Alarms, AlarmTest,
                         testing::Values(AlarmRow{"Exact", "TRIGGER:-PT15M", "15 Min", 15, true},
                                         AlarmRow{"InOtherUnits", "TRIGGER:-PT1440M", "1 Day", 1440, true},
                                         AlarmRow{"Between", "TRIGGER:-PT25M", "20 Min", 25},
                                         AlarmRow{"NearerToTheLonger", "TRIGGER:-PT50M", "1 Hr", 50},
                                         AlarmRow{"AtTheStart", "TRIGGER:PT0S", "5 Min", 0},
                                         AlarmRow{"AfterTheStart", "TRIGGER:PT10M", "5 Min", -10},
                                         AlarmRow{"BeforeTheEnd", "TRIGGER;RELATED=END:-PT3H", "1 Hr", 60},
                                         AlarmRow{"AtAMoment", "TRIGGER;VALUE=DATE-TIME:20260309T100000Z", "1 Day",
                                                  1440},
                                         AlarmRow{"SecondsWithoutTheirMark", "TRIGGER:-P300S", "5 Min", 5, true},
                                         AlarmRow{"LongAgo", "TRIGGER:-P90D", "5 Weeks", 129600}),
                         [](const auto& row) { return row.param.name; });

TEST(Alarms, OnlyOnesThatSayNoMoreThanThePeriodAreExact)
{
    TimeZones zones("UTC");
    const auto isExact = [&](const std::vector<std::string>& lines) {
        return reminderOf(eventWith(lines), span, zones)->isExact;
    };
    EXPECT_TRUE(isExact({"ACTION:DISPLAY", "DESCRIPTION:Text", "TRIGGER:-PT5M"}));
    EXPECT_FALSE(isExact({"ACTION:AUDIO", "TRIGGER:-PT5M"}));
    EXPECT_FALSE(isExact({"ACTION:DISPLAY", "TRIGGER:-PT5M", "REPEAT:2"}));
    EXPECT_FALSE(isExact({"ACTION:DISPLAY", "TRIGGER:-PT5M", "END:VALARM", "BEGIN:VALARM", "TRIGGER:-PT1H"}));
}

TEST(Alarms, OneWithoutATimeIsNone)
{
    TimeZones zones("UTC");
    EXPECT_FALSE(reminderOf(eventWith({"ACTION:DISPLAY"}), span, zones).has_value());
    EXPECT_FALSE(reminderOf(eventWith({"TRIGGER:soon"}), span, zones).has_value());
    EXPECT_FALSE(reminderOf(componentOf({"BEGIN:VEVENT", "END:VEVENT"}), span, zones).has_value());
}

TEST(Alarms, EveryPeriodIsWrittenAndReadBack)
{
    TimeZones zones("UTC");
    for (const ReminderPeriod& period : reminderPeriods()) {
        std::vector<std::string> lines{"BEGIN:VEVENT"};
        for (const std::string& line : alarmLines(period.name, "Text, and more"))
            lines.push_back(line);
        lines.emplace_back("END:VEVENT");
        const auto reminder = reminderOf(componentOf(lines), span, zones);
        ASSERT_TRUE(reminder.has_value()) << period.name;
        EXPECT_EQ(reminder->period, period.name);
        EXPECT_TRUE(reminder->isExact) << period.name;
    }
}

} // namespace
} // namespace qncal::host::icalendar
