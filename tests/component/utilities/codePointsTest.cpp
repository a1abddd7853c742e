#include "utilities/codePoints.h"

#include "support/rowName.h"

#include <gtest/gtest.h>

#include <string>

namespace qncal {
namespace {

struct Row {
    const char* name;
    std::string text;
    std::size_t count;
};

class CodePointsTest : public testing::TestWithParam<Row> {};

TEST_P(CodePointsTest, CountsCharacters) { EXPECT_EQ(countCodePoints(GetParam().text), GetParam().count); }

TEST_P(CodePointsTest, TruncatesBetweenCharacters)
{
    const auto& row = GetParam();
    for (std::size_t count = 0; count <= row.count; ++count) {
        const auto front = truncatedToCodePoints(row.text, count);
        EXPECT_EQ(countCodePoints(front), count);
        EXPECT_TRUE(row.text.starts_with(front));
        EXPECT_EQ(countCodePoints(std::string_view(row.text).substr(front.size())), row.count - count);
    }
    EXPECT_EQ(truncatedToCodePoints(row.text, row.count + 5), row.text);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, CodePointsTest,
    testing::Values(Row{"Empty", "", 0}, Row{"Ascii", "Meeting", 7}, Row{"TwoBytes", "\xC3\xA9t\xC3\xA9", 3},
                    Row{"ThreeBytes",
                        "\xE2\x82\xAC"
                        "5",
                        2},
                    Row{"FourBytes", "\xF0\x9F\x98\x80!", 2}, Row{"Combining", "e\xCC\x81", 2},
                    Row{"NulByte", std::string("a\0b", 3), 3},
                    Row{"LastOfRanges", "\xED\x9F\xBF\xEF\xBF\xBF\xF4\x8F\xBF\xBF", 3},
                    Row{"StrayContinuation", "\x80\xBFz", 3}, Row{"CutTwoBytes", "\xC3", 1},
                    Row{"CutThreeBytes", "\xE2\x82", 2}, Row{"CutFourBytes", "\xF0\x9F\x98", 3},
                    Row{"LeadThenLetter",
                        "\xE2"
                        "abc",
                        4},
                    Row{"BrokenThirdByte", "\xE2\x82z", 3}, Row{"BrokenFourthByte", "\xF0\x9F\x98z", 4},
                    Row{"OverlongTwo", "\xC0\xAF", 2}, Row{"OverlongThree", "\xE0\x80\xAF", 3},
                    Row{"OverlongFour", "\xF0\x80\x80\xAF", 4}, Row{"Surrogate", "\xED\xA0\x80", 3},
                    Row{"BeyondUnicode", "\xF4\x90\x80\x80", 4}, Row{"InvalidLead", "\xF5\xFE\xFF", 3}),
    test::rowName);

TEST(TruncatedToCodePointsTest, KeepsWholeCharacters)
{
    EXPECT_EQ(truncatedToCodePoints("\xC3\xA9t\xC3\xA9", 1), "\xC3\xA9");
    EXPECT_EQ(truncatedToCodePoints("\xC3\xA9t\xC3\xA9", 2), "\xC3\xA9t");
    EXPECT_EQ(truncatedToCodePoints("a\xF0\x9F\x98\x80", 1), "a");
}

} // namespace
} // namespace qncal
