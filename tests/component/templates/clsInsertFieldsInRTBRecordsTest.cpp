#include "component/templates/MergeDataTest.h"
#include "core/forwarding/ForwardingDatabaseService.h"
#include "support/rowName.h"
#include "utilities/text.h"

namespace qncal::test {

// --- One field of each category ---

TEST_F(MergeDataTest, CompanyFieldsComeFromTheCompany)
{
    addCompany({{"CompanyName", "Maple Leaf"}, {"Custom3", "third"}, {"CompanyType", "2"}});
    build(1);
    EXPECT_EQ(field("Company Name"), "Maple Leaf");
    EXPECT_EQ(field("Company Custom Field 3"), "third");
    EXPECT_EQ(field("Corporate Name"), "") << "a null";
    EXPECT_EQ(field("Company Type"), "2") << "the raw code";
}

TEST_F(MergeDataTest, CompanyNotesStayBlank)
{
    addCompany({{"CompanyName", "Maple Leaf"}});
    build(1);
    EXPECT_EQ(field("Company Notes"), "");
}

TEST_F(MergeDataTest, ContactFieldsComeFromTheContact)
{
    const std::int32_t contact =
        addContact({{"DisplayName", "Ann Reed"}, {"Custom1", "golf"}, {"Birthday", "1970-03-07"}});
    addRow("ContactsNotes", {{"ContactNum", std::to_string(contact)}, {"Notes", "likes tea"}});
    clientDropDown->contacts[contact]["DisplayName"] = "Ann Reed";
    build(2);
    EXPECT_EQ(field("Contact Display Name"), "Ann Reed");
    EXPECT_EQ(field("Contact Custom Field 1"), "golf");
    EXPECT_EQ(field("Contact Birthday", "mmmm d"), "March 7");
    EXPECT_EQ(field("Contact Notes"), "likes tea");
    EXPECT_EQ(field("Contact & Spouse Name"), clientDropDown->getContactAndSpouseName(contact));
}

TEST_F(MergeDataTest, ClientFieldsComeFromTheWholeRecord)
{
    addCompany({{"CompanyName", "Maple Leaf"}});
    build(1);
    EXPECT_EQ(field("Business Number"), "123 RC");
    EXPECT_EQ(field("Custom Field 1"), "file 7");
}

TEST_F(MergeDataTest, ClientFieldsOfTheUnitedStatesComeFromTheirTable)
{
    region(LocaleService::unitedStates, 0);
    const std::int32_t company = addRow("Companies", {{"CompanyName", "Maple Leaf"}});
    const std::string data = std::to_string(addRow("ClientData", {{"CompanyIDNum", std::to_string(company)}}));
    addRow("ClientUSInfo", {{"ClientDataIDNum", data}, {"EIN", "12-345"}});
    addRow("AccountingServices", {{"ClientDataIDNum", data}});
    addRow("ClientOptions", {{"ClientDataIDNum", data}});
    addRow("CompaniesNotes", {{"CompanyNum", std::to_string(company)}});
    addRow("Clients", {{"CompanyIDNum", std::to_string(company)}});
    engine.companyID(company);
    build(1);
    EXPECT_EQ(field("Federal Employer Identification Number"), "12-345");
}

TEST_F(MergeDataTest, SoftwareFieldsStayBlank)
{
    const std::int32_t company = addCompany({{"CompanyName", "Maple Leaf"}});
    addRow("SoftwareInfo",
           {{"CompanyIDNum", std::to_string(company)}, {"DefaultSoftware", "True"}, {"SoftwareName", "Ledger"}});
    build(1);
    EXPECT_EQ(field("Software Name"), "");
}

TEST_F(MergeDataTest, FirmFieldsComeFromTheFirm)
{
    engine.firmID(addRow("AccountantFirmInfo", {{"CompanyName", "Hill & Clark"}, {"Custom2", "since 1970"}}));
    build(2);
    EXPECT_EQ(field("Your Company Name"), "Hill & Clark");
    EXPECT_EQ(field("Your Company Custom Field 2"), "since 1970");
}

TEST_F(MergeDataTest, AppointmentFieldsComeFromTheAppointment)
{
    engine.appointmentID(addRow("Appointments", {{"Subject", "Budget"},
                                                 {"DateFrom", "2026-03-07"},
                                                 {"TimeFrom", "09:30:00"},
                                                 {"TimeTo", "11:00:00"},
                                                 {"Custom5", "room 3"}}));
    build(5);
    EXPECT_EQ(field("Appointment Name"), "Budget");
    EXPECT_EQ(field("Appointment Date"), "Mar 7, 2026");
    EXPECT_EQ(field("Appointment Start Time"), "9:30 am");
    EXPECT_EQ(field("Time Duration"), "1 hr 30 min");
    EXPECT_EQ(field("Custom Appt Field 5"), "room 3");
}

TEST_F(MergeDataTest, TaskFieldsComeFromTheTaskAndItsSchedule)
{
    const std::int32_t schedule = addRow("Schedule", {{"DueDate", "2026-04-30"}, {"Custom1", "of the schedule"}});
    engine.TaskID(addRow(
        "Tasks", {{"Subject", "Return"}, {"ScheduleIDNum", std::to_string(schedule)}, {"Custom1", "of the task"}}));
    build(8);
    EXPECT_EQ(field("Task Name"), "Return");
    EXPECT_EQ(field("Task Due Date", "d"), "30");
    EXPECT_EQ(field("Custom Task Field 1"), "of the schedule");
    EXPECT_EQ(field("Custom Task Calendar Field 1"), "of the task");
}

TEST_F(MergeDataTest, TaskWithoutAScheduleIsReadAlone)
{
    engine.TaskID(addRow("Tasks", {{"Subject", "Return"}, {"Custom1", "of the task"}}));
    build(8);
    EXPECT_EQ(field("Task Name"), "Return");
    EXPECT_EQ(field("Custom Task Calendar Field 1"), "of the task");
}

TEST_F(MergeDataTest, DurationOfATaskIsThatOfTheAppointmentRecord)
{
    engine.TaskID(addRow("Tasks", {{"TimeFrom", "09:00:00"}, {"TimeTo", "10:00:00"}}));
    build(8);
    EXPECT_EQ(field("Time Duration"), "");
    EXPECT_EQ(errors->takeErrors().size(), 1u) << "no appointment record is open";
    engine.appointmentID(addRow("Appointments", {{"TimeFrom", "09:00:00"}, {"TimeTo", "09:45:00"}}));
    engine.initializeDataRecordsetsForSingleDocMerge();
    EXPECT_EQ(field("Time Duration"), "45 min");
}

TEST_F(MergeDataTest, TimeEntryFieldsComeFromTheTimeEntry)
{
    engine.docketId(addRow("Dockets", {{"Subject", "Bookkeeping"},
                                       {"TimeFrom", "09:00:00"},
                                       {"TimeTo", "10:00:00"},
                                       {"TotalAmountReal", "-12.5"},
                                       {"TotalTimeReal", "2.5"},
                                       {"Invoiced", "True"},
                                       {"Custom1", "matter 9"}}));
    build(6);
    EXPECT_EQ(field("Time Entry Name"), "Bookkeeping");
    EXPECT_EQ(field("Time Duration"), "1 hr");
    EXPECT_EQ(field("Total Amount (Actual)"), "$-12.50");
    EXPECT_EQ(field("Total Time (Actual)"), "2 hr 30 min");
    EXPECT_EQ(field("Is Invoiced"), "Yes");
    EXPECT_EQ(field("Custom Time Entry Field 1"), "matter 9");
}

TEST_F(MergeDataTest, FieldOfAnItemWithoutAnIDIsBlank)
{
    build(5);
    recorded->opened.clear();
    EXPECT_EQ(field("Company Name"), "");
    EXPECT_EQ(field("Appointment Name"), "");
    EXPECT_TRUE(recorded->opened.empty());
}

TEST_F(MergeDataTest, WithoutAConnectionEveryFieldIsBlank)
{
    addCompany({{"CompanyName", "Maple Leaf"}});
    build(1);
    recorded->connected = false;
    EXPECT_EQ(field("Company Name"), "");
}

TEST_F(MergeDataTest, SampleValuesDoNotTouchTheDatabase)
{
    addCompany({{"CompanyName", "Maple Leaf"}});
    build(1);
    engine.TestComment(true);
    recorded->operations.clear();
    EXPECT_EQ(field("Company Name"), "Maple Leaf Bakery Ltd.");
    EXPECT_TRUE(recorded->operations.empty());
}

TEST_F(MergeDataTest, UnknownKeyIsBlank) { EXPECT_EQ(engine.getDataFieldInfo(12345, "d"), ""); }

// --- Codes that become words ---

struct CodeRow {
    const char* name;
    const char* displayName;
    const char* column;
    const char* whenNull;
    const char* code;
    const char* word;
};

class CodeFieldTest : public MergeDataTestWith<CodeRow> {};

TEST_P(CodeFieldTest, ShowsTheWord)
{
    addCompany({{"CompanyName", "Maple Leaf"}});
    build(1);
    EXPECT_EQ(field(GetParam().displayName), GetParam().whenNull);
    const bool isService = std::string_view(GetParam().column) == "FinancialStatements";
    setCell(isService ? "AccountingServices" : "CorpTaxInfo", isService ? accounting : corpTax, GetParam().column,
            GetParam().code);
    EXPECT_EQ(field(GetParam().displayName), GetParam().word);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, CodeFieldTest,
    testing::Values(
        CodeRow{"RC59Permission", "RC59 Permission Level", "RC59Permission", "None", "2", "Limited"},
        CodeRow{"RC59Status", "RC59 Form Status", "RC59Status", "Not Filed", "3", "Completed"},
        CodeRow{"GSTFilingMethod", "HST Filing Method", "GSTFilingMethod", "Not Specified", "3", "Quick Method"},
        CodeRow{"FinancialStatements", "Financial Statements", "FinancialStatements", "Not Specified", "5", "Audit"},
        CodeRow{"CorporationType", "Corporation Type", "CorporationType", "CCPC", "1", "Regular Corporation"},
        CodeRow{"CorporationLevel", "Corporation Level", "CorporationLevel", "Federal Corporation", "2",
                "Provincial Corporation"}),
    rowName);

namespace {

/// A database whose main record has the column with the misspelt name.
class MisspeltCompanyType : public ForwardingDatabaseService {
public:
    using ForwardingDatabaseService::ForwardingDatabaseService;
    Variant getField(std::int32_t handle, std::string_view field) override
    {
        return equalsNoCase(field, "CompanType") ? Variant(2) : ForwardingDatabaseService::getField(handle, field);
    }
};

} // namespace

TEST_F(MergeDataTest, OnlyTheMisspeltCompanyTypeBecomesAWord)
{
    serviceRegistry().database = std::make_shared<MisspeltCompanyType>(recorded);
    addCompany({{"CompanyType", "2"}});
    build(1);
    engine.initializeDataRecordsetsForSingleDocMerge();
    ASSERT_EQ(field("Company Type"), "2");
    std::string column = "CompanType";
    EXPECT_EQ(engine.getDataFieldFromRecordset(column), "Sole Proprietorship");
}

// --- What a contact takes over from its company ---

struct InheritRow {
    const char* name;
    const char* displayName;
    const char* contactColumn;
    const char* companyColumn;
    bool companyFirst;
};

class InheritanceTest : public MergeDataTestWith<InheritRow> {
protected:
    void add(bool inherits, const std::string& own, const std::string& ofCompany)
    {
        addCompany({{GetParam().companyColumn, ofCompany}});
        addContact({{"InheritCompanyInfo", inherits ? "True" : "False"}, {GetParam().contactColumn, own}});
        build(1);
        engine.initializeDataRecordsetsForSingleDocMerge();
    }
};

TEST_P(InheritanceTest, PrefersOneOfTheTwo)
{
    add(true, "own", "company's");
    EXPECT_EQ(field(GetParam().displayName), GetParam().companyFirst ? "company's" : "own");
}

TEST_P(InheritanceTest, TakesTheOtherForANull)
{
    add(true, GetParam().companyFirst ? "own" : "", GetParam().companyFirst ? "" : "company's");
    EXPECT_EQ(field(GetParam().displayName), GetParam().companyFirst ? "own" : "company's");
}

TEST_P(InheritanceTest, NeedsTheContactsConsent)
{
    add(false, "own", "company's");
    EXPECT_EQ(field(GetParam().displayName), "own");
}

TEST_P(InheritanceTest, NeedsACompany)
{
    add(true, "own", "company's");
    engine.companyID(-1);
    EXPECT_EQ(field(GetParam().displayName), "own");
}

TEST_P(InheritanceTest, IsWrittenToBothRecords)
{
    add(true, "own", "company's");
    engine.MergeFieldListUse(5);
    engine.initializeDataRecordsetsForSingleDocMerge();
    EXPECT_FALSE(engine.writeDataToField(GetParam().contactColumn, "new"));
    EXPECT_EQ(cell("Companies", engine.companyID(), GetParam().companyColumn), "new");
    EXPECT_EQ(cell("Contacts", engine.contactID(), GetParam().contactColumn), "new");
}

INSTANTIATE_TEST_SUITE_P(
    Rows, InheritanceTest,
    testing::Values(InheritRow{"Phone", "Contact Business Phone", "BusinessPhone_Main", "OfficeNumber", false},
                    InheritRow{"Fax", "Contact Business Fax", "BusinessPhone_Fax", "FaxNumber", false},
                    InheritRow{"Address", "Contact Business Address", "BusinessAddress", "Address", true},
                    InheritRow{"City", "Contact Business City", "BusinessCity", "City", true},
                    InheritRow{"Province", "Contact Business Province", "BusinessProvince", "Province", true},
                    InheritRow{"PostalCode", "Contact Business Postal Code", "BusinessPostalCode", "PostalCode", true},
                    InheritRow{"Country", "Contact Business Country", "BusinessCountry", "Country", true}),
    rowName);

// --- Abbreviated provinces ---

struct ProvinceRow {
    const char* name;
    const char* displayName;
    const char* field;
    const char* table;
    const char* column;
};

class AbbreviatedProvinceTest : public MergeDataTestWith<ProvinceRow> {};

TEST_P(AbbreviatedProvinceTest, IsReadFromTheWholeProvince)
{
    addCompany({});
    addContact({});
    setCell(GetParam().table,
            std::string_view(GetParam().table) == "Companies" ? engine.companyID() : engine.contactID(),
            GetParam().column, "Manitoba");
    build(1);
    EXPECT_EQ(field(GetParam().displayName), "MB");
    std::string argument = GetParam().field;
    EXPECT_EQ(engine.getDataFieldFromRecordset(argument), "MB");
    EXPECT_EQ(argument, GetParam().column) << "the argument becomes the column that was read";
}

INSTANTIATE_TEST_SUITE_P(Rows, AbbreviatedProvinceTest,
                         testing::Values(ProvinceRow{"Company", "Abbreviated Province", "AbbreviatedProvince",
                                                     "Companies", "Province"},
                                         ProvinceRow{"CompanyAlternate", "Company Alternate Abbreviated Province",
                                                     "AltAbbreviatedProvince", "Companies", "AltProvince"},
                                         ProvinceRow{"Business", "Contact Business Abbreviated Province",
                                                     "BusinessAbbreviatedProvince", "Contacts", "BusinessProvince"},
                                         ProvinceRow{"Home", "Contact Home Abbreviated Province",
                                                     "HomeAbbreviatedProvince", "Contacts", "HomeProvince"},
                                         ProvinceRow{"Spouse", "Spouse Home Abbreviated Province",
                                                     "SpouseAbbreviatedProvince", "Contacts", "SpouseProvince"},
                                         ProvinceRow{"Alternate", "Contact Alternate Abbreviated Province",
                                                     "AltAbbreviatedProvince", "Contacts", "AltProvince"}),
                         rowName);

// --- By name ---

TEST_F(MergeDataTest, FieldsAreReadByEitherName)
{
    addCompany({{"CompanyName", "Maple Leaf"}});
    build(1);
    EXPECT_EQ(engine.getMergeDataFromFieldName("companyname"), "Maple Leaf");
    EXPECT_EQ(engine.getMergeDataFromDisplayName("company name"), "Maple Leaf");
    EXPECT_EQ(engine.getMergeDataFromFieldName("Nothing"), "");
    EXPECT_EQ(engine.getMergeDataFromDisplayName(""), "");
}

TEST_F(MergeDataTest, ReadByNameThatBuildsTheListIsEmpty)
{
    addCompany({{"CompanyName", "Maple Leaf"}});
    EXPECT_EQ(engine.getMergeDataFromDisplayName("City"), "");
    EXPECT_GT(engine.FieldList()->getCount(), 0);
}

TEST_F(MergeDataTest, CompanyNameOfAContactIsTheRowsValueWhereTheListHasTheRow)
{
    addContact({{"DisplayName", "Ann Reed"}});
    engine.ConvertCompanyNameToContactNameForContacts(true);
    build(1);
    EXPECT_EQ(engine.getMergeDataFromFieldName("companyname"), "") << "no company, no value";
    engine.FieldList()->clearRows();
    engine.FieldList()->addRow({});
    EXPECT_EQ(engine.getMergeDataFromFieldName("companyname"), "DisplayName");
    EXPECT_EQ(engine.getMergeDataFromDisplayName("company name"), "");
    const auto addRowNamed = [&](std::string_view name) {
        FieldListRow row;
        row.displayName = FieldText::fixed(name);
        engine.FieldList()->addRow(std::move(row));
    };
    addRowNamed("Contact Full Name");
    EXPECT_EQ(engine.getMergeDataFromDisplayName("company name"), "Contact Full Name");
    addRowNamed("Contact Display Name");
    EXPECT_EQ(engine.getMergeDataFromDisplayName("company name"), "Contact Display Name");
}

// --- A whole merge ---

TEST_F(MergeDataTest, MergesATemplateFromTheDatabase)
{
    addCompany({{"CompanyName", "Maple Leaf"}, {"Address", "1 Main St\r\nSuite 2"}});
    build(1);
    engine.TemplateText("«Company Name»: «Address»«(Year End Date, d)»");
    EXPECT_EQ(engine.parseRTBComment(), "Maple Leaf: 1 Main St\\par \r\nSuite 2 ");
    engine.ConvertStrToRTF(false);
    EXPECT_EQ(engine.parseRTBComment(), "Maple Leaf: 1 Main St\r\nSuite 2");
}

} // namespace qncal::test
