#include "MergeEngineTest.h"

#include "controls/Form.h"
#include "controls/controlTargets.h"
#include "templates/dateFormatKeywords.h"
#include "utilities/RunTimeError.h"

namespace qncal::test {
namespace {

/// A rich-text control that keeps what is inserted.
class RecordingRichText : public RichTextTarget {
public:
    Variant caret;
    std::vector<std::pair<std::string, std::int32_t>> inserted;

    Variant SelStart() const override { return caret; }
    void insertText(std::string_view text, std::int32_t position) override { inserted.emplace_back(text, position); }
};

class FieldInsertionTest : public MergeEngineTest {
protected:
    void SetUp() override
    {
        build(8);
        engine.RTB(richText);
    }
    using Inserted = std::vector<std::pair<std::string, std::int32_t>>;
    std::shared_ptr<RecordingRichText> richText = std::make_shared<RecordingRichText>();
};

// --- Properties ---

TEST_F(MergeEngineTest, BeginsWithItsDefaults)
{
    EXPECT_EQ(engine.FieldList()->getCount(), 0);
    EXPECT_EQ(engine.ListType(), 0);
    EXPECT_EQ(engine.MergeFieldListUse(), 1);
    EXPECT_EQ(engine.RTB(), nullptr);
    EXPECT_EQ(engine.ListBox(), nullptr);
    EXPECT_EQ(engine.ListBox2(), nullptr);
    EXPECT_TRUE(engine.ShowListCategoryHeaders());
    EXPECT_EQ(engine.TemplateText(), "");
    EXPECT_FALSE(engine.TestComment());
    EXPECT_TRUE(engine.ConvertStrToRTF());
    EXPECT_FALSE(engine.ConvertCompanyNameToContactNameForContacts());
    for (const std::int32_t id : {engine.companyID(), engine.contactID(), engine.firmID(), engine.userID(),
                                  engine.appointmentID(), engine.docketId(), engine.TaskID()})
        EXPECT_EQ(id, -1);
}

TEST_F(MergeEngineTest, ResetAllItemIDsForgetsTheSevenIds)
{
    engine.companyID(1);
    engine.contactID(2);
    engine.firmID(3);
    engine.userID(4);
    engine.appointmentID(5);
    engine.docketId(6);
    engine.TaskID(7);
    engine.resetAllItemIDs();
    for (const std::int32_t id : {engine.companyID(), engine.contactID(), engine.firmID(), engine.userID(),
                                  engine.appointmentID(), engine.docketId(), engine.TaskID()})
        EXPECT_EQ(id, -1);
}

TEST_F(MergeEngineTest, TerminateClearsAndReleasesTheList)
{
    build(1);
    const std::shared_ptr<FieldListCollection> list = engine.FieldList();
    engine.Terminate();
    EXPECT_EQ(list->getCount(), 0);
    EXPECT_EQ(engine.FieldList(), nullptr);
    engine.Terminate();
}

TEST_F(MergeEngineTest, AfterTerminateTheListIsAnErrorOfEachRoutine)
{
    engine.Terminate();
    bool noListBox = false;
    engine.createDefaultFieldListStructure(noListBox, false);
    EXPECT_EQ(engine.getDBFieldFromListItem(1), "");
    EXPECT_EQ(engine.getDBFieldNameFromDisplayFieldName("Task Name"), "");
    const std::vector<ErrorState> reported = errors->takeErrors();
    ASSERT_EQ(reported.size(), 3u);
    for (const ErrorState& error : reported)
        EXPECT_EQ(error.number, errorNumber::objectNotSet);
}

// --- Picking a field ---

TEST_F(FieldInsertionTest, ADateFieldGivesItsExpressionWithOneFormatWhateverTheField)
{
    const std::int32_t key = keyOf("Task Due Date");
    EXPECT_EQ(engine.getDBFieldFromListItem(key), "(Task Due Date, mmmm d yyyy)");
    EXPECT_EQ(engine.parseListItem(key, false), "(Task Due Date, mmmm d yyyy)");
    EXPECT_EQ(engine.parseListItem(key, true), "«(Task Due Date, mmmm d yyyy)»");
}

TEST_F(FieldInsertionTest, AnyOtherFieldGivesItsNameOrItsColumn)
{
    const std::int32_t key = keyOf("Task Start Time");
    EXPECT_EQ(engine.getDBFieldFromListItem(key), "TimeFrom");
    EXPECT_EQ(engine.parseListItem(key, false), "Task Start Time");
    EXPECT_EQ(engine.parseListItem(key, true), "«Task Start Time»");
}

TEST_F(FieldInsertionTest, ANegativeOrUnknownKeyGivesNothing)
{
    for (const std::int32_t key : {-1, -7, 0, 100000}) {
        EXPECT_EQ(engine.getDBFieldFromListItem(key), "");
        EXPECT_EQ(engine.parseListItem(key, true), "");
    }
}

TEST_F(FieldInsertionTest, AClickInsertsTheFieldAtTheCaret)
{
    richText->caret = 17;
    engine.onListClick(keyOf("Task Name"));
    richText->caret = "5";
    engine.onListClick(keyOf("Date Completed"));
    EXPECT_EQ(richText->inserted, (Inserted{{"«Task Name»", 17}, {"«(Date Completed, mmmm d yyyy)»", 5}}));
}

TEST_F(FieldInsertionTest, WithoutACaretItInsertsAtOne)
{
    const std::int32_t key = keyOf("Task Name");
    engine.onListClick(key);
    richText->caret = "here";
    engine.onListClick(key);
    EXPECT_EQ(richText->inserted, (Inserted{{"«Task Name»", 1}, {"«Task Name»", 1}}));
}

TEST_F(FieldInsertionTest, AClickOnAHeaderInsertsNothing)
{
    engine.onListClick(-1);
    EXPECT_TRUE(richText->inserted.empty());
}

TEST_F(FieldInsertionTest, WithoutARichTextControlAClickIsAnError)
{
    engine.RTB(nullptr);
    engine.onListClick(1);
    const std::vector<ErrorState> reported = errors->takeErrors();
    ASSERT_EQ(reported.size(), 1u);
    EXPECT_EQ(reported[0].number, errorNumber::objectNotSet);
}

TEST_F(FieldInsertionTest, TheControlsOfADialogAreTargets)
{
    Form form("frmTest");
    RichTextBox box(form, "txtApptText");
    box.textRTF("Dear ,");
    box.selStart(5);
    qncal::ListBox list(form, "FieldList");
    engine.RTB(std::make_shared<RichTextBoxTarget>(box));
    engine.ListBox(std::make_shared<RowListTarget>(list));
    build(8);
    ASSERT_GT(list.listCount(), 0);
    EXPECT_EQ(list.rows().front().text, "[Task Info]");
    EXPECT_EQ(list.itemData(0), -1);
    EXPECT_EQ(list.list(1), "Task Name");
    engine.onListClick(list.itemData(1));
    EXPECT_EQ(box.text(), "Dear «Task Name»,");
}

// --- Today's date ---

TEST_F(FieldInsertionTest, TodaysDateTakesTheFormatOfItsIndex)
{
    const std::vector<std::string> keywords{"dddd, mmmm d yyyy",
                                            "dddd mmmm d yyyy",
                                            "mmmm d, yyyy",
                                            "mmmm d yyyy",
                                            "mmm d yyyy",
                                            "dd/mm/yy",
                                            "mm/dd/yy",
                                            "d",
                                            "dddd",
                                            "mmmm",
                                            "mmm",
                                            "yyyy",
                                            "mmmm yyyy",
                                            "mmmm d"};
    for (std::int32_t index = 1; index <= 14; ++index) {
        const std::string expression = "(Todays Date, " + keywords[static_cast<std::size_t>(index - 1)] + ")";
        EXPECT_EQ(engine.insertCurrentDateMergeField(index, false), expression);
        EXPECT_EQ(engine.insertCurrentDateMergeField(index, true), "«" + expression + "»");
    }
}

TEST_F(FieldInsertionTest, AnIndexOutsideTheFormatsGivesAnEmptyFormat)
{
    for (const std::int32_t index : {0, 15, -1})
        EXPECT_EQ(engine.insertCurrentDateMergeField(index, true), "«(Todays Date, )»");
}

TEST_F(FieldInsertionTest, InsertCurrentDateInsertsAtTheCaret)
{
    richText->caret = 3;
    engine.insertCurrentDate(6);
    engine.insertCurrentDate(0);
    EXPECT_EQ(richText->inserted, (Inserted{{"«(Todays Date, dd/mm/yy)»", 3}, {"«(Todays Date, )»", 3}}));
}

TEST_F(FieldInsertionTest, OnlyOneFormatDiffersBetweenFieldsAndTodaysDate)
{
    for (const DateFormatKeyword& format : dateFormatKeywords) {
        EXPECT_EQ(format.todayFormat, format.keyword);
        EXPECT_EQ(format.fieldFormat, format.keyword == "dd/mm/yy" ? "dd/mmm/yy" : format.keyword);
    }
}

// --- Names ---

TEST_F(FieldInsertionTest, NamesAreTranslatedBothWays)
{
    EXPECT_EQ(engine.getDBFieldNameFromDisplayFieldName("task due date"), "DueDate");
    EXPECT_EQ(engine.getDisplayFieldNameFromDBFieldName("duedate"), "Task Due Date");
    EXPECT_EQ(engine.getDBFieldNameFromDisplayFieldName("Nothing"), "Nothing");
    EXPECT_EQ(engine.getDisplayFieldNameFromDBFieldName("Nothing"), "Nothing");
}

TEST_F(FieldInsertionTest, OfTwoFieldsOfOneColumnTheFirstNameIsFound)
{
    EXPECT_EQ(engine.getDisplayFieldNameFromDBFieldName("Subject"), "Task Name");
    EXPECT_EQ(engine.getDisplayFieldNameFromDBFieldName("CompanyName"), "Company Name");
}

TEST_F(FieldInsertionTest, EachRoutineHasItsLabel)
{
    const std::size_t before = errors->labels().size();
    engine.getDBFieldFromListItem(-1);
    engine.parseListItem(-1, true);
    engine.insertCurrentDateMergeField(1, true);
    engine.getDBFieldNameFromDisplayFieldName("x");
    engine.getDisplayFieldNameFromDBFieldName("x");
    engine.onListClick(-1);
    engine.insertCurrentDate(1);
    const std::vector<std::string> labels(errors->labels().begin() + static_cast<std::ptrdiff_t>(before),
                                          errors->labels().end());
    const std::string prefix = "Vestrel.exe-clsInsertFieldsInRTB-";
    EXPECT_EQ(labels, (std::vector<std::string>{prefix + "getDBFieldFromListItem", prefix + "parseListItem",
                                                prefix + "insertCurrentDateMergeField",
                                                prefix + "getDBFieldNameFromDisplayFieldName",
                                                prefix + "getDisplayFieldNameFromDBFieldName", prefix + "onListClick",
                                                prefix + "parseListItem", prefix + "insertCurrentDate",
                                                prefix + "insertCurrentDateMergeField"}));
}

} // namespace
} // namespace qncal::test
