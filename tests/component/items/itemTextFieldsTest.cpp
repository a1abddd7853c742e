#include "component/items/ItemTextTest.h"
#include "support/rowName.h"

// The fields that an item serves itself, or from the host's lists.

namespace qncal::test {

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
    fill(enumLocalCalendarAppointmentItem);
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

struct CustomKind {
    const char* name;
    const char* category;
    const char* displayName;
};

class ItemCustomFieldTest : public ItemTextTest, public testing::WithParamInterface<CustomKind> {};

TEST_P(ItemCustomFieldTest, ServesAllFiveByEitherName)
{
    item.Custom1("value 1");
    item.Custom2("value 2");
    item.Custom3("value 3");
    item.Custom4("value 4");
    item.Custom5("value 5");
    for (const char* number : {"1", "2", "3", "4", "5"}) {
        const std::string value = std::string("value ") + number;
        EXPECT_EQ(item.getApptDataFieldInfo(std::string("Custom ") + number, GetParam().category, ""), value);
        EXPECT_EQ(item.getApptDataFieldInfo(GetParam().displayName + std::string(number), GetParam().category, ""),
                  value);
    }
}

INSTANTIATE_TEST_SUITE_P(Kinds, ItemCustomFieldTest,
                         testing::Values(CustomKind{"Appointment", "AppointInfo", "Custom Appt Field "},
                                         CustomKind{"Task", "TaskInfo", "Custom Task Calendar Field "},
                                         CustomKind{"TimeEntry", "DocketInfo", "Custom Time Entry Field "}),
                         rowName);

} // namespace qncal::test
