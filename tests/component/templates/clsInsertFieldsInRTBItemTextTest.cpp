#include "component/templates/MergeDataTest.h"
#include "support/rowName.h"
#include "templates/frmTestComment.h"

namespace qncal::test {

namespace {

struct KindRow {
    const char* name;
    std::int32_t listType;
    const char* table;
    const char* prefix;
    void (clsInsertFieldsInRTB::*id)(std::int32_t);
    const char* byDefault;
};

class FirmTemplateTest : public MergeDataTestWith<KindRow> {
protected:
    void addItem()
    {
        item = addRow(GetParam().table, {{"Subject", "Budget"}, {"TimeFrom", "09:30:00"}, {"TimeTo", "11:00:00"}});
        (engine.*GetParam().id)(item);
        build(GetParam().listType);
    }
    void setFirmTemplate(const std::string& suffix, const std::string& text)
    {
        const std::string column = GetParam().prefix + suffix;
        addRow("UserCalendarSettings", {{"UserIDNum", "-1"}, {column, text}});
    }
    std::int32_t item = -1;
};

} // namespace

TEST_P(FirmTemplateTest, DefaultServesWhereTheFirmHasNone)
{
    addItem();
    EXPECT_EQ(engine.createDisplayTextByID2(), GetParam().byDefault);
    EXPECT_EQ(engine.createTitleBarTextByID2(), "");
}

TEST_P(FirmTemplateTest, FirmsTemplatesAreMerged)
{
    addItem();
    addRow("UserCalendarSettings", {{"UserIDNum", "-1"},
                                    {std::string(GetParam().prefix) + "Template", "Time: «Time Duration» «Nobody»."},
                                    {std::string(GetParam().prefix) + "TitleBarText", "«(Todays Date, yyyy)»"}});
    if (GetParam().listType == 8)
        engine.appointmentID(addRow("Appointments", {{"TimeFrom", "09:30:00"}, {"TimeTo", "11:00:00"}}));
    EXPECT_EQ(engine.createDisplayTextByID2(), "Time: 1 hr 30 min .");
    EXPECT_EQ(engine.createTitleBarTextByID2(), "2026");
}

TEST_P(FirmTemplateTest, ItemsOwnTextsStandAround)
{
    addItem();
    setFirmTemplate("Template", "text");
    setCell(GetParam().table, item, "BeforeAppointmentText", "before");
    setCell(GetParam().table, item, "AfterAppointmentText", "after");
    engine.initializeDataRecordsetsForSingleDocMerge();
    EXPECT_EQ(engine.createDisplayTextByID2(), "before\r\ntext\r\nafter");
}

INSTANTIATE_TEST_SUITE_P(Rows, FirmTemplateTest,
                         testing::Values(KindRow{"Appointment", 5, "Appointments", "Appt",
                                                 &clsInsertFieldsInRTB::appointmentID,
                                                 "Budget for \r\n 9:30 am to 11:00 am"},
                                         KindRow{"Task", 8, "Tasks", "Task", &clsInsertFieldsInRTB::TaskID,
                                                 "Budget for \r\n 9:30 am to 11:00 am"},
                                         KindRow{"TimeEntry", 6, "Dockets", "Docket", &clsInsertFieldsInRTB::docketId,
                                                 "9:30 am to 11:00 am\r\n \r\n Budget"}),
                         rowName);

struct DamagedRow {
    const char* name;
    const char* stored;
};

class DamagedTemplateTest : public MergeDataTestWith<DamagedRow> {};

TEST_P(DamagedTemplateTest, GivesWayToTheDefault)
{
    addRow("UserCalendarSettings", {{"UserIDNum", "-1"}, {"ApptTemplate", GetParam().stored}});
    engine.appointmentID(addRow("Appointments", {{"Subject", "Budget"}}));
    build(5);
    EXPECT_TRUE(engine.createDisplayTextByID2().starts_with("Budget for "));
}

TEST_P(DamagedTemplateTest, LeavesNoTitle)
{
    addRow("UserCalendarSettings", {{"UserIDNum", "-1"}, {"ApptTitleBarText", GetParam().stored}});
    engine.appointmentID(addRow("Appointments", {{"Subject", "Budget"}}));
    build(5);
    EXPECT_EQ(engine.createTitleBarTextByID2(), "");
}

INSTANTIATE_TEST_SUITE_P(Rows, DamagedTemplateTest,
                         testing::Values(DamagedRow{"Empty", ""}, DamagedRow{"Zero", "0"},
                                         DamagedRow{"TextConstant", "Text Constant"}),
                         rowName);

TEST_F(MergeDataTest, DefaultContactServesACompany)
{
    const std::int32_t company = addCompany({{"CompanyName", "Maple Leaf"}});
    const std::int32_t contact = addRow("Contacts", {{"FirstName", "Ann"}});
    addRow("ContactLinks", {{"CompanyNum", std::to_string(company)}, {"ContactIDNum", "99"}});
    addRow("ContactLinks", {{"CompanyNum", std::to_string(company)},
                            {"ContactIDNum", std::to_string(contact)},
                            {"DefaultContact", "True"}});
    addRow("UserCalendarSettings",
           {{"UserIDNum", "-1"}, {"ApptTemplate", "«Contact Display Name», «Contact First Name»"}});
    engine.appointmentID(addRow("Appointments", {}));
    build(5);
    EXPECT_EQ(engine.createDisplayTextByID2(), "Maple Leaf, Ann");
    EXPECT_EQ(engine.contactID(), contact);
}

TEST_F(MergeDataTest, FaultyFirmTemplateGivesWayInATest)
{
    addRow("UserCalendarSettings", {{"UserIDNum", "-1"}, {"ApptTemplate", "«Nobody»"}});
    engine.appointmentID(addRow("Appointments", {}));
    build(5);
    EXPECT_EQ(engine.createDisplayTextByID2(), "");
    engine.TestComment(true);
    EXPECT_TRUE(engine.createDisplayTextByID2().starts_with("Year end meeting for "));
}

TEST_F(MergeDataTest, FirstTextOfAFreshInstanceIsNotMerged)
{
    addRow("UserCalendarSettings", {{"UserIDNum", "-1"}, {"ApptTemplate", "<<Appointment Name>>"}});
    engine.ListType(5);
    engine.appointmentID(addRow("Appointments", {{"Subject", "Budget"}}));
    EXPECT_EQ(engine.createDisplayTextByID2(), "«Appointment Name»");
    EXPECT_EQ(engine.createDisplayTextByID2(), "Budget");
}

TEST_F(MergeDataTest, TextOfNoItemIsTheTemplate)
{
    addRow("UserCalendarSettings", {{"UserIDNum", "-1"}, {"ApptTemplate", "«Docket Name»"}});
    build(5);
    EXPECT_EQ(engine.createDisplayTextByID2(), "«Time Entry Name»");
}

TEST_F(MergeDataTest, ContactAloneTakesThePlaceOfTheCompany)
{
    addContact({{"DisplayName", "Ann Reed"}});
    addRow("UserCalendarSettings",
           {{"UserIDNum", "-1"}, {"ApptTemplate", "for «Company Name»"}, {"ApptTitleBarText", "«Company Name»"}});
    engine.appointmentID(addRow("Appointments", {}));
    build(5);
    EXPECT_EQ(engine.createDisplayTextByID2(), "for Ann Reed");
    EXPECT_EQ(engine.createTitleBarTextByID2(), "Ann Reed");
}

TEST_F(MergeDataTest, WithoutAConnectionTheDefaultIsMergedToNothing)
{
    addRow("UserCalendarSettings", {{"UserIDNum", "-1"}, {"ApptTemplate", "text"}, {"ApptTitleBarText", "title"}});
    engine.appointmentID(addRow("Appointments", {{"Subject", "Budget"}}));
    build(5);
    recorded->connected = false;
    EXPECT_EQ(engine.createDisplayTextByID2(), " for \r\n  to ");
    EXPECT_EQ(engine.createTitleBarTextByID2(), "");
}

TEST_F(MergeDataTest, ListThatIsForNoItemHasNoTexts)
{
    addRow("UserCalendarSettings", {{"UserIDNum", "-1"}, {"ApptTemplate", "text"}, {"ApptTitleBarText", "title"}});
    engine.appointmentID(addRow("Appointments", {{"BeforeAppointmentText", "before"}}));
    engine.initializeDataRecordsetsForSingleDocMerge();
    for (const std::int32_t listType : {0, 1, 2, 3, 4, 7}) {
        build(listType);
        EXPECT_EQ(engine.createDisplayTextByID2(), "") << listType;
        EXPECT_EQ(engine.createTitleBarTextByID2(), "") << listType;
    }
}

TEST_F(ComponentTest, TestMergeIsShownUntilOk)
{
    dialogs->whenShown("frmTestComment", [](host::Hand& hand) {
        EXPECT_TRUE(hand.form().isModal());
        EXPECT_EQ(hand.form().caption(), "Test Notification Comment");
        EXPECT_EQ(hand.as<Label>("lblHeading").caption(), "Test Notification Comments");
        EXPECT_EQ(hand.as<RichTextBox>("rtbClientNotes").textRTF(), "{\\rtf1 text}");
        EXPECT_TRUE(hand.as<RichTextBox>("rtbClientNotes").isReadOnly());
        EXPECT_EQ(hand.as<CommandButton>("cmdOk").caption(), "Ok");
        hand.click("cmdOk");
        EXPECT_FALSE(hand.form().isVisible());
    });
    frmTestComment().Initialize("{\\rtf1 text}");
    EXPECT_EQ(errors->labels(), (std::vector<std::string>{"Vestrel.exe-frmTestComments-Initialize",
                                                          "Vestrel.exe-frmTestComments-cmdOK_Click"}));
}

} // namespace qncal::test
