#include "utilities/text.h"

#include <gtest/gtest.h>

#include <map>

namespace qncal {
namespace {

TEST(TextTest, LowersAsciiLettersAlone)
{
    EXPECT_EQ(lowerAscii("ABCxyz@[`{09"), "abcxyz@[`{09");
    EXPECT_EQ(lowerAscii("\xC3\x89T\xC3\x89"), "\xC3\x89t\xC3\x89");
}

TEST(TextTest, ComparesWithoutCase)
{
    EXPECT_TRUE(equalsNoCase("CompanyName", "COMPANYNAME"));
    EXPECT_TRUE(equalsNoCase("", ""));
    EXPECT_FALSE(equalsNoCase("Company", "CompanyName"));
    EXPECT_FALSE(equalsNoCase("\xC3\x89", "\xC3\xA9"));
    EXPECT_EQ(compareNoCase("abc", "ABC"), 0);
    EXPECT_LT(compareNoCase("abc", "ABD"), 0);
    EXPECT_GT(compareNoCase("b", "ABC"), 0);
    EXPECT_LT(compareNoCase("ab", "ABC"), 0);
    EXPECT_GT(compareNoCase("abc", ""), 0);
    EXPECT_GT(compareNoCase("\xC3", "z"), 0) << "bytes above ASCII come behind it";
    EXPECT_LT(compareNoCase("_", "A"), 0) << "letters are ordered as small ones";
}

TEST(TextTest, TrimsBlanksOfAllKinds)
{
    EXPECT_EQ(trimmed(" \t\r\n a b \v\f"), "a b");
    EXPECT_EQ(trimmed("ab"), "ab");
    EXPECT_EQ(trimmed("  "), "");
    EXPECT_EQ(trimmed(""), "");
}

TEST(TextTest, KeysOfMapsMatchWithoutCase)
{
    std::map<std::string, int, LessNoCase> map{{"Subject", 1}};
    EXPECT_EQ(map.count("SUBJECT"), 1U);
    EXPECT_EQ(map.count(std::string_view("subject")), 1U);
    EXPECT_FALSE(map.emplace("subJect", 2).second);
    EXPECT_EQ(map.count("Subjec"), 0U);
}

} // namespace
} // namespace qncal
