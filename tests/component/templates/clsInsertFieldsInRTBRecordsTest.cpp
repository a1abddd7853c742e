#include "component/templates/MergeDataTest.h"
#include "support/rowName.h"

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

// --- The life of the record sets ---

TEST_F(MergeDataTest, InitialisationOpensTheRecordOfEveryIDInOrder)
{
    engine.contactID(7);
    engine.companyID(7);
    engine.TaskID(7);
    engine.docketId(7);
    engine.appointmentID(7);
    engine.userID(7);
    engine.firmID(7);
    engine.initializeDataRecordsetsForSingleDocMerge();
    const auto sql = recorded->openedSql();
    ASSERT_EQ(sql.size(), 10u);
    EXPECT_NE(sql[0].find("WHERE ClientData.CompanyIDNum=7;"), std::string::npos);
    EXPECT_EQ(sql[1], "SELECT Companies.*, Companies.Custom1 AS CompanyCustom1, Companies.Custom2 AS CompanyCustom2, "
                      "Companies.Custom3 AS CompanyCustom3, Companies.Custom4 AS CompanyCustom4, Companies.Custom5 AS "
                      "CompanyCustom5 From Companies WHERE Companies.CompanyID=7;");
    EXPECT_EQ(sql[2], "SELECT SoftwareInfo.* From SoftwareInfo WHERE SoftwareInfo.DefaultSoftware=True AND "
                      "SoftwareInfo.CompanyIDNum=7;");
    EXPECT_TRUE(sql[3].starts_with("SELECT Contacts.*, Contacts.Custom1 AS ContactCustom1, "));
    EXPECT_TRUE(sql[3].ends_with(" From Contacts WHERE Contacts.ContactID=7;"));
    EXPECT_TRUE(sql[4].ends_with(" From AccountantFirmInfo WHERE CompanyID=7;"));
    EXPECT_EQ(sql[5], "SELECT AccountantEmployeeInfo.* From AccountantEmployeeInfo WHERE ContactID=7;");
    EXPECT_TRUE(sql[6].ends_with(" WHERE Appointments.AppointmentID=7;"));
    EXPECT_TRUE(sql[7].ends_with(" WHERE Dockets.DocketID=7;"));
    EXPECT_TRUE(sql[8].starts_with("SELECT Schedule.*, Tasks.*, Schedule.Custom1 AS ScheduleCustom1, "));
    EXPECT_TRUE(sql[8].ends_with("Schedule.ScheduleID = Tasks.ScheduleIDNum WHERE Tasks.TaskID=7;"));
    EXPECT_TRUE(sql[9].starts_with("SELECT Tasks.*, Tasks.Custom1 AS TaskCustom1, "));
}

TEST_F(MergeDataTest, SoftwareIsOpenedByContactWhereThereIsNoCompany)
{
    engine.contactID(7);
    engine.initializeDataRecordsetsForSingleDocMerge();
    ASSERT_EQ(recorded->opened.size(), 2u);
    EXPECT_EQ(recorded->openedSql()[1],
              "SELECT SoftwareInfo.* From SoftwareInfo WHERE SoftwareInfo.DefaultSoftware=True "
              "AND SoftwareInfo.ContactIDNum=7;");
}

TEST_F(MergeDataTest, InitialisationWithoutAConnectionOnlyCloses)
{
    addContact({});
    engine.initializeDataRecordsetsForSingleDocMerge();
    EXPECT_FALSE(recorded->open.empty());
    recorded->connected = false;
    engine.initializeDataRecordsetsForSingleDocMerge();
    EXPECT_TRUE(recorded->open.empty());
}

TEST_F(MergeDataTest, EndClosesTheRecordSets)
{
    addCompany({});
    engine.initializeDataRecordsetsForSingleDocMerge();
    engine.Terminate();
    EXPECT_TRUE(recorded->open.empty());
}

TEST_F(MergeDataTest, RecordSetOfAnEarlierIDFindsNothing)
{
    addCompany({{"CompanyName", "Maple Leaf"}});
    build(1);
    EXPECT_EQ(field("Company Name"), "Maple Leaf");
    addCompany({{"CompanyName", "Oak"}});
    EXPECT_EQ(field("Company Name"), "");
    engine.initializeDataRecordsetsForSingleDocMerge();
    EXPECT_EQ(field("Company Name"), "Oak");
}

TEST_F(MergeDataTest, RecordIsOpenedOnceForAllItsFields)
{
    addCompany({{"CompanyName", "Maple Leaf"}, {"City", "Guelph"}});
    build(1);
    recorded->opened.clear();
    field("Company Name");
    field("City");
    EXPECT_EQ(recorded->opened.size(), 2u) << "the company, and its software beside it";
}

TEST_F(MergeDataTest, BatchReadsTheWholeTableAndFindsEachRow)
{
    const std::int32_t first = addCompany({{"CompanyName", "Maple Leaf"}});
    const std::int32_t second = addCompany({{"CompanyName", "Oak"}});
    build(1, 2);
    engine.companyID(first);
    EXPECT_EQ(field("Company Name"), "Maple Leaf");
    engine.companyID(second);
    EXPECT_EQ(field("Company Name"), "Oak");
    EXPECT_EQ(field("Business Number"), "123 RC");
}

TEST_F(MergeDataTest, OnlyAMergeThatWritesBackOpensForWriting)
{
    addContact({});
    build(2, 5);
    recorded->opened.clear();
    engine.initializeDataRecordsetsForSingleDocMerge();
    EXPECT_EQ(recorded->opened[0].second, DatabaseService::updatable);
    engine.MergeFieldListUse(1);
    engine.initializeDataRecordsetsForSingleDocMerge();
    EXPECT_EQ(recorded->opened.back().second, DatabaseService::readOnly);
}

TEST_F(MergeDataTest, ScheduleIDChoosesItsTask)
{
    const std::int32_t task = addRow("Tasks", {{"ScheduleIDNum", "12"}});
    engine.scheduleID(12);
    EXPECT_EQ(engine.TaskID(), task);
    engine.scheduleID(13);
    EXPECT_EQ(engine.TaskID(), -1);
}

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
    FieldListRow row;
    row.displayName = FieldText::fixed("Contact Full Name");
    engine.FieldList()->addRow(row);
    EXPECT_EQ(engine.getMergeDataFromDisplayName("company name"), "Contact Full Name");
    row.displayName = FieldText::fixed("Contact Display Name");
    engine.FieldList()->addRow(row);
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
