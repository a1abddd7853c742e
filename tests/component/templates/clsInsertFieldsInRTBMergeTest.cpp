#include "component/templates/SampleMergeTest.h"
#include "component/templates/randomTemplate.h"
#include "support/randomSeed.h"
#include "support/rowName.h"
#include "templates/dateFormatKeywords.h"

namespace qncal::test {

namespace {

class MergeTest : public SampleMergeTest {
protected:
    MergeTest()
    {
        addField("Company Name", "Maple Leaf");
        addField("City", "Guelph");
        addField("Empty", "");
        addField("Due", "2026-03-07", MergeDataType::date);
    }
};

} // namespace

// --- Expressions ---

TEST_F(MergeTest, CopiesWhatIsNoExpression)
{
    EXPECT_EQ(merged("no field, 100% (a, d) \\par"), "no field, 100% (a, d) \\par");
}

TEST_F(MergeTest, MatchesNamesWithoutRegardToCase) { EXPECT_EQ(merged("«COMPANY name»"), "Maple Leaf"); }

TEST_F(MergeTest, ToleratesNoBlanksWithinTheDelimiters) { EXPECT_EQ(merged("[« City »]"), "[]"); }

TEST_F(MergeTest, ReplacesEveryOccurrence) { EXPECT_EQ(mergedPlain("«City»/«city»/«CITY»"), "Guelph/Guelph/Guelph"); }

TEST_F(MergeTest, MergesRichExpressions) { EXPECT_EQ(merged("\\b \\'abCity\\'bb"), "\\b Guelph"); }

TEST_F(MergeTest, MatchesTheRichDelimitersWithoutRegardToCase) { EXPECT_EQ(merged("\\'ABCity\\'Bb"), "Guelph"); }

TEST_F(MergeTest, MergesTheLegacyDelimiters) { EXPECT_EQ(merged("<<City>>"), "Guelph"); }

TEST_F(MergeTest, RichExpressionsAreNotMergedBesidePlainOnes)
{
    EXPECT_EQ(merged("«City» \\'abCompany Name\\'bb"), "Guelph \\'abCompany Name\\'bb");
    EXPECT_EQ(merged("«City»«Unknown» \\'abCompany Name\\'bb"), "Guelph \\'abCompany Name\\'bb");
}

TEST_F(MergeTest, RemovedPlainExpressionLeavesUnknownRichOnes)
{
    EXPECT_EQ(merged("«Unknown» \\'abUnknown\\'bb"), " \\'abUnknown\\'bb");
}

TEST_F(MergeTest, UnknownPlainExpressionLetsRichOnesBeMerged)
{
    EXPECT_EQ(merged("«Unknown» \\'abCity\\'bb"), " Guelph");
}

TEST_F(MergeTest, TodaysDateLetsRichExpressionsBeMerged)
{
    EXPECT_EQ(merged("«(Todays Date, yyyy)» \\'abCity\\'bb"), "2026 Guelph");
}

TEST_F(MergeTest, TodaysDateIsMergedInItsRichForm) { EXPECT_EQ(merged("\\'ab(TODAYS date, d)\\'bb"), "31"); }

TEST_F(MergeTest, BlankIsNeededAfterTheCommaOfADate)
{
    EXPECT_EQ(merged("[«(Due, d)»]"), "[ 7]");
    EXPECT_EQ(merged("[«(Due,d)»]"), "[]");
}

TEST_F(MergeTest, KeywordMatchesWithoutRegardToCase) { EXPECT_EQ(merged("«(Due, MMMM D YYYY)»"), "March 7 2026"); }

TEST_F(MergeTest, DateFieldWithoutAFormatMergesToNothing) { EXPECT_EQ(merged("[«Due»]"), "[]"); }

TEST_F(MergeTest, FormatOnAFieldThatIsNoDateMergesToNothing)
{
    EXPECT_EQ(merged("[«(Company Name, mmmm d yyyy)»]"), "[]");
}

TEST_F(MergeTest, UnknownFieldLeavesTheTextAroundItTouching) { EXPECT_EQ(merged("ab«Nobody»cd"), "abcd"); }

TEST_F(MergeTest, WordDocketBecomesTimeEntryAnywhere)
{
    EXPECT_EQ(merged("Dockets, DOCKET"), "Time Entrys, Time Entry");
}

// --- Order of the list ---

TEST_F(SampleMergeTest, ExpressionInAValueIsMergedByALaterRowAlone)
{
    addField("First", "1");
    addField("Second", "«First»«Third»");
    addField("Third", "3");
    EXPECT_EQ(mergedPlain("«Second»"), "3");
}

TEST_F(SampleMergeTest, FirstOfTwoRowsOfOneNameServes)
{
    addField("Twice", "first");
    addField("Twice", "second");
    EXPECT_EQ(merged("«Twice»"), "first");
}

TEST_F(SampleMergeTest, NameBecomesCompleteWhenAFieldWithinItIsMerged)
{
    addField("Part", "any");
    addField("Company Name", "Maple Leaf");
    EXPECT_EQ(mergedPlain("«Comp«Part» Name»"), "Maple Leaf");
}

TEST_F(SampleMergeTest, NameWithADelimiterInItIsMerged)
{
    addField("A»«B", "both");
    EXPECT_EQ(merged("«A»«B»"), "both");
}

// --- The blank before a value ---

struct BlankRow {
    const char* name;
    const char* text;
    const char* result;
};

class BlankBeforeTest : public SampleMergeTestWith<BlankRow> {};

TEST_P(BlankBeforeTest, FollowsTheFirstOccurrence)
{
    addField("City", "Guelph");
    addField("Empty", "");
    EXPECT_EQ(merged(GetParam().text), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(Rows, BlankBeforeTest,
                         testing::Values(BlankRow{"AtTheBeginning", "«City»,«City»", "Guelph,Guelph"},
                                         BlankRow{"AfterABlank", "in «City»,«City»", "in Guelph,Guelph"},
                                         BlankRow{"AfterAControlWord", "\\b«City» «City»", "\\b Guelph  Guelph"},
                                         BlankRow{"EmptyValueLeavesTheBlank", "a«Empty»b", "a b"},
                                         BlankRow{"BehindAnExpressionOfALaterRow", "«Empty»«City»", " Guelph"},
                                         BlankRow{"BeforeAnEmptyOne", "«City»«Empty»", "Guelph "}),
                         rowName);

TEST_F(MergeTest, PlainTextNeedsNoBlank) { EXPECT_EQ(mergedPlain("a«City»"), "aGuelph"); }

TEST_F(MergeTest, ReplaceTextAnswersFalseAndChangesTheText)
{
    std::string text = "x\\b«City»";
    EXPECT_FALSE(engine.replaceText(text, "«CITY»", "Guelph"));
    EXPECT_EQ(text, "x\\b Guelph");
}

TEST_F(MergeTest, ReplaceTextLeavesTheRichFormOfWhatItDoesNotFind)
{
    std::string text = "\\'abCity\\'bb";
    EXPECT_FALSE(engine.replaceText(text, "«City»", "Guelph"));
    EXPECT_EQ(text, "\\'abCity\\'bb");
}

TEST_F(MergeTest, ReplaceTextWithNothingToFindChangesNothing)
{
    std::string text = "abc";
    engine.replaceText(text, "", "x");
    EXPECT_EQ(text, "abc");
}

// --- Dates ---

struct DateRow {
    const char* name;
    const char* keyword;
    const char* ofField;
    const char* ofToday;
};

class DateFormatTest : public SampleMergeTestWith<DateRow> {
protected:
    DateFormatTest()
    {
        addField("Due", "2026-03-07", MergeDataType::date);
        moveClockTo(Date::of(2026, 3, 7, 16, 20));
    }
    std::string expression(const std::string& name) const { return "«(" + name + ", " + GetParam().keyword + ")»"; }
};

TEST_P(DateFormatTest, WritesADateField) { EXPECT_EQ(merged(expression("Due")), GetParam().ofField); }

TEST_P(DateFormatTest, WritesTodaysDate) { EXPECT_EQ(merged(expression("Todays Date")), GetParam().ofToday); }

TEST_P(DateFormatTest, PassesTheCheck) { EXPECT_FALSE(engine.testRTBComment(expression("Due"), false, true, false)); }

INSTANTIATE_TEST_SUITE_P(
    Rows, DateFormatTest,
    testing::Values(DateRow{"LongWithComma", "dddd, mmmm d yyyy", "Saturday, March 7 2026", "Saturday, March 7 2026"},
                    DateRow{"Long", "dddd mmmm d yyyy", "Saturday March 7 2026", "Saturday March 7 2026"},
                    DateRow{"FullMonthWithComma", "mmmm d, yyyy", "March 7, 2026", "March 7, 2026"},
                    DateRow{"FullMonth", "mmmm d yyyy", "March 7 2026", "March 7 2026"},
                    DateRow{"ShortMonth", "mmm d yyyy", "Mar 7 2026", "Mar 7 2026"},
                    DateRow{"DayFirstDiffers", "dd/mm/yy", "07/Mar/26", "07/03/26"},
                    DateRow{"MonthFirst", "mm/dd/yy", "03/07/26", "03/07/26"}, DateRow{"DayAlone", "d", "7", "7"},
                    DateRow{"WeekdayAlone", "dddd", "Saturday", "Saturday"},
                    DateRow{"MonthAlone", "mmmm", "March", "March"}, DateRow{"ShortMonthAlone", "mmm", "Mar", "Mar"},
                    DateRow{"YearAlone", "yyyy", "2026", "2026"},
                    DateRow{"MonthAndYear", "mmmm yyyy", "March 2026", "March 2026"},
                    DateRow{"MonthAndDay", "mmmm d", "March 7", "March 7"}),
    rowName);

TEST_F(MergeTest, TodaysDateTakesAnyPairOfDelimiters)
{
    EXPECT_EQ(engine.parseTodaysDateInRTBComment("[[(todays date, MMMM)]]", "[[", "]]"), "March");
}

// --- Company and contact ---

struct ExchangeRow {
    const char* name;
    std::int32_t companyID;
    std::int32_t contactID;
    const char* text;
    const char* result;
};

class ContactForCompanyTest : public SampleMergeTestWith<ExchangeRow> {};

TEST_P(ContactForCompanyTest, AsksForTheContactsName)
{
    addField("Company Name", "Maple Leaf");
    addField("Contact Display Name", "Ann Reed");
    engine.ConvertCompanyNameToContactNameForContacts(true);
    engine.companyID(GetParam().companyID);
    engine.contactID(GetParam().contactID);
    EXPECT_EQ(mergedPlain(GetParam().text), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ContactForCompanyTest,
    testing::Values(ExchangeRow{"ContactAlone", -1, 1, "«company name»«Company Name»", "Ann ReedAnn Reed"},
                    ExchangeRow{"CompanyZeroCountsAsNone", 0, 1, "«Company Name»", "Ann Reed"},
                    ExchangeRow{"WithACompany", 1, 1, "«Company Name»", "Maple Leaf"},
                    ExchangeRow{"ContactZeroIsNone", -1, 0, "«Company Name»", "Maple Leaf"},
                    ExchangeRow{"BothNamesStand", -1, 1, "«Company Name»«Contact Display Name»", "Maple LeafAnn Reed"},
                    ExchangeRow{"RichForm", -1, 1, "\\'abCompany Name\\'bb", "Ann Reed"},
                    ExchangeRow{"RichFormOfBoth", -1, 1, "\\'abCompany Name\\'bb\\'abContact Display Name\\'bb",
                                "Maple LeafAnn Reed"},
                    ExchangeRow{"PlainFormGoesFirst", -1, 1, "«Company Name»«?»\\'abCompany Name\\'bb",
                                "Ann Reed\\'abCompany Name\\'bb"}),
    rowName);

// --- Small routines ---

TEST_F(MergeEngineTest, BlankLinesAreNotRemoved)
{
    EXPECT_EQ(engine.removeBlankLinesFromRTFText("a\\par \r\n\\par \r\nb"), "a\\par \r\n\\par \r\nb");
}

TEST_F(MergeEngineTest, FieldNameIsConvertedToItsRichForm)
{
    EXPECT_EQ(engine.convertFieldName("«(A, d)» «"), "\\'ab(A, d)\\'bb \\'ab");
}

TEST_F(MergeEngineTest, NothingIsBlankedWhileTheListIsEmpty)
{
    std::string text = "«A»";
    EXPECT_FALSE(engine.replaceUnfoundMergeFieldsWithBlanks(text));
    EXPECT_EQ(text, "«A»");
}

struct BlankingRow {
    const char* name;
    const char* text;
    const char* result;
};

class BlankingTest : public SampleMergeTestWith<BlankingRow> {};

TEST_P(BlankingTest, RemovesWhatIsLeft)
{
    addField("X", "x");
    std::string text = GetParam().text;
    EXPECT_FALSE(engine.replaceUnfoundMergeFieldsWithBlanks(text));
    EXPECT_EQ(text, GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BlankingTest,
    testing::Values(BlankingRow{"EveryOne", "a«A»b«B»c«A»d", "abcd"}, BlankingRow{"EmptyOne", "a«»b", "ab"},
                    BlankingRow{"FromTheFirstOpening", "a«A«B»c", "ac"}, BlankingRow{"ClosingAloneStays", "a»b", "a»b"},
                    BlankingRow{"OpeningAloneStays", "«a", "«a"},
                    BlankingRow{"RestBehindAnUnclosedOneStays", "«A»b«c", "b«c"},
                    BlankingRow{"RichOnes", "a\\'abA\\'bbb\\'ABB\\'BBc", "abc"},
                    BlankingRow{"RichOnesStayBehindAPlainOne", "«A»\\'abA\\'bb", "\\'abA\\'bb"},
                    BlankingRow{"RichOnesGoWherePlainOnesAreUnclosed", "«\\'abA\\'bb", "«"},
                    // The inner «A» goes together with the first one, so that the outer opening finds the next end.
                    BlankingRow{"SamePieceWithinAnother", "«A»x««A»»y", "xy"}),
    rowName);

// --- Any bytes ---

TEST_F(MergeTest, MergesRandomTemplatesAsThePlainRulesDo)
{
    const unsigned seed = randomSeed();
    RandomTemplate random(seed);
    for (int run = 0; run < 5000; ++run) {
        const auto fields = random.fields();
        std::vector<std::string> values;
        engine.FieldList()->clearRows();
        for (const PlainField& field : fields) {
            values.push_back(field.isDate ? "2026-03-07" : random.text(fields, 3));
            addField(field.name, values.back(), field.isDate ? MergeDataType::date : MergeDataType::text);
        }
        const bool richText = random.oneIn(2);
        engine.ConvertStrToRTF(richText);
        const std::string text = random.text(fields, 14);
        std::string expected = engine.convertProvinceFields(text);
        const bool plainOnesMerged =
            plainMerge(expected, fields, richText, today(), [&](std::size_t i, const std::string& format) {
                engine.TestComment(true);
                return std::optional(engine.getDataFieldInfo(static_cast<std::int32_t>(i) + 1, format));
            });
        plainBlanking(expected, plainOnesMerged);
        ASSERT_EQ(merged(text), expected) << "seed " << seed << ", run " << run << ", template " << text;
    }
}

TEST_F(MergeTest, TakesAnyBytes)
{
    const unsigned seed = randomSeed();
    RandomTemplate random(seed);
    for (int run = 0; run < 2000; ++run) {
        std::string bytes;
        for (int length = random.below(60); length > 0; --length)
            bytes += static_cast<char>(random.below(256));
        merged(bytes);
        engine.testRTBComment(bytes, false, true, true);
        engine.testRTBComment(bytes, true, true, true);
    }
    // A bracket without a comma is the one error that a check reports.
    for (const ErrorState& error : errors->takeErrors())
        EXPECT_EQ(error.number, 9) << "seed " << seed;
}

struct LongRow {
    const char* name;
    const char* before;
    const char* repeated;
    const char* after;
    const char* beginning; ///< of the merged text
};

class LongTemplateTest : public SampleMergeTestWith<LongRow> {};

/// A megabyte each; a walk that starts again for each piece would not end in the time that a test has.
TEST_P(LongTemplateTest, IsMergedToTheEnd)
{
    addField("City", "Guelph");
    addField("Nest", "«City»");
    std::string text = GetParam().before;
    while (text.size() < 1000000)
        text += GetParam().repeated;
    text += GetParam().after;
    engine.testRTBComment(text, false, false, true);
    EXPECT_TRUE(merged(text).starts_with(GetParam().beginning));
}

INSTANTIATE_TEST_SUITE_P(Rows, LongTemplateTest,
                         testing::Values(LongRow{"Openings", "", "«", "", "««««««««"},
                                         LongRow{"Closings", "", "»", "", "»»»»»»»»"},
                                         LongRow{"Expressions", "", "«City»", "", "GuelphGuelphGuelph"},
                                         LongRow{"UnknownExpressions", "x", "«Q»", "y", "xy"},
                                         LongRow{"OpeningsAndOneEnd", "x", "«", "City»", "x"},
                                         LongRow{"NestedExpressions", "«Q»", "««Q»", "", "««««««««"},
                                         LongRow{"RichOpenings", "", "\\'ab", "", "\\'ab\\'ab\\'ab"},
                                         LongRow{"LegacyOpenings", "", "<<", "", "««««««««"}),
                         rowName);

} // namespace qncal::test
