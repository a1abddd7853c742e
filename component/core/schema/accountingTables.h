#pragma once

#include "core/schema/columns.h"

/// What the firm keeps of its clients' accounts and taxes.

namespace qncal::schema {

using enum ColumnType;

inline constexpr auto clientsColumns = columns({
    {"ClientID", key},
    {"CompanyIDNum", id},
});
inline constexpr auto clientDataColumns = columns({
    {"ClientDataID", key},
    {"CompanyIDNum", id},
    {"ActiveStatus", integer},
    {"ShowThisClient", boolean},
    QNCAL_FIVE_COLUMNS("ClientCustom", text),
});
inline constexpr Index byCompany[] = {{"CompanyIDNum"}};

/// The row of `ClientData` that a row of the following tables belongs to.
inline constexpr Column clientDataLink[] = {{"ClientDataIDNum", id}};
inline constexpr Index byClientData[] = {{"ClientDataIDNum"}};

inline constexpr auto accountingServicesColumns =
    columns({{"AccountingServicesID", key}}, clientDataLink, {{"FinancialStatements", integer}});
inline constexpr auto clientOptionsColumns = columns({{"ClientOptionsID", key}}, clientDataLink);

inline constexpr auto clientUSInfoColumns = columns({{"ClientUSInfoID", key}}, clientDataLink,
                                                    {
                                                        {"EIN", text},
                                                        {"SellersPermitNum", text},
                                                        {"USYearEndDate", date},
                                                        {"SoSFileNum", text},
                                                        {"USIncorporationDate", date},
                                                        {"PropertyTaxNum", text},
                                                        {"Form637RegNum", text},
                                                        {"TCN", text},
                                                        {"TerminalName", text},
                                                        {"TerminalLocation", text},
                                                        {"AlcoholNum", text},
                                                    });

inline constexpr auto corpTaxInfoColumns = columns({{"CorpTaxInfoID", key}}, clientDataLink,
                                                   {
                                                       {"BusinessNumber", text},
                                                       {"RC59Permission", integer},
                                                       {"RC59Status", integer},
                                                       {"GSTNumber", text},
                                                       {"GSTFilingMethod", integer},
                                                       {"PSTNumber", text},
                                                       {"PayrollNumber", text},
                                                       {"PayrollRegisteredAs", text},
                                                       {"YearEndDate", date},
                                                       {"FederalCorpNumber", text},
                                                       {"ONCorpNumber", text},
                                                       {"MCBS", text},
                                                       {"IncorporationDate", date},
                                                       {"CorporationType", integer},
                                                       {"CorporationLevel", integer},
                                                       {"CharitableNum", text},
                                                   });

inline constexpr auto lawInfoColumns =
    columns({{"LawInfoID", key}}, clientDataLink, {{"LawSocietyMemberNumber", text}});
inline constexpr auto otherInfoColumns = columns({{"OtherInfoID", key}}, clientDataLink, {{"NameRenewalDate", date}});

inline constexpr auto wsibEhtInfoColumns = columns({{"WSIB_EHTInfoID", key}}, clientDataLink,
                                                   {
                                                       {"WSIBNumber", text},
                                                       {"WSIBFirmNumber", text},
                                                       {"WSIBPremiumRate", text},
                                                       {"Coverage", text},
                                                       {"EHTNumber", text},
                                                       {"EHTPremiumRate", text},
                                                   });

inline constexpr auto personalTaxClientSummaryColumns = columns({
    {"PersonalTaxClientSummaryID", key},
    {"ContactNum", id},
    {"TaxYear", integer},
    {"PersonalTaxNotes", memo},
});
inline constexpr Index personalTaxClientSummaryIndexes[] = {{"ContactNum", "TaxYear"}};

inline constexpr auto personalTaxProfileInfoColumns = columns({
    {"PersonalTaxProfileInfoID", key},
    {"ContactNum", id},
    {"DateLastSynched", date},
    {"ProfileClientStatus", integer},
    {"EFILEStatus", integer},
    {"T5007", boolean},
    {"Revenue", currency},
    {"EstimatedRefund", currency},
    {"ActualRefund", currency},
    {"PaidtoClient", currency},
    {"GST", currency},
    {"Discounted", boolean},
    {"DeceasedReturn", boolean},
    {"DateCreated", date},
    {"DateSigned", date},
    {"PreparerName", text},
    {"PartnerName", text},
});
inline constexpr Index personalTaxProfileInfoIndexes[] = {{"ContactNum"}};

/// A show flag for each column of the profile, named after it.
inline constexpr auto personalTaxDataImportInfoColumns = columns({
    {"PersonalTaxDataImportInfoID", key},
    {"TaxYear", integer},
    {"ShowProfileT1InfoInSummary", boolean},
    {"T1InfoDateLastSynched", boolean},
    {"T1InfoProfileClientStatus", boolean},
    {"T1InfoeFileStatus", boolean},
    {"T1InfoT5007", boolean},
    {"T1InfoRevenue", boolean},
    {"T1InfoEstimatedRefund", boolean},
    {"T1InfoActualRefund", boolean},
    {"T1InfoPaidtoClient", boolean},
    {"T1InfoGST", boolean},
    {"T1InfoDiscounted", boolean},
    {"T1InfoDeceasedReturn", boolean},
    {"T1InfoDateCreated", boolean},
    {"T1InfoDateSigned", boolean},
    {"T1InfoPreparerName", boolean},
    {"T1InfoPartnerName", boolean},
});
inline constexpr Index personalTaxDataImportInfoIndexes[] = {{"TaxYear"}};

inline constexpr Table accountingTables[] = {
    {"Clients", clientsColumns, "Accounting clients, one row for each company", byCompany},
    {"ClientData", clientDataColumns, "State and custom fields of an accounting client", byCompany},
    {"AccountingServices", accountingServicesColumns, "Services that the firm renders to a client", byClientData},
    {"ClientOptions", clientOptionsColumns, "Options of a client, joined into its whole record", byClientData},
    {"ClientUSInfo", clientUSInfoColumns, "Registrations of a client in the United States", byClientData},
    {"CorpTaxInfo", corpTaxInfoColumns, "Tax registrations of a client in Canada", byClientData},
    {"LawInfo", lawInfoColumns, "Law society membership of a client in Canada", byClientData},
    {"OtherInfo", otherInfoColumns, "Further registrations of a client in Canada", byClientData},
    {"WSIB_EHTInfo", wsibEhtInfoColumns, "Workers' board and health tax accounts of a client in Canada", byClientData},
    {"PersonalTaxClientSummary", personalTaxClientSummaryColumns,
     "Rich-text personal tax summary of a contact for a tax year", personalTaxClientSummaryIndexes},
    {"PersonalTaxProfileInfo", personalTaxProfileInfoColumns, "A contact's return as the tax program exported it",
     personalTaxProfileInfoIndexes},
    {"PersonalTaxDataImportInfo", personalTaxDataImportInfoColumns,
     "What of the imported returns of a tax year the summary shows", personalTaxDataImportInfoIndexes},
};

} // namespace qncal::schema
