#include "utilities/numberText.h"

#include "support/rowName.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace qncal {
namespace {

constexpr const char* currency = "$#,##0.00;$-#,##0.00";
constexpr const char* whole = "#,##0;-#,##0";

struct FormatRow {
    const char* name;
    double value;
    const char* pattern;
    const char* expected;
};

class FormatNumberTest : public testing::TestWithParam<FormatRow> {};

TEST_P(FormatNumberTest, WritesThePattern)
{
    EXPECT_EQ(formatNumber(GetParam().value, GetParam().pattern), GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(
    Whole, FormatNumberTest,
    testing::Values(FormatRow{"Zero", 0, whole, "0"}, FormatRow{"One", 1, whole, "1"},
                    FormatRow{"Hundreds", 999, whole, "999"}, FormatRow{"Thousands", 1000, whole, "1,000"},
                    FormatRow{"Millions", 1234567, whole, "1,234,567"}, FormatRow{"Negative", -1234, whole, "-1,234"},
                    FormatRow{"HalfUp", 0.5, whole, "1"}, FormatRow{"HalfAwayFromZero", 2.5, whole, "3"},
                    FormatRow{"NegativeHalf", -2.5, whole, "-3"}, FormatRow{"BelowHalf", 0.49, whole, "0"},
                    FormatRow{"NegativeToZero", -0.4, whole, "0"}, FormatRow{"NegativeZero", -0.0, whole, "0"},
                    FormatRow{"CarryIntoGroup", 999.5, whole, "1,000"}, FormatRow{"CarryIntoDigit", 9.5, whole, "10"},
                    FormatRow{"Large", 1e18, whole, "1,000,000,000,000,000,000"}),
    test::rowName);

INSTANTIATE_TEST_SUITE_P(
    Currency, FormatNumberTest,
    testing::Values(
        FormatRow{"Zero", 0, currency, "$0.00"}, FormatRow{"Plain", 12.5, currency, "$12.50"},
        FormatRow{"Negative", -12.5, currency, "$-12.50"}, FormatRow{"Grouped", 1234567.891, currency, "$1,234,567.89"},
        FormatRow{"NegativeGrouped", -1234.5, currency, "$-1,234.50"}, FormatRow{"HalfCent", 2.675, currency, "$2.68"},
        FormatRow{"HalfCentBelow", 1.005, currency, "$1.01"}, FormatRow{"NegativeHalfCent", -2.675, currency, "$-2.68"},
        FormatRow{"CarryThroughPoint", 9.999, currency, "$10.00"},
        FormatRow{"NegativeToZero", -0.004, currency, "$0.00"}, FormatRow{"Cent", 0.01, currency, "$0.01"},
        FormatRow{"SumOfTenths", 0.1 + 0.2, currency, "$0.30"}, FormatRow{"Tiny", 5e-324, currency, "$0.00"}),
    test::rowName);

INSTANTIATE_TEST_SUITE_P(
    Sections, FormatNumberTest,
    testing::Values(FormatRow{"Digit", 7.6, "0", "8"}, FormatRow{"TwoDecimals", 7.6, "0.00", "7.60"},
                    FormatRow{"OneSectionNegative", -7.6, "0.00", "-7.60"},
                    FormatRow{"OneSectionGrouped", -1234.5, "#,##0.00", "-1,234.50"},
                    FormatRow{"OneSectionNegativeToZero", -0.001, "0.00", "0.00"},
                    FormatRow{"LeadingZeros", 7, "000", "007"}, FormatRow{"OptionalDecimals", 7.5, "0.0##", "7.5"},
                    FormatRow{"OptionalDecimalsRounded", 7.12345, "0.0##", "7.123"},
                    FormatRow{"OptionalDecimalsNone", 7, "0.##", "7"}, FormatRow{"OptionalWhole", 0.25, "#.00", ".25"},
                    FormatRow{"ZeroSection", 0, "0;-0;none", "none"},
                    FormatRow{"ZeroSectionRounded", 0.2, "0;-0;none", "none"},
                    FormatRow{"ZeroSectionNotForOthers", -3, "0;-0;none", "-3"}, FormatRow{"Suffix", 3, "0 hr", "3 hr"},
                    FormatRow{"NegativeInBrackets", -3, "0;(0)", "(3)"},
                    FormatRow{"FourthSectionIgnored", 0, "0;-0;z;t", "z"}, FormatRow{"EmptyPattern", 3, "", ""},
                    FormatRow{"WordsForNegative", -3, "0;none", "none"}),
    test::rowName);

TEST(FormatNumberEndsTest, WritesWhatIsNoFiniteNumber)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(formatNumber(infinity, currency), numberText(infinity));
    EXPECT_EQ(formatNumber(std::nan(""), currency), numberText(std::nan("")));
    EXPECT_EQ(formatNumber(std::numeric_limits<double>::max(), "0").size(), 309U);
}

struct TextRow {
    const char* name;
    double value;
    const char* text;
};

class NumberTextTest : public testing::TestWithParam<TextRow> {};

TEST_P(NumberTextTest, WritesTheShortestThatReadsBack)
{
    EXPECT_EQ(numberText(GetParam().value), GetParam().text);
    double value = 0;
    ASSERT_TRUE(parseNumber(GetParam().text, value));
    EXPECT_EQ(value, GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(Numbers, NumberTextTest,
                         testing::Values(TextRow{"Zero", 0, "0"}, TextRow{"NegativeZero", -0.0, "0"},
                                         TextRow{"Negative", -1, "-1"}, TextRow{"Colour", 16777215, "16777215"},
                                         TextRow{"Million", 1000000, "1000000"}, TextRow{"Fraction", 0.1, "0.1"},
                                         TextRow{"Half", -2.5, "-2.5"}, TextRow{"Large", 1e300, "1e+300"}),
                         test::rowName);

struct ParseRow {
    const char* name;
    const char* text;
    double value;
};

class ParseNumberTest : public testing::TestWithParam<ParseRow> {};

TEST_P(ParseNumberTest, Reads)
{
    double value = 99;
    ASSERT_TRUE(parseNumber(GetParam().text, value));
    EXPECT_EQ(value, GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(Texts, ParseNumberTest,
                         testing::Values(ParseRow{"Blanks", " 12 ", 12}, ParseRow{"Plus", "+12", 12},
                                         ParseRow{"Minus", "-12.5", -12.5}, ParseRow{"Exponent", "1e3", 1000},
                                         ParseRow{"NoWhole", ".5", 0.5}, ParseRow{"Grouped", "1,250.5", 1250.5},
                                         ParseRow{"GroupedTwice", "-12,345,678", -12345678},
                                         ParseRow{"GroupedThree", "123,456", 123456}),
                         test::rowName);

class ParseNumberGarbageTest : public testing::TestWithParam<ParseRow> {};

TEST_P(ParseNumberGarbageTest, LeavesTheValue)
{
    double value = 99;
    EXPECT_FALSE(parseNumber(GetParam().text, value));
    EXPECT_EQ(value, 99);
}

INSTANTIATE_TEST_SUITE_P(Texts, ParseNumberGarbageTest,
                         testing::Values(ParseRow{"Empty", "", 0}, ParseRow{"Blank", " ", 0},
                                         ParseRow{"Word", "abc", 0}, ParseRow{"Sign", "-", 0}, ParseRow{"Plus", "+", 0},
                                         ParseRow{"TwoSigns", "+-5", 0}, ParseRow{"Trailing", "12x", 0},
                                         ParseRow{"Inside", "1 2", 0}, ParseRow{"Infinity", "inf", 0},
                                         ParseRow{"NoNumber", "nan", 0}, ParseRow{"TooLarge", "1e999", 0},
                                         ParseRow{"Hex", "0x10", 0}, ParseRow{"CommaFirst", ",123", 0},
                                         ParseRow{"CommaAfterSign", "-,123", 0}, ParseRow{"CommaAlone", ",", 0},
                                         ParseRow{"ShortGroup", "1,25", 0}, ParseRow{"LongGroup", "1,2500", 0},
                                         ParseRow{"LongFirst", "1234,567", 0}, ParseRow{"TwoCommas", "1,,250", 0},
                                         ParseRow{"CommaInDecimals", "1.5,000", 0}, ParseRow{"CommaLast", "1,250,", 0},
                                         ParseRow{"SignInside", "1,-25", 0}),
                         test::rowName);

TEST(OrdinalTextTest, FollowsTheLastDigitsAsSpoken)
{
    const std::pair<std::int32_t, const char*> rows[] = {{0, "0th"},
                                                         {1, "1st"},
                                                         {2, "2nd"},
                                                         {3, "3rd"},
                                                         {4, "4th"},
                                                         {10, "10th"},
                                                         {11, "11th"},
                                                         {12, "12th"},
                                                         {13, "13th"},
                                                         {14, "14th"},
                                                         {20, "20th"},
                                                         {21, "21st"},
                                                         {22, "22nd"},
                                                         {23, "23rd"},
                                                         {31, "31st"},
                                                         {101, "101st"},
                                                         {111, "111th"},
                                                         {112, "112th"},
                                                         {113, "113th"},
                                                         {121, "121st"},
                                                         {365, "365th"},
                                                         {1011, "1011th"},
                                                         {-1, "-1st"},
                                                         {-11, "-11th"},
                                                         {2147483647, "2147483647th"},
                                                         {-2147483647 - 1, "-2147483648th"}};
    for (const auto& [number, text] : rows)
        EXPECT_EQ(ordinalText(number), text);
}

TEST(BooleanTextTest, IsTheWord)
{
    EXPECT_STREQ(booleanText(true), "True");
    EXPECT_STREQ(booleanText(false), "False");
}

} // namespace
} // namespace qncal
