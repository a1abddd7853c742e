#pragma once

#include <array>
#include <string_view>

/// The words that the invented firm is made of.
namespace qncal::host::demo {

using Words = std::string_view;

inline constexpr Words womensNames[]{"Ann",    "Claire", "Dana",  "Elena", "Farah", "Grace",    "Hannah",
                                     "Ingrid", "Joanne", "Karen", "Lucie", "Maya",  "Nadia",    "Olivia",
                                     "Priya",  "Renée",  "Sofia", "Tanya", "Uma",   "Véronique"};
inline constexpr Words mensNames[]{"Andrew", "Ben",   "Carlos", "Daniel", "Étienne", "Frank",  "George",
                                   "Henri",  "Ivan",  "James",  "Kenji",  "Luc",     "Marco",  "Noah",
                                   "Omar",   "Peter", "Rajiv",  "Samuel", "Thomas",  "William"};
inline constexpr Words familyNames[]{
    "Reed",   "Tremblay", "Singh",  "Chen",   "Novak",    "Bouchard", "Okafor",   "Fraser",    "Kowalski", "Haddad",
    "Nguyen", "MacLeod",  "Gagnon", "Patel",  "Sørensen", "Ito",      "Moreau",   "Walsh",     "Friesen",  "Castillo",
    "Dubois", "Khan",     "Olsen",  "Petrov", "Roy",      "Stone",    "Thibault", "Underhill", "Vargas",   "Wójcik"};

inline constexpr Words companyFirstWords[]{
    "Northern Lights", "Maple Ridge",  "Harbourview",  "Blue Heron", "Stonegate", "Cedar Point", "Riverside", "Granite",
    "Lakeshore",       "Silver Birch", "Prairie Wind", "Red Fox",    "Westmount", "Fundy Bay",   "Aurora"};
inline constexpr Words companyTrades[]{"Bakery",   "Construction", "Dental Group", "Electric",
                                       "Farms",    "Landscaping",  "Logistics",    "Machining",
                                       "Plumbing", "Printing",     "Software",     "Veterinary Clinic"};
inline constexpr Words companyForms[]{"Ltd.", "Inc.", "Corp.", "& Sons Ltd."};

inline constexpr Words streets[]{"King St.",      "Queen St.", "Main St.",   "Elm Ave.",
                                 "Lakeshore Rd.", "Mill St.",  "Church St.", "Industrial Pkwy."};

inline constexpr Words jobTitles[]{"President", "Controller", "Office Manager", "Owner", "Bookkeeper", "Director"};
inline constexpr Words firmTitles[]{"Partner",           "Partner",    "Senior Manager", "Manager",
                                    "Senior Accountant", "Accountant", "Bookkeeper",     "Administrator"};

inline constexpr Words appointmentSubjects[]{
    "Year-end review",      "Tax planning meeting", "Sales tax review",    "Payroll set-up", "Client lunch",
    "Financing discussion", "Site visit",           "Succession planning", "Budget meeting", "Review of statements"};
inline constexpr Words taskSubjects[]{"Prepare corporate return", "File sales tax return",    "Reconcile bank accounts",
                                      "Prepare T4 slips",         "Review working papers",    "Send engagement letter",
                                      "Update fixed assets",      "Answer tax office letter", "Prepare statements"};
inline constexpr Words americanTaskSubjects[]{
    "Prepare corporate return", "File sales tax return", "Reconcile bank accounts",
    "Prepare W-2 forms",        "Review working papers", "Send engagement letter",
    "Update fixed assets",      "Answer IRS letter",     "Prepare statements"};
inline constexpr Words docketSubjects[]{"Bookkeeping", "Audit field work", "Tax return",         "Telephone call",
                                        "Payroll run", "Research",         "Meeting with client"};

inline constexpr Words places[]{"Our office", "Client's office", "Boardroom", "Video call"};
inline constexpr Words reminderPeriods[]{"15 Min", "30 Min", "1 Hr", "1 Day", "2 Days"};

} // namespace qncal::host::demo
