#include "host/store/statementRows.h"

#include <utility>

namespace qncal::host {

namespace {

/// The contacts of a company, with the columns that one list needs.
std::vector<Statement> linkedContactStatements()
{
    struct Row {
        const char* name;
        const char* columns;
        const char* field;
        const char* value;
    };
    const Row rows[] = {
        {"Emails", "Contacts.BusinessEmail, Contacts.PersonalEmail", "BusinessEmail", "ann@example.test"},
        {"Faxes", "Contacts.BusinessPhone_Fax, Contacts.HomePhone_Fax", "BusinessPhone_Fax", "555-0102"},
        {"Names", "Contacts.DisplayName", "DisplayName", "Ann North"},
        {"Phones", "Contacts.BusinessPhone_Main, Contacts.HomePhone_Main", "BusinessPhone_Main", "555-0101"},
    };
    std::vector<Statement> statements;
    for (const Row& row : rows)
        statements.push_back({std::string("linked") + row.name,
                              std::string("SELECT Contacts.ContactID, ") + row.columns
                                  + ", ContactLinks.ContactIDNum, ContactLinks.CompanyNum, ContactLinks.DefaultContact "
                                    "FROM Contacts INNER JOIN ContactLinks ON Contacts.ContactID = "
                                    "ContactLinks.ContactIDNum WHERE ContactLinks.CompanyNum = 1;",
                              row.field,
                              {row.value},
                              "a list of the editor"});
    return statements;
}

/// A row with its five custom columns under names of their own, as merge fields are read.
std::vector<Statement> mergeRecordStatements()
{
    struct Row {
        const char* table;
        const char* prefix;
        const char* condition;
        const char* custom1;
    };
    const Row rows[] = {
        {"Companies", "Company", "Companies.CompanyID=1", "first"},
        {"Contacts", "Contact", "Contacts.ContactID=1", "second"},
        {"AccountantFirmInfo", "Firm", "CompanyID=1", "third"},
        {"Appointments", "Appt", "Appointments.AppointmentID=1", "fourth"},
        {"Dockets", "Docket", "Dockets.DocketID=1", "fourth"},
    };
    std::vector<Statement> statements;
    for (const Row& row : rows) {
        const std::string table = row.table;
        std::string sql = "SELECT " + table + ".*";
        for (const std::string number : {"1", "2", "3", "4", "5"})
            sql += ", " + table + ".Custom" + number + " AS " + row.prefix + "Custom" + number;
        sql += " From " + table;
        const std::string field = std::string(row.prefix) + "Custom1";
        statements.push_back(
            {"merge" + table, sql + " WHERE " + row.condition + ";", field, {row.custom1}, "one record"});
    }
    return statements;
}

/// Five labels of custom fields at once; the first is compared.
std::vector<Statement> labelStatements()
{
    struct Row {
        const char* table;
        const char* prefix;
        const char* value;
    };
    const Row rows[] = {
        {"CustomFields", "CustomName", "Custom 1:"},       {"CustomAddressFields", "ContactLabel", ""},
        {"CustomAddressFields", "CompanyLabel", "Fax 2:"}, {"CustomFields", "ApptCustomName", "Room:"},
        {"CustomFields", "RemittanceLabel", ""},           {"CustomFields", "TaskCustomName", ""},
        {"CustomFields", "DocketCustomName", ""},
    };
    std::vector<Statement> statements;
    for (const Row& row : rows) {
        std::string columns;
        std::string qualified;
        for (const std::string number : {"1", "2", "3", "4", "5"}) {
            const std::string column = row.prefix + number;
            columns += (columns.empty() ? "" : ", ") + column;
            qualified += (qualified.empty() ? "" : ", ") + std::string(row.table) + "." + column;
        }
        const std::string from = std::string(" FROM ") + row.table + ";";
        const std::string field = std::string(row.prefix) + "1";
        statements.push_back(
            {std::string("bare") + row.prefix, "SELECT " + columns + from, field, {row.value}, "bare"});
        statements.push_back(
            {std::string("full") + row.prefix, "SELECT " + qualified + from, field, {row.value}, "qualified"});
    }
    return statements;
}

std::vector<Statement> singleStatements()
{
    return {
        {"customFields",
         "SELECT CustomFields.ApptCustomName1, CustomFields.CustomName1 FROM CustomFields;",
         "ApptCustomName1",
         {"Room:"},
         "labels of custom fields"},
        {"statusNames",
         "SELECT CustomFields.ApptStatusName1, CustomFields.ApptStatusName2, CustomFields.ApptStatusName3, "
         "CustomFields.ApptStatusName4, CustomFields.ApptStatusName5 FROM CustomFields;",
         "ApptStatusName1",
         {""},
         "labels of the status boxes"},
        {"companyAliases",
         "SELECT Companies.*, Companies.Custom1 AS CompanyCustom1, Companies.Custom2 AS CompanyCustom2, "
         "Companies.Custom3 AS CompanyCustom3, Companies.Custom4 AS CompanyCustom4, Companies.Custom5 AS "
         "CompanyCustom5 From Companies WHERE Companies.CompanyID=1;",
         "CompanyCustom1",
         {"first"},
         "a column under a second name"},
        {"companyNotes",
         "SELECT CompaniesNotes.* From CompaniesNotes WHERE CompaniesNotes.CompanyNum=1;",
         "ContactNotes",
         {"cn"},
         "notes of a company"},
        {"contactNotes",
         "SELECT ContactsNotes.ContactNum, ContactsNotes.Notes FROM ContactsNotes WHERE ContactNum=1;",
         "Notes",
         {"n"},
         "notes of a contact"},
        {"software",
         "SELECT SoftwareInfo.* From SoftwareInfo WHERE SoftwareInfo.DefaultSoftware=True AND "
         "SoftwareInfo.CompanyIDNum=1;",
         "CompanyIDNum",
         {"1"},
         "the bare word True"},
        {"scheduleAndTask",
         "SELECT Schedule.*, Tasks.*, Schedule.Custom1 AS ScheduleCustom1, Tasks.Custom1 AS TaskCustom1 FROM Schedule "
         "INNER JOIN Tasks ON Schedule.ScheduleID = Tasks.ScheduleIDNum WHERE Tasks.TaskID=1;",
         "Subject",
         {"Alpha"},
         "a task with its schedule entry"},
        {"linkedContacts",
         "SELECT Contacts.ContactID, Contacts.BusinessEmail, Contacts.PersonalEmail, ContactLinks.ContactIDNum, "
         "ContactLinks.CompanyNum, ContactLinks.DefaultContact FROM Contacts INNER JOIN ContactLinks ON "
         "Contacts.ContactID = ContactLinks.ContactIDNum WHERE ContactLinks.CompanyNum = 1;",
         "BusinessEmail",
         {"ann@example.test"},
         "the contacts of a company"},
        {"linkedCompanies",
         "SELECT ContactLinks.CompanyNum, Companies.CompanyName FROM ContactLinks INNER JOIN Companies ON "
         "ContactLinks.CompanyNum = Companies.CompanyID WHERE ContactLinks.ContactNum = 1;",
         "CompanyName",
         {"North Ltd"},
         "the companies of a contact"},
        {"links",
         "SELECT ContactLinks.ContactIDNum, ContactLinks.CompanyNum, ContactLinks.DefaultContact FROM ContactLinks "
         "WHERE CompanyNum=1 AND ContactLinks.ContactIDNum = 1;",
         "DefaultContact",
         {"True"},
         "one link"},
        {"category",
         "SELECT Categories.CategoryID, Categories.CategoryNum FROM Categories WHERE CategoryID = 1;",
         "CategoryNum",
         {"3"},
         "a category"},
        {"taxYear",
         "SELECT PersonalTaxDataImportInfo.* FROM PersonalTaxDataImportInfo WHERE TaxYear = 2025",
         "TaxYear",
         {"2025"},
         "a tax year"},
        {"taxSummary",
         "SELECT PersonalTaxClientSummary.ContactNum, PersonalTaxClientSummary.TaxYear, "
         "PersonalTaxClientSummary.PersonalTaxNotes FROM PersonalTaxClientSummary WHERE ContactNum = 1 AND TaxYear = "
         "2025;",
         "TaxYear",
         {"2025"},
         "a tax summary"},
        {"businessInner",
         "SELECT Companies.CompanyName FROM Clients INNER JOIN (ClientData INNER JOIN (Companies LEFT JOIN "
         "CompaniesNotes ON Companies.CompanyID = CompaniesNotes.CompanyNum) ON ClientData.CompanyIDNum = "
         "Companies.CompanyID) ON Clients.CompanyIDNum = Companies.CompanyID WHERE NOT ClientData.ActiveStatus=1 ORDER "
         "BY Companies.CompanyName;",
         "CompanyName",
         {},
         "parentheses on the right, and NOT before a comparison"},
        {"linkedToNothing",
         "SELECT Companies.CompanyName, SoftwareInfo.ContactIDNum FROM Companies LEFT JOIN SoftwareInfo ON "
         "Companies.CompanyID = SoftwareInfo.ContactIDNum;",
         "CompanyName",
         {"North Ltd"},
         "a left join keeps what has no match"},
        {"contactNotesRecord",
         "SELECT ContactsNotes.* From ContactsNotes WHERE ContactsNotes.ContactNum=1;",
         "Notes",
         {"n"},
         "merge fields of a contact"},
        {"contactNotesOfSummary",
         "SELECT ContactsNotes.* FROM ContactsNotes WHERE ContactNum=1;",
         "Notes",
         {"n"},
         "the summary of a contact"},
        {"softwareOfContact",
         "SELECT SoftwareInfo.* From SoftwareInfo WHERE SoftwareInfo.DefaultSoftware=True AND "
         "SoftwareInfo.ContactIDNum=1;",
         "CompanyIDNum",
         {},
         "software of a contact without any"},
        {"employee",
         "SELECT AccountantEmployeeInfo.* From AccountantEmployeeInfo WHERE ContactID=1;",
         "DisplayName",
         {"Eve Ledger"},
         "merge fields of a user"},
        {"employeeOfSummary",
         "SELECT AccountantEmployeeInfo.* FROM AccountantEmployeeInfo WHERE AccountantEmployeeInfo.ContactID=1;",
         "DisplayName",
         {"Eve Ledger"},
         "the summary of a user"},
        {"firm",
         "SELECT AccountantFirmInfo.* FROM AccountantFirmInfo WHERE AccountantFirmInfo.CompanyID=1;",
         "CompanyName",
         {"Ledger & Co"},
         "the firm's own row"},
        {"taskWithoutSchedule",
         "SELECT Tasks.*, Tasks.Custom1 AS TaskCustom1, Tasks.Custom2 AS TaskCustom2, Tasks.Custom3 AS TaskCustom3, "
         "Tasks.Custom4 AS TaskCustom4, Tasks.Custom5 AS TaskCustom5 FROM Tasks WHERE Tasks.TaskID=2;",
         "Subject",
         {"Beta"},
         "a task that hangs on no schedule entry"},
        {"labelsOfFirm", "SELECT CustomAddressFields.* FROM CustomAddressFields;", "CompanyLabel1", {"Fax 2:"}, "all"},
        {"labels", "SELECT CustomFields.* FROM CustomFields;", "ApptCustomName1", {"Room:"}, "labels of all kinds"},
        {"company",
         "SELECT Companies.* FROM Companies WHERE Companies.CompanyID=1;",
         "CompanyName",
         {"North Ltd"},
         "an address"},
        {"companies", "SELECT Companies.* FROM Companies;", "CompanyName", {"North Ltd"}, "all summaries"},
        {"contact",
         "SELECT Contacts.* FROM Contacts WHERE Contacts.ContactID=1;",
         "DisplayName",
         {"Ann North"},
         "an address"},
        {"contacts", "SELECT Contacts.* FROM Contacts;", "DisplayName", {"Ann North"}, "all summaries"},
        {"contactChannels",
         "SELECT Contacts.ContactID, Contacts.BusinessEmail, Contacts.PersonalEmail, Contacts.DisplayName, "
         "Contacts.BusinessPhone_Main, Contacts.BusinessPhone_Fax From Contacts WHERE Contacts.ContactID=1;",
         "BusinessEmail",
         {"ann@example.test"},
         "how to reach a contact"},
        {"taxProfile",
         "SELECT PersonalTaxProfileInfo.* FROM PersonalTaxProfileInfo WHERE PersonalTaxProfileInfo.ContactNum=1;",
         "ContactNum",
         {"1"},
         "a return"},
        {"taxYearSummary",
         "SELECT PersonalTaxDataImportInfo.TaxYear, PersonalTaxDataImportInfo.ShowProfileT1InfoInSummary FROM "
         "PersonalTaxDataImportInfo WHERE TaxYear = 2025",
         "ShowProfileT1InfoInSummary",
         {"True"},
         "what the summary of a year shows"},
        {"linksOfContact",
         "SELECT ContactLinks.ContactIDNum, ContactLinks.CompanyNum, ContactLinks.DefaultContact FROM ContactLinks "
         "WHERE ContactLinks.ContactIDNum = 1;",
         "CompanyNum",
         {"1"},
         "the companies of a contact"},
        {"linksOfCompany",
         "SELECT ContactLinks.ContactIDNum, ContactLinks.CompanyNum, ContactLinks.DefaultContact FROM ContactLinks "
         "WHERE ContactLinks.CompanyNum = 1;",
         "ContactIDNum",
         {"1"},
         "the contacts of a company"},
        {"linksAmongContacts",
         "SELECT ContactLinks.ContactIDNum, ContactLinks.ContactNum FROM ContactLinks WHERE ContactLinks.ContactNum = "
         "1;",
         "ContactIDNum",
         {"1"},
         "the personal summary"},
        {"allCompanyNotes",
         "SELECT CompaniesNotes.CompanyNum, CompaniesNotes.ContactNotes FROM CompaniesNotes;",
         "ContactNotes",
         {"cn"},
         "summaries of a contact in all its companies"},
        {"companyNotesOfSummary",
         "SELECT CompaniesNotes.* FROM CompaniesNotes WHERE CompaniesNotes.CompanyNum=1;",
         "ContactNotes",
         {"cn"},
         "the summary of a company"},
        {"notesToSave",
         "SELECT CompaniesNotes.CompanyNum, CompaniesNotes.ContactNotes FROM CompaniesNotes WHERE CompanyNum=1;",
         "ContactNotes",
         {"cn"},
         "saving the summary of a company's contact"},
        {"otherInfo", "SELECT OtherInfo.* FROM OtherInfo WHERE OtherInfoID=1;", "ClientDataIDNum", {"1"}, "by its key"},
        {"defaultContactOfCompany",
         "SELECT Companies.CompanyID, Companies.DefaultContactName, Companies.DefaultContactPhoneNumber, "
         "Companies.DefaultContactFaxNumber, Companies.DefaultContactEmail FROM Companies WHERE CompanyID = 1;",
         "CompanyID",
         {"1"},
         "the copy that a company keeps of its default contact"},
        {"defaultContact",
         "SELECT Contacts.ContactID, Contacts.DisplayName, Contacts.BusinessPhone_Main, Contacts.BusinessPhone_Fax, "
         "Contacts.BusinessEmail FROM Contacts WHERE ContactID = 1;",
         "DisplayName",
         {"Ann North"},
         "what is copied from the default contact"},
        {"parents",
         "SELECT Companies.CompanyID, Companies.CompanyNum, Companies.CategoryNum FROM Companies WHERE "
         "Companies.CompanyID = 1;",
         "CompanyID",
         {"1"},
         "where a company stands in the tree of clients"},
    };
}

} // namespace

std::vector<Statement> clientStatements()
{
    std::vector<Statement> all = singleStatements();
    for (std::vector<Statement> more : {linkedContactStatements(), mergeRecordStatements(), labelStatements()})
        all.insert(all.end(), more.begin(), more.end());
    return all;
}

} // namespace qncal::host
