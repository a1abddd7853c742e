#include "support/randomSeed.h"
#include "support/rowName.h"
#include "utilities/dateText.h"

#include <gtest/gtest.h>

#include <random>

namespace qncal {
namespace {

std::string readBack(std::string_view text)
{
    const auto date = parseDate(text);
    return date ? defaultDateText(*date) : "none";
}

struct ParseRow {
    const char* name;
    const char* text;
    const char* expected;
};

class ParseDateTest : public testing::TestWithParam<ParseRow> {};

TEST_P(ParseDateTest, Reads) { EXPECT_EQ(readBack(GetParam().text), GetParam().expected); }

INSTANTIATE_TEST_SUITE_P(
    Dates, ParseDateTest,
    testing::Values(
        ParseRow{"Iso", "2026-03-31", "2026-03-31"}, ParseRow{"IsoShort", "2026-3-1", "2026-03-01"},
        ParseRow{"IsoSlashed", "2026/03/31", "2026-03-31"}, ParseRow{"BlanksAround", "  2026-03-31\r\n", "2026-03-31"},
        ParseRow{"ShortMonth", "Mar 31, 2026", "2026-03-31"},
        ParseRow{"ShortMonthNoComma", "Mar 31 2026", "2026-03-31"},
        ParseRow{"FullMonth", "March 31 2026", "2026-03-31"},
        ParseRow{"FullMonthComma", "March 31, 2026", "2026-03-31"}, ParseRow{"AnyCase", "mARCH 31, 2026", "2026-03-31"},
        ParseRow{"May", "May 1, 2026", "2026-05-01"}, ParseRow{"DayFirstName", "31 Mar 2026", "2026-03-31"},
        ParseRow{"DayFirstFullName", "1 March, 2026", "2026-03-01"}, ParseRow{"Slashed", "3/31/2026", "2026-03-31"},
        ParseRow{"SlashedZeros", "03/01/2026", "2026-03-01"}, ParseRow{"Hyphened", "3-31-2026", "2026-03-31"},
        ParseRow{"SlashedName", "07/Mar/26", "2026-03-07"}, ParseRow{"HyphenedName", "7-mar-2026", "2026-03-07"},
        ParseRow{"Weekday", "Tuesday, March 31 2026", "2026-03-31"},
        ParseRow{"WeekdayNoComma", "Tuesday March 31, 2026", "2026-03-31"},
        ParseRow{"ShortWeekday", "Tue Mar 31, 2026", "2026-03-31"},
        ParseRow{"WeekdayIso", "Tue 2026-03-31", "2026-03-31"}, ParseRow{"ShortYear29", "Mar 7 29", "2029-03-07"},
        ParseRow{"ShortYear30", "Mar 7 30", "1930-03-07"}, ParseRow{"ShortYear00", "3/7/00", "2000-03-07"},
        ParseRow{"LeapDay", "2/29/2024", "2024-02-29"}, ParseRow{"LeapDay2000", "2000-02-29", "2000-02-29"},
        ParseRow{"FirstYear", "0100-01-01", "0100-01-01"}, ParseRow{"LastDay", "9999-12-31", "9999-12-31"},
        ParseRow{"NoDate", "1899-01-01", "1899-01-01"}),
    test::rowName);

INSTANTIATE_TEST_SUITE_P(
    Times, ParseDateTest,
    testing::Values(ParseRow{"Morning", "9:30 am", "09:30:00"}, ParseRow{"MarkerAttached", "9:30am", "09:30:00"},
                    ParseRow{"Seconds", "9:30:15 PM", "21:30:15"}, ParseRow{"Bare", "14:05", "14:05:00"},
                    ParseRow{"BareSeconds", "14:05:06", "14:05:06"}, ParseRow{"Midnight", "12:00 AM", "00:00:00"},
                    ParseRow{"HourNoughtOfTheMorning", "0:30 am", "00:30:00"}, ParseRow{"Noon", "12:00 pm", "12:00:00"},
                    ParseRow{"HourOnly", "9 pm", "21:00:00"}, ParseRow{"LastSecond", "23:59:59", "23:59:59"},
                    ParseRow{"FractionDropped", "09:30:00.999", "09:30:00"},
                    ParseRow{"SingleDigits", "7:5:9", "07:05:09"}),
    test::rowName);

INSTANTIATE_TEST_SUITE_P(Both, ParseDateTest,
                         testing::Values(ParseRow{"Iso", "2026-03-31 09:30:00", "2026-03-31 09:30:00"},
                                         ParseRow{"IsoT", "2026-03-31T09:30:00", "2026-03-31 09:30:00"},
                                         ParseRow{"IsoMinutes", "2026-03-31T09:30", "2026-03-31 09:30:00"},
                                         ParseRow{"IsoMidnight", "2026-03-31 00:00:00", "2026-03-31"},
                                         ParseRow{"Name", "Mar 31, 2026 9:30 pm", "2026-03-31 21:30:00"},
                                         ParseRow{"NameComma", "Mar 31, 2026, 9:30 pm", "2026-03-31 21:30:00"},
                                         ParseRow{"Slashed", "3/31/2026 9:30:15 AM", "2026-03-31 09:30:15"},
                                         ParseRow{"Weekday", "Tuesday March 31, 2026 12:00 am", "2026-03-31"},
                                         ParseRow{"BeforeDayZero", "1899-12-29 18:30:00", "1899-12-29 18:30:00"},
                                         ParseRow{"DayZero", "1899-12-30 18:30:00", "18:30:00"}),
                         test::rowName);

class ParseDateGarbageTest : public testing::TestWithParam<ParseRow> {};

TEST_P(ParseDateGarbageTest, IsNoDate) { EXPECT_EQ(readBack(GetParam().text), "none"); }

INSTANTIATE_TEST_SUITE_P(
    Texts, ParseDateGarbageTest,
    testing::Values(
        ParseRow{"Empty", "", ""}, ParseRow{"Blanks", " \t ", ""}, ParseRow{"Word", "hello", ""},
        ParseRow{"Number", "46112", ""}, ParseRow{"SmallNumber", "9", ""}, ParseRow{"Decimal", "46112.5", ""},
        ParseRow{"Negative", "-1", ""}, ParseRow{"FebruaryThirtieth", "Feb 30, 2026", ""},
        ParseRow{"IsoFebruaryThirtieth", "2026-02-30", ""}, ParseRow{"LeapDayOfOtherYear", "2026-02-29", ""},
        ParseRow{"LeapDay1900", "1900-02-29", ""}, ParseRow{"Month13", "13/01/2026", ""},
        ParseRow{"IsoMonth13", "2026-13-01", ""}, ParseRow{"Month0", "2026-00-10", ""},
        ParseRow{"Day0", "2026-01-00", ""}, ParseRow{"Day32", "Jan 32, 2026", ""}, ParseRow{"NoYear", "March 31", ""},
        ParseRow{"NoDay", "March 2026", ""}, ParseRow{"Year99Written", "0099-01-01", ""},
        ParseRow{"Year10000", "10000-01-01", ""}, ParseRow{"HalfIso", "2026-03", ""},
        ParseRow{"TrailingHyphen", "2026-03-", ""}, ParseRow{"MixedSeparators", "2026-03/31", ""},
        ParseRow{"FiveDigitYear", "Mar 7, 02026", ""}, ParseRow{"ThreeDigitDay", "2026-03-031", ""},
        ParseRow{"ThreeDigitMonth", "003/07/2026", ""}, ParseRow{"ThreeDigitNamedDay", "Mar 007, 2026", ""},
        ParseRow{"NamedMonthMisspelt", "7-Mrz-2026", ""}, ParseRow{"ManyDigits", "99999999999999999999-01-01", ""},
        ParseRow{"WrongWeekday", "Monday, March 31 2026", ""}, ParseRow{"WeekdayAlone", "Tuesday", ""},
        ParseRow{"WeekdayWithTime", "Tuesday 9:30", ""}, ParseRow{"TwoWeekdays", "Tue Tue Mar 31, 2026", ""},
        ParseRow{"MonthMisspelt", "Marc 31, 2026", ""}, ParseRow{"TwoDates", "2026-03-31 2026-03-31", ""},
        ParseRow{"TwoTimes", "9:30 10:30", ""}, ParseRow{"TimeFirst", "9:30 2026-03-31", ""},
        ParseRow{"Hour24", "24:00", ""}, ParseRow{"Minute60", "9:60", ""}, ParseRow{"Second60", "9:30:60", ""},
        ParseRow{"Hour13WithMarker", "13:00 pm", ""}, ParseRow{"UnknownMarker", "9:30 xm", ""},
        ParseRow{"MarkerAlone", "am", ""}, ParseRow{"TrailingColon", "9:", ""},
        ParseRow{"TrailingPoint", "9:30:15.", ""}, ParseRow{"LongHour", "009:30", ""},
        ParseRow{"TrailingT", "2026-03-31T", ""}, ParseRow{"TrailingComma", "Mar 31, 2026,", ""},
        ParseRow{"TrailingText", "2026-03-31 soon", ""}, ParseRow{"AttachedText", "2026-03-31x", ""},
        ParseRow{"Zone", "2026-03-31T09:30:00Z", ""}, ParseRow{"HighBytes", "\xFF\xFE\x80", ""},
        ParseRow{"HighByteInside", "2026-03-\xC3\xA9", ""}),
    test::rowName);

TEST(ParseDateBytesTest, NulByteIsNoEnd)
{
    EXPECT_EQ(readBack(std::string_view("2026-03-31\0", 11)), "none");
    EXPECT_EQ(readBack(std::string_view("\0", 1)), "none");
}

TEST(ParseDateBytesTest, SurvivesAnyBytes)
{
    const unsigned seed = test::randomSeed();
    SCOPED_TRACE("QNCAL_TEST_SEED=" + std::to_string(seed));
    std::mt19937 random(seed);
    using namespace std::string_view_literals;
    constexpr auto alphabet = "0123456789 :/-,.TaApPmMrJnueFb\0\xFF\xC3"sv;
    for (int i = 0; i < 20000; ++i) {
        std::string text(random() % 24, ' ');
        for (char& c : text)
            c = random() % 8 == 0 ? static_cast<char>(random() % 256) : alphabet[random() % alphabet.size()];
        const auto date = parseDate(text);
        EXPECT_TRUE(!date || date->isInCalendar()) << text;
    }
}

struct PatternRow {
    const char* name;
    const char* pattern;
    bool keepsSeconds;
    bool keepsTime;
    bool keepsDate;
};

class DateRoundTripTest : public testing::TestWithParam<PatternRow> {
protected:
    static Date kept(Date value)
    {
        const CivilTime time = value.civilTime();
        const CivilDate date = GetParam().keepsDate ? value.civilDate() : CivilDate{};
        if (!GetParam().keepsTime)
            return Date::of(date);
        return Date::of(date, {time.hour, time.minute, GetParam().keepsSeconds ? time.second : 0});
    }

    static void expectReadBack(Date value)
    {
        const std::string text = formatDate(value, GetParam().pattern);
        EXPECT_EQ(readBack(text), defaultDateText(kept(value))) << text;
    }
};

TEST_P(DateRoundTripTest, OfNotableMoments)
{
    for (const CivilDate date : {CivilDate{1899, 12, 28},
                                 {1899, 12, 29},
                                 {1899, 12, 30},
                                 {1899, 12, 31},
                                 {1899, 1, 1},
                                 {1900, 1, 1},
                                 {1900, 2, 28},
                                 {1900, 3, 1},
                                 {1999, 12, 31},
                                 {2000, 2, 29},
                                 {2024, 2, 29},
                                 {2026, 12, 31},
                                 {100, 1, 1},
                                 {9999, 12, 31}})
        for (const CivilTime time : {CivilTime{0, 0, 0},
                                     {0, 0, 1},
                                     {0, 59, 59},
                                     {1, 0, 0},
                                     {11, 59, 59},
                                     {12, 0, 0},
                                     {12, 30, 0},
                                     {13, 0, 0},
                                     {23, 59, 59}})
            expectReadBack(Date::of(date, time));
}

TEST_P(DateRoundTripTest, OfRandomMoments)
{
    const unsigned seed = test::randomSeed();
    SCOPED_TRACE("QNCAL_TEST_SEED=" + std::to_string(seed));
    std::mt19937_64 random(seed);
    const Date first = Date::of(100, 1, 1);
    std::uniform_int_distribution<std::int64_t> seconds(first.linearSeconds(), Date::of(9999, 12, 31).linearSeconds());
    for (int i = 0; i < 2000; ++i)
        expectReadBack(Date::fromLinearSeconds(seconds(random)));
}

INSTANTIATE_TEST_SUITE_P(Patterns, DateRoundTripTest,
                         testing::Values(PatternRow{"ShortMonth", "mmm d, yyyy", false, false, true},
                                         PatternRow{"FullMonth", "mmmm d yyyy", false, false, true},
                                         PatternRow{"FullMonthComma", "mmmm d, yyyy", false, false, true},
                                         PatternRow{"LongComma", "dddd, mmmm d yyyy", false, false, true},
                                         PatternRow{"Long", "dddd mmmm d, yyyy", false, false, true},
                                         PatternRow{"Slashed", "m/d/yyyy", false, false, true},
                                         PatternRow{"DayFirst", "d mmm yyyy", false, false, true},
                                         PatternRow{"Iso", "yyyy-mm-dd", false, false, true},
                                         PatternRow{"IsoTime", "yyyy-mm-dd hh:nn:ss", true, true, true},
                                         PatternRow{"IsoT", "yyyy-mm-dd\\Thh:nn:ss", true, true, true},
                                         PatternRow{"DateTime", "mmm d, yyyy h:nn am/pm", false, true, true},
                                         PatternRow{"Time", "h:nn am/pm", false, true, false},
                                         PatternRow{"TimeUpper", "h:nn AM/PM", false, true, false},
                                         PatternRow{"TimeTwoDigits", "hh:nn am/pm", false, true, false},
                                         PatternRow{"TimeSeconds", "h:mm:ss ampm", true, true, false},
                                         PatternRow{"Time24", "hh:nn:ss", true, true, false}),
                         test::rowName);

TEST(DefaultDateTextTest, ReadsBackEverywhere)
{
    for (const Date date : {Date(0), noDate, Date(-1.75), Date::timeOf(23, 59, 59), Date::of(2026, 3, 31, 0, 0, 1)})
        EXPECT_EQ(parseDate(defaultDateText(date)), date) << defaultDateText(date);
}

} // namespace
} // namespace qncal
