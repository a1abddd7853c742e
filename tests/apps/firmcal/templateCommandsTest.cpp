#include "apps/firmcal/CommandLine.h"

#include "support/rowName.h"

#include <nlohmann/json.hpp>

#include <fstream>

namespace qncal::firmcal::test {
namespace {

using Json = nlohmann::ordered_json;

class TemplateCommandsTest : public EmptyDatabaseTest {
protected:
    std::string fileWith(const std::string& text) const
    {
        const std::filesystem::path file = folder() / "template.txt";
        std::ofstream(file, std::ios::binary) << text;
        return file.string();
    }
    std::string errorOf(const std::vector<std::string>& arguments) const
    {
        const Outcome outcome = run(arguments);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.out, "");
        return outcome.err;
    }
    Json storedTemplates(const std::string& kind = "appointment") const
    {
        return Json::parse(output({"template", "show", "--kind", kind, "--json"}));
    }
};

TEST_F(TemplateCommandsTest, TheFieldsOfTimeEntries)
{
    expectGolden("template-fields-docket.txt", output({"template", "fields", "--kind", "docket"}));
}

TEST_F(TemplateCommandsTest, FieldsByNameAreThoseOfTheRegion)
{
    const std::string quebec = output({"template", "fields", "--kind", "company", "--province", "QC", "tax"});
    EXPECT_EQ(quebec, "Field                       Type  Sample           Category\n"
                      "--------------------------  ----  ---------------  ----------\n"
                      "«Federal Corp. Tax Number»  text  123456789RC0001  ClientInfo\n"
                      "«Que. Corp. Tax Number»     text  1234567          ClientInfo\n");
    const std::string american = output({"template", "fields", "--country", "US", "zip"});
    EXPECT_NE(american.find("«Zip Code»"), std::string::npos) << american;
    EXPECT_EQ(errorOf({"template", "fields", "zip"}), "firmcal: no field has 'zip' in its name\n");
}

TEST_F(TemplateCommandsTest, FieldsAsJsonHaveAllThatTheCatalogueKnows)
{
    const Json fields = Json::parse(output({"template", "fields", "--kind", "task", "Task Due", "--json"}));
    ASSERT_EQ(fields.size(), 1u);
    EXPECT_EQ(fields[0], Json::parse(R"({"name": "Task Due Date", "expression": "«(Task Due Date, mmmm d yyyy)»",
        "type": "date", "sample": "Apr 30, 2026", "category": "TaskInfo", "databaseField": "DueDate",
        "maximumLength": -1, "heading": "Task Info"})"));
}

TEST_F(TemplateCommandsTest, CustomFieldsHaveTheFirmsOwnNames)
{
    succeed({"demo", (folder() / "demo.db").string(), "--items", "0"});
    const std::string fields =
        output({"template", "fields", "Location", "--database", (folder() / "demo.db").string()});
    EXPECT_NE(fields.find("«Location»"), std::string::npos) << fields;
}

struct Fault {
    const char* name;
    const char* text;
    const char* message;
};

void PrintTo(const Fault& fault, std::ostream* out) { *out << fault.name; }

class TemplateFaultTest : public TemplateCommandsTest, public testing::WithParamInterface<Fault> {};

TEST_P(TemplateFaultTest, IsToldAndKeepsTheTemplateFromBeingStored)
{
    const std::string expected = std::string("firmcal: ") + GetParam().message + "\n";
    EXPECT_EQ(errorOf({"template", "check", "--text", GetParam().text}), expected);
    EXPECT_EQ(errorOf({"template", "test", "--text", GetParam().text}), expected);
    const Json before = storedTemplates();
    EXPECT_EQ(errorOf({"template", "set", "--text", GetParam().text}), expected);
    EXPECT_EQ(errorOf({"template", "set", "--title", "--text", GetParam().text}), expected);
    EXPECT_EQ(storedTemplates(), before);
}

INSTANTIATE_TEST_SUITE_P(
    All, TemplateFaultTest,
    testing::Values(
        Fault{"OpeningDelimiterMissing", "Company Name» «Client ID»",
              "You are missing your opening brackets, '«' in one of your expressions"},
        Fault{"ClosingDelimiterMissingAtTheEnd", "«Company Name",
              "You are missing your opening brackets, '«' in one of your expressions"},
        Fault{"ClosingRoundBracketMissing", "«(Appointment Date, mmm d yyyy»",
              "You are missing the closing round bracket, ')' in one of your date expressions"},
        Fault{"OpeningRoundBracketMissing", "«Appointment Date, mmm d yyyy)»",
              "You are missing the opening round bracket, '(' in one of your date expressions"},
        Fault{"DateFormatUnknown", "«(Appointment Date, d of mmmm)»",
              "The date format of: 'd of mmmm' is not valid.  Please see help for valid date formats."},
        Fault{"DateFormatInCapitals", "«(Appointment Date, MMMM D YYYY)»",
              "The date format of: 'MMMM D YYYY' is not valid.  Please see help for valid date formats."},
        Fault{"DateFormatMissing", "«(Appointment Date)»",
              "a date expression lacks its format, as in «(Todays Date, mmmm d yyyy)»"},
        Fault{"TooLong", "«Company Name and much more that no field is called»",
              "You are missing a closing bracket, '»' in one of your expressions.  Make sure you have a bracket "
              "immediately before and after a field.  eg. «Company Name»"},
        Fault{"FieldUnknown", "«Company Name» «Compny Name»",
              "The firmcal Pad did not recognize: «Compny Name» as a valid placeholder field name."},
        Fault{"FieldOfAnotherKind", "«Task Name»",
              "The firmcal Pad did not recognize: «Task Name» as a valid placeholder field name."},
        Fault{"FieldOfAnotherCountry", "«Sellers Permit Number»",
              "The firmcal Pad did not recognize: «Sellers Permit Number» as a valid placeholder field name."},
        Fault{"Nothing", "«»", "The firmcal Pad did not recognize: «» as a valid placeholder field name."}),
    qncal::test::rowName);

TEST_F(TemplateCommandsTest, ChecksAFileStandardInputAndTheFirmsOwnTemplate)
{
    const std::string clean = "The template is clean.\n";
    EXPECT_EQ(output({"template", "check", fileWith("«Company Name»\n")}), clean);
    EXPECT_EQ(runAtTerminal({"template", "check", "-"}, "«Company Name»\n").out, clean);
    EXPECT_EQ(output({"template", "check"}), clean);
    EXPECT_EQ(output({"template", "check", "--text", ""}), clean);
    EXPECT_EQ(output({"template", "check", "--kind", "TASK", "--text", "«Task Name»"}), clean);
}

TEST_F(TemplateCommandsTest, ChecksRichTextByItsOwnDelimiters)
{
    EXPECT_EQ(output({"template", "check", fileWith("{\\rtf1 \\'abCompany Name\\'bb}")}), "The template is clean.\n");
    EXPECT_EQ(errorOf({"template", "check", fileWith("{\\rtf1 \\'abCompny Name\\'bb}")}),
              "firmcal: The firmcal Pad did not recognize: «Compny Name» as a valid placeholder field name.\n");
}

TEST_F(TemplateCommandsTest, AFieldWhoseNameEndsInARoundBracketIsTakenForADate)
{
    const std::string text = "«Time From (Actual Time)»";
    EXPECT_EQ(errorOf({"template", "check", "--kind", "docket", "--text", text}),
              "firmcal: You are missing the opening round bracket, '(' in one of your date expressions\n");
}

TEST_F(TemplateCommandsTest, CheckAsJson)
{
    EXPECT_EQ(Json::parse(output({"template", "check", "--json"})), Json({{"clean", true}}));
    const Outcome outcome = run({"template", "check", "--text", "«x»", "--json"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(Json::parse(outcome.out),
              Json({{"clean", false},
                    {"message", "The firmcal Pad did not recognize: «x» as a valid placeholder field name."}}));
}

TEST_F(TemplateCommandsTest, MergesTheDefaultTemplatesWithSampleValues)
{
    // The blank in front of a field that does not follow one ends a control word of rich text.
    EXPECT_EQ(output({"template", "test"}), "Year end meeting for Maple Leaf Bakery Ltd.\n 9:00 am to 10:30 am\n");
    EXPECT_EQ(output({"template", "test", "--kind", "task"}),
              "Prepare sales tax return for Maple Leaf Bakery Ltd.\n 1:00 pm to 3:00 pm\n");
    EXPECT_EQ(output({"template", "test", "--kind", "docket"}),
              "9:00 am to 11:30 am\n Maple Leaf Bakery Ltd.\n Bookkeeping\n");
}

TEST_F(TemplateCommandsTest, MergesRichTextAsItReadsOrAsItIs)
{
    const std::string file = fileWith("{\\rtf1 \\b \\'abAppointment Name\\'bb\\b0\\par on "
                                      "\\'ab(Appointment Date, mmm d yyyy)\\'bb\\par}");
    EXPECT_EQ(output({"template", "test", file}), "Year end meeting\non Mar 15 2026\n");
    EXPECT_EQ(output({"template", "test", file, "--rtf"}),
              "{\\rtf1 \\b Year end meeting\\b0\\par on Mar 15 2026\\par}\n");
    EXPECT_EQ(Json::parse(output({"template", "test", file, "--json"})),
              Json({{"text", "Year end meeting\non Mar 15 2026"}}));
}

TEST_F(TemplateCommandsTest, LettersHaveTheirOwnFields)
{
    EXPECT_EQ(output({"template", "test", "--kind", "address", "--text", "«Contact Home City»"}), "Springfield\n");
    const Outcome outcome = run({"template", "test", "--kind", "contact"});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.err, "firmcal: the firm keeps no template of that kind; give one as FILE or --text; "
                           "see 'firmcal template test --help'\n");
}

struct Keyword {
    const char* name;
    const char* keyword;
    const char* todaysDate;
    const char* fieldDate;
};

void PrintTo(const Keyword& keyword, std::ostream* out) { *out << keyword.keyword; }

class DateFormatTest : public TemplateCommandsTest, public testing::WithParamInterface<Keyword> {};

/// The table of docs/template-language.md.
TEST_P(DateFormatTest, WritesTodaysDateAndAFieldsDate)
{
    const std::string keyword = GetParam().keyword;
    const auto merged = [&](const std::string& field) {
        return output({"template", "test", "--now", "2026-03-07", "--text", "«(" + field + ", " + keyword + ")»"});
    };
    EXPECT_EQ(merged("Todays Date"), std::string(GetParam().todaysDate) + "\n");
    EXPECT_EQ(merged("Appointment Date"), std::string(GetParam().fieldDate) + "\n");
}

INSTANTIATE_TEST_SUITE_P(
    All, DateFormatTest,
    testing::Values(Keyword{"WeekdayCommaFull", "dddd, mmmm d yyyy", "Saturday, March 7 2026", "Sunday, March 15 2026"},
                    Keyword{"WeekdayFull", "dddd mmmm d yyyy", "Saturday March 7 2026", "Sunday March 15 2026"},
                    Keyword{"FullComma", "mmmm d, yyyy", "March 7, 2026", "March 15, 2026"},
                    Keyword{"Full", "mmmm d yyyy", "March 7 2026", "March 15 2026"},
                    Keyword{"Short", "mmm d yyyy", "Mar 7 2026", "Mar 15 2026"},
                    Keyword{"DayFirst", "dd/mm/yy", "07/03/26", "15/Mar/26"},
                    Keyword{"MonthFirst", "mm/dd/yy", "03/07/26", "03/15/26"}, Keyword{"Day", "d", "7", "15"},
                    Keyword{"Weekday", "dddd", "Saturday", "Sunday"}, Keyword{"Month", "mmmm", "March", "March"},
                    Keyword{"ShortMonth", "mmm", "Mar", "Mar"}, Keyword{"Year", "yyyy", "2026", "2026"},
                    Keyword{"MonthYear", "mmmm yyyy", "March 2026", "March 2026"},
                    Keyword{"MonthDay", "mmmm d", "March 7", "March 15"}),
    qncal::test::rowName);

TEST_F(TemplateCommandsTest, StoresShowsAndResetsADisplayTemplate)
{
    EXPECT_EQ(output({"template", "show"}), "Title bar\n  (none)\nDisplay text\n"
                                            "  «Appointment Name» for «Company Name»\n"
                                            "  «Appointment Start Time» to «Appointment End Time»\n");
    const std::string defaultText = output({"template", "show", "--display"});
    EXPECT_EQ(output({"template", "set", fileWith("«Company Name»:\n«Appointment Name»\n")}),
              "Stored the display template of every appointment.\n");
    EXPECT_EQ(storedTemplates()["display"], "«Company Name»:\r\n«Appointment Name»") << "line ends as the editor's";
    EXPECT_EQ(output({"template", "show"}),
              "Title bar\n  (none)\nDisplay text\n  «Company Name»:\n  «Appointment Name»\n");
    EXPECT_NE(storedTemplates("task")["display"], storedTemplates()["display"]);
    EXPECT_EQ(output({"template", "reset"}), "Every appointment has the default templates again.\n");
    EXPECT_EQ(output({"template", "show", "--display"}), defaultText);
}

TEST_F(TemplateCommandsTest, WhatShowPrintsCanBeSetAgain)
{
    const Json before = storedTemplates("docket");
    succeed({"template", "set", "--kind", "docket",
             fileWith(output({"template", "show", "--kind", "docket", "--display"}))});
    EXPECT_EQ(storedTemplates("docket"), before);
}

TEST_F(TemplateCommandsTest, TitleAndDisplayAreStoredAndResetEachByItself)
{
    EXPECT_EQ(output({"template", "set", "--kind", "task", "--title", "--text", "«Company Name»"}),
              "Stored the title bar template of every task.\n");
    succeed({"template", "set", "--kind", "task", "--text", "«Task Name»"});
    EXPECT_EQ(storedTemplates("task"),
              Json({{"kind", "task"}, {"title", "«Company Name»"}, {"display", "«Task Name»"}}));
    EXPECT_EQ(output({"template", "reset", "--kind", "task", "--title"}),
              "Every task has the default title bar template again.\n");
    EXPECT_EQ(storedTemplates("task"), Json({{"kind", "task"}, {"title", ""}, {"display", "«Task Name»"}}));
    EXPECT_EQ(output({"template", "reset", "--kind", "task", "--display"}),
              "Every task has the default display template again.\n");
    EXPECT_EQ(rows("SELECT * FROM UserCalendarSettings WHERE UserIDNum=-1").find('\n') + 1,
              rows("SELECT * FROM UserCalendarSettings").size())
        << "one row holds them all";
}

TEST_F(TemplateCommandsTest, DoubleAngleBracketsStandForTheDelimiters)
{
    succeed({"template", "set", "--title", "--text", "<<Company Name>>"});
    EXPECT_EQ(storedTemplates()["title"], "«Company Name»");
}

TEST_F(TemplateCommandsTest, ARichTemplateIsStoredAsItIsAndShownAsItReads)
{
    const std::string rich = "{\\rtf1 \\b \\'abCompany Name\\'bb\\b0\\par}\n";
    succeed({"template", "set", fileWith(rich)});
    EXPECT_EQ(storedTemplates()["display"], rich);
    EXPECT_EQ(output({"template", "show"}), "Title bar\n  (none)\nDisplay text\n  «Company Name»\n");
}

TEST_F(TemplateCommandsTest, AFileFromAnotherSystemIsTakenWithItsMarkAndLineEnds)
{
    succeed({"template", "set", fileWith("\xEF\xBB\xBF«Company Name»\r\nand\r\n")});
    EXPECT_EQ(storedTemplates()["display"], "«Company Name»\r\nand");
}

TEST_F(TemplateCommandsTest, BytesThatAreNoTextAreRefused)
{
    EXPECT_EQ(errorOf({"template", "set",
                       fileWith("\xAB"
                                "Company Name\xBB")}),
              "firmcal: the template is neither UTF-8 text nor rich text\n");
    EXPECT_EQ(errorOf({"template", "check", (folder() / "nowhere.txt").string()}),
              "firmcal: cannot read " + (folder() / "nowhere.txt").string() + "\n");
    EXPECT_EQ(errorOf({"template", "check", folder().string()}), "firmcal: cannot read " + folder().string() + "\n");
}

} // namespace
} // namespace qncal::firmcal::test
