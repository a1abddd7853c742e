#include "store/dateStorage.h"
#include "store/dialect/LikePattern.h"
#include "store/dialect/shape.h"

#include "utilities/RunTimeError.h"

#include <gtest/gtest.h>

#include <string>

namespace qncal::host::dialect {
namespace {

struct PatternRow {
    const char* pattern;
    const char* text;
    bool matches;
    const char* reason;
};

TEST(LikePattern, MatchesAsTheDialectDoes)
{
    const PatternRow rows[] = {
        {"", "", true, "nothing matches nothing"},
        {"", "a", false, "and no more"},
        {"abc", "ABC", true, "letters match without regard to case"},
        {"%b%", "abc", true, "contains"},
        {"*b*", "abc", true, "the other sign for any text"},
        {"%", "", true, "any text may be empty"},
        {"a%c", "abcabc", true, "the last c counts too"},
        {"a%c", "abcab", false, "the end must match"},
        {"%ab%cd%", "xabxcdx", true, "several any texts"},
        {"%ab%cd%", "xcdxab", false, "in their order"},
        {"a_c", "abc", true, "one character"},
        {"a?c", "ac", false, "exactly one"},
        {"a_c",
         "a\xC3\xA9"
         "c",
         true, "a character of two bytes is one"},
        {"[a-c]x", "Bx", true, "a span of letters"},
        {"[a-c]x", "dx", false, "outside of the span"},
        {"[!a-c]x", "dx", true, "an excluded span"},
        {"[!a-c]x", "bx", false, "inside of an excluded span"},
        {"100[%]", "100%", true, "a sign in brackets is itself"},
        {"100[%]", "1000", false, "and nothing else"},
        {"a[[]b", "a[b", true, "the bracket itself"},
        {"a[b", "a[b", true, "a bracket that is not closed is itself"},
    };
    for (const PatternRow& row : rows)
        EXPECT_EQ(LikePattern(row.pattern).matches(row.text), row.matches) << row.pattern << ": " << row.reason;
}

TEST(LikePattern, ALongTextWithManyAnyTextsIsSoonDone)
{
    EXPECT_FALSE(LikePattern("%a%a%a%a%a%a%a%a%a%a%b").matches(std::string(5000, 'a')));
}

struct DateRow {
    const char* text;
    const char* storage; ///< empty for a text that is no date
};

TEST(DateStorage, ReadsWhatComesFromOutside)
{
    const DateRow rows[] = {
        {"2026-03-31", "2026-03-31"},
        {"2026-03-31 09:30:00", "2026-03-31 09:30:00"},
        {"2026-03-31 00:00:00", "2026-03-31"},
        {"3/31/2026", "2026-03-31"},
        {"3/31/2026 9:30 PM", "2026-03-31 21:30:00"},
        {" 2026-03-31 ", "2026-03-31"},
        {"March 31, 2026", "2026-03-31"},
        {"Mar 31, 2026", "2026-03-31"},
        {"1899-01-01", "1899-01-01"},
        {"9:30:00 AM", "1899-12-30 09:30:00"},
        {"12:00:00 AM", "1899-12-30"},
        {"12:00:00 pm", "1899-12-30 12:00:00"},
        {"2026-02-29", ""},
        {"2026-13-01", ""},
        {"24:00:00", ""},
        {"13:00 PM", ""},
        {"2026-03-31x", ""},
        {"", ""},
        {"soon", ""},
    };
    for (const DateRow& row : rows) {
        std::string storage;
        if (const auto date = readDateText(row.text))
            appendDateStorage(*date, storage);
        EXPECT_EQ(storage, row.storage) << row.text;
    }
}

std::string shapeOf(const char* sql)
{
    ShapedText text;
    text.read(sql);
    return text.shape();
}

TEST(ShapedText, TextsThatDifferInLiteralsOnlyHaveOneShape)
{
    const std::string shape = shapeOf("SELECT * FROM T WHERE A=1 AND B='x' AND C=#2026-03-31#");
    EXPECT_EQ(shape, shapeOf("SELECT *  FROM T\nWHERE A = 23.5 AND B='it''s' AND C=#9:00:00 AM#"));
    EXPECT_NE(shape, shapeOf("SELECT * FROM T WHERE A=1 AND B='x' AND C=5"));
    EXPECT_NE(shape, shapeOf("SELECT * FROM T WHERE A=1 AND B='x'"));
    EXPECT_NE(shapeOf("SELECT [a b] FROM T"), shapeOf("SELECT a b FROM T"));
}

TEST(ShapedText, KeepsTheLiteralsInTheirOrder)
{
    ShapedText text;
    text.read("A=1 AND B='it''s \"x\"' AND C=2.5 AND D=#2026-03-31# AND E=12345678901");
    ASSERT_EQ(text.literals().size(), 5U);
    EXPECT_EQ(text.literals()[0].integer, 1);
    EXPECT_EQ(text.literals()[1].text, "it's \"x\"");
    EXPECT_EQ(text.literals()[2].real, 2.5);
    EXPECT_EQ(text.literals()[3].date, Date::of(2026, 3, 31));
    EXPECT_EQ(text.literals()[4].integer, 12345678901);
    text.read("A=2");
    ASSERT_EQ(text.literals().size(), 1U);
    EXPECT_EQ(text.literals()[0].integer, 2);
}

} // namespace
} // namespace qncal::host::dialect
