#include "icalendar/notesBlock.h"

#include "controls/richTextStream.h"

#include <gtest/gtest.h>

namespace qncal::host::icalendar {
namespace {

const std::vector<std::string> kept{"UID:1@example.com", "LOCATION:Büro {2}\\, \"Süd\"", "BEGIN:VALARM",
                                    "TRIGGER:-PT25M", "END:VALARM"};

TEST(NotesBlock, TextAndLinesComeBack)
{
    for (const char* text : {"", "One line", "Two\nlines", "Ends with a line\n", "\n\nBlank lines\n\n"}) {
        for (const char* below : {"", "A word of mine\nor two"}) {
            const std::string richText = notesRichText({.text = text, .kept = kept, .below = below});
            const ItemNotes notes = readNotes(richText);
            EXPECT_EQ(notes.text, text);
            EXPECT_EQ(notes.kept, kept);
            EXPECT_EQ(notes.below, below);
            EXPECT_EQ(notes.formatted, "") << text;
            EXPECT_EQ(notesRichText(notes), richText);
        }
    }
}

TEST(NotesBlock, NotesWithoutABlockHaveTheirTextAlone)
{
    const ItemNotes notes = readNotes(streamAround(escapedForStream("Mine\nalone")));
    EXPECT_EQ(notes.text, "Mine\nalone");
    EXPECT_TRUE(notes.kept.empty());
    EXPECT_EQ(notes.formatted, "");
    EXPECT_EQ(notesRichText({}), "");
}

TEST(NotesBlock, FormatsStayAroundABlock)
{
    const std::string formatted = streamAround("Bring \\b both\\b0  slips.\\par\r\nThanks");
    const std::string richText = notesRichText({.text = {}, .kept = kept, .below = {}, .formatted = formatted});
    const ItemNotes notes = readNotes(richText);
    EXPECT_EQ(notes.text, "Bring both slips.\nThanks");
    EXPECT_EQ(notes.kept, kept);
    EXPECT_EQ(notes.formatted, formatted);
    EXPECT_EQ(notesRichText(notes), richText);
}

TEST(NotesBlock, PlainTextIsReadToo)
{
    const ItemNotes notes = readNotes("Text\n\n--- iCalendar ---\nUID:1\n--- end of iCalendar ---");
    EXPECT_EQ(notes.text, "Text");
    EXPECT_EQ(notes.kept, std::vector<std::string>{"UID:1"});
}

TEST(NotesBlock, ABlockThatLostItsEndIsReadToTheEnd)
{
    const ItemNotes notes = readNotes("Text\n\n--- iCalendar ---\nUID:1\nBEGIN:VALARM\nTRIGGER:-PT5M");
    EXPECT_EQ(notes.kept.size(), 3U);
    const CalendarComponent component = keptComponent(notes);
    EXPECT_EQ(component.textOf("UID"), "1");
    EXPECT_EQ(component.textOf("TRIGGER"), "-PT5M");
    EXPECT_TRUE(component.children.empty());
}

TEST(NotesBlock, KeptLinesAreAComponent)
{
    const CalendarComponent component = keptComponent({.text = {}, .kept = kept});
    EXPECT_EQ(component.textOf("UID"), "1@example.com");
    ASSERT_EQ(component.children.size(), 1U);
    EXPECT_EQ(component.children[0].textOf("TRIGGER"), "-PT25M");
}

} // namespace
} // namespace qncal::host::icalendar
