#pragma once

#include "core/schema/columns.h"

/// Companies, contacts, the firm itself, and the links between them.

namespace qncal::schema {

using enum ColumnType;

/// A street address with its parts. The numbered lines are filled by field assignment, the plain one is shown.
#define QNCAL_ADDRESS_COLUMNS(prefix)                                                                                  \
    column(prefix "Address", text), column(prefix "Address1", text), column(prefix "Address2", text),                  \
        column(prefix "Address3", text), column(prefix "City", text), column(prefix "Province", text),                 \
        column(prefix "PostalCode", text), column(prefix "Country", text)

/// The columns that client companies and the firm itself share: the summaries read either by the same names.
inline constexpr Column companyColumns[] = {
    {"CompanyName", text},
    {"CorporateName", text},
    {"ClientID", text},
    {"CategoryNum", id},
    // The parent company.
    {"CompanyNum", id},
    {"CompanyType", integer},
    {"IndustryType", text},
    QNCAL_ADDRESS_COLUMNS(""),
    {"AltAddressName", text},
    QNCAL_ADDRESS_COLUMNS("Alt"),
    {"OfficeNumber", text},
    {"AltPhoneNumber", text},
    {"FaxNumber", text},
    {"Email", text},
    {"WebSite", text},
    {"FaceBookURL", text},
    {"TwitterAccount", text},
    {"PartnerName", text},
    {"AccountantName", text},
    {"DefaultContactName", text},
    {"DefaultContactPhoneNumber", text},
    {"DefaultContactFaxNumber", text},
    {"DefaultContactEmail", text},
    QNCAL_FIVE_COLUMNS("Custom", text),
};

/// The columns that client contacts and the firm's employees share.
inline constexpr Column contactColumns[] = {
    {"DisplayName", text},
    {"ClientID", text},
    {"NamePrefix", text},
    {"FirstName", text},
    {"MiddleName", text},
    {"LastName", text},
    {"NameSuffix", text},
    {"SocialInsuranceNumber", text},
    {"PartnerName", text},
    {"AccountantName", text},
    {"EmployeeType", text},
    {"PercentageOwnership", text},
    {"InheritCompanyInfo", boolean},
    {"BusinessName", text},
    {"BusinessJobTitle", text},
    {"BusinessDepartment", text},
    {"BusinessOffice", text},
    {"BusinessPhone_Main", text},
    {"BusinessAltPhoneNumber", text},
    {"BusinessPhone_Cell", text},
    {"BusinessPhone_Pager", text},
    {"BusinessPhone_Fax", text},
    QNCAL_ADDRESS_COLUMNS("Business"),
    {"BusinessWebSite", text},
    {"BusinessEmail", text},
    {"BusinessFaceBookURL", text},
    {"BusinessTwitterAccount", text},
    {"HomePhone_Main", text},
    {"PersonalAltPhoneNumber", text},
    {"HomePhone_Cell", text},
    {"HomePhone_Pager", text},
    {"HomePhone_Fax", text},
    QNCAL_ADDRESS_COLUMNS("Home"),
    {"PersonalWebSite", text},
    {"PersonalEmail", text},
    {"PersonalFaceBookURL", text},
    {"PersonalTwitterAccount", text},
    {"Children", memo},
    {"Gender", text},
    {"Birthday", date},
    {"Anniversary", date},
    {"SpokenLanguage", text},
    {"MaritialStatus", text},
    {"SpouseNamePrefix", text},
    {"SpouseFirstName", text},
    {"SpouseMiddleName", text},
    {"SpouseLastName", text},
    {"SpouseNameSuffix", text},
    {"SpouseName", text},
    {"SpouseEmail", text},
    {"SpousePhone_Main", text},
    {"SpousePhone_Cell", text},
    QNCAL_ADDRESS_COLUMNS("Spouse"),
    {"SpouseGender", text},
    {"SpouseBirthday", date},
    {"SpouseSIN", text},
    {"AltAddressName", text},
    QNCAL_ADDRESS_COLUMNS("Alt"),
    QNCAL_FIVE_COLUMNS("Custom", text),
};

#undef QNCAL_ADDRESS_COLUMNS

inline constexpr auto companiesColumns = columns({{"CompanyID", key}}, companyColumns);
inline constexpr auto contactsColumns = columns({{"ContactID", key}}, contactColumns);

inline constexpr auto contactLinksColumns = columns({
    {"ContactLinkID", key},
    {"ContactIDNum", id},
    {"CompanyNum", id},
    {"CategoryNum", id},
    // The other contact of a family link.
    {"ContactNum", id},
    {"DefaultContact", boolean},
});
inline constexpr Index contactLinksIndexes[] = {{"CompanyNum"}, {"ContactIDNum"}, {"ContactNum"}};

inline constexpr auto categoriesColumns = columns({
    {"CategoryID", key},
    // The parent category.
    {"CategoryNum", id},
    {"CategoryName", text},
});

inline constexpr auto companiesNotesColumns = columns({
    {"CompaniesNotesID", key},
    {"CompanyNum", id},
    {"Notes", memo},
    {"BusinessNotes", memo},
    {"ContactNotes", memo},
});
inline constexpr Index companiesNotesIndexes[] = {{"CompanyNum"}};

inline constexpr auto contactsNotesColumns = columns({
    {"ContactsNotesID", key},
    {"ContactNum", id},
    {"Notes", memo},
    {"BusinessNotes", memo},
    {"PersonalNotes", memo},
});
inline constexpr Index contactsNotesIndexes[] = {{"ContactNum"}};

inline constexpr auto softwareInfoColumns = columns({
    {"SoftwareInfoID", key},
    {"CompanyIDNum", id},
    {"ContactIDNum", id},
    {"DefaultSoftware", boolean},
    {"SoftwareName", text},
    {"SoftwareSerialNumber", text},
    {"SoftwareVersion", text},
    {"SoftwareAccountNumber", text},
    {"FileSavedAs", text},
    {"UserName", text},
    {"Password", text},
});
inline constexpr Index softwareInfoIndexes[] = {{"CompanyIDNum"}, {"ContactIDNum"}};

inline constexpr Table clientTables[] = {
    {"Companies", companiesColumns, "Business clients, each with a copy of its default contact's name and numbers"},
    {"Contacts", contactsColumns, "Personal clients and the people of business clients"},
    {"ContactLinks", contactLinksColumns, "Ties of a contact to a company, a category or another contact",
     contactLinksIndexes},
    {"Categories", categoriesColumns, "The tree of address book categories"},
    {"CompaniesNotes", companiesNotesColumns, "Notes and rich-text summaries of a company", companiesNotesIndexes},
    {"ContactsNotes", contactsNotesColumns, "Notes and rich-text summaries of a contact", contactsNotesIndexes},
    {"SoftwareInfo", softwareInfoColumns, "The accounting software that a client uses", softwareInfoIndexes},
    {"AccountantFirmInfo", companiesColumns, "The accounting firm itself, described as its client companies are"},
    {"AccountantEmployeeInfo", contactsColumns,
     "The firm's employees, who are the calendar's users, described as client contacts are"},
};

} // namespace qncal::schema
