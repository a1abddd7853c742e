#include "MergeEngineTest.h"

#include "support/RoutineSweep.h"

namespace qncal::test {
namespace {

constexpr std::int32_t canada = LocaleService::canada;
constexpr std::int32_t unitedStates = LocaleService::unitedStates;

/// The names as fields of a plain template.
std::string fields(const std::vector<std::string>& names)
{
    std::string text;
    for (const std::string& name : names)
        text += "«" + name + "» ";
    return text;
}

// --- Provinces ---

struct ProvinceCase {
    const char* name;
    std::int32_t province;
    /// What becomes of `provinceFields`, in its order.
    std::vector<std::string> renamed;
    std::string corpTax;
};

const std::vector<std::string> provinceFields{
    "WSIB Number",      "NEQ Number",      "WCB Number", "WHSCC Number", "WSIB Premium Rate",    "WCB Premium Rate",
    "WSIB Firm Number", "WCB Firm Number", "GST Number", "HST Number",   "ON Corp. MCBS Number", "Quebec ID Number",
};

const std::vector<std::string> prairies{
    "WCB Number",       "WCB Number",      "WCB Number", "WCB Number", "WCB Premium Rate",     "WCB Premium Rate",
    "WSIB Firm Number", "WCB Firm Number", "GST Number", "GST Number", "ON Corp. MCBS Number", "Quebec ID Number",
};
const std::vector<std::string> quebec{
    "NEQ Number",       "NEQ Number",      "WCB Number", "WCB Number", "CSST Premium Rate", "WCB Premium Rate",
    "WSIB Firm Number", "WCB Firm Number", "GST Number", "GST Number", "Quebec ID Number",  "Quebec ID Number",
};
const std::vector<std::string> novaScotia{
    "WCB Number",       "WCB Number",      "WCB Number", "WCB Number", "WCB Premium Rate",     "WCB Premium Rate",
    "WSIB Firm Number", "WCB Firm Number", "HST Number", "HST Number", "ON Corp. MCBS Number", "Quebec ID Number",
};
const std::vector<std::string> newBrunswick{
    "WHSCC Number",     "WHSCC Number",    "WHSCC Number", "WHSCC Number", "WHSCC Premium Rate",   "WCB Premium Rate",
    "WSIB Firm Number", "WCB Firm Number", "HST Number",   "HST Number",   "ON Corp. MCBS Number", "Quebec ID Number",
};
const std::vector<std::string> princeEdwardIsland{
    "WCB Number",       "WCB Number",      "WCB Number", "WCB Number", "WCB Premium Rate",     "WCB Premium Rate",
    "WSIB Firm Number", "WCB Firm Number", "GST Number", "GST Number", "ON Corp. MCBS Number", "Quebec ID Number",
};
const std::vector<std::string> ontario{
    "WSIB Number",       "WSIB Number",       "WSIB Number",          "WSIB Number",
    "WSIB Premium Rate", "WSIB Premium Rate", "WSIB Firm Number",     "WSIB Firm Number",
    "GST Number",        "GST Number",        "ON Corp. MCBS Number", "ON Corp. MCBS Number",
};

const std::vector<std::string> corpTaxWords{"ON",   "BC",   "Alberta", "Manitoba", "Sask.",
                                            "Que.", "N.B.", "N.S.",    "Nfld.",    "P.E.I."};

class ProvinceRulesTest : public MergeEngineTestWith<ProvinceCase> {};

TEST_P(ProvinceRulesTest, RenamesTheFieldsOfOtherProvincesOnBothSidesOfHarmonisation)
{
    region(canada, GetParam().province);
    for (const Date& moment : {lastMomentBeforeHarmonisation, firstMomentOfHarmonisation}) {
        moveClockTo(moment);
        EXPECT_EQ(engine.convertProvinceFields(fields(provinceFields)), fields(GetParam().renamed));
    }
}

TEST_P(ProvinceRulesTest, RenamesTheCorpTaxNumbersOfOtherProvinces)
{
    region(canada, GetParam().province);
    for (const std::string& word : corpTaxWords) {
        const bool untouched = GetParam().corpTax == "Que." && word == "Sask.";
        const std::string expected = untouched ? word : GetParam().corpTax;
        EXPECT_EQ(engine.convertProvinceFields("«" + word + " Corp. Tax Number»"),
                  "«" + expected + " Corp. Tax Number»");
    }
}

INSTANTIATE_TEST_SUITE_P(
    Provinces, ProvinceRulesTest,
    testing::Values(ProvinceCase{"Alberta", 0, prairies, "Alberta"}, ProvinceCase{"BritishColumbia", 1, prairies, "BC"},
                    ProvinceCase{"Manitoba", 2, prairies, "Manitoba"}, ProvinceCase{"Ontario", 3, ontario, "ON"},
                    ProvinceCase{"Saskatchewan", 4, prairies, "Sask."}, ProvinceCase{"Code5", 5, ontario, "ON"},
                    ProvinceCase{"Code6", 6, ontario, "ON"}, ProvinceCase{"Code7", 7, ontario, "ON"},
                    ProvinceCase{"Quebec", 8, quebec, "Que."}, ProvinceCase{"NovaScotia", 9, novaScotia, "N.S."},
                    ProvinceCase{"NewBrunswick", 10, newBrunswick, "N.B."},
                    ProvinceCase{"Newfoundland", 11, newBrunswick, "Nfld."},
                    ProvinceCase{"PrinceEdwardIsland", 12, princeEdwardIsland, "P.E.I."},
                    ProvinceCase{"Code13", 13, ontario, "ON"}, ProvinceCase{"NegativeCode", -1, ontario, "ON"}),
    rowName);

class ConvertProvinceFieldsTest : public MergeEngineTest {};

TEST_F(ConvertProvinceFieldsTest, ManitobaTakesOverTheCorpTaxNumberOfOntario)
{
    region(canada, 2);
    EXPECT_EQ(engine.convertProvinceFields("«ON Corp. Tax Number»"), "«Manitoba Corp. Tax Number»");
}

TEST_F(ConvertProvinceFieldsTest, FromHarmonisationOnBritishColumbiaAndOntarioStillEndWithGstNumber)
{
    moveClockTo(firstMomentOfHarmonisation);
    for (const std::int32_t province : {1, 3}) {
        region(canada, province);
        EXPECT_EQ(engine.convertProvinceFields("«GST Number» «HST Number»"), "«GST Number» «GST Number»");
    }
}

TEST_F(ConvertProvinceFieldsTest, AlbertaKeepsTheFirmNumberOfOntario)
{
    region(canada, 0);
    EXPECT_EQ(engine.convertProvinceFields("«WSIB Firm Number»"), "«WSIB Firm Number»");
}

TEST_F(ConvertProvinceFieldsTest, RegionNamesInARichTextStreamStay)
{
    region(canada, 2);
    const std::string rich = R"(\'abON Corp. Tax Number\'bb \'abState\'bb)";
    EXPECT_EQ(engine.convertProvinceFields(rich), rich);
    region(unitedStates, 0);
    EXPECT_EQ(engine.convertProvinceFields(R"(\'abProvince\'bb)"), R"(\'abProvince\'bb)");
}

TEST_F(ConvertProvinceFieldsTest, NamesCompareInAnyCase)
{
    region(canada, 0);
    EXPECT_EQ(engine.convertProvinceFields("«wsib NUMBER» «STATE»"), "«WCB Number» «Province»");
}

TEST_F(ConvertProvinceFieldsTest, WithoutALocaleTheResultIsEmpty)
{
    serviceRegistry().locale = nullptr;
    EXPECT_EQ(engine.convertProvinceFields("«Province»"), "");
    EXPECT_EQ(errors->takeErrors().size(), 1u);
    EXPECT_EQ(errors->labels().back(), "Vestrel.exe-clsInsertFieldsInRTB-convertProvinceFields");
}

// --- Countries ---

const std::vector<std::string> canadianNames{
    "Province",
    "Postal Code",
    "Contact Business Province",
    "Contact Business Postal Code",
    "Contact Home Province",
    "Contact Home Postal Code",
    "Spouse Home Province",
    "Spouse Home Postal Code",
    "Your Province",
    "Your Postal Code",
    "Contact SIN",
    "Spouse SIN",
};
const std::vector<std::string> americanNames{
    "State",
    "Zip Code",
    "Contact Business State",
    "Contact Business Zip Code",
    "Contact Home State",
    "Contact Home Zip Code",
    "Spouse Home State",
    "Spouse Home Zip Code",
    "Your State",
    "Your Zip Code",
    "Contact SSN",
    "Spouse SSN",
};

TEST_F(ConvertProvinceFieldsTest, TheUnitedStatesTakeTheirNames)
{
    region(unitedStates, 3);
    EXPECT_EQ(engine.convertProvinceFields(fields(canadianNames)), fields(americanNames));
    EXPECT_EQ(engine.convertProvinceFields(fields(provinceFields)), fields(provinceFields));
}

TEST_F(ConvertProvinceFieldsTest, CanadaTakesItsNames)
{
    region(canada, 3);
    EXPECT_EQ(engine.convertProvinceFields(fields(americanNames)), fields(canadianNames));
}

TEST_F(ConvertProvinceFieldsTest, AnotherCountryLeavesTheRegionNames)
{
    for (const std::int32_t country : {0, 3, -1}) {
        region(country, 3);
        EXPECT_EQ(engine.convertProvinceFields(fields(canadianNames)), fields(canadianNames));
        EXPECT_EQ(engine.convertProvinceFields(fields(americanNames)), fields(americanNames));
        EXPECT_EQ(engine.convertProvinceFields(fields(provinceFields)), fields(provinceFields));
    }
}

// --- Old names ---

struct LegacyCase {
    const char* name;
    std::string text;
    std::string converted;
};

class LegacyNamesTest : public MergeEngineTestWith<LegacyCase> {};

TEST_P(LegacyNamesTest, BringsTheTextUpToDate)
{
    region(0, 0);
    EXPECT_EQ(engine.convertProvinceFields(GetParam().text), GetParam().converted);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LegacyNamesTest,
    testing::Values(
        LegacyCase{"Brackets", "<<City>>", "«City»"}, LegacyCase{"DueDate", "«(Due Date, d)»", "«(Task Due Date, d)»"},
        LegacyCase{"DueDateRich", R"(\'ab(Due Date, d)\'bb)", R"(\'ab(Task Due Date, d)\'bb)"},
        LegacyCase{"DueDateWithoutDelimiter", "(Due Date, d)", "(Due Date, d)"},
        LegacyCase{"InHouseDueDate", "«(in-House Due Date, d)»", "«(Task in-House Due Date, d)»"},
        LegacyCase{"InHouseDueDateRich", R"(\'ab(In-house Due Date, d)\'bb)", R"(\'ab(Task in-House Due Date, d)\'bb)"},
        LegacyCase{"CalendarDate", "«(Calendar Date, d)»", "«(Task Calendar Due Date, d)»"},
        LegacyCase{"CalendarDateRich", R"(\'ab(Calendar Date, d)\'bb)", R"(\'ab(Task Calendar Due Date, d)\'bb)"},
        LegacyCase{"ContactFullName", "«Contact Full Name»", "«Contact Display Name»"},
        LegacyCase{"ContactFullNameRich", R"(\'abContact Full Name\'bb)", R"(\'abContact Display Name\'bb)"},
        LegacyCase{"ContactFullNameAnywhere", "the contact full name.", "the Contact Display Name."},
        LegacyCase{"Docket", "Dockets, docket and DOCKET", "Time Entrys, Time Entry and Time Entry"},
        LegacyCase{"LongDate", "«(Todays Date, Long Date)»", "«(Todays Date, dddd, mmmm d yyyy)»"},
        LegacyCase{"MediumDate", "«(Todays Date, medium date)»", "«(Todays Date, mmm d yyyy)»"},
        LegacyCase{"ShortDate", "«(Todays Date, Short Date)»", "«(Todays Date, dd/mm/yy)»"},
        LegacyCase{"NotifiedDate", "«Notified Date»", "«Calendar Date»"},
        LegacyCase{"NotifiedDateRich", R"(\'abNotified Date\'bb)", R"(\'abCalendar Date\'bb)"},
        LegacyCase{"WeekdayDate", "«Weekday Date»", "«Calendar Date»"},
        LegacyCase{"WeekdayDateRich", R"(\'abWeekday Date\'bb)", R"(\'abCalendar Date\'bb)"},
        LegacyCase{"RemittanceName", "«Remittance Name»", "«Task Name»"},
        LegacyCase{"RemittanceNameRich", R"(\'abRemittance Name\'bb)", R"(\'abTask Name\'bb)"},
        LegacyCase{"RemittanceDueDate", "«Remittance Due Date»", "«Task Due Date»"},
        LegacyCase{"RemittanceDueDateRich", R"(\'abRemittance Due Date\'bb)", R"(\'abTask Due Date\'bb)"},
        LegacyCase{"RemittanceInHouse", "«Remittance in-House Due Date»", "«Task in-House Due Date»"},
        LegacyCase{"RemittanceInHouseRich", R"(\'abRemittance in-House Due Date\'bb)",
                   R"(\'abTask in-House Due Date\'bb)"},
        LegacyCase{"RemittanceWeekday", "«Remittance Weekday Due Date»", "«Task Calendar Date»"},
        LegacyCase{"RemittanceWeekdayRich", R"(\'abRemittance Weekday Due Date\'bb)", R"(\'abTask Calendar Date\'bb)"},
        LegacyCase{"TaskWeekday", "«Task Weekday Due Date»", "«Task Calendar Date»"},
        LegacyCase{"TaskWeekdayRich", R"(\'abTask Weekday Due Date\'bb)", R"(\'abTask Calendar Date\'bb)"},
        LegacyCase{"RemittanceYear", "«Remittance Year»", "«Task Year»"},
        LegacyCase{"RemittanceYearRich", R"(\'abRemittance Year\'bb)", R"(\'abTask Year\'bb)"},
        LegacyCase{"CustomRemittances",
                   "«Custom Remitt Field 1»«Custom Remitt Field 2»«Custom Remitt Field 3»"
                   "«Custom Remitt Field 4»«Custom Remitt Field 5»",
                   "«Custom Task Field 1»«Custom Task Field 2»«Custom Task Field 3»"
                   "«Custom Task Field 4»«Custom Task Field 5»"},
        LegacyCase{"CustomRemittancesRich", R"(\'abCustom Remitt Field 1\'bb\'abCustom Remitt Field 5\'bb)",
                   R"(\'abCustom Task Field 1\'bb\'abCustom Task Field 5\'bb)"},
        LegacyCase{"CustomRemittance6", "«Custom Remitt Field 6»", "«Custom Remitt Field 6»"},
        LegacyCase{"BracketsBeforeNames", "<<(Due Date, Short Date)>>", "«(Task Due Date, dd/mm/yy)»"},
        LegacyCase{"NothingOld", "«Company Name» at 9", "«Company Name» at 9"}, LegacyCase{"Empty", "", ""}),
    rowName);

TEST_F(ConvertProvinceFieldsTest, OldNamesAreBroughtUpToDateBeforeTheRegionRules)
{
    region(unitedStates, 0);
    EXPECT_EQ(engine.convertProvinceFields("<<Province>>"), "«State»");
}

// --- Province words of records ---

struct SpellingCase {
    const char* name;
    std::vector<std::string> spellings;
    std::string abbreviated;
    std::string full;
};

class ProvinceSpellingTest : public MergeEngineTestWith<SpellingCase> {};

TEST_P(ProvinceSpellingTest, GivesBothForms)
{
    for (const std::string& spelling : GetParam().spellings) {
        EXPECT_EQ(engine.getAbbreviatedProvince(spelling), GetParam().abbreviated) << spelling;
        EXPECT_EQ(engine.getFullProvinceString(spelling), GetParam().full) << spelling;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Provinces, ProvinceSpellingTest,
    testing::Values(
        SpellingCase{"Alberta", {"ALBERTA", "Alberta", "alta.", "Alta", "ab"}, "AB", "Alberta"},
        SpellingCase{
            "BritishColumbia", {"BritishColumbia", "British Columbia", "b.c.", "BC"}, "BC", "British Columbia"},
        SpellingCase{"Manitoba", {"Manitoba", "Man.", "man", "mb"}, "MB", "Manitoba"},
        SpellingCase{"Ontario", {"Ontario", "Ont.", "ont", "on"}, "ON", "Ontario"},
        SpellingCase{"Saskatchewan", {"Saskatchewan", "Sask.", "sask", "sk"}, "SK", "Saskatchewan"},
        SpellingCase{"Quebec", {"Quebec", "Que.", "que", "qc"}, "QC", "Quebec"},
        SpellingCase{"NovaScotia", {"NovaScotia", "Nova Scotia", "N.S.", "ns"}, "NS", "Nova Scotia"},
        SpellingCase{"NewBrunswick", {"NewBrunswick", "New Brunswick", "N.B.", "nb"}, "NB", "New Brunswick"},
        SpellingCase{"Newfoundland", {"Newfoundland", "Newfoundland & Labrador", "nl"}, "NL", "Newfoundland"},
        SpellingCase{"PrinceEdwardIsland", {"Prince Edward Island", "pei", "P.E.I."}, "PEI", "Prince Edward Island"},
        SpellingCase{
            "NorthwestTerritories", {"Northwest Territories", "N.W.T.", "nwt", "nt"}, "NT", "Northwest Territories"},
        SpellingCase{"Nunavut", {"Nunavut", "nu"}, "NU", "Nunavut"},
        SpellingCase{"Yukon", {"Yukon", "yt"}, "YT", "Yukon"}),
    rowName);

TEST_F(ConvertProvinceFieldsTest, AnUnknownProvinceComesBackAsItIs)
{
    for (const std::string province : {"nfld.", "Nfld.", "newfoundland and labrador", "NEWFOUNDLAND And LABRADOR",
                                       " Ontario", "Ontario ", "Illinois", ""}) {
        EXPECT_EQ(engine.getAbbreviatedProvince(province), province);
        EXPECT_EQ(engine.getFullProvinceString(province), province);
    }
}

// --- Faults ---

const SweptRoutine conversion{"convertProvinceFields", "",
                              [](TestWorld&) -> std::function<std::string()> {
                                  auto engine = std::make_shared<clsInsertFieldsInRTB>();
                                  return [engine] { return engine->convertProvinceFields("<<State>> «WCB Number»"); };
                              },
                              false};

TEST(ConvertProvinceFieldsFaults, LeavingGivesNothing)
{
    expectFaultsLeave(conversion);
    expectEmptySlotsLeave(conversion);
}

TEST(ConvertProvinceFieldsFaults, RetryingGivesTheSameText) { expectFaultsRetry(conversion); }

} // namespace
} // namespace qncal::test
