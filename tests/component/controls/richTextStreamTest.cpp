#include "controls/richTextStream.h"

#include "controls/Form.h"
#include "controls/RichTextBox.h"

#include <gtest/gtest.h>

#include <random>

namespace qncal {
namespace {

struct StreamCase {
    const char* name;
    std::string stream;
    std::string visible;
};

class VisibleText : public testing::TestWithParam<StreamCase> {};

TEST_P(VisibleText, IsWhatAReaderSees) { EXPECT_EQ(visibleTextOf(GetParam().stream), GetParam().visible); }

INSTANTIATE_TEST_SUITE_P(
    Streams, VisibleText,
    testing::Values(StreamCase{"PlainTextAsItIs", "no {stream} \\here", "no {stream} \\here"},
                    StreamCase{"Formats", "{\\rtf1 a\\b bold\\b0  c}", "abold c"},
                    StreamCase{"Paragraphs", "{\\rtf1 one\\par two\\line three\\par\r\n}", "one\ntwo\nthree"},
                    StreamCase{"FontTableIsHidden", "{\\rtf1{\\fonttbl{\\f0 Arial;}}x}", "x"},
                    StreamCase{"UnknownDestinationIsHidden", "{\\rtf1{\\*\\generator Some writer;}x}", "x"},
                    StreamCase{"CodePageEscapes", "{\\rtf1 \\'abName\\'bb \\'80}", "«Name» €"},
                    StreamCase{"UnicodeWithFallback", "{\\rtf1\\uc1 \\u233?t\\u233?}", "été"},
                    StreamCase{"NegativeUnicode", "{\\rtf1 \\u-4051?}", "\uF02D"},
                    StreamCase{"SurrogatePair", "{\\rtf1 \\u-10179?\\u-8704?}", "😀"},
                    StreamCase{"LoneSurrogate", "{\\rtf1 \\u-8704?x}", "\uFFFDx"},
                    StreamCase{"RawUtf8", "{\\rtf1 Müller «x»}", "Müller «x»"},
                    StreamCase{"RawCodePageByte", "{\\rtf1 caf\xE9}", "café"},
                    StreamCase{"BulletsAreNoText", "{\\rtf1{\\pntext\\'b7\\tab}one{\\listtext 2.\\tab}two}", "onetwo"},
                    StreamCase{"EscapedBraces", "{\\rtf1 \\{a\\\\b\\}}", "{a\\b}"},
                    StreamCase{"CutShort", "{\\rtf1 a\\'4", "a4"},
                    StreamCase{"UnbalancedBraces", "{\\rtf1 a}}b}", "ab"}),
    [](const auto& streamCase) { return streamCase.param.name; });

TEST(RichTextStream, EscapedTextReadsBackTheSame)
{
    const std::string text = "Naïve \\ {brace}\ttab «field» € 😀\nline two";
    EXPECT_EQ(visibleTextOf(streamAround(escapedForStream(text))), text);
}

TEST(RichTextStream, GroupsDeeperThanAnybodyWritesThemAreTaken)
{
    constexpr std::size_t depth = 100'000;
    EXPECT_EQ(visibleTextOf("{\\rtf1 a" + std::string(depth, '{') + "b" + std::string(depth, '}') + "c}"), "abc");
}

TEST(RichTextStream, AnyBytesAreTaken)
{
    const unsigned seed = std::random_device{}();
    SCOPED_TRACE("seed " + std::to_string(seed));
    std::mt19937 random(seed);
    const std::string alphabet = "{}\\'*\r\n uparbin0129-fab\xC3\xA9\xFF";
    for (int round = 0; round < 5000; ++round) {
        std::string stream = "{\\rtf1 ";
        for (int i = 0; i < 60; ++i)
            stream += alphabet[random() % alphabet.size()];
        const std::string visible = visibleTextOf(stream);
        const std::size_t offset = streamOffsetOf(stream, static_cast<std::int32_t>(random() % 40));
        EXPECT_LE(offset, stream.size());
        EXPECT_LE(visible.size(), stream.size() * 3);
    }
}

TEST(RichTextBox, InsertsAtThePositionOfTheVisibleText)
{
    Form form("frmTest");
    RichTextBox box(form, "rtbNotes");
    box.textRTF("{\\rtf1{\\fonttbl{\\f0 Arial;}}\\f0 Dear \\b you\\b0 ,\\par\r\n}");
    ASSERT_EQ(box.text(), "Dear you,");
    box.insertText(5, "«Name» ");
    EXPECT_EQ(box.text(), "Dear «Name» you,");
    EXPECT_EQ(box.selStart(), 12);
    box.insertText(999, "!");
    EXPECT_EQ(visibleTextOf(box.textRTF()), "Dear «Name» you,\n!");
}

TEST(RichTextBox, InsertsIntoAPlainText)
{
    Form form("frmTest");
    RichTextBox box(form, "rtbNotes");
    box.textRTF("äb");
    box.insertText(1, "{x}");
    EXPECT_EQ(box.textRTF(), "ä{x}b");
}

} // namespace
} // namespace qncal
