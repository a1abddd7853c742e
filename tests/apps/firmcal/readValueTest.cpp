#include "firmcal/readValue.h"

#include "common/Failure.h"
#include "common/valueText.h"
#include "utilities/Clock.h"

#include <gtest/gtest.h>

namespace qncal::firmcal {
namespace {

/// A Wednesday.
const Date clock = Date::of(2026, 3, 4, 9, 0, 0);

struct DayCase {
    const char* text;
    const char* day;
};

class ReadDayTest : public testing::TestWithParam<DayCase> {
protected:
    ClockOverride clock_{clock};
};

TEST_P(ReadDayTest, Reads) { EXPECT_EQ(dayText(readDay(GetParam().text)), GetParam().day); }

INSTANTIATE_TEST_SUITE_P(All, ReadDayTest,
                         testing::Values(DayCase{"2026-03-31", "2026-03-31"}, DayCase{"today", "2026-03-04"},
                                         DayCase{" Tomorrow ", "2026-03-05"}, DayCase{"yesterday", "2026-03-03"},
                                         DayCase{"wednesday", "2026-03-04"}, DayCase{"thu", "2026-03-05"},
                                         DayCase{"TUESDAY", "2026-03-10"}, DayCase{"sunday", "2026-03-08"},
                                         DayCase{"+3d", "2026-03-07"}, DayCase{"-1w", "2026-02-25"},
                                         DayCase{"+2m", "2026-05-04"}, DayCase{"+0d", "2026-03-04"},
                                         DayCase{"Mar 31, 2026", "2026-03-31"}));

class RefusedDayTest : public testing::TestWithParam<const char*> {
protected:
    ClockOverride clock_{clock};
};

TEST_P(RefusedDayTest, Refuses) { EXPECT_THROW(readDay(GetParam()), Failure); }

INSTANTIATE_TEST_SUITE_P(All, RefusedDayTest,
                         testing::Values("", "2026-02-30", "2026-13-01", "someday", "+d", "+3x", "++3d", "9:30",
                                         "+99999d", "2026-03-31 09:30", "t"));

TEST(ReadValue, ReadsTimes)
{
    EXPECT_EQ(timeText(readTime("9:30")), "09:30");
    EXPECT_EQ(timeText(readTime("14:05")), "14:05");
    EXPECT_EQ(timeText(readTime("9 pm")), "21:00");
    for (const char* text : {"", "25:00", "noonish", "2026-03-31", "2026-03-31 09:30"})
        EXPECT_THROW(readTime(text), Failure) << text;
}

TEST(ReadValue, ReadsMoments)
{
    EXPECT_EQ(readMoment("2026-03-31"), Date::of(2026, 3, 31));
    EXPECT_EQ(readMoment("2026-03-31T09:30"), Date::of(2026, 3, 31, 9, 30));
    EXPECT_EQ(readMoment("2026-03-31 09:30"), Date::of(2026, 3, 31, 9, 30));
    for (const char* text : {"", "09:30", "tomorrow"})
        EXPECT_THROW(readMoment(text), Failure) << text;
}

TEST(ReadValue, ReadsYesAndNo)
{
    for (const char* text : {"yes", "TRUE", "on", "1"})
        EXPECT_TRUE(readBoolean(text)) << text;
    for (const char* text : {"no", "False", "off", "0"})
        EXPECT_FALSE(readBoolean(text)) << text;
    for (const char* text : {"", "maybe", "-1"})
        EXPECT_THROW(readBoolean(text), Failure) << text;
}

TEST(ReadValue, ReadsWholeNumbers)
{
    EXPECT_EQ(readInteger("-2147483648"), -2147483648);
    EXPECT_EQ(readInteger(" 12 "), 12);
    for (const char* text : {"", "1.5", "2147483648", "12a", "--1"})
        EXPECT_THROW(readInteger(text), Failure) << text;
}

TEST(ReadValue, ReadsHours)
{
    EXPECT_FLOAT_EQ(readHours("1.5"), 1.5F);
    EXPECT_FLOAT_EQ(readHours("1:30"), 1.5F);
    EXPECT_FLOAT_EQ(readHours("0:15"), 0.25F);
    for (const char* text : {"", "0", "-1", "25", "1:60", "0:00", ":30", "one"})
        EXPECT_THROW(readHours(text), Failure) << text;
}

TEST(ReadValue, ReadsAndWritesColours)
{
    EXPECT_EQ(parseColour("#FF8000"), 0x0080FF) << "red stands in the low byte";
    EXPECT_EQ(parseColour("16777215"), 16777215);
    EXPECT_EQ(colourText(parseColour("#12ab9F")), "#12AB9F");
    for (const char* text : {"", "#12", "#GGGGGG", "-1", "16777216", "red"})
        EXPECT_THROW(parseColour(text), Failure) << text;
}

} // namespace
} // namespace qncal::firmcal
