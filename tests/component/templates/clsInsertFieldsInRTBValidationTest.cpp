#include "component/templates/SampleMergeTest.h"
#include "support/rowName.h"

namespace qncal::test {

namespace {

constexpr const char* missingOpening = "You are missing your opening brackets, '«' in one of your expressions";
constexpr const char* missingClosingRound =
    "You are missing the closing round bracket, ')' in one of your date expressions";
constexpr const char* missingOpeningRound =
    "You are missing the opening round bracket, '(' in one of your date expressions";
constexpr const char* missingClosing =
    "You are missing a closing bracket, '»' in one of your expressions.  Make sure you have a bracket immediately "
    "before and after a field.\r\n\r\neg. «Company Name»";

std::string unknownFormat(const std::string& format)
{
    return "The date format of: '" + format + "' is not valid.  Please see help for valid date formats.";
}

std::string unknownName(const std::string& name)
{
    return "The FirmCal Pad did not recognize: «" + name + "» as a valid placeholder field name.";
}

const std::string fortyCharacters = "Forty characters long, counted with é.  ";
const std::string fortyOneCharacters = fortyCharacters + "+";

struct FaultRow {
    const char* name;
    std::string text;
    std::string message; ///< empty for a clean template
    bool isRichText = false;
};

class ValidationTest : public SampleMergeTestWith<FaultRow> {
protected:
    ValidationTest()
    {
        addField("Company Name", "");
        addField("Task Due Date", "", MergeDataType::date);
        addField(fortyCharacters, "");
        addField(fortyOneCharacters, "");
        engine.testErrorComment.subscribe([this](const std::string& text) { raised.push_back(text); });
    }
    std::vector<std::string> raised;
};

} // namespace

TEST_P(ValidationTest, TellsTheFirstFault)
{
    const bool fault = engine.testRTBComment(GetParam().text, GetParam().isRichText, true, false);
    EXPECT_EQ(fault, !GetParam().message.empty());
    EXPECT_EQ(raised, fault ? std::vector<std::string>{GetParam().message} : std::vector<std::string>{});
}

TEST_P(ValidationTest, KeepsQuietWhenAskedTo)
{
    const bool fault = engine.testRTBComment(GetParam().text, GetParam().isRichText, false, false);
    EXPECT_EQ(fault, !GetParam().message.empty());
    EXPECT_TRUE(raised.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ValidationTest,
    testing::Values(FaultRow{"NoExpression", "no expression", ""}, FaultRow{"KnownName", "for «company name» only", ""},
                    FaultRow{"KnownNameRich", "\\b \\'abCompany Name\\'bb", "", true},
                    FaultRow{"PlainExpressionsOfARichTemplateAreText", "«Nobody»", "", true},
                    FaultRow{"TodaysDate", "«(Todays Date, d)»", ""},
                    FaultRow{"TodaysDateWithoutAFormat", "«todays DATE»", ""}, FaultRow{"ClosingAlone", "a » b", ""},
                    FaultRow{"ClosingBeforeTheFirstOpening", "» «Company Name»", missingOpening},
                    FaultRow{"OpeningAlone", "a « b", missingOpening},
                    FaultRow{"ClosingBeforeALaterOpening", "«Company Name» » «Company Name»", missingOpening},
                    FaultRow{"OpeningAloneLater", "«Company Name» «", missingOpening},
                    FaultRow{"OpeningAloneRich", "\\'ab", missingOpening, true},
                    FaultRow{"ClosingRoundBracketMissing", "«(Task Due Date, d»", missingClosingRound},
                    FaultRow{"RoundBracketAlone", "«(»", missingClosingRound},
                    FaultRow{"OpeningRoundBracketMissing", "«Task Due Date, d)»", missingOpeningRound},
                    FaultRow{"BlankAfterTheCommaMayLack", "«(Task Due Date,mmmm d yyyy)»", ""},
                    FaultRow{"BlanksAroundBothPartsAreTrimmed", "«( Task Due Date ,  d )»", ""},
                    FaultRow{"FormatKeepsItsOwnComma", "«(Task Due Date, dddd, mmmm d yyyy)»", ""},
                    FaultRow{"FormatInCapitals", "«(Task Due Date, MMMM D YYYY)»", unknownFormat("MMMM D YYYY")},
                    FaultRow{"FormatUnknown", "«(Task Due Date,yy)»", unknownFormat("yy")},
                    FaultRow{"FormatIsTrimmed", "«(Task Due Date,  yy )»", unknownFormat("yy")},
                    FaultRow{"FormatEmpty", "«(Task Due Date,)»", unknownFormat("")},
                    FaultRow{"DateFieldWithoutAFormat", "«Task Due Date»", ""},
                    FaultRow{"FormatOnAFieldThatIsNoDate", "«(Company Name, mmmm d yyyy)»", ""},
                    FaultRow{"FortyCharacters", "«" + fortyCharacters + "»", ""},
                    FaultRow{"FortyOneCharacters", "«" + fortyOneCharacters + "»", missingClosing},
                    FaultRow{"LengthOfADateIsThatOfItsName",
                             "«(Task Due Date,                        dddd, mmmm d yyyy)»", ""},
                    FaultRow{"NameUnknown", "«Nobody»", unknownName("Nobody")},
                    FaultRow{"NameUnknownRich", "\\'abNobody\\'bb", unknownName("Nobody"), true},
                    FaultRow{"NameOfADateUnknown", "«(Nobody, d)»", unknownName("Nobody")},
                    FaultRow{"NameEmpty", "«»", unknownName("")},
                    FaultRow{"OnlyTheFirstFault", "«Nobody» «Nothing» »", unknownName("Nobody")},
                    FaultRow{"LegacyNameIsConvertedFirst", "<<(due date, d)>>", ""}),
    rowName);

TEST_F(SampleMergeTest, NamesNeedNotBeChecked)
{
    EXPECT_FALSE(engine.testRTBComment("«» «Nobody»", false, true, true));
    EXPECT_TRUE(engine.testRTBComment("«(Nobody, yy)»", false, true, true));
}

TEST_F(SampleMergeTest, CheckBuildsNoList)
{
    engine.companyID(1);
    EXPECT_TRUE(engine.testRTBComment("«Company Name»", false, true, false));
    EXPECT_EQ(engine.FieldList()->getCount(), 0);
}

TEST_F(SampleMergeTest, DateWithoutACommaIsAnErrorAndAFault)
{
    EXPECT_TRUE(engine.testRTBComment("«(Task Due Date)»", false, true, true));
    const auto reported = errors->takeErrors();
    ASSERT_EQ(reported.size(), 1u);
    EXPECT_EQ(reported[0].number, 9);
}

TEST_F(SampleMergeTest, ProductWordComesFromTheHost)
{
    locale->product = "Ledger";
    std::string raised;
    engine.testErrorComment.subscribe([&](const std::string& text) { raised = text; });
    engine.testRTBComment("«Nobody»", false, true, false);
    EXPECT_EQ(raised, "The Ledger Pad did not recognize: «Nobody» as a valid placeholder field name.");
}

TEST_F(SampleMergeTest, NameIsLegalWhenTheListHasIt)
{
    addField("City", "");
    EXPECT_TRUE(engine.testStr("city"));
    EXPECT_TRUE(engine.testStr("Todays Date"));
    EXPECT_FALSE(engine.testStr("Cit"));
    EXPECT_FALSE(engine.testStr(""));
}

} // namespace qncal::test
