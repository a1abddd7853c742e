#include "core/clsCalendarItemType.h"

#include "support/ComponentTest.h"
#include "support/RecordingDatabase.h"
#include "utilities/RunTimeError.h"

namespace qncal {
namespace {

struct KindRow {
    enumLocalCalendarItemType kind;
    const char* tableName;
    const char* fieldName;
    const char* typeName;
    const char* tableText;
    const char* defaultTemplate;
};

const KindRow kindRows[] = {
    {enumLocalCalendarAppointmentItem, "Appointments", "AppointmentID", "appointment", "Appt",
     "«Appointment Name» for «Company Name»\r\n«Appointment Start Time» to «Appointment End Time»"},
    {enumLocalCalendarTaskItem, "Tasks", "TaskID", "task", "Task",
     "«Task Name» for «Company Name»\r\n«Task Start Time» to «Task End Time»"},
    {enumLocalCalendarDocketItem, "Dockets", "DocketID", "docket", "Docket",
     "«Time Entry Start Time» to «Time Entry End Time»\r\n«Company Name»\r\n«Time Entry Name»"},
};

class clsCalendarItemTypeTest : public test::ComponentTest {
protected:
    clsCalendarItemTypeTest() { serviceRegistry().database = recording; }

    std::shared_ptr<test::RecordingDatabase> recording = std::make_shared<test::RecordingDatabase>(database);
    clsCalendarItemType type;
};

class clsCalendarItemTypeKindTest : public clsCalendarItemTypeTest, public testing::WithParamInterface<KindRow> {};

TEST_P(clsCalendarItemTypeKindTest, FillsItsNames)
{
    type.calendarItemType(GetParam().kind);
    EXPECT_EQ(type.calendarItemType(), GetParam().kind);
    EXPECT_EQ(type.tableName(), GetParam().tableName);
    EXPECT_EQ(type.fieldName(), GetParam().fieldName);
    EXPECT_EQ(type.TypeName(), GetParam().typeName);
    EXPECT_EQ(type.TableText(), GetParam().tableText);
}

TEST_P(clsCalendarItemTypeKindTest, CreatesTheFirmWideRowWithItsDefaults)
{
    type.calendarItemType(GetParam().kind);
    ASSERT_EQ(rowCount("UserCalendarSettings"), 1);
    const std::string prefix = GetParam().tableText;
    EXPECT_EQ(cell("UserCalendarSettings", 1, prefix + "Template"), GetParam().defaultTemplate);
    EXPECT_EQ(recording->written,
              (std::vector<std::string>{prefix + "TitleBarText=", prefix + "Template=" + GetParam().defaultTemplate}));
    EXPECT_EQ(type.CalendarItemDisplayTemplateText(), GetParam().defaultTemplate);
    EXPECT_EQ(type.CalendarItemTitleBarTemplateText(), "");
}

TEST_P(clsCalendarItemTypeKindTest, ReadsItsTemplatesFromTheFirmWideRow)
{
    const std::string prefix = GetParam().tableText;
    addRow("UserCalendarSettings",
           {{"UserIDNum", "-1"}, {prefix + "TitleBarText", "«Title»"}, {prefix + "Template", "«Body»"}});
    addRow("UserCalendarSettings", {{"UserIDNum", "4"}, {prefix + "TitleBarText", "not this"}});
    type.calendarItemType(GetParam().kind);
    EXPECT_EQ(type.CalendarItemTitleBarTemplateText(), "«Title»");
    EXPECT_EQ(type.CalendarItemDisplayTemplateText(), "«Body»");
    EXPECT_EQ(recording->opened,
              (std::vector<std::pair<std::string, std::int32_t>>{
                  {"SELECT UserCalendarSettings.* FROM UserCalendarSettings WHERE UserIDNum = -1;", 3}}));
}

TEST_P(clsCalendarItemTypeKindTest, AStoredTextConstantReadsBackAsTheDefault)
{
    const std::string column = std::string(GetParam().tableText) + "Template";
    addRow("UserCalendarSettings", {{"UserIDNum", "-1"}, {column, "Text Constant"}});
    type.calendarItemType(GetParam().kind);
    EXPECT_EQ(type.CalendarItemDisplayTemplateText(), GetParam().defaultTemplate);
}

INSTANTIATE_TEST_SUITE_P(Kinds, clsCalendarItemTypeKindTest, testing::ValuesIn(kindRows),
                         [](const auto& row) { return std::string(row.param.typeName); });

TEST_F(clsCalendarItemTypeTest, IsOfUnknownKindAtFirst)
{
    EXPECT_EQ(type.calendarItemType(), enumLocalCalendarUnknownItem);
    EXPECT_EQ(type.tableName() + type.fieldName() + type.TypeName() + type.TableText(), "");
    EXPECT_TRUE(recording->opened.empty());
}

TEST_F(clsCalendarItemTypeTest, ANumberOutsideOfTheKindsEmptiesTheNames)
{
    for (const int number : {3, 4, -1}) {
        type.calendarItemType(enumLocalCalendarTaskItem);
        recording->opened.clear();
        // The columns are then bare names, which the table lacks.
        type.calendarItemType(static_cast<enumLocalCalendarItemType>(number));
        EXPECT_EQ(type.tableName() + type.fieldName() + type.TypeName() + type.TableText(), "");
        EXPECT_EQ(recording->opened.size(), 1u);
        EXPECT_EQ(errors->takeErrors().size(), 1u);
    }
}

TEST_F(clsCalendarItemTypeTest, TheSameKindTwiceLoadsTheTemplatesOnce)
{
    type.calendarItemType(enumLocalCalendarTaskItem);
    type.calendarItemType(enumLocalCalendarTaskItem);
    type.CalendarItemDisplayTemplateText();
    type.CalendarItemTitleBarTemplateText();
    EXPECT_EQ(recording->opened.size(), 1u);
}

TEST_F(clsCalendarItemTypeTest, ChangingTheKindReloadsBothTemplates)
{
    addRow("UserCalendarSettings", {{"UserIDNum", "-1"},
                                    {"TaskTitleBarText", "task title"},
                                    {"TaskTemplate", "task"},
                                    {"ApptTitleBarText", "appt title"},
                                    {"ApptTemplate", "appt"}});
    type.calendarItemType(enumLocalCalendarTaskItem);
    EXPECT_EQ(type.CalendarItemTitleBarTemplateText(), "task title");
    type.calendarItemType(enumLocalCalendarAppointmentItem);
    EXPECT_EQ(type.CalendarItemTitleBarTemplateText(), "appt title");
    EXPECT_EQ(type.CalendarItemDisplayTemplateText(), "appt");
}

TEST_F(clsCalendarItemTypeTest, NullTemplatesGiveTheDefaultDisplayTextAndNoTitle)
{
    addRow("UserCalendarSettings", {{"UserIDNum", "-1"}});
    type.calendarItemType(enumLocalCalendarTaskItem);
    EXPECT_EQ(type.CalendarItemDisplayTemplateText(), kindRows[1].defaultTemplate);
    EXPECT_EQ(type.CalendarItemTitleBarTemplateText(), "");
}

TEST_F(clsCalendarItemTypeTest, DamagedDisplayTemplatesGiveTheDefault)
{
    type.calendarItemType(enumLocalCalendarTaskItem);
    for (const char* damaged : {" 0 ", "0", "", "Text Constant"}) {
        type.CalendarItemDisplayTemplateText(damaged);
        EXPECT_EQ(type.CalendarItemDisplayTemplateText(), kindRows[1].defaultTemplate) << damaged;
    }
    for (const char* kept : {" 0", "00", "Text constant", "x"}) {
        type.CalendarItemDisplayTemplateText(kept);
        EXPECT_EQ(type.CalendarItemDisplayTemplateText(), kept);
    }
}

TEST_F(clsCalendarItemTypeTest, AStoredTitleOfZeroStays)
{
    addRow("UserCalendarSettings", {{"UserIDNum", "-1"}, {"ApptTitleBarText", "0"}});
    type.calendarItemType(enumLocalCalendarAppointmentItem);
    EXPECT_EQ(type.CalendarItemTitleBarTemplateText(), "0");
}

TEST_F(clsCalendarItemTypeTest, WithoutAConnectionTheDefaultsAreReadAndNothingIsTriedAgain)
{
    recording->connected = false;
    type.calendarItemType(enumLocalCalendarTaskItem);
    EXPECT_EQ(type.CalendarItemDisplayTemplateText(), kindRows[1].defaultTemplate);
    EXPECT_EQ(type.CalendarItemTitleBarTemplateText(), "");
    recording->connected = true;
    type.CalendarItemTitleBarTemplateText();
    EXPECT_TRUE(recording->opened.empty());
}

TEST_F(clsCalendarItemTypeTest, AWriteDoesNotCountAsALoad)
{
    recording->connected = false;
    type.CalendarItemTitleBarTemplateText("mine");
    EXPECT_EQ(type.CalendarItemTitleBarTemplateText(), "") << "the first read loads, and begins by emptying";
    type.CalendarItemTitleBarTemplateText("mine");
    EXPECT_EQ(type.CalendarItemTitleBarTemplateText(), "mine");
}

TEST_F(clsCalendarItemTypeTest, ReadingWithoutAKindAsksForTheBareColumns)
{
    addRow("UserCalendarSettings", {{"UserIDNum", "-1"}});
    EXPECT_EQ(type.CalendarItemTitleBarTemplateText(), "");
    const auto reported = errors->takeErrors();
    ASSERT_EQ(reported.size(), 1u);
    EXPECT_NE(reported[0].text.find("TitleBarText"), std::string::npos) << reported[0].text;
}

TEST_F(clsCalendarItemTypeTest, AFailedLoadLeavesBothTemplatesEmptyAndIsRepeated)
{
    class FailingRead : public ForwardingDatabaseService {
    public:
        using ForwardingDatabaseService::ForwardingDatabaseService;
        bool failing = true;
        Variant getField(std::int32_t handle, std::string_view name) override
        {
            if (failing && name == "ApptTemplate")
                throw RunTimeError(errorNumber::invalidProcedureCall, "no");
            return ForwardingDatabaseService::getField(handle, name);
        }
    };
    addRow("UserCalendarSettings", {{"UserIDNum", "-1"}, {"ApptTitleBarText", "title"}, {"ApptTemplate", "body"}});
    const auto failing = std::make_shared<FailingRead>(database);
    serviceRegistry().database = failing;
    type.calendarItemType(enumLocalCalendarAppointmentItem);
    EXPECT_EQ(errors->takeErrors().size(), 1u);
    failing->failing = false;
    EXPECT_EQ(type.CalendarItemTitleBarTemplateText(), "title");
    EXPECT_EQ(type.CalendarItemDisplayTemplateText(), "body");
}

TEST_F(clsCalendarItemTypeTest, SettingTheDefaultsLeavesTheTitle)
{
    type.calendarItemType(enumLocalCalendarTaskItem);
    type.CalendarItemTitleBarTemplateText("title");
    type.CalendarItemDisplayTemplateText("body");
    type.setDefaultCalendarItemDisplayTextTemplates();
    EXPECT_EQ(type.CalendarItemTitleBarTemplateText(), "title");
    EXPECT_EQ(type.CalendarItemDisplayTemplateText(), kindRows[1].defaultTemplate);
}

TEST_F(clsCalendarItemTypeTest, TheTitleVerificationWrapsAPlainText)
{
    const std::pair<const char*, const char*> cases[] = {
        {" 0 ", ""}, {"0", ""}, {"", ""}, {"Subject", "«Subject»"}, {"a «b»", "a «b»"}, {"a \\'ab b", "a \\'ab b"},
    };
    recording->connected = false;
    type.CalendarItemTitleBarTemplateText(); // loads
    for (const auto& [before, after] : cases) {
        type.CalendarItemTitleBarTemplateText(before);
        type.verifyCalendarItemTitleBarTemplateText();
        EXPECT_EQ(type.CalendarItemTitleBarTemplateText(), after) << before;
    }
}

TEST_F(clsCalendarItemTypeTest, TheNamesAreSimplyStored)
{
    type.tableName("a");
    type.fieldName("b");
    type.TypeName("c");
    type.TableText("d");
    EXPECT_EQ(type.tableName() + type.fieldName() + type.TypeName() + type.TableText(), "abcd");
    EXPECT_TRUE(recording->operations.empty());
}

TEST_F(clsCalendarItemTypeTest, ItsLabelsNameTheItem)
{
    addRow("UserCalendarSettings", {{"UserIDNum", "-1"}});
    type.calendarItemType(enumLocalCalendarTaskItem);
    type.CalendarItemDisplayTemplateText();
    type.verifyCalendarItemTitleBarTemplateText();
    EXPECT_EQ(errors->labels(), (std::vector<std::string>{
                                    "Vestrel.exe-clsCalendarItem-getCalendarItemTextTemplates",
                                    "Vestrel.exe-clsCalendarItem-verifyCalendarItemDisplayTemplateText",
                                    "Vestrel.exe-clsCalendarItem-setDefaultCalendarItemDisplayTextTemplates",
                                    "Vestrel.exe-clsCalendarItem-verifyCalendarItemTitleBarTemplateText",
                                }));
}

} // namespace
} // namespace qncal
