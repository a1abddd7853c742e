#include "templates/mergeFieldCatalogue.h"

#include "templates/mergeFieldCodes.h"

#include <algorithm>
#include <array>

namespace qncal {

namespace {

using namespace mergeCategory;
using enum MergeDataType;

constexpr auto P = MergeFieldBlock::appointment;
constexpr auto K = MergeFieldBlock::task;
constexpr auto E = MergeFieldBlock::timeEntry;
constexpr auto C = MergeFieldBlock::company;
constexpr auto N = MergeFieldBlock::contactName;
constexpr auto A = MergeFieldBlock::accounting;
constexpr auto S = MergeFieldBlock::software;
constexpr auto M = MergeFieldBlock::moreContact;
constexpr auto F = MergeFieldBlock::firm;
constexpr auto anyRegion = RegionCondition::any;
constexpr auto us = RegionCondition::unitedStates;
constexpr auto ca = RegionCondition::canada;
constexpr auto anyUse = UseCondition::any;
constexpr auto use3 = UseCondition::singleField;
constexpr auto not3 = UseCondition::notSingleField;
constexpr auto anyProvince = ProvinceCondition::any;
constexpr auto ontario = ProvinceCondition::ontario;
constexpr auto quebec = ProvinceCondition::quebec;
constexpr auto outsideQuebec = ProvinceCondition::outsideQuebec;

constexpr MergeFieldEntry customRows(MergeFieldBlock block, std::string_view category, CustomFieldGroup group)
{
    MergeFieldEntry entry{block, {}, {}, category, text, {}, 255};
    entry.customGroup = group;
    return entry;
}

// Block, display name, database field, category, type, sample, maximum length; region, use and province if
// the row depends on them. The line of a block's five custom rows stands where they go.
// clang-format off
constexpr auto entries = std::to_array<MergeFieldEntry>({
    // Appointment
    {P, "Appointment Name", "Subject", appointInfo, text, "Year end meeting", 255},
    {P, "Appointment Date", "DateFrom", appointInfo, date, "Mar 15, {year}", -1},
    {P, "Appointment Start Time", "TimeFrom", appointInfo, time, "9:00 am", -1},
    {P, "Appointment End Time", "TimeTo", appointInfo, time, "10:30 am", -1},
    {P, "Time Duration", "TimeDuration", appointInfo, text, "1 hr 30 min", 50},
    {P, "Appointment Text", "AppointmentText", appointInfo, text, "Year end meeting for Maple Leaf Bakery Ltd.", -1},
    customRows(P, appointInfo, CustomFieldGroup::appointment),

    // Task: what is due, then what stands in the calendar
    {K, "Task Name", "Subject", taskInfo, text, "Prepare sales tax return", 255},
    {K, "Task Due Date", "DueDate", taskInfo, date, "Apr 30, {year}", -1},
    {K, "Task in-House Due Date", "inHouseDueDate", taskInfo, date, "Apr 23, {year}", -1},
    {K, "Period End Date", "PeriodEndDate", taskInfo, date, "Mar 31, {year}", -1},
    {K, "Period Description", "PeriodDescription", taskInfo, text, "First quarter", 100},
    {K, "Task Calendar Date", "CalendarDate", taskInfo, date, "Apr 20, {year}", -1},
    {K, "Employee Assigned", "EmployeeAssigned", taskInfo, text, "Susan Clark", 100},
    {K, "Task Year", "Year", taskInfo, text, "{year}", 20},
    {K, "Amount Paid", "Amount", taskInfo, text, "$250.00", 20},
    {K, "Completed By", "PersonCompleted", taskInfo, text, "Susan Clark", 100},
    {K, "Date Completed", "DateCompleted", taskInfo, date, "Apr 22, {year}", -1},
    customRows(K, taskInfo, CustomFieldGroup::schedule),
    {K, "Task Subject", "Subject", taskInfo, text, "Prepare sales tax return", 255},
    // The second of this name on purpose; a search by name finds the one above.
    {K, "Task Calendar Date", "DateFrom", taskInfo, date, "Apr 20, {year}", -1},
    {K, "Task Start Time", "TimeFrom", taskInfo, time, "1:00 pm", -1},
    {K, "Task End Time", "TimeTo", taskInfo, time, "3:00 pm", -1},
    {K, "Time Duration", "TimeDuration", taskInfo, text, "2 hr", 50},
    {K, "Task Text", "AppointmentText", taskInfo, text, "Prepare sales tax return for Maple Leaf Bakery Ltd.", -1},
    customRows(K, taskInfo, CustomFieldGroup::task),

    // Time entry
    {E, "Time Entry Name", "Subject", docketInfo, text, "Bookkeeping", 255},
    {E, "Time Entry Date", "DateFrom", docketInfo, date, "Mar 16, {year}", -1},
    {E, "Time Entry Start Time", "TimeFrom", docketInfo, time, "9:00 am", -1},
    {E, "Time Entry End Time", "TimeTo", docketInfo, time, "11:30 am", -1},
    {E, "Time Duration", "TimeDuration", docketInfo, text, "2 hr 30 min", 50},
    {E, "Time Entry Text", "AppointmentText", docketInfo, text, "Bookkeeping for Maple Leaf Bakery Ltd.", -1},
    {E, "Time Entry Status", "DocketStatus", docketInfo, text, "Completed", 50},
    {E, "Time Entry Date Created", "DateCreated", docketInfo, date, "Mar 16, {year}", -1},
    {E, "Time Entry Locked", "DocketLocked", docketInfo, yesNo, "False", -1},
    {E, "Is Invoiced", "Invoiced", docketInfo, yesNo, "True", -1},
    {E, "Used Time Entry Timer", "UsedRealTime", docketInfo, yesNo, "True", -1},
    {E, "Time From (Actual Time)", "RealTimeFrom", docketInfo, time, "9:02 am", -1},
    {E, "Time To (Actual Time)", "RealTimeTo", docketInfo, time, "11:28 am", -1},
    {E, "Time From (Rounded Time)", "RoundedTimeFrom", docketInfo, time, "9:00 am", -1},
    {E, "Time To (Rounded Time)", "RoundedTimeTo", docketInfo, time, "11:30 am", -1},
    {E, "Billing Type", "DocketBillingType", docketInfo, text, "Hourly", 50},
    {E, "Billing Rate", "BillingJobRate", docketInfo, text, "Standard rate", 50},
    {E, "Billable Time", "BillableTime", docketInfo, yesNo, "True", -1},
    {E, "Total Time (Actual)", "TotalTimeReal", docketInfo, hours, "2.45", -1},
    {E, "Total Time (Rounded)", "TotalTimeRounded", docketInfo, hours, "2.5", -1},
    {E, "Use Adjusted Time", "UseAdjustedTime", docketInfo, yesNo, "False", -1},
    {E, "Total Time (Adjusted)", "TotalTimeAdjusted", docketInfo, hours, "2.25", -1},
    {E, "Total Time (Final)", "TotalTimeFinal", docketInfo, hours, "2.5", -1},
    {E, "Total Amount (Actual)", "TotalAmountReal", docketInfo, currency, "294", -1},
    {E, "Use Adjusted Amount", "UseAdjustedAmount", docketInfo, yesNo, "False", -1},
    {E, "Total Amount (Adjusted)", "TotalAmountAdjusted", docketInfo, currency, "270", -1},
    {E, "Total Amount (Final)", "TotalAmountFinal", docketInfo, currency, "300", -1},
    {E, "Internal Time Entry Description", "DescriptionInternal", docketInfo, text,
     "Entered the bank statements of the first quarter", -1},
    {E, "Invoice Time Entry Description", "DescriptionClient", docketInfo, text, "Bookkeeping for the first quarter",
     -1},
    customRows(E, docketInfo, CustomFieldGroup::timeEntry),

    // Company
    {C, "Company Name", "CompanyName", companyInfo, text, "Maple Leaf Bakery Ltd.", 150},
    {C, "Client ID", "ClientID", companyInfo, text, "1042", 50},
    {C, "Corporate Name", "CorporateName", companyInfo, text, "1234567 Ontario Inc.", 150},
    {C, "Company Type", "CompanyType", companyInfo, text, "Corporation", 50},
    {C, "Industry Type", "IndustryType", companyInfo, text, "Food services", 100},
    {C, "Address", "Address", companyInfo, text, "100 Main Street, Suite 200", 255, anyRegion, not3},
    {C, "Address 1", "Address1", companyInfo, text, "100 Main Street", 100, anyRegion, use3},
    {C, "Address 2", "Address2", companyInfo, text, "Suite 200", 100, anyRegion, use3},
    {C, "Address 3", "Address3", companyInfo, text, "P.O. Box 300", 100, anyRegion, use3},
    {C, "City", "City", companyInfo, text, "Springfield", 50},
    {C, "State", "Province", companyInfo, text, "Illinois", 50, us},
    {C, "Zip Code", "PostalCode", companyInfo, text, "62701", 12, us},
    {C, "Province", "Province", companyInfo, text, "Ontario", 50, ca},
    {C, "Abbreviated Province", "AbbreviatedProvince", companyInfo, text, "ON", 50, ca, not3},
    {C, "Postal Code", "PostalCode", companyInfo, text, "K1A 0B1", 12, ca},
    {C, "Country", "Country", companyInfo, text, "United States", 50, us},
    {C, "Country", "Country", companyInfo, text, "Canada", 50, ca},
    {C, "Office Number", "OfficeNumber", companyInfo, text, "555-0142", 20},
    {C, "Alternate Phone Number", "AltPhoneNumber", companyInfo, text, "555-0143", 20},
    {C, "Fax Number", "FaxNumber", companyInfo, text, "555-0144", 20},
    {C, "Email", "Email", companyInfo, text, "office@example.com", 100},
    {C, "Web Site", "WebSite", companyInfo, text, "www.example.com", 250},
    {C, "Company FaceBook URL", "FaceBookURL", companyInfo, text, "www.example.com/pages/bakery", 250},
    {C, "Company Twitter Account", "TwitterAccount", companyInfo, text, "@bakery", 100},
    {C, "Supervising Partner", "PartnerName", companyInfo, text, "Robert Hill", 100},
    {C, "Managing Accountant", "AccountantName", companyInfo, text, "Susan Clark", 100},
    {C, "Company Alternate Address", "AltAddress", companyInfo, text, "100 Main Street, Suite 200", 255, anyRegion,
     not3},
    {C, "Company Alternate Address 1", "AltAddress1", companyInfo, text, "100 Main Street", 100, anyRegion, use3},
    {C, "Company Alternate Address 2", "AltAddress2", companyInfo, text, "Suite 200", 100, anyRegion, use3},
    {C, "Company Alternate Address 3", "AltAddress3", companyInfo, text, "P.O. Box 300", 100, anyRegion, use3},
    {C, "Company Alternate City", "AltCity", companyInfo, text, "Springfield", 50},
    {C, "Company Alternate State", "AltProvince", companyInfo, text, "Illinois", 50, us},
    {C, "Company Alternate Zip Code", "AltPostalCode", companyInfo, text, "62701", 12, us},
    {C, "Company Alternate Province", "AltProvince", companyInfo, text, "Ontario", 50, ca},
    {C, "Company Alternate Abbreviated Province", "AltAbbreviatedProvince", companyInfo, text, "ON", 50, ca, not3},
    {C, "Company Alternate Postal Code", "AltPostalCode", companyInfo, text, "K1A 0B1", 12, ca},
    {C, "Company Alternate Country", "AltCountry", companyInfo, text, "United States", 50, us},
    {C, "Company Alternate Country", "AltCountry", companyInfo, text, "Canada", 50, ca},
    customRows(C, companyInfo, CustomFieldGroup::company),
    {C, "Company Notes", "Notes", companyNotes, text, "Prefers to be called in the morning.", -1},

    // Contact name
    {N, "Contact Display Name", "DisplayName", contactInfo, text, "Ann Reed", 150, anyRegion, not3},
    {N, "Contact Full Name", "DisplayName", contactInfo, text, "Ann Reed", 150, anyRegion, use3},
    {N, "Contact & Spouse Name", "ContactAndSpouseName", contactInfo, text, "Ann and Bob Reed", 255, anyRegion, not3},
    {N, "Client ID", "ClientID", contactInfo, text, "2077", 50},
    {N, "Contact Name Prefix", "NamePrefix", contactInfo, text, "Ms.", 15},
    {N, "Contact First Name", "FirstName", contactInfo, text, "Ann", 50},
    {N, "Contact Middle Name", "MiddleName", contactInfo, text, "Louise", 50},
    {N, "Contact Last Name", "LastName", contactInfo, text, "Reed", 50},
    {N, "Contact Name Suffix", "NameSuffix", contactInfo, text, "Ph.D.", 15},

    // Accounting
    {A, "Federal Employer Identification Number", "EIN", clientInfo, text, "12-3456789", 20, us, anyUse, anyProvince,
     "Federal Employer Identification  Number"},
    {A, "Sellers Permit Number", "SellersPermitNum", clientInfo, text, "SR-123456", 20, us},
    {A, "Year End Date", "USYearEndDate", clientInfo, date, "Dec 31, {year}", -1, us},
    {A, "Secretary of State File Number", "SoSFileNum", clientInfo, text, "C1234567", 20, us},
    {A, "Incorporation Date", "USIncorporationDate", clientInfo, date, "Nov 1, {year}", -1, us},
    {A, "Property Tax Number", "PropertyTaxNum", clientInfo, text, "123-45-678", 20, us},
    {A, "Form 637 Registration Number", "Form637RegNum", clientInfo, text, "12-3456789-S", 20, us},
    {A, "Terminal Control Number", "TCN", clientInfo, text, "T-36-IL-1234", 20, us},
    {A, "Terminal Name", "TerminalName", clientInfo, text, "North terminal", 100, us},
    {A, "Terminal Location", "TerminalLocation", clientInfo, text, "Springfield", 100, us},
    {A, "Alcohol Number", "AlcoholNum", clientInfo, text, "AL-12345", 20, us},
    {A, "Business Number", "BusinessNumber", clientInfo, text, "123456789", 20, ca},
    {A, "RC59 Permission Level", "RC59Permission", clientInfo, text, "Full", 50, ca},
    {A, "RC59 Form Status", "RC59Status", clientInfo, text, "Completed", 50, ca},
    {A, "{salesTax} Number", "GSTNumber", clientInfo, text, "123456789RT0001", 20, ca},
    {A, "{salesTax} Filing Method", "GSTFilingMethod", clientInfo, text, "Quick Method", 50, ca},
    {A, "{secondSalesTax} Number", "PSTNumber", clientInfo, text, "1234-5678", 20, ca},
    {A, "Payroll Number", "PayrollNumber", clientInfo, text, "123456789RP0001", 20, ca},
    {A, "Payroll Registered As", "PayrollRegisteredAs", clientInfo, text, "Regular remitter", 50, ca},
    {A, "Year End Date", "YearEndDate", clientInfo, date, "Mar 31, {year}", -1, ca},
    {A, "Federal Corp. Tax Number", "FederalCorpNumber", clientInfo, text, "123456789RC0001", 20, ca},
    {A, "{corpTax} Corp. Tax Number", "ONCorpNumber", clientInfo, text, "1234567", 20, ca},
    {A, "ON Corp. MCBS Number", "MCBS", clientInfo, text, "7654321", 20, ca, anyUse, ontario},
    {A, "Quebec ID Number", "MCBS", clientInfo, text, "1234567890", 20, ca, anyUse, quebec},
    {A, "Incorporation Date", "IncorporationDate", clientInfo, date, "Nov 1, {year}", -1, ca},
    {A, "Financial Statements", "FinancialStatements", clientInfo, text, "Review Engagement", 50, ca},
    {A, "Corporation Type", "CorporationType", clientInfo, text, "CCPC", 50, ca},
    {A, "Corporation Level", "CorporationLevel", clientInfo, text, "Federal Corporation", 50, ca},
    {A, "Charitable Number", "CharitableNum", clientInfo, text, "123456789RR0001", 20, ca},
    {A, "{workersBoard} Number", "WSIBNumber", clientInfo, text, "1234567", 20, ca, anyUse, outsideQuebec},
    {A, "NEQ Number", "WSIBNumber", clientInfo, text, "1123456789", 20, ca, anyUse, quebec},
    {A, "{workersBoard} Firm Number", "WSIBFirmNumber", clientInfo, text, "123456AB", 20, ca, anyUse, ontario},
    {A, "{workersBoard} Premium Rate", "WSIBPremiumRate", clientInfo, text, "1.35", 12, ca},
    {A, "{workersBoard} Coverage", "Coverage", clientInfo, text, "Optional", 50, ca},
    {A, "EHT Number", "EHTNumber", clientInfo, text, "123456789TE0001", 20, ca},
    {A, "EHT Premium Rate", "EHTPremiumRate", clientInfo, text, "0.98", 12, ca},
    {A, "Name Renewal Date", "NameRenewalDate", clientInfo, date, "Jun 30, {year}", -1, ca},
    {A, "Law Society Member Number", "LawSocietyMemberNumber", clientInfo, text, "12345A", 20, ca},
    customRows(A, clientInfo, CustomFieldGroup::client),

    // Software
    {S, "Software Name", "SoftwareName", softwareInfo, text, "General Ledger", 100},
    {S, "Software Serial Number", "SoftwareSerialNumber", softwareInfo, text, "GL-2041-7733", 50},
    {S, "Software Version", "SoftwareVersion", softwareInfo, text, "8.2", 20},
    {S, "Software Account Number", "SoftwareAccountNumber", softwareInfo, text, "AC-55120", 50},
    {S, "Data File Saved As", "FileSavedAs", softwareInfo, text, "bakery.dat", 255},
    {S, "User Name", "UserName", softwareInfo, text, "areed", 50},
    {S, "Password", "Password", softwareInfo, text, "blue-kettle-42", 50},

    // More of the contact
    {M, "Contact SSN", "SocialInsuranceNumber", contactInfo, text, "123-45-6789", 15, us},
    {M, "Contact SIN", "SocialInsuranceNumber", contactInfo, text, "123 456 789", 15, ca},
    {M, "Supervising Partner", "PartnerName", contactInfo, text, "Robert Hill", 100},
    {M, "Managing Accountant", "AccountantName", contactInfo, text, "Susan Clark", 100},
    {M, "Contact Employee Type", "EmployeeType", contactInfo, text, "Owner", 50},
    {M, "Contact Percentage Ownership", "PercentageOwnership", contactInfo, text, "60", 12},
    {M, "Contact Business Name", "BusinessName", contactInfo, text, "Maple Leaf Bakery Ltd.", 150},
    {M, "Contact Job Title", "BusinessJobTitle", contactInfo, text, "President", 100},
    {M, "Contact Business Department", "BusinessDepartment", contactInfo, text, "Administration", 100},
    {M, "Contact Business Office", "BusinessOffice", contactInfo, text, "Head office", 100},
    {M, "Contact Business Phone", "BusinessPhone_Main", contactInfo, text, "555-0142", 20},
    {M, "Contact Business Alt. Phone", "BusinessAltPhoneNumber", contactInfo, text, "555-0143", 20},
    {M, "Contact Business Cell", "BusinessPhone_Cell", contactInfo, text, "555-0145", 20},
    {M, "Contact Business Pager", "BusinessPhone_Pager", contactInfo, text, "555-0146", 20},
    {M, "Contact Business Fax", "BusinessPhone_Fax", contactInfo, text, "555-0144", 20},
    {M, "Contact Business Address", "BusinessAddress", contactInfo, text, "100 Main Street, Suite 200", 255,
     anyRegion, not3},
    {M, "Contact Business Address 1", "BusinessAddress1", contactInfo, text, "100 Main Street", 100, anyRegion, use3},
    {M, "Contact Business Address 2", "BusinessAddress2", contactInfo, text, "Suite 200", 100, anyRegion, use3},
    {M, "Contact Business Address 3", "BusinessAddress3", contactInfo, text, "P.O. Box 300", 100, anyRegion, use3},
    {M, "Contact Business City", "BusinessCity", contactInfo, text, "Springfield", 50},
    {M, "Contact Business State", "BusinessProvince", contactInfo, text, "Illinois", 50, us},
    {M, "Contact Business Zip Code", "BusinessPostalCode", contactInfo, text, "62701", 12, us},
    {M, "Contact Business Province", "BusinessProvince", contactInfo, text, "Ontario", 50, ca},
    {M, "Contact Business Abbreviated Province", "BusinessAbbreviatedProvince", contactInfo, text, "ON", 50, ca, not3},
    {M, "Contact Business Postal Code", "BusinessPostalCode", contactInfo, text, "K1A 0B1", 12, ca},
    {M, "Contact Business Country", "BusinessCountry", contactInfo, text, "United States", 50, us},
    {M, "Contact Business Country", "BusinessCountry", contactInfo, text, "Canada", 50, ca},
    {M, "Contact Business Web Site", "BusinessWebSite", contactInfo, text, "www.example.com", 250},
    {M, "Contact Business Email", "BusinessEmail", contactInfo, text, "ann.reed@example.com", 100},
    {M, "Contact Business FaceBook URL", "BusinessFaceBookURL", contactInfo, text, "www.example.com/pages/bakery", 250},
    {M, "Contact Business Twitter Account", "BusinessTwitterAccount", contactInfo, text, "@bakery", 100},
    {M, "Contact Personal Phone", "HomePhone_Main", contactInfo, text, "555-0150", 20},
    {M, "Contact Personal Cell", "HomePhone_Cell", contactInfo, text, "555-0151", 20},
    {M, "Contact Personal Pager", "HomePhone_Pager", contactInfo, text, "555-0152", 20},
    {M, "Contact Personal Fax", "HomePhone_Fax", contactInfo, text, "555-0153", 20},
    {M, "Contact Personal Web Site", "PersonalWebSite", contactInfo, text, "www.example.org/ann", 250},
    {M, "Contact Personal Email", "PersonalEmail", contactInfo, text, "ann@example.org", 100},
    {M, "Contact Personal FaceBook URL", "PersonalFaceBookURL", contactInfo, text, "www.example.org/pages/ann", 250},
    {M, "Contact Personal Twitter Account", "PersonalTwitterAccount", contactInfo, text, "@annreed", 100},
    {M, "Contact Home Address", "HomeAddress", contactInfo, text, "100 Main Street, Suite 200", 255, anyRegion, not3},
    {M, "Contact Home Address 1", "HomeAddress1", contactInfo, text, "100 Main Street", 100, anyRegion, use3},
    {M, "Contact Home Address 2", "HomeAddress2", contactInfo, text, "Suite 200", 100, anyRegion, use3},
    {M, "Contact Home Address 3", "HomeAddress3", contactInfo, text, "P.O. Box 300", 100, anyRegion, use3},
    {M, "Contact Home City", "HomeCity", contactInfo, text, "Springfield", 50},
    {M, "Contact Home State", "HomeProvince", contactInfo, text, "Illinois", 50, us},
    {M, "Contact Home Zip Code", "HomePostalCode", contactInfo, text, "62701", 12, us},
    {M, "Contact Home Province", "HomeProvince", contactInfo, text, "Ontario", 50, ca},
    {M, "Contact Home Abbreviated Province", "HomeAbbreviatedProvince", contactInfo, text, "ON", 50, ca, not3},
    {M, "Contact Home Postal Code", "HomePostalCode", contactInfo, text, "K1A 0B1", 12, ca},
    {M, "Contact Home Country", "HomeCountry", contactInfo, text, "United States", 50, us},
    {M, "Contact Home Country", "HomeCountry", contactInfo, text, "Canada", 50, ca},
    {M, "Contact Children", "Children", contactInfo, text, "Emma, Jack", 255},
    {M, "Contact Gender", "Gender", contactInfo, text, "Female", 20},
    {M, "Contact Birthday", "Birthday", contactInfo, date, "May 4, 1971", -1},
    {M, "Contact Anniversary", "Anniversary", contactInfo, date, "Jun 18, 1996", -1},
    {M, "Contact Spoken Language", "SpokenLanguage", contactInfo, text, "English", 50},
    {M, "Contact Marital Status", "MaritialStatus", contactInfo, text, "Married", 20},
    {M, "Spouse Name Prefix", "SpouseNamePrefix", contactInfo, text, "Mr.", 15},
    {M, "Spouse First Name", "SpouseFirstName", contactInfo, text, "Bob", 50},
    {M, "Spouse Middle Name", "SpouseMiddleName", contactInfo, text, "James", 50},
    {M, "Spouse Last Name", "SpouseLastName", contactInfo, text, "Reed", 50},
    {M, "Spouse Name Suffix", "SpouseNameSuffix", contactInfo, text, "Jr.", 15},
    {M, "Spouse Display Name", "SpouseName", contactInfo, text, "Bob Reed", 150},
    {M, "Spouse Personal Email", "SpouseEmail", contactInfo, text, "bob@example.org", 100},
    {M, "Spouse Home Phone", "SpousePhone_Main", contactInfo, text, "555-0150", 20},
    {M, "Spouse Personal Cell", "SpousePhone_Cell", contactInfo, text, "555-0154", 20},
    {M, "Spouse Home Address", "SpouseAddress", contactInfo, text, "100 Main Street, Suite 200", 255, anyRegion, not3},
    {M, "Spouse Home Address 1", "SpouseAddress1", contactInfo, text, "100 Main Street", 100, anyRegion, use3},
    {M, "Spouse Home Address 2", "SpouseAddress2", contactInfo, text, "Suite 200", 100, anyRegion, use3},
    {M, "Spouse Home Address 3", "SpouseAddress3", contactInfo, text, "P.O. Box 300", 100, anyRegion, use3},
    {M, "Spouse Home City", "SpouseCity", contactInfo, text, "Springfield", 50},
    {M, "Spouse Home State", "SpouseProvince", contactInfo, text, "Illinois", 50, us},
    {M, "Spouse Home Zip Code", "SpousePostalCode", contactInfo, text, "62701", 12, us},
    {M, "Spouse Home Province", "SpouseProvince", contactInfo, text, "Ontario", 50, ca},
    {M, "Spouse Home Abbreviated Province", "SpouseAbbreviatedProvince", contactInfo, text, "ON", 50, ca, not3},
    {M, "Spouse Home Postal Code", "SpousePostalCode", contactInfo, text, "K1A 0B1", 12, ca},
    {M, "Spouse Home Country", "SpouseCountry", contactInfo, text, "United States", 50, us},
    {M, "Spouse Home Country", "SpouseCountry", contactInfo, text, "Canada", 50, ca},
    {M, "Spouse Gender", "SpouseGender", contactInfo, text, "Male", 20},
    // Text on purpose, unlike the birthday of the contact: it is written as a simple field.
    {M, "Spouse Birthday", "SpouseBirthday", contactInfo, text, "Sep 9, 1969", 20},
    {M, "Spouse SSN", "SpouseSIN", contactInfo, text, "987-65-4321", 15, us},
    {M, "Spouse SIN", "SpouseSIN", contactInfo, text, "987 654 321", 15, ca},
    {M, "Contact Alternate Address", "AltAddress", contactInfo, text, "100 Main Street, Suite 200", 255, anyRegion,
     not3},
    {M, "Contact Alternate Address 1", "AltAddress1", contactInfo, text, "100 Main Street", 100, anyRegion, use3},
    {M, "Contact Alternate Address 2", "AltAddress2", contactInfo, text, "Suite 200", 100, anyRegion, use3},
    {M, "Contact Alternate Address 3", "AltAddress3", contactInfo, text, "P.O. Box 300", 100, anyRegion, use3},
    {M, "Contact Alternate City", "AltCity", contactInfo, text, "Springfield", 50},
    {M, "Contact Alternate State", "AltProvince", contactInfo, text, "Illinois", 50, us},
    {M, "Contact Alternate Zip Code", "AltPostalCode", contactInfo, text, "62701", 12, us},
    {M, "Contact Alternate Province", "AltProvince", contactInfo, text, "Ontario", 50, ca},
    {M, "Contact Alternate Abbreviated Province", "AltAbbreviatedProvince", contactInfo, text, "ON", 50, ca, not3},
    {M, "Contact Alternate Postal Code", "AltPostalCode", contactInfo, text, "K1A 0B1", 12, ca},
    {M, "Contact Alternate Country", "AltCountry", contactInfo, text, "United States", 50, us},
    {M, "Contact Alternate Country", "AltCountry", contactInfo, text, "Canada", 50, ca},
    customRows(M, contactInfo, CustomFieldGroup::contact),
    {M, "Contact Notes", "Notes", contactNotes, text, "Speaks for the family.", -1},

    // The firm itself
    {F, "Your Company Name", "CompanyName", firmInfo, text, "Hill & Clark", 150},
    {F, "Your Corporate Name", "CorporateName", firmInfo, text, "Hill & Clark LLP", 150},
    {F, "Your Company Type", "CompanyType", firmInfo, text, "Partnership", 50},
    {F, "Your Industry Type", "IndustryType", firmInfo, text, "Accounting", 100},
    {F, "Your Address", "Address", firmInfo, text, "25 Bank Street", 255},
    {F, "Your City", "City", firmInfo, text, "Ottawa", 50},
    {F, "Your State", "Province", firmInfo, text, "Illinois", 50, us},
    {F, "Your Zip Code", "PostalCode", firmInfo, text, "62701", 12, us},
    {F, "Your Province", "Province", firmInfo, text, "Ontario", 50, ca},
    {F, "Your Postal Code", "PostalCode", firmInfo, text, "K1P 5N2", 12, ca},
    {F, "Your Country", "Country", firmInfo, text, "United States", 50, us},
    {F, "Your Country", "Country", firmInfo, text, "Canada", 50, ca},
    {F, "Your Office Number", "OfficeNumber", firmInfo, text, "555-0100", 20},
    {F, "Your Fax Number", "FaxNumber", firmInfo, text, "555-0101", 20},
    {F, "Your Email", "Email", firmInfo, text, "office@example.net", 100},
    {F, "Your Web Site", "WebSite", firmInfo, text, "www.example.net", 250},
    customRows(F, firmInfo, CustomFieldGroup::firm),
});
// clang-format on

} // namespace

std::span<const MergeFieldEntry> mergeFieldEntries(MergeFieldBlock block)
{
    static_assert(std::ranges::is_sorted(entries, {}, &MergeFieldEntry::block));
    return {std::ranges::lower_bound(entries, block, {}, &MergeFieldEntry::block),
            std::ranges::upper_bound(entries, block, {}, &MergeFieldEntry::block)};
}

} // namespace qncal
