#include "items/clsCalendarItem.h"
#include "support/ComponentTest.h"
#include "support/RecordingDatabase.h"
#include "support/rowName.h"

namespace qncal::test {

namespace {

constexpr auto appointment = enumLocalCalendarAppointmentItem;
constexpr auto task = enumLocalCalendarTaskItem;
constexpr auto timeEntry = enumLocalCalendarDocketItem;

} // namespace

class ItemTextTest : public ComponentTest {
protected:
    ItemTextTest()
    {
        clientDropDown->companies[4] = {{"CompanyName", "Maple Leaf"}, {"Email", "info@maple.example"}};
        clientDropDown->contacts[6] = {{"DisplayName", "Ann Reed"}, {"FirstName", "Ann"}};
        item.refreshedAppointmentText.subscribe([this](std::string& text) { displayEvents.push_back(text); });
        item.refreshedTitleBarText.subscribe([this](std::string& text) { titleEvents.push_back(text); });
    }
    /// An item with a subject, a day and two times, not saved.
    void fill(enumLocalCalendarItemType kind)
    {
        item.calendarItemType(kind);
        item.Subject("Budget");
        item.DateFrom(Date::of(2026, 3, 7));
        item.TimeFrom(Date::timeOf(9, 30));
        item.TimeTo(Date::timeOf(11));
    }
    /// The same with a row behind it.
    void fillSaved(enumLocalCalendarItemType kind, std::string_view table)
    {
        fill(kind);
        item.itemID(addRow(table, {{"Subject", "Budget"}, {"TimeFrom", "09:30:00"}, {"TimeTo", "11:00:00"}}));
    }
    std::string displayed(std::string itemTemplate)
    {
        item.DisplayTextTemplate(std::move(itemTemplate));
        return item.createDisplayTextByID();
    }

    clsCalendarItem item;
    std::vector<std::string> displayEvents;
    std::vector<std::string> titleEvents;
};

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

// --- The fields of the fast merge ---

struct FieldRow {
    const char* name;
    const char* category;
    const char* displayName;
    const char* value;
};

class ItemFieldTest : public ItemTextTest, public testing::WithParamInterface<FieldRow> {};

TEST_P(ItemFieldTest, IsServed)
{
    clientDropDown->companies[4] = {
        {"CompanyName", "company name"}, {"CorporateName", "corporate"}, {"ClientID", "company client"},
        {"BusinessNumber", "business"},  {"PartnerName", "partner"},     {"AccountantName", "accountant"},
        {"OfficeNumber", "office"},      {"FaxNumber", "fax"},           {"Email", "a\r\nb"}};
    clientDropDown->contacts[-1] = {{"DisplayName", "display"},
                                    {"ClientID", "contact client"},
                                    {"FirstName", "first"},
                                    {"MiddleName", "middle"},
                                    {"LastName", "last"},
                                    {"SocialInsuranceNumber", "sin"},
                                    {"BusinessPhone_Main", "phone"},
                                    {"BusinessPhone_Fax", "contact fax"},
                                    {"BusinessEmail", "email"},
                                    {"SpouseFirstName", "spouse first"},
                                    {"SpouseLastName", "spouse last"},
                                    {"PartnerName", "contact partner"},
                                    {"AccountantName", "contact accountant"}};
    fill(appointment);
    item.companyIDNum(4);
    item.appointmentText("the text");
    item.Custom1("one");
    item.Custom2("two");
    item.Custom3("three");
    item.Custom4("four");
    item.Custom5("five");
    EXPECT_EQ(item.getApptDataFieldInfo(GetParam().displayName, GetParam().category, ""), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(Contact, ItemFieldTest,
                         testing::Values(FieldRow{"FullName", "ContactInfo", "Contact Full Name", "display"},
                                         FieldRow{"DisplayName", "ContactInfo", "Contact Display Name", "display"},
                                         FieldRow{"ClientID", "ContactInfo", "Client ID", "contact client"},
                                         FieldRow{"FirstName", "ContactInfo", "Contact First Name", "first"},
                                         FieldRow{"MiddleName", "ContactInfo", "Contact Middle Name", "middle"},
                                         FieldRow{"LastName", "ContactInfo", "Contact Last Name", "last"},
                                         FieldRow{"SIN", "ContactInfo", "Contact SIN", "sin"},
                                         FieldRow{"SSN", "ContactInfo", "Contact SSN", "sin"},
                                         FieldRow{"Phone", "ContactInfo", "Contact Business Phone", "phone"},
                                         FieldRow{"Fax", "ContactInfo", "Contact Business Fax", "contact fax"},
                                         FieldRow{"Email", "ContactInfo", "Contact Business Email", "email"},
                                         FieldRow{"SpouseFirst", "ContactInfo", "Spouse First Name", "spouse first"},
                                         FieldRow{"SpouseLast", "ContactInfo", "Spouse Last Name", "spouse last"},
                                         FieldRow{"Partner", "ContactInfo", "Supervising Partner", "contact partner"},
                                         FieldRow{"Accountant", "ContactInfo", "Managing Accountant",
                                                  "contact accountant"},
                                         FieldRow{"NotServed", "ContactInfo", "Contact Gender", ""}),
                         rowName);

INSTANTIATE_TEST_SUITE_P(Company, ItemFieldTest,
                         testing::Values(FieldRow{"Name", "CompanyInfo", "Company Name", "company name"},
                                         FieldRow{"CorporateName", "CompanyInfo", "Corporate Name", "corporate"},
                                         FieldRow{"ClientID", "CompanyInfo", "Client ID", "company client"},
                                         FieldRow{"BusinessNumber", "CompanyInfo", "Business Number", "business"},
                                         FieldRow{"Partner", "CompanyInfo", "Supervising Partner", "partner"},
                                         FieldRow{"Accountant", "CompanyInfo", "Managing Accountant", "accountant"},
                                         FieldRow{"Office", "CompanyInfo", "Office Number", "office"},
                                         FieldRow{"Fax", "CompanyInfo", "Fax Number", "fax"},
                                         FieldRow{"LineBreaksBecomeParagraphs", "CompanyInfo", "Email", "a\\par \r\nb"},
                                         FieldRow{"NotServed", "CompanyInfo", "City", ""},
                                         FieldRow{"OtherCategory", "FirmInfo", "Your Company Name", ""}),
                         rowName);

INSTANTIATE_TEST_SUITE_P(Item, ItemFieldTest,
                         testing::Values(FieldRow{"AppointmentName", "AppointInfo", "Appointment Name", "Budget"},
                                         FieldRow{"AppointmentDate", "AppointInfo", "Appointment Date", "Mar 7, 2026"},
                                         FieldRow{"AppointmentStart", "AppointInfo", "Appointment Start Time",
                                                  "9:30 am"},
                                         FieldRow{"AppointmentEnd", "AppointInfo", "Appointment End Time", "11:00 am"},
                                         FieldRow{"AppointmentDuration", "AppointInfo", "Time Duration", "1 hr 30 min"},
                                         FieldRow{"AppointmentText", "AppointInfo", "Appointment Text", "the text"},
                                         FieldRow{"AppointmentCustom", "AppointInfo", "Custom Appt Field 2", "two"},
                                         FieldRow{"LiteralCustom", "AppointInfo", "Custom 5", "five"},
                                         FieldRow{"TaskSubject", "TaskInfo", "Task Subject", "Budget"},
                                         FieldRow{"TaskName", "TaskInfo", "Task Name", ""},
                                         FieldRow{"TaskDate", "TaskInfo", "Task Calendar Date", "Mar 7, 2026"},
                                         FieldRow{"TaskStart", "TaskInfo", "Task Start Time", "9:30 am"},
                                         FieldRow{"TaskEnd", "TaskInfo", "Task End Time", "11:00 am"},
                                         FieldRow{"TaskDuration", "TaskInfo", "Time Duration", "1 hr 30 min"},
                                         FieldRow{"TaskText", "TaskInfo", "Task Text", "the text"},
                                         FieldRow{"TaskCustom", "TaskInfo", "Custom Task Calendar Field 4", "four"},
                                         FieldRow{"TaskScheduleCustom", "TaskInfo", "Custom Task Field 4", ""},
                                         FieldRow{"TaskLiteralCustom", "TaskInfo", "Custom 1", "one"},
                                         FieldRow{"EntryName", "DocketInfo", "Time Entry Name", "Budget"},
                                         FieldRow{"EntryDate", "DocketInfo", "Time Entry Date", "Mar 7, 2026"},
                                         FieldRow{"EntryStart", "DocketInfo", "Time Entry Start Time", "9:30 am"},
                                         FieldRow{"EntryEnd", "DocketInfo", "Time Entry End Time", "11:00 am"},
                                         FieldRow{"EntryDuration", "DocketInfo", "Time Duration", "1 hr 30 min"},
                                         FieldRow{"EntryText", "DocketInfo", "Time Entry Text", "the text"},
                                         FieldRow{"EntryCustom", "DocketInfo", "Custom Time Entry Field 3", "three"},
                                         FieldRow{"EntryLiteralCustom", "DocketInfo", "Custom 3", "three"}),
                         rowName);

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
