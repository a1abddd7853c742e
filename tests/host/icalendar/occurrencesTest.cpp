#include "icalendar/occurrences.h"

#include "utilities/dateText.h"

#include <gtest/gtest.h>

namespace qncal::host::icalendar {
namespace {

const Date lastDay = Date::of(2026, 6, 30);

CalendarComponent event(const std::string& lines, const std::string& name = "VEVENT")
{
    std::vector<std::string> all{"BEGIN:" + name};
    for (std::size_t at = 0; at < lines.size();) {
        const std::size_t end = std::min(lines.find('|', at), lines.size());
        all.push_back(lines.substr(at, end - at));
        at = end + 1;
    }
    all.push_back("END:" + name);
    return componentOf(all);
}

std::string text(Date moment) { return formatDate(moment, moment.hasTime() ? "mm-dd hh:nn" : "mm-dd"); }

struct RuleRow {
    const char* name;
    std::string lines;
    std::string starts; ///< joined by ", "
};

class RuleTest : public testing::TestWithParam<RuleRow> {};

TEST_P(RuleTest, GivesTheseOccurrences)
{
    TimeZones zones("America/Toronto");
    const CalendarComponent component = event(GetParam().lines);
    const Span first = *spanOf(component, zones);
    std::string starts;
    for (const Span& span : occurrencesOf(component, first, lastDay, zones).spans) {
        starts += (starts.empty() ? "" : ", ") + text(span.start);
        EXPECT_EQ(span.end.linearSeconds() - span.start.linearSeconds(),
                  first.end.linearSeconds() - first.start.linearSeconds());
    }
    EXPECT_EQ(starts, GetParam().starts);
}

INSTANTIATE_TEST_SUITE_P(
    Occurrences, RuleTest,
    testing::Values(
        RuleRow{"WeeklyOnDays", "DTSTART:20260302T090000|RRULE:FREQ=WEEKLY;BYDAY=MO,WE,FR;COUNT=4",
                "03-02 09:00, 03-04 09:00, 03-06 09:00, 03-09 09:00"},
        RuleRow{"EverySecondWeek", "DTSTART:20260302T090000|RRULE:FREQ=WEEKLY;INTERVAL=2;UNTIL=20260331T000000",
                "03-02 09:00, 03-16 09:00, 03-30 09:00"},
        RuleRow{"LastDayOfTheMonth", "DTSTART;VALUE=DATE:20260131|RRULE:FREQ=MONTHLY;BYMONTHDAY=-1;COUNT=3",
                "01-31, 02-28, 03-31"},
        RuleRow{"UntilADayTakesThatDay", "DTSTART:20260302T230000|RRULE:FREQ=DAILY;UNTIL=20260303",
                "03-02 23:00, 03-03 23:00"},
        RuleRow{"UntilAMomentTakesThatMoment",
                "DTSTART;TZID=America/Toronto:20260305T090000|RRULE:FREQ=DAILY;UNTIL=20260307T140000Z",
                "03-05 09:00, 03-06 09:00, 03-07 09:00"},
        RuleRow{"LessExcludedMoments",
                "DTSTART:20260302T090000|RRULE:FREQ=DAILY;COUNT=4|EXDATE:20260303T090000,"
                "20260305T090000",
                "03-02 09:00, 03-04 09:00"},
        RuleRow{"LessExcludedDays", "DTSTART:20260302T090000|RRULE:FREQ=DAILY;COUNT=3|EXDATE;VALUE=DATE:20260302",
                "03-03 09:00, 03-04 09:00"},
        RuleRow{"ExcludedInAnotherZone",
                "DTSTART;TZID=America/Toronto:20260302T090000|RRULE:FREQ=DAILY;COUNT=2|EXDATE:20260303T140000Z",
                "03-02 09:00"},
        RuleRow{"DatesAlone", "DTSTART:20260302T090000|RDATE:20260305T090000,20260304T100000",
                "03-02 09:00, 03-04 10:00, 03-05 09:00"},
        RuleRow{"PeriodsCountByTheirStart", "DTSTART:20260302T090000|RDATE;VALUE=PERIOD:20260305T090000/PT3H",
                "03-02 09:00, 03-05 09:00"},
        RuleRow{"ADateTwiceCountsOnce", "DTSTART:20260302T090000|RRULE:FREQ=DAILY;COUNT=2|RDATE:20260303T090000",
                "03-02 09:00, 03-03 09:00"},
        RuleRow{"TheSameHourOnTheWallInSpring", "DTSTART;TZID=America/Toronto:20260307T093000|RRULE:FREQ=DAILY;COUNT=3",
                "03-07 09:30, 03-08 09:30, 03-09 09:30"},
        RuleRow{"TheSameHourOfTheWorldInSpring", "DTSTART:20260307T143000Z|RRULE:FREQ=DAILY;COUNT=3",
                "03-07 09:30, 03-08 10:30, 03-09 10:30"},
        RuleRow{"ClocksThatChangeElsewhere", "DTSTART;TZID=Europe/London:20260326T140000|RRULE:FREQ=WEEKLY;COUNT=2",
                "03-26 10:00, 04-02 09:00"},
        RuleRow{"ToTheHorizon", "DTSTART;VALUE=DATE:20260601|RRULE:FREQ=WEEKLY", "06-01, 06-08, 06-15, 06-22, 06-29"},
        RuleRow{"AStartThatTheRuleMisses", "DTSTART:20260303T090000|RRULE:FREQ=WEEKLY;BYDAY=WE;COUNT=2",
                "03-03 09:00, 03-04 09:00, 03-11 09:00"}),
    [](const auto& row) { return row.param.name; });

TEST(Occurrences, TellWhetherThereAreMore)
{
    TimeZones zones("UTC");
    const auto cut = [&](const std::string& rule) {
        const CalendarComponent component = event("DTSTART:20260302T090000|RRULE:" + rule);
        return occurrencesOf(component, *spanOf(component, zones), lastDay, zones).cut;
    };
    EXPECT_TRUE(cut("FREQ=DAILY"));
    EXPECT_FALSE(cut("FREQ=DAILY;COUNT=5"));
    const CalendarComponent everySecond = event("DTSTART:20260302T090000|RRULE:FREQ=SECONDLY");
    const Occurrences found = occurrencesOf(everySecond, *spanOf(everySecond, zones), lastDay, zones);
    EXPECT_TRUE(found.cut);
    EXPECT_EQ(found.spans.size(), static_cast<std::size_t>(mostOccurrences));
}

struct SpanRow {
    const char* name;
    std::string lines;
    std::string days; ///< of `daysOf`
};

class SpanTest : public testing::TestWithParam<SpanRow> {};

TEST_P(SpanTest, GivesTheseDays)
{
    TimeZones zones("America/Toronto");
    std::string days;
    for (const DayTimes& times : daysOf(*spanOf(event(GetParam().lines), zones)))
        days += (days.empty() ? "" : ", ") + formatDate(times.day, "mm-dd ") + formatDate(times.from, "hh:nn-")
                + formatDate(times.to, "hh:nn");
    EXPECT_EQ(days, GetParam().days);
}

INSTANTIATE_TEST_SUITE_P(
    Occurrences, SpanTest,
    testing::Values(
        SpanRow{"Hours", "DTSTART:20260302T090000|DTEND:20260302T101500", "03-02 09:00-10:15"},
        SpanRow{"ByDuration", "DTSTART:20260302T090000|DURATION:PT1H30M", "03-02 09:00-10:30"},
        SpanRow{"AMoment", "DTSTART:20260302T090000", "03-02 09:00-09:00"},
        SpanRow{"ADay", "DTSTART;VALUE=DATE:20260302", "03-02 00:00-23:59"},
        SpanRow{"ADayWithItsEnd", "DTSTART;VALUE=DATE:20260302|DTEND;VALUE=DATE:20260303", "03-02 00:00-23:59"},
        SpanRow{"ADayByDuration", "DTSTART;VALUE=DATE:20260302|DURATION:P1D", "03-02 00:00-23:59"},
        SpanRow{"TwoDaysByDuration", "DTSTART;VALUE=DATE:20260302|DURATION:P2D",
                "03-02 00:00-23:59, 03-03 00:00-23:59"},
        SpanRow{"ADayThatEndsAsItBegins", "DTSTART;VALUE=DATE:20260302|DTEND;VALUE=DATE:20260302", "03-02 00:00-23:59"},
        SpanRow{"Days", "DTSTART;VALUE=DATE:20260302|DTEND;VALUE=DATE:20260304",
                "03-02 00:00-23:59, 03-03 00:00-23:59"},
        SpanRow{"OverMidnight", "DTSTART:20260302T220000|DTEND:20260303T010000",
                "03-02 22:00-23:59, 03-03 00:00-01:00"},
        SpanRow{"UntilMidnight", "DTSTART:20260302T220000|DTEND:20260303T000000", "03-02 22:00-23:59"},
        SpanRow{"InUtc", "DTSTART:20260302T140000Z|DTEND:20260302T150000Z", "03-02 09:00-10:00"},
        SpanRow{"BetweenZones", "DTSTART;TZID=Europe/Berlin:20260302T120000|DTEND;TZID=America/Toronto:20260302T090000",
                "03-02 06:00-09:00"}),
    [](const auto& row) { return row.param.name; });

TEST(Occurrences, AToDoIsWhereItIsDue)
{
    TimeZones zones("UTC");
    EXPECT_EQ(spanOf(event("SUMMARY:Some day", "VTODO"), zones), std::nullopt);
    EXPECT_EQ(spanOf(event("DUE:20260302T170000", "VTODO"), zones),
              (Span{Date::of(2026, 3, 2, 17), Date::of(2026, 3, 2, 17), false}));
    EXPECT_EQ(spanOf(event("DUE;VALUE=DATE:20260302", "VTODO"), zones),
              (Span{Date::of(2026, 3, 2), Date::of(2026, 3, 2), true}));
    EXPECT_EQ(spanOf(event("DTSTART;VALUE=DATE:20260302|DUE;VALUE=DATE:20260304", "VTODO"), zones),
              (Span{Date::of(2026, 3, 2), Date::of(2026, 3, 4), true}));
}

TEST(Occurrences, FaultsAreRefused)
{
    TimeZones zones("UTC");
    EXPECT_THROW(spanOf(event("SUMMARY:No start"), zones), CalendarError);
    EXPECT_THROW(spanOf(event("DTSTART:soon"), zones), CalendarError);
    EXPECT_THROW(spanOf(event("DTSTART:20260231T090000"), zones), CalendarError);
    EXPECT_THROW(spanOf(event("DTSTART:20260302T090000|DTEND:20260302T080000"), zones), CalendarError);
    EXPECT_THROW(spanOf(event("DTSTART:20260302T090000|DURATION:long"), zones), CalendarError);
    EXPECT_THROW(spanOf(event("DTSTART:20260302T090000|DURATION:-PT1H"), zones), CalendarError);
    for (const char* rule : {"RRULE:FREQ=SOMETIMES", "RRULE:", "RRULE:COUNT=3"}) {
        const CalendarComponent component = event(std::string("DTSTART:20260302T090000|") + rule);
        EXPECT_THROW(occurrencesOf(component, *spanOf(component, zones), lastDay, zones), CalendarError) << rule;
    }
    EXPECT_THROW(TimeZones("Middle/Earth"), CalendarError);
}

TEST(Occurrences, AnUnknownZoneIsLocalAndNamedOnce)
{
    TimeZones zones("America/Toronto");
    const auto span = spanOf(event("DTSTART;TZID=Nowhere:20260302T090000|DTEND;TZID=Nowhere:20260302T100000"), zones);
    EXPECT_EQ(span->start, Date::of(2026, 3, 2, 9));
    EXPECT_EQ(zones.unknownNames(), std::vector<std::string>{"Nowhere"});
    EXPECT_NE(zones.find("/example.org/2026/Europe/Berlin"), nullptr);
    EXPECT_EQ(zones.utcText(Date::of(2026, 3, 31, 9, 30)), "20260331T133000Z");
}

} // namespace
} // namespace qncal::host::icalendar
