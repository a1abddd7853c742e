#include "apps/firmcal/CommandLine.h"

#include <nlohmann/json.hpp>

namespace qncal::firmcal::test {
namespace {

using Json = nlohmann::ordered_json;

class ItemTextsTest : public EmptyDatabaseTest {
protected:
    void SetUp() override
    {
        EmptyDatabaseTest::SetUp();
        succeed({"item", "add", "Year end", "--start", "9:30", "--hours", "1.5", "--set", "Custom1=Room 4"});
    }
    void setDisplay(const std::string& text) { succeed({"template", "set", "--text", text}); }
    std::string rendered() { return output({"item", "render", "1", "--display"}); }
};

TEST_F(ItemTextsTest, RendersByTheFirmsTemplates)
{
    EXPECT_EQ(output({"item", "render", "1"}),
              "Title bar\n  (none)\nDisplay text\n  Year end for \n   9:30 am to 11:00 am\n");
    succeed({"template", "set", "--title", "--text", "«Appointment Name»"});
    setDisplay("«(Appointment Date, dddd mmmm d yyyy)»: «Time Duration» in «Custom Appt Field 1»");
    EXPECT_EQ(output({"item", "render", "1"}),
              "Title bar\n  Year end\nDisplay text\n  Monday March 2 2026: 1 hr 30 min in Room 4\n");
    EXPECT_EQ(output({"item", "render", "1", "--title"}), "Year end\n");
    EXPECT_EQ(Json::parse(output({"item", "render", "1", "--json"})),
              Json({{"kind", "appointment"},
                    {"itemID", 1},
                    {"title", "Year end"},
                    {"display", "Monday March 2 2026: 1 hr 30 min in Room 4"}}));
}

TEST_F(ItemTextsTest, TextsBeforeAndAfterStandAroundTheTemplates)
{
    setDisplay("«Appointment Name»");
    succeed({"item", "set", "1", "--set", "BeforeAppointmentText=First", "--set", "AfterAppointmentText=Last"});
    EXPECT_EQ(rendered(), "First\nYear end\nLast\n");
}

TEST_F(ItemTextsTest, AFieldWithoutAValueDisappears)
{
    setDisplay("[«Corporate Name»]");
    EXPECT_EQ(rendered(), "[ ]\n") << "with the blank that ends a control word of rich text";
}

TEST_F(ItemTextsTest, LineBreaksOfAValueReadAsSuch)
{
    succeed({"item", "set", "1", "--set", "Custom1=Room 4\r\nFloor 2"});
    setDisplay("«Custom Appt Field 1»");
    EXPECT_EQ(rendered(), "Room 4\nFloor 2\n");
    EXPECT_EQ(output({"item", "render", "1", "--display", "--rtf"}), "Room 4\\par \r\nFloor 2\n");
}

TEST_F(ItemTextsTest, RichTextIsShownAsItReadsOrAsItIs)
{
    setDisplay("{\\rtf1 \\b \\'abAppointment Name\\'bb\\b0\\par caf\\'e9\\par}");
    EXPECT_EQ(rendered(), "Year end\ncafé\n");
    EXPECT_EQ(output({"item", "render", "1", "--display", "--rtf"}), "{\\rtf1 \\b Year end\\b0\\par caf\\'e9\\par}\n");
}

TEST_F(ItemTextsTest, EachKindHasItsOwnTemplate)
{
    succeed({"item", "add", "File T2", "--kind", "task"});
    succeed({"item", "add", "Bookkeeping", "--kind", "docket"});
    EXPECT_EQ(output({"item", "render", "1", "--kind", "task", "--display"}), "File T2 for \n 9:00 am to 10:00 am\n");
    EXPECT_EQ(output({"item", "render", "1", "--kind", "docket", "--display"}),
              "9:00 am to 10:00 am\n \n Bookkeeping\n");
}

TEST_F(ItemTextsTest, TheAgendaShowsTheTexts)
{
    succeed({"template", "set", "--title", "--text", "«Appointment Name»"});
    setDisplay("«Appointment Start Time»\n\nin «Custom Appt Field 1»");
    EXPECT_EQ(output({"agenda", "--texts"}),
              "Monday, March 2, 2026\n  09:30-11:00  appointment  1  Year end, 9:30 am, in Room 4\n");
    const Json agenda = Json::parse(output({"agenda", "--texts", "--json"}));
    ASSERT_EQ(agenda.size(), 1u);
    EXPECT_EQ(agenda[0]["title"], "Year end");
    EXPECT_EQ(agenda[0]["display"], "9:30 am\n\nin Room 4");
    EXPECT_FALSE(Json::parse(output({"agenda", "--json"}))[0].contains("display"));
}

} // namespace
} // namespace qncal::firmcal::test
