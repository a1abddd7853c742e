#include "component/items/ItemTextTest.h"
#include "support/RecordingDatabase.h"
#include "support/rowName.h"

namespace qncal::test {

namespace {

constexpr auto appointment = enumLocalCalendarAppointmentItem;
constexpr auto task = enumLocalCalendarTaskItem;
constexpr auto timeEntry = enumLocalCalendarDocketItem;

} // namespace

// --- The default templates ---

TEST_F(ItemTextTest, AppointmentShowsNameClientAndTimes)
{
    fill(appointment);
    item.companyIDNum(4);
    EXPECT_EQ(item.createDisplayTextByID(), "Budget for Maple Leaf\r\n 9:30 am to 11:00 am");
    EXPECT_EQ(item.appointmentText(), "Budget for Maple Leaf\r\n 9:30 am to 11:00 am");
    EXPECT_EQ(displayEvents, std::vector<std::string>{item.appointmentText()});
}

TEST_F(ItemTextTest, TimeEntryShowsTimesClientAndName)
{
    fill(timeEntry);
    item.contactIDNum(6);
    EXPECT_EQ(item.createDisplayTextByID(), "9:30 am to 11:00 am\r\n Ann Reed\r\n Budget");
}

TEST_F(ItemTextTest, SavedTaskShowsItsName)
{
    fillSaved(task, "Tasks");
    item.companyIDNum(4);
    EXPECT_EQ(item.createDisplayTextByID(), "Budget for Maple Leaf\r\n 9:30 am to 11:00 am");
}

TEST_F(ItemTextTest, UnsavedTaskShowsFalse)
{
    fill(task);
    item.companyIDNum(4);
    EXPECT_EQ(item.createDisplayTextByID(), "False");
}

// --- The two stages ---

TEST_F(ItemTextTest, SubjectOfATaskIsServedByTheFastMerge)
{
    fill(task);
    EXPECT_EQ(displayed("«Task Subject»"), "Budget");
}

TEST_F(ItemTextTest, UnsavedItemWithAFieldBeyondTheFastMergeShowsFalse)
{
    fill(appointment);
    item.itemID(0);
    EXPECT_EQ(displayed("«Appointment Name» «City»"), "False");
}

TEST_F(ItemTextTest, TextWithoutADelimiterIsShownAsItIs)
{
    fill(appointment);
    EXPECT_EQ(displayed("Busy"), "Busy");
}

TEST_F(ItemTextTest, SavedItemTakesTheRestFromTheDatabase)
{
    fillSaved(appointment, "Appointments");
    item.companyIDNum(addRow("Companies", {{"CompanyName", "Oak"}, {"City", "Guelph"}}));
    EXPECT_EQ(displayed("«Appointment Name» in «City», «Company Name»"), "Budget in Guelph, Oak");
}

TEST_F(ItemTextTest, TitleKnowsNoCompanyInTheDatabase)
{
    fillSaved(appointment, "Appointments");
    item.companyIDNum(addRow("Companies", {{"City", "Guelph"}}));
    item.TitleBarTextTemplate("«Appointment Name» in «City»");
    EXPECT_EQ(item.createTitleBarTextByID(), "Budget in ");
    EXPECT_EQ(item.TitleText(), "Budget in ");
    EXPECT_EQ(titleEvents, std::vector<std::string>{"Budget in "});
}

TEST_F(ItemTextTest, FaultyTemplateGivesWayToTheDefault)
{
    fillSaved(appointment, "Appointments");
    EXPECT_EQ(displayed("«Nobody»"), "Budget for \r\n 9:30 am to 11:00 am");
}

TEST_F(ItemTextTest, RichFieldsAreMergedWhereNoPlainOnesAre)
{
    fill(appointment);
    EXPECT_EQ(displayed("\\b\\'abAppointment Name\\'bb"), "\\b Budget");
}

TEST_F(ItemTextTest, EmptyTitleTemplateEmptiesTheTitle)
{
    fill(appointment);
    item.TitleText("old");
    EXPECT_EQ(item.createTitleBarTextByID(), "");
    EXPECT_EQ(item.TitleText(), "");
    EXPECT_TRUE(titleEvents.empty());
}

TEST_F(ItemTextTest, FastMergeLeavesWhatItDoesNotKnow)
{
    fill(appointment);
    EXPECT_EQ(item.parseCalendarItemComment("«Appointment Name» «City» «Nobody» «(Todays Date, yyyy)»"),
              "Budget «City» «Nobody» 2026");
}

TEST_F(ItemTextTest, SavedItemTakesItsContactFromTheDatabase)
{
    fillSaved(appointment, "Appointments");
    item.contactIDNum(addRow("Contacts", {{"BusinessJobTitle", "President"}}));
    EXPECT_EQ(displayed("with the «Contact Job Title»"), "with the President");
}

TEST_F(ItemTextTest, SavedTimeEntryTakesItsRestFromTheDatabase)
{
    fill(timeEntry);
    item.itemID(addRow("Dockets", {{"DocketStatus", "Open"}}));
    EXPECT_EQ(displayed("«Time Entry Name»: «Time Entry Status»"), "Budget: Open");
}

TEST_F(ItemTextTest, CustomFieldUnderALabelOfTheFirmComesFromTheDatabase)
{
    addRow("CustomFields", {{"ApptCustomName1", "Room"}});
    fill(appointment);
    item.Custom1("not asked for");
    item.itemID(addRow("Appointments", {{"Custom1", "12 B"}}));
    EXPECT_EQ(displayed("in «Room»"), "in 12 B");
}

TEST_F(ItemTextTest, RichDelimitersInCapitalsAreLeft)
{
    fill(appointment);
    EXPECT_EQ(displayed("\\'ABCity\\'BB"), "\\'ABCity\\'BB");
    EXPECT_EQ(displayed("\\'ABAppointment Name\\'BB"), "Budget") << "what the item has is merged all the same";
}

TEST_F(ItemTextTest, WithoutAConnectionTheRestIsBlanked)
{
    fillSaved(appointment, "Appointments");
    item.companyIDNum(4);
    const auto recorded = std::make_shared<RecordingDatabase>(database);
    recorded->connected = false;
    serviceRegistry().database = recorded;
    EXPECT_EQ(displayed("«Appointment Name» for «Company Name» in «City»"), "Budget for Maple Leaf in ");
}

// --- The title ---

TEST_F(ItemTextTest, UnsavedItemHasTheTitleFalseForAFieldBeyondTheFastMerge)
{
    fill(appointment);
    item.TitleBarTextTemplate("«City»");
    EXPECT_EQ(item.createTitleBarTextByID(), "False");
    EXPECT_EQ(item.TitleText(), "False");
}

TEST_F(ItemTextTest, FaultyTitleGivesWayToTheFirms)
{
    addRow("UserCalendarSettings", {{"UserIDNum", "-1"}, {"ApptTitleBarText", "«Appointment Name»!"}});
    fillSaved(appointment, "Appointments");
    item.TitleBarTextTemplate("«Nobody»");
    EXPECT_EQ(item.createTitleBarTextByID(), "Budget!");
}

TEST_F(ItemTextTest, TitleNamesTheClientThatThereIs)
{
    fill(appointment);
    item.companyIDNum(4);
    item.TitleBarTextTemplate("«Contact Display Name»");
    EXPECT_EQ(item.createTitleBarTextByID(), "Maple Leaf");
    item.contactIDNum(6);
    item.TitleBarTextTemplate("«Company Name»");
    EXPECT_EQ(item.createTitleBarTextByID(), "Ann Reed");
}

// --- Company and contact ---

TEST_F(ItemTextTest, CompanyTakesThePlaceOfTheFirstContactAlone)
{
    fillSaved(appointment, "Appointments");
    item.companyIDNum(4);
    EXPECT_EQ(displayed("«contact display name»/«Contact Display Name»/"), "Maple Leaf/ /");
}

TEST_F(ItemTextTest, ContactTakesThePlaceOfTheFirstCompanyAlone)
{
    fillSaved(appointment, "Appointments");
    item.contactIDNum(6);
    EXPECT_EQ(displayed("«Company Name» and «Company Name»"), "Ann Reed and ");
}

TEST_F(ItemTextTest, NamesAreNotExchangedWhereBothStand)
{
    fillSaved(appointment, "Appointments");
    item.contactIDNum(6);
    EXPECT_EQ(displayed("«Contact Display Name», «Company Name»"), "Ann Reed, ");
}

// --- Around the text ---

TEST_F(ItemTextTest, TextsBeforeAndAfterStandOnTheirOwnLines)
{
    item.BeforeAppointmentText("before");
    item.AfterAppointmentText("after");
    EXPECT_EQ(item.buildDisplayText("text"), "before\r\ntext\r\nafter");
    EXPECT_EQ(item.buildDisplayText(""), "before\r\n\r\nafter");
    EXPECT_EQ(item.appointmentText(), "before\r\n\r\nafter");
}

TEST_F(ItemTextTest, TextAloneHasNoExtraLines) { EXPECT_EQ(item.buildDisplayText("text"), "text"); }

// --- Economy ---

TEST_F(ItemTextTest, TextWithoutADelimiterAsksTheDatabaseNothing)
{
    fill(appointment);
    const auto recorded = std::make_shared<RecordingDatabase>(database);
    serviceRegistry().database = recorded;
    displayed("Busy");
    EXPECT_TRUE(recorded->opened.empty());
}

TEST_F(ItemTextTest, DateOfTheItemTakesTheFormatOfTheTemplate)
{
    fill(appointment);
    EXPECT_EQ(displayed("«(Appointment Date, dd/mm/yy)»"), "07/Mar/26");
}

TEST_F(ItemTextTest, ContactWithSpouseIsComposedByTheHost)
{
    fill(appointment);
    item.contactIDNum(6);
    EXPECT_EQ(displayed("«Contact & Spouse Name»"), clientDropDown->getContactAndSpouseName(6));
}

} // namespace qncal::test
