#include "icalendar/contentLines.h"

#include <gtest/gtest.h>

#include <sstream>

namespace qncal::host::icalendar {
namespace {

std::vector<CalendarComponent> read(const std::string& text)
{
    std::istringstream in(text);
    return readCalendars(in);
}

std::string faultOf(const std::string& text)
{
    try {
        read(text);
    } catch (const CalendarError& error) {
        return error.what();
    }
    return "none";
}

TEST(ContentLines, ALineHasNameParametersAndValue)
{
    const ContentLine line{"ATTENDEE;CN=\"Singh; Maya: CPA\";ROLE=CHAIR;MEMBER=\"a\",\"b\":mailto:maya@example.com"};
    EXPECT_EQ(line.name(), "ATTENDEE");
    EXPECT_TRUE(line.is("attendee"));
    EXPECT_TRUE(line.hasParameters());
    EXPECT_EQ(line.parameter("cn"), "Singh; Maya: CPA");
    EXPECT_EQ(line.parameter("ROLE"), "CHAIR");
    EXPECT_EQ(line.parameter("MEMBER"), "a");
    EXPECT_EQ(line.parameter("PARTSTAT"), "");
    EXPECT_EQ(line.value(), "mailto:maya@example.com");
}

TEST(ContentLines, ALineWithoutANameIsNoProperty)
{
    EXPECT_EQ(ContentLine{"no property at all"}.name(), "");
    EXPECT_EQ(ContentLine{"two words: and a value"}.name(), "");
    EXPECT_EQ(ContentLine{""}.name(), "");
    EXPECT_EQ(ContentLine{":value"}.name(), "");
    EXPECT_EQ(ContentLine{"X-ODD_NAME:value"}.name(), "X-ODD_NAME");
}

TEST(ContentLines, FoldedLinesAreJoinedAndKeepTheirNumber)
{
    const auto calendars = read("BEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\nSUMMARY:A lo\r\n ng \r\n\tline\r\nUID:1\r\n"
                                "END:VEVENT\r\nEND:VCALENDAR\r\n");
    ASSERT_EQ(calendars.size(), 1U);
    const CalendarComponent& event = calendars[0].children.at(0);
    EXPECT_EQ(event.textOf("summary"), "A long line");
    EXPECT_EQ(event.number, 2);
    EXPECT_EQ(event.find("SUMMARY")->number, 3);
    EXPECT_EQ(event.find("UID")->number, 6);
    EXPECT_EQ(event.find("LOCATION"), nullptr);
}

TEST(ContentLines, ACharacterCutByAFoldIsWhole)
{
    const auto calendars = read("BEGIN:VCALENDAR\nX-NAME:Gr\xC3\n \xB6\xC3\x9F"
                                "e\nEND:VCALENDAR\n");
    EXPECT_EQ(calendars[0].textOf("X-NAME"), "Größe");
}

TEST(ContentLines, BytesThatAreNoUtf8AreLatin1)
{
    const auto calendars = read("\xEF\xBB\xBF"
                                "BEGIN:VCALENDAR\nX-NAME:Caf\xE9 \x01\x7F\nEND:VCALENDAR");
    EXPECT_EQ(calendars[0].textOf("X-NAME"), "Café \x7F");
}

TEST(ContentLines, AComponentGivesItsLinesBack)
{
    const std::vector<std::string> lines{"BEGIN:VEVENT",  "UID:1",      "BEGIN:VALARM",
                                         "TRIGGER:-PT5M", "END:VALARM", "END:VEVENT"};
    EXPECT_EQ(componentOf(lines).text(), lines);
}

TEST(ContentLines, LongLinesAreFoldedBetweenCharacters)
{
    std::string text = "SUMMARY:";
    for (int i = 0; i < 100; ++i)
        text += "ß";
    const std::string folded = foldedLine(text);
    std::istringstream pieces(folded);
    std::string joined;
    for (std::string piece; std::getline(pieces, piece);) {
        ASSERT_TRUE(piece.ends_with('\r'));
        piece.pop_back();
        EXPECT_LE(piece.size(), 75U);
        EXPECT_NE(static_cast<unsigned char>(piece[piece.front() == ' ' ? 1 : 0]) & 0xC0U, 0x80U);
        joined += joined.empty() ? piece : piece.substr(1);
    }
    EXPECT_EQ(joined, text);
    EXPECT_EQ(foldedLine("SUMMARY:short"), "SUMMARY:short\r\n");
}

TEST(ContentLines, TextsAreEscapedAndBack)
{
    const std::string text = "a,b;c\\d\ne:f\"g\th";
    EXPECT_EQ(escapedText(text), "a\\,b\\;c\\\\d\\ne:f\"g\th");
    EXPECT_EQ(unescapedText(escapedText(text)), text);
    EXPECT_EQ(unescapedText("a\\Nb\\"), "a\nb\\");
    EXPECT_EQ(escapedText("a\r\nb\x02"), "a\\nb");
    EXPECT_EQ(fromExactText(exactText("a\r\n\\b\r")), "a\r\n\\b\r");
    EXPECT_EQ(parameterText("Reed, \"Ann\""), "\"Reed, 'Ann'\"");
    EXPECT_EQ(parameterText("Ann Reed"), "Ann Reed");
}

struct Fault {
    const char* name;
    std::string text;
    std::string fault;
};

class CalendarFault : public testing::TestWithParam<Fault> {};

TEST_P(CalendarFault, IsTold) { EXPECT_EQ(faultOf(GetParam().text), GetParam().fault); }

INSTANTIATE_TEST_SUITE_P(
    ContentLines, CalendarFault,
    testing::Values(
        Fault{"Empty", "", "this is no iCalendar file: there is no VCALENDAR in it"},
        Fault{"Garbage",
              std::string("\x7F"
                          "ELF\0\1\2",
                          7),
              "this is no iCalendar file: it does not begin with BEGIN:VCALENDAR"},
        Fault{"AnotherFormat", "<?xml version=\"1.0\"?>\n<a/>\n",
              "this is no iCalendar file: it does not begin with BEGIN:VCALENDAR"},
        Fault{"AnEventAlone", "BEGIN:VEVENT\nEND:VEVENT\n", "this is no iCalendar file: there is no VCALENDAR in it"},
        Fault{"Truncated", "BEGIN:VCALENDAR\nBEGIN:VEVENT\nUID:1\n",
              "the file ends in the middle of the VEVENT that begins at line 2"},
        Fault{"TruncatedBetween", "BEGIN:VCALENDAR\nBEGIN:VEVENT\nEND:VEVENT\n",
              "the file ends in the middle of the VCALENDAR that begins at line 1"},
        Fault{"Crossed", "BEGIN:VCALENDAR\nBEGIN:VEVENT\nEND:VCALENDAR\n", "line 3 ends VCALENDAR, but VEVENT is open"},
        Fault{"EndedTwice", "BEGIN:VCALENDAR\nEND:VCALENDAR\nEND:VCALENDAR\n",
              "line 3 ends VCALENDAR, which was not begun"},
        Fault{"Outside", "BEGIN:VCALENDAR\nEND:VCALENDAR\nUID:1\n", "line 3 stands outside of any calendar"},
        Fault{"TooDeep",
              [] {
                  std::string text = "BEGIN:VCALENDAR\n";
                  for (int i = 0; i < 20; ++i)
                      text += "BEGIN:VEVENT\n";
                  return text;
              }(),
              "line 17 begins a component too deep inside of others"},
        Fault{"HugeLine", "BEGIN:VCALENDAR\nX-A:" + std::string(33U << 20U, 'a') + "\nEND:VCALENDAR\n",
              "line 2 is too long"}),
    [](const auto& row) { return row.param.name; });

} // namespace
} // namespace qncal::host::icalendar
