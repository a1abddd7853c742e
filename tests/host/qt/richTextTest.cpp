#include "controls/richTextStream.h"
#include "qt/convert.h"
#include "qt/richTextReader.h"
#include "qt/richTextWriter.h"

#include <gtest/gtest.h>

#include <QTextBlock>
#include <QTextDocument>
#include <QTextList>

#include <array>
#include <random>

namespace qncal::test {
namespace {

using host::readRichText;
using host::visibleText;
using host::writeRichText;

std::string rewritten(std::string_view stream)
{
    QTextDocument document;
    readRichText(stream, document);
    return writeRichText(document);
}

struct StreamCase {
    const char* name;
    std::string stream;
};
void PrintTo(const StreamCase& row, std::ostream* out) { *out << row.stream; }

const std::vector<StreamCase>& streams()
{
    static const std::vector<StreamCase> cases{
        {"Empty", ""},
        {"Plain", "no stream\nat all"},
        {"OfTheComponent", streamAround("Notes: {\\b bold} and not")},
        {"Paragraphs", R"({\rtf1 one\par two\par\par four\par})"},
        {"NoLastParagraphMark", R"({\rtf1 one\par two})"},
        {"Lines", R"({\rtf1 one\line two\line\par three\line})"},
        {"Tabs", R"({\rtf1\pard\tx1440\tx2880 a\tab b\tab c\par})"},
        {"CodePage", R"({\rtf1 caf\'e9 \'80 \'93q\'94\par})"},
        {"UnicodeWithFallback", R"({\rtf1\uc1 \u8364?\u-10179?\u-8704?\par{\uc2\u8364??\uc0\u8364 x}})"},
        {"Utf8Bytes", "{\\rtf1 Zo\xC3\xAB \xE9\\par}"},
        {"FontsAndSizes",
         R"({\rtf1{\fonttbl{\f0 Arial;}{\f1\fswiss Times New Roman;}}\f1\fs28 big\f0\fs17 small\par})"},
        {"Colours", R"({\rtf1{\colortbl ;\red255\green0\blue0;\red0\green0\blue128;}\cf1 red\cf2 blue\cf0 none\par})"},
        {"Styles", R"({\rtf1 \b b\b0 \i i\i0 \ul u\ulnone \strike s\strike0 {\b\i\ul all}none\par})"},
        {"Alignment", R"({\rtf1\pard\qc middle\par\pard\qr right\par\pard\qj both\par\pard left\par})"},
        {"Indents", R"({\rtf1\pard\li720\fi-360\ri300 hanging\par\pard\fi200 first\par})"},
        {"Bullets",
         R"({\rtf1\pard{\pntext\f1\'B7\tab}{\*\pn\pnlvlblt\pnf1\pnindent0{\pntxtb\'B7}}\fi-360\li720 one\par)"
         "\n{\\pntext\\f1\\'B7\\tab}two\\par\\pard three\\par}"},
        {"UnknownDestination", R"({\rtf1{\*\generator Some;}{\info{\author A}}{\pict\wmetafile8 0123abcd}text\par})"},
        {"Escapes", R"({\rtf1 \{a\}\\b\~c\_d\par})"},
        {"Dashes", R"({\rtf1 a\endash b\emdash c\bullet d\lquote e\rquote\par})"},
        {"UnbalancedBraces", R"({\rtf1 a}}}b{{{\b c)"},
        {"HeadersAndFooters", R"({\rtf1{\headerl left}{\headerr right}{\footerf first}text\par})"},
        {"BulletsOfALaterKind", R"({\rtf1\pard{\listtext\f3\'b7\tab}\ls1 one\par\pard two\par})"},
        {"NumbersOfAList", R"({\rtf1\pard{\listtext 1.\tab}\ls1 one\par})"},
        {"BinaryData", "{\\rtf1 a\\bin3 }}}b\\par}"},
    };
    return cases;
}

class RichTextStreamTest : public testing::TestWithParam<StreamCase> {};

TEST_P(RichTextStreamTest, ShowsTheTextThatTheComponentCounts)
{
    QTextDocument document;
    readRichText(GetParam().stream, document);
    EXPECT_EQ(visibleText(document).toStdString(), visibleTextOf(GetParam().stream));
}

TEST_P(RichTextStreamTest, IsWrittenTheSameAfterItsFirstWriting)
{
    const std::string once = rewritten(GetParam().stream);
    EXPECT_EQ(rewritten(once), once);
}

TEST_P(RichTextStreamTest, KeepsItsTextWhenItIsWritten)
{
    EXPECT_EQ(visibleTextOf(rewritten(GetParam().stream)), visibleTextOf(GetParam().stream));
}

INSTANTIATE_TEST_SUITE_P(Streams, RichTextStreamTest, testing::ValuesIn(streams()),
                         [](const auto& test) { return test.param.name; });

struct RichTextReaderTest : testing::Test {
    void read(std::string_view stream) { readRichText(stream, document); }
    /// The format of the character at that position.
    QTextCharFormat at(int position)
    {
        QTextCursor cursor(&document);
        cursor.setPosition(position + 1);
        return cursor.charFormat();
    }
    QTextDocument document;
};

TEST_F(RichTextReaderTest, ReadsFontSizeAndColour)
{
    read(R"({\rtf1{\fonttbl{\f0 Arial;}{\f1 Courier New;}}{\colortbl ;\red255\green128\blue0;}a\f1\fs21\cf1 b\par})");
    EXPECT_FALSE(at(0).hasProperty(QTextFormat::FontPointSize));
    EXPECT_EQ(at(1).fontFamilies().toStringList(), QStringList{"Courier New"});
    EXPECT_EQ(at(1).fontPointSize(), 10.5);
    EXPECT_EQ(at(1).foreground().color(), QColor(255, 128, 0));
}

struct FontTableCase {
    const char* name;
    std::string table;
    const char* font;
};
void PrintTo(const FontTableCase& row, std::ostream* out) { *out << row.table; }

class RichTextFontTableTest : public testing::TestWithParam<FontTableCase> {};

TEST_P(RichTextFontTableTest, NamesTheFontAlone)
{
    const std::string stream = "{\\rtf1\\deff1{\\fonttbl" + GetParam().table + "}\\pard\\f1 x\\par}";
    QTextDocument document;
    readRichText(stream, document);
    QTextCursor cursor(&document);
    cursor.setPosition(1);
    EXPECT_EQ(cursor.charFormat().fontFamilies().toStringList(), QStringList{GetParam().font});
    EXPECT_NE(writeRichText(document).find(std::string(GetParam().font) + ";}"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(
    Tables, RichTextFontTableTest,
    testing::Values(FontTableCase{"Plain", R"({\f0 Arial;}{\f1 Tahoma;})", "Tahoma"},
                    FontTableCase{"WithShape", R"({\f1\froman{\*\panose 02020603050405020304}Times New Roman;})",
                                  "Times New Roman"},
                    FontTableCase{"WithAlternative", R"({\f1 Arial{\*\falt Helvetica};})", "Arial"},
                    FontTableCase{"WithoutGroups", R"(\f0\fnil Arial;\f1\fswiss Verdana;)", "Verdana"},
                    FontTableCase{"Unended", R"({\f0 Arial}{\f1 Georgia})", "Georgia"}),
    [](const auto& test) { return test.param.name; });

TEST_F(RichTextReaderTest, TextThatNamesNoFontHasTheDefaultOne)
{
    read(R"({\rtf1\deff0{\fonttbl{\f0 Arial;}{\f1 Tahoma;}}x\f1 y\plain z\par})");
    EXPECT_EQ(at(0).fontFamilies().toStringList(), QStringList{"Arial"});
    EXPECT_EQ(at(1).fontFamilies().toStringList(), QStringList{"Tahoma"});
    EXPECT_EQ(at(2).fontFamilies().toStringList(), QStringList{"Arial"});
}

TEST_F(RichTextReaderTest, LinesOfEveryShapeUnderline)
{
    for (const char* word : {"ul", "uld", "uldash", "uldb", "ulth", "ulw", "ulwave"}) {
        read(std::string("{\\rtf1 a\\") + word + " b\\ulnone c\\par}");
        EXPECT_TRUE(at(1).fontUnderline()) << word;
        EXPECT_FALSE(at(2).fontUnderline()) << word;
    }
}

TEST_F(RichTextReaderTest, ReadsTheBulletsOfALaterKindAndNoNumbers)
{
    read(R"({\rtf1\pard{\listtext\f3\'b7\tab}\ls1 one\par\pard{\listtext 1.\tab}\ls2 two\par})");
    EXPECT_TRUE(document.firstBlock().textList());
    EXPECT_FALSE(document.lastBlock().textList());
}

TEST_F(RichTextReaderTest, ReadsStylesAndGroupsEndThem)
{
    read(R"({\rtf1 a{\b\i\ul b}c\par})");
    EXPECT_EQ(at(1).fontWeight(), QFont::Bold);
    EXPECT_TRUE(at(1).fontItalic());
    EXPECT_TRUE(at(1).fontUnderline());
    EXPECT_FALSE(at(2).fontItalic());
}

TEST_F(RichTextReaderTest, BlackIsTheInkOfThePaper)
{
    read(R"({\rtf1{\colortbl ;\red0\green0\blue0;}\cf1 a\par})");
    EXPECT_FALSE(at(0).hasProperty(QTextFormat::ForegroundBrush));
}

TEST_F(RichTextReaderTest, ReadsParagraphs)
{
    read(R"({\rtf1\pard\qc\li720\ri300\fi-150\tx1440 a\par\pard b\par})");
    const QTextBlockFormat format = document.firstBlock().blockFormat();
    EXPECT_EQ(format.alignment(), Qt::AlignHCenter);
    EXPECT_EQ(format.leftMargin(), 48);
    EXPECT_EQ(format.rightMargin(), 20);
    EXPECT_EQ(format.textIndent(), -10);
    ASSERT_EQ(format.tabPositions().size(), 1);
    EXPECT_EQ(format.tabPositions().first().position, 96);
    EXPECT_EQ(document.lastBlock().blockFormat().leftMargin(), 0);
    EXPECT_EQ(document.blockCount(), 2);
}

TEST_F(RichTextReaderTest, ReadsBulletsUntilThePardAfterThem)
{
    read(streams()[15].stream);
    ASSERT_EQ(document.blockCount(), 3);
    EXPECT_TRUE(document.firstBlock().textList());
    EXPECT_EQ(document.firstBlock().textList(), document.firstBlock().next().textList());
    EXPECT_FALSE(document.lastBlock().textList());
    EXPECT_EQ(document.firstBlock().text(), "one");
}

TEST_F(RichTextReaderTest, DamagedNumbersStayInsideOfThePaper)
{
    read(R"({\rtf1\pard\li99999999\ri-5\fs99999999\fs0\cf77\f99 a\par})");
    EXPECT_LE(document.firstBlock().blockFormat().leftMargin(), 31680 / 15);
    EXPECT_EQ(document.firstBlock().blockFormat().rightMargin(), 0);
    EXPECT_EQ(visibleText(document), "a");
}

TEST_F(RichTextReaderTest, DeepNestingIsTaken)
{
    std::string stream = "{\\rtf1 a";
    stream.append(200'000, '{').append("b").append(200'000, '}').append("c\\par}");
    read(stream);
    EXPECT_EQ(visibleText(document), "abc");
}

/// Bytes that look like streams reach further than bytes at random.
std::string randomStream(std::mt19937& random)
{
    constexpr std::array<std::string_view, 34> pieces{
        "{",        "}",      "\\par ",  "\\line ",  "\\b",        "\\b0 ",     "\\i ",       "\\ul",    "\\fs",
        "\\f",      "1",      "-",       "99999",    "\\'e9",      "\\'",       "\\u-10179?", "\\u8364", "\\uc2",
        "{\\*\\x ", "\\pard", "\\li720", "\\fi-360", "\\pnlvlblt", "\\pntext ", "{\\fonttbl", "Arial;",  "{\\colortbl",
        ";",        "\\red9", "\\bin4 ", "\\tx500",  "text",       "\r\n",      "\\"};
    std::string stream = "{\\rtf1";
    const int count = std::uniform_int_distribution(0, 60)(random);
    for (int piece = 0; piece < count; ++piece) {
        if (std::uniform_int_distribution(0, 4)(random) == 0)
            stream += static_cast<char>(std::uniform_int_distribution(0, 255)(random));
        else
            stream += pieces[std::uniform_int_distribution<std::size_t>(0, pieces.size() - 1)(random)];
    }
    return stream;
}

TEST(RandomRichTextTest, AnyBytesAreReadAndTheirWritingIsStable)
{
    constexpr int rounds = 2000;
    for (unsigned seed = 1; seed <= rounds; ++seed) {
        std::mt19937 random(seed);
        const std::string stream = randomStream(random);
        const std::string once = rewritten(stream);
        ASSERT_EQ(rewritten(once), once) << "seed " << seed << ": " << testing::PrintToString(stream);
    }
}

} // namespace
} // namespace qncal::test
