#include "utilities/dateText.h"

#include "support/rowName.h"
#include "utilities/RunTimeError.h"

#include <gtest/gtest.h>

namespace qncal {
namespace {

struct FormatRow {
    const char* name;
    Date value;
    const char* pattern;
    const char* expected;
};

class FormatDateTest : public testing::TestWithParam<FormatRow> {};

TEST_P(FormatDateTest, WritesThePattern)
{
    EXPECT_EQ(formatDate(GetParam().value, GetParam().pattern), GetParam().expected);
}

const Date march7 = Date::of(2026, 3, 7);

INSTANTIATE_TEST_SUITE_P(
    Dates, FormatDateTest,
    testing::Values(FormatRow{"LongWithComma", march7, "dddd, mmmm d yyyy", "Saturday, March 7 2026"},
                    FormatRow{"Long", march7, "dddd mmmm d yyyy", "Saturday March 7 2026"},
                    FormatRow{"LongCommaBeforeYear", march7, "dddd mmmm d, yyyy", "Saturday March 7, 2026"},
                    FormatRow{"MonthDayCommaYear", march7, "mmmm d, yyyy", "March 7, 2026"},
                    FormatRow{"MonthDayYear", march7, "mmmm d yyyy", "March 7 2026"},
                    FormatRow{"ShortMonth", march7, "mmm d yyyy", "Mar 7 2026"},
                    FormatRow{"ShortMonthComma", march7, "mmm d, yyyy", "Mar 7, 2026"},
                    FormatRow{"ShortMonthShortYear", march7, "mmm d yy", "Mar 7 26"},
                    FormatRow{"SlashedName", march7, "dd/mmm/yy", "07/Mar/26"},
                    FormatRow{"DayFirst", march7, "dd/mm/yy", "07/03/26"},
                    FormatRow{"MonthFirst", march7, "mm/dd/yy", "03/07/26"},
                    FormatRow{"MonthFirstBare", march7, "m/d/yyyy", "3/7/2026"}, FormatRow{"Day", march7, "d", "7"},
                    FormatRow{"TwoDigitDay", march7, "dd", "07"}, FormatRow{"ShortWeekday", march7, "ddd", "Sat"},
                    FormatRow{"Weekday", march7, "dddd", "Saturday"}, FormatRow{"Month", march7, "mmmm", "March"},
                    FormatRow{"MonthInShort", march7, "mmm", "Mar"}, FormatRow{"Year", march7, "yyyy", "2026"},
                    FormatRow{"MonthYear", march7, "mmmm yyyy", "March 2026"},
                    FormatRow{"MonthDay", march7, "mmmm d", "March 7"},
                    FormatRow{"CaseOfLettersIsFree", march7, "MMMM dd, YYYY", "March 07, 2026"},
                    FormatRow{"Iso", march7, "yyyy-mm-dd", "2026-03-07"},
                    FormatRow{"EarlyYear", Date::of(100, 1, 2), "yyyy-mm-dd yy", "0100-01-02 00"},
                    FormatRow{"BeforeDayZero", Date::of(1899, 1, 1), "dddd mmm d, yyyy", "Sunday Jan 1, 1899"},
                    FormatRow{"LeapDay", Date::of(2024, 2, 29), "dddd mmmm d, yyyy", "Thursday February 29, 2024"}),
    test::rowName);

INSTANTIATE_TEST_SUITE_P(
    Times, FormatDateTest,
    testing::Values(FormatRow{"Morning", Date::timeOf(9, 5), "h:nn am/pm", "9:05 am"},
                    FormatRow{"MixedCase", Date::timeOf(9, 5), "h:Nn am/pm", "9:05 am"},
                    FormatRow{"TwoDigitHour", Date::timeOf(9, 5), "hh:nn am/pm", "09:05 am"},
                    FormatRow{"UpperMarker", Date::timeOf(21, 5), "h:nn AM/PM", "9:05 PM"},
                    FormatRow{"MarkerAsWritten", Date::timeOf(21, 5), "h:nn Am/Pm", "9:05 Pm"},
                    FormatRow{"LocaleMarker", Date::timeOf(9, 5, 7), "h:mm:ss ampm", "9:05:07 AM"},
                    FormatRow{"LocaleMarkerUpper", Date::timeOf(9, 5, 7), "h:mm:ss AMPM", "9:05:07 AM"},
                    FormatRow{"LocaleMarkerNoSeconds", Date::timeOf(17, 0), "h:mm ampm", "5:00 PM"},
                    FormatRow{"PickerMarker", Date::timeOf(17, 0), "h:mm tt", "5:00 PM"},
                    FormatRow{"Midnight", Date::timeOf(0), "h:nn AM/PM", "12:00 AM"},
                    FormatRow{"AfterMidnight", Date::timeOf(0, 30), "hh:nn am/pm", "12:30 am"},
                    FormatRow{"Noon", Date::timeOf(12), "h:nn AM/PM", "12:00 PM"},
                    FormatRow{"AfterNoon", Date::timeOf(12, 30), "h:nn am/pm", "12:30 pm"},
                    FormatRow{"LastSecond", Date::timeOf(23, 59, 59), "h:mm:ss ampm", "11:59:59 PM"},
                    FormatRow{"TwentyFourHours", Date::timeOf(17, 5, 9), "hh:nn:ss", "17:05:09"},
                    FormatRow{"MidnightTwentyFourHours", Date::timeOf(0), "h:nn", "0:00"},
                    FormatRow{"HourAlone", Date::timeOf(17), "h", "17"},
                    FormatRow{"SingleLetters", Date::timeOf(7, 5, 9), "h:n:s", "7:5:9"},
                    FormatRow{"MinutesOnlyRightAfterHours", Date::of(2026, 3, 7, 9, 5), "h:n mm", "9:5 03"},
                    FormatRow{"MonthBeforeHours", Date::of(2026, 3, 7, 9, 5), "mm h:mm", "03 9:05"},
                    FormatRow{"LongMonthAfterHours", Date::of(2026, 3, 7, 9, 5), "h mmm", "9 Mar"},
                    FormatRow{"DateAndTime", Date::of(1899, 12, 29, 18, 30), "mmm d, yyyy h:nn am/pm",
                              "Dec 29, 1899 6:30 pm"},
                    FormatRow{"RoundedUpToMidnight", Date(46112 + 86399.9 / 86400.0), "yyyy-mm-dd hh:nn:ss",
                              "2026-04-01 00:00:00"}),
    test::rowName);

INSTANTIATE_TEST_SUITE_P(Literals, FormatDateTest,
                         testing::Values(FormatRow{"Empty", march7, "", ""},
                                         FormatRow{"Quoted", march7, "d \"days of\" mmmm", "7 days of March"},
                                         FormatRow{"QuoteNotClosed", march7, "d \"day", "7 day"},
                                         FormatRow{"EmptyQuotes", march7, "d\"\"d", "77"},
                                         FormatRow{"Backslash", march7, "\\d\\\\d", "d\\7"},
                                         FormatRow{"BackslashLast", march7, "d\\", "7\\"},
                                         FormatRow{"MarkerInQuotesIsNone", Date::timeOf(17), "h \"am/pm\"", "17 am/pm"},
                                         FormatRow{"OtherBytes", march7, "d \xC3\xA9 \xFF", "7 \xC3\xA9 \xFF"}),
                         test::rowName);

TEST(DateNamesTest, NumbersOutsideTheNamesAreErrors)
{
    EXPECT_EQ(weekdayName(1), "Sunday");
    EXPECT_EQ(weekdayName(7), "Saturday");
    EXPECT_EQ(monthName(1), "January");
    EXPECT_EQ(monthName(12), "December");
    for (const int number : {0, -1, 13})
        EXPECT_THROW(monthName(number), RunTimeError) << number;
    for (const int number : {0, -1, 8})
        EXPECT_THROW(weekdayName(number), RunTimeError) << number;
}

} // namespace
} // namespace qncal
