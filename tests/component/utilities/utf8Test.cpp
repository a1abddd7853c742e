#include "utilities/utf8.h"

#include <gtest/gtest.h>

namespace qncal {
namespace {

TEST(Utf8Test, EveryCodePointReadsBack)
{
    for (char32_t codePoint = 0; codePoint <= 0x10FFFF; ++codePoint) {
        if (codePoint == 0xD800)
            codePoint = 0xE000; // surrogates are no characters
        std::string text;
        appendUtf8(text, codePoint);
        const auto character = decodeUtf8(text);
        ASSERT_TRUE(character.valid) << static_cast<std::uint32_t>(codePoint);
        ASSERT_EQ(character.codePoint, codePoint);
        ASSERT_EQ(character.length, text.size());
    }
}

TEST(Utf8Test, LengthGrowsAtTheEndsOfTheRanges)
{
    const std::pair<char32_t, std::size_t> rows[] = {{0x7F, 1},   {0x80, 2},    {0x7FF, 2},   {0x800, 3},
                                                     {0xFFFF, 3}, {0x10000, 4}, {0x10FFFF, 4}};
    for (const auto& [codePoint, length] : rows) {
        std::string text;
        appendUtf8(text, codePoint);
        EXPECT_EQ(text.size(), length) << static_cast<std::uint32_t>(codePoint);
    }
}

TEST(Utf8Test, ReadsTheFirstCharacterAlone)
{
    const auto character = decodeUtf8("\xE2\x82\xAC\xC3");
    EXPECT_TRUE(character.valid);
    EXPECT_EQ(character.codePoint, U'\u20AC');
    EXPECT_EQ(character.length, 3U);
}

TEST(Utf8Test, MalformedByteIsACharacterOfItsOwn)
{
    for (const char* text :
         {"\x80", "\xBF", "\xC0\xAF", "\xC1\xBF", "\xC3", "\xC3z", "\xE2\x82", "\xE2\x82z", "\xE0\x80\xAF",
          "\xE0\x9F\xBF", "\xED\xA0\x80", "\xED\xBF\xBF", "\xF0\x9F\x98", "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80",
          "\xF5\x80\x80\x80", "\xF8\x88\x80\x80\x80", "\xFE", "\xFF"}) {
        const auto character = decodeUtf8(text);
        EXPECT_FALSE(character.valid) << testing::PrintToString(std::string(text));
        EXPECT_EQ(character.length, 1U);
        EXPECT_EQ(character.codePoint, static_cast<unsigned char>(*text));
    }
}

} // namespace
} // namespace qncal
