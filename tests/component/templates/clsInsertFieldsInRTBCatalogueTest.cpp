#include "MergeEngineTest.h"

#include "core/forwarding/ForwardingDatabaseService.h"
#include "core/forwarding/ForwardingLocaleService.h"
#include "support/RoutineSweep.h"
#include "utilities/RunTimeError.h"

namespace qncal::test {
namespace {

constexpr std::int32_t canada = LocaleService::canada;
constexpr std::int32_t unitedStates = LocaleService::unitedStates;

class CatalogueTest : public MergeEngineTest {
protected:
    std::vector<std::string> headerLines() const
    {
        std::vector<std::string> headers;
        for (const RecordingList::Line& line : listBox->lines) {
            if (line.itemData == -1)
                headers.push_back(line.text);
        }
        return headers;
    }
};

// --- Regions ---

TEST_F(CatalogueTest, OntarioHasGstNumberUntilHarmonisationAndHstNumberFromItOn)
{
    moveClockTo(lastMomentBeforeHarmonisation);
    build(2);
    EXPECT_EQ(fieldOf("GST Number"), "GSTNumber");
    EXPECT_FALSE(hasField("HST Number"));
    moveClockTo(firstMomentOfHarmonisation);
    build(2);
    EXPECT_EQ(fieldOf("HST Number"), "GSTNumber");
    EXPECT_FALSE(hasField("GST Number"));
}

TEST_F(CatalogueTest, QuebecHasItsOwnNamesAndNoFirmNumber)
{
    region(canada, 8);
    build(2);
    EXPECT_EQ(fieldOf("QST Number"), "PSTNumber");
    EXPECT_EQ(fieldOf("Que. Corp. Tax Number"), "ONCorpNumber");
    EXPECT_EQ(fieldOf("Quebec ID Number"), "MCBS");
    EXPECT_EQ(fieldOf("NEQ Number"), "WSIBNumber");
    EXPECT_EQ(fieldOf("CSST Premium Rate"), "WSIBPremiumRate");
    EXPECT_EQ(fieldOf("CSST Coverage"), "Coverage");
    EXPECT_LT(engine.FieldList()->findInColumn(FieldListCollection::databaseField, "WSIBFirmNumber"), 0);
}

TEST_F(CatalogueTest, EveryCountryButCanadaTakesTheUnitedStates)
{
    for (const std::int32_t country : {0, 2, 3}) {
        region(country, 3);
        build(1);
        EXPECT_TRUE(hasField("State")) << country;
        EXPECT_TRUE(hasField("Contact SSN")) << country;
        EXPECT_TRUE(hasField("Federal Employer Identification Number")) << country;
        EXPECT_TRUE(hasField("Your Zip Code")) << country;
        EXPECT_FALSE(hasField("Province")) << country;
    }
}

TEST_F(CatalogueTest, AListKeepsItsRegionUntilItIsBuiltAgain)
{
    build(1);
    region(unitedStates, 3);
    EXPECT_TRUE(hasField("Province"));
    build(1);
    EXPECT_FALSE(hasField("Province"));
}

/// A firm that moves to the United States once its country has been asked for a number of times.
class MovingLocale : public ForwardingLocaleService {
public:
    MovingLocale(std::shared_ptr<LocaleService> target, int reads)
        : ForwardingLocaleService(std::move(target)), reads_(reads)
    {
    }
    std::int32_t getCountryCode() override { return reads_-- > 0 ? canada : unitedStates; }

private:
    int reads_;
};

TEST_F(CatalogueTest, TheCountryIsReadOnceForEachStretchOfRows)
{
    serviceRegistry().locale = std::make_shared<MovingLocale>(locale, 1);
    build(1);
    EXPECT_TRUE(hasField("Province"));
    EXPECT_TRUE(hasField("Abbreviated Province"));
    EXPECT_TRUE(hasField("Postal Code"));
    EXPECT_FALSE(hasField("Zip Code"));
    EXPECT_TRUE(hasField("Company Alternate State"));
    EXPECT_TRUE(hasField("Company Alternate Zip Code"));
    EXPECT_FALSE(hasField("Company Alternate Province"));
}

TEST_F(CatalogueTest, DateSamplesAreOfTheCurrentYear)
{
    moveClockTo(Date::of(2031, 2, 1));
    build(2);
    ASSERT_TRUE(hasField("Incorporation Date"));
    EXPECT_EQ(engine.FieldList()->current().sampleText.view(), "Nov 1, 2031");
    ASSERT_TRUE(hasField("Year End Date"));
    EXPECT_EQ(engine.FieldList()->current().sampleText.view(), "Mar 31, 2031");
    region(unitedStates, 0);
    build(2);
    ASSERT_TRUE(hasField("Year End Date"));
    EXPECT_EQ(engine.FieldList()->current().sampleText.view(), "Dec 31, 2031");
}

// --- Variants ---

TEST_F(CatalogueTest, TheSingleFieldListSplitsAddressesAndHasNoAbbreviatedProvinces)
{
    build(1, 3);
    EXPECT_EQ(fieldOf("Contact Full Name"), "DisplayName");
    EXPECT_FALSE(hasField("Contact Display Name"));
    EXPECT_FALSE(hasField("Address"));
    EXPECT_TRUE(hasField("Address 1") && hasField("Address 2") && hasField("Address 3"));
    for (const FieldListRow& row : engine.FieldList()->rows())
        EXPECT_EQ(row.databaseField.view().find("Abbreviated"), std::string_view::npos);
}

TEST_F(CatalogueTest, TheContactAddressListHasTheCompanyOnlyWhenOneIsSet)
{
    engine.companyID(-1);
    build(3);
    EXPECT_FALSE(hasField("Company Name"));
    engine.companyID(0);
    build(3);
    EXPECT_TRUE(hasField("Company Name"));
}

TEST_F(CatalogueTest, AnUnknownListTypeHasTheFirmsFieldsAlone)
{
    for (const std::int32_t listType : {0, 4, 7, 9, -1}) {
        build(listType);
        EXPECT_EQ(engine.FieldList()->rows().front().displayName.view(), "Your Company Name");
        EXPECT_EQ(engine.FieldList()->getCount(), 18);
    }
}

TEST_F(CatalogueTest, OfTheTwoTaskCalendarDatesTheFirstIsFound)
{
    build(8);
    EXPECT_EQ(fieldOf("Task Calendar Date"), "CalendarDate");
    const auto rows = engine.FieldList()->rows();
    EXPECT_EQ(std::ranges::count(rows, "Task Calendar Date", [](const auto& row) { return row.displayName.view(); }),
              2);
}

TEST_F(CatalogueTest, TheSpousesBirthdayIsATextUnlikeTheContacts)
{
    build(2);
    ASSERT_TRUE(hasField("Contact Birthday"));
    EXPECT_EQ(engine.FieldList()->current().dataType, MergeDataType::date);
    ASSERT_TRUE(hasField("Spouse Birthday"));
    EXPECT_EQ(engine.FieldList()->current().dataType, MergeDataType::text);
}

TEST_F(CatalogueTest, KeysCountFromOneWithEachBuilding)
{
    for (int i = 0; i < 2; ++i) {
        build(5);
        std::int32_t key = 0;
        for (const FieldListRow& row : engine.FieldList()->rows())
            EXPECT_EQ(row.key, ++key);
    }
}

TEST_F(CatalogueTest, FixedTextsAreSharedByAllLists)
{
    region(unitedStates, 0);
    build(5);
    clsInsertFieldsInRTB other;
    other.ListType(5);
    bool noListBox = false;
    other.createDefaultFieldListStructure(noListBox, false);
    ASSERT_EQ(other.FieldList()->getCount(), engine.FieldList()->getCount());
    for (std::size_t i = 0; i < other.FieldList()->rows().size(); ++i) {
        const FieldListRow& a = engine.FieldList()->rows()[i];
        const FieldListRow& b = other.FieldList()->rows()[i];
        EXPECT_EQ(a.displayName.view().data(), b.displayName.view().data()) << a.displayName.view();
        EXPECT_EQ(a.databaseField.view().data(), b.databaseField.view().data()) << a.displayName.view();
        EXPECT_EQ(a.category.view().data(), b.category.view().data()) << a.displayName.view();
    }
}

// --- Pick lists ---

TEST_F(CatalogueTest, WithoutAListBoxItSaysSo)
{
    bool noListBox = false;
    engine.createDefaultFieldListStructure(noListBox, true);
    EXPECT_TRUE(noListBox);
    engine.ListBox(listBox);
    engine.createDefaultFieldListStructure(noListBox, true);
    EXPECT_FALSE(noListBox);
}

TEST_F(CatalogueTest, TheListBoxIsRefreshedAndNeverCleared)
{
    useListBoxes();
    build(1);
    EXPECT_EQ(listBox->clears, 0);
    EXPECT_EQ(listBox->refreshes, 1);
    EXPECT_EQ(listBox2->refreshes, 0);
    const std::size_t lines = listBox->lines.size();
    build(1);
    EXPECT_EQ(listBox->lines.size(), lines * 2);
}

TEST_F(CatalogueTest, TheEmployerNumberHasTwoBlanksInTheListBoxAlone)
{
    useListBoxes();
    region(unitedStates, 0);
    build(2);
    const std::int32_t key = keyOf("Federal Employer Identification Number");
    const RecordingList::Line line{"Federal Employer Identification  Number", key};
    EXPECT_NE(std::ranges::find(listBox->lines, line), listBox->lines.end());
}

TEST_F(CatalogueTest, TheSingleFieldListBeginsWithNotAssignedWhateverTheHeaders)
{
    useListBoxes();
    for (const bool headers : {false, true}) {
        listBox->lines.clear();
        engine.ListType(1);
        engine.MergeFieldListUse(3);
        engine.ShowListCategoryHeaders(headers);
        build();
        EXPECT_EQ(listBox->lines.front(), (RecordingList::Line{"Not Assigned", -1}));
        EXPECT_EQ(headerLines().size(), headers ? 10u : 1u);
    }
}

TEST_F(CatalogueTest, UsesThreeAndFiveTurnTheHeadersOff)
{
    EXPECT_TRUE(engine.ShowListCategoryHeaders());
    engine.MergeFieldListUse(5);
    EXPECT_FALSE(engine.ShowListCategoryHeaders());
    engine.ShowListCategoryHeaders(true);
    engine.MergeFieldListUse(1);
    EXPECT_TRUE(engine.ShowListCategoryHeaders());
    engine.MergeFieldListUse(3);
    EXPECT_FALSE(engine.ShowListCategoryHeaders());
    engine.MergeFieldListUse(1);
    EXPECT_FALSE(engine.ShowListCategoryHeaders());
}

struct HeaderCase {
    const char* name;
    std::int32_t listType;
    std::vector<std::string> headers;
};

class ListHeadersTest : public MergeEngineTestWith<HeaderCase> {};

TEST_P(ListHeadersTest, StandBeforeTheBlocks)
{
    useListBoxes();
    engine.companyID(1);
    build(GetParam().listType);
    std::vector<std::string> headers;
    for (const RecordingList::Line& line : listBox->lines) {
        if (line.itemData == -1)
            headers.push_back(line.text);
    }
    EXPECT_EQ(headers, GetParam().headers);
    EXPECT_EQ(listBox2->lines.front(), (RecordingList::Line{"Insert your Letterhead", -1}));
}

INSTANTIATE_TEST_SUITE_P(
    Lists, ListHeadersTest,
    testing::Values(
        HeaderCase{"Company",
                   1,
                   {"[Company Address Info]", "", "[Default Contact Name]", "", "[Company Accounting Info]", "",
                    "[Company Software Info]", "", "[More Contact Info]"}},
        HeaderCase{"Contact",
                   2,
                   {"", "[Contact Name]", "", "[Company Accounting Info]", "", "[Company Software Info]", "",
                    "[More Contact Info]"}},
        HeaderCase{"ContactAddress", 3, {"", "[Contact Name]", "", "[More Contact Info]", "", "[Company Info]"}},
        HeaderCase{"Appointment",
                   5,
                   {"[Appointment Info]", "", "[Company Address Info]", "", "[Default Contact Name]", "",
                    "[Company Accounting Info]", "", "[Company Software Info]", "", "[More Contact Info]"}},
        HeaderCase{"TimeEntry",
                   6,
                   {"[Time Entry Info]", "[Company Address Info]", "", "[Default Contact Name]", "",
                    "[Company Accounting Info]", "", "[Company Software Info]", "", "[More Contact Info]"}},
        HeaderCase{"Task",
                   8,
                   {"[Task Info]", "", "[Company Address Info]", "", "[Default Contact Name]", "",
                    "[Company Accounting Info]", "", "[Company Software Info]", "", "[More Contact Info]"}}),
    rowName);

class CountingDialogHost : public host::HeadlessDialogHost {
public:
    int turns = 0;
    void doEvents() override { ++turns; }
};

TEST_F(CatalogueTest, OtherEventsRunTwiceWhenThereIsAListBox)
{
    const auto host = std::make_shared<CountingDialogHost>();
    setDialogHost(host);
    build(1);
    EXPECT_EQ(host->turns, 0);
    useListBoxes();
    build(1);
    EXPECT_EQ(host->turns, 2);
}

class BrokenList : public RecordingList {
public:
    void addLine(std::string_view, std::int32_t) override { throw RunTimeError(errorNumber::internalError, "broken"); }
};

TEST_F(CatalogueTest, AFailedListBoxCallIsLeftToTheRoutineThatMadeIt)
{
    engine.ListBox(std::make_shared<BrokenList>());
    engine.ShowListCategoryHeaders(false);
    engine.ListType(5);
    build();
    // One for each block's routine: the rows before the call that failed stay, the routines after it run.
    EXPECT_EQ(errors->takeErrors().size(), 3u);
    EXPECT_TRUE(hasField("Appointment Name"));
    EXPECT_FALSE(hasField("Appointment Date"));
    EXPECT_TRUE(hasField("Company Name"));
    EXPECT_FALSE(hasField("Your Company Name"));
}

TEST_F(CatalogueTest, EachBlockOfItsOwnAddsItsRows)
{
    FieldListCollection list;
    engine.createAppointmentInfoFieldListStructure(list, true);
    EXPECT_EQ(list.getCount(), 11);
    engine.createTaskInfoFieldListStructure(list, true);
    EXPECT_EQ(list.getCount(), 11 + 27);
    engine.createDocketInfoFieldListStructure(list, true);
    EXPECT_EQ(list.getCount(), 11 + 27 + 34);
    list.clearRows();
    engine.createCompanyInfoFieldListStructure(list, true);
    EXPECT_EQ(list.rows().front().displayName.view(), "Company Name");
    EXPECT_EQ(list.rows().back().category.view(), "CompanyNotes");
    list.clearRows();
    engine.createAccountantFieldListStructure(list, true);
    EXPECT_EQ(list.getCount(), 18);
    EXPECT_EQ(errors->labels(),
              (std::vector<std::string>{"Vestrel.exe-clsInsertFieldsInRTB-createAppointmentInfoFieldListStructure",
                                        "Vestrel.exe-clsInsertFieldsInRTB-createTaskInfoFieldListStructure",
                                        "Vestrel.exe-clsInsertFieldsInRTB-createDocketInfoFieldListStructure",
                                        "Vestrel.exe-clsInsertFieldsInRTB-createCompanyInfoFieldListStructure",
                                        "Vestrel.exe-clsInsertFieldsInRTB-createAccountantFieldListStructure"}));
}

// --- Custom fields ---

TEST_F(CatalogueTest, LabelsNameTheCustomFields)
{
    addRow("CustomFields", {{"ApptCustomName1", "Room"},
                            {"ApptCustomName2", "Parking:"},
                            {"ApptCustomName3", "Custom 3"},
                            {"ApptCustomName4", "Custom 1:"}});
    build(5);
    EXPECT_EQ(fieldOf("Room"), "ApptCustom1");
    EXPECT_EQ(fieldOf("Parking"), "ApptCustom2");
    EXPECT_EQ(fieldOf("Custom Appt Field 3"), "ApptCustom3");
    EXPECT_EQ(fieldOf("Custom Appt Field 1"), "ApptCustom4");
    EXPECT_EQ(fieldOf("Custom Appt Field 5"), "ApptCustom5");
}

TEST_F(CatalogueTest, TheFirmsLabelsGetAPrefixAndItsFallbackNamesHaveOne)
{
    addRow("CustomAddressFields", {{"CompanyLabel1", "Fax 2"}, {"CompanyLabel2", "Custom 2"}});
    build(1);
    EXPECT_EQ(fieldOf("Fax 2"), "CompanyCustom1");
    EXPECT_EQ(fieldOf("Company Custom Field 2"), "CompanyCustom2");
    EXPECT_EQ(fieldOf("Your Fax 2"), "FirmCustom1");
    EXPECT_EQ(fieldOf("Your Company Custom Field 2"), "FirmCustom2");
}

struct CustomGroupCase {
    const char* name;
    std::int32_t listType;
    const char* table;
    std::string labelColumn;
    std::string databaseField;
    std::string fallbackName;
    std::string sample;
    std::string labelPrefix;
};

class CustomGroupTest : public MergeEngineTestWith<CustomGroupCase> {
protected:
    void expectFiveRows(const std::string& name)
    {
        for (int i = 1; i <= 5; ++i) {
            const std::string number = std::to_string(i);
            ASSERT_TRUE(hasField(name + number));
            const FieldListRow& row = engine.FieldList()->current();
            EXPECT_EQ(row.databaseField.view(), GetParam().databaseField + number);
            EXPECT_EQ(row.sampleText.view(), GetParam().sample + number);
            EXPECT_EQ(row.dataType, MergeDataType::text);
        }
    }
};

TEST_P(CustomGroupTest, TakesTheFallbackNamesWithoutARecord)
{
    build(GetParam().listType);
    expectFiveRows(GetParam().fallbackName);
}

TEST_P(CustomGroupTest, TakesTheFallbackNamesWithoutAConnection)
{
    database->close();
    build(GetParam().listType);
    expectFiveRows(GetParam().fallbackName);
}

TEST_P(CustomGroupTest, TakesTheLabelsOfTheRecord)
{
    std::vector<std::string> columns;
    for (int i = 1; i <= 5; ++i)
        columns.push_back(GetParam().labelColumn + std::to_string(i));
    Values values;
    for (int i = 1; i <= 5; ++i)
        values.emplace_back(columns[static_cast<std::size_t>(i - 1)], "My label " + std::to_string(i));
    addRow(GetParam().table, values);
    build(GetParam().listType);
    expectFiveRows(GetParam().labelPrefix + "My label ");
}

INSTANTIATE_TEST_SUITE_P(
    Groups, CustomGroupTest,
    testing::Values(CustomGroupCase{"Client", 2, "CustomFields", "CustomName", "ClientCustom", "Custom Field ",
                                    "Custom Info ", ""},
                    CustomGroupCase{"Contact", 3, "CustomAddressFields", "ContactLabel", "ContactCustom",
                                    "Contact Custom Field ", "Contact Custom Info ", ""},
                    CustomGroupCase{"Company", 1, "CustomAddressFields", "CompanyLabel", "CompanyCustom",
                                    "Company Custom Field ", "Company Custom Info ", ""},
                    CustomGroupCase{"Appointment", 5, "CustomFields", "ApptCustomName", "ApptCustom",
                                    "Custom Appt Field ", "Custom Appt Info ", ""},
                    CustomGroupCase{"Schedule", 8, "CustomFields", "RemittanceLabel", "ScheduleCustom",
                                    "Custom Task Field ", "Custom Task Info ", ""},
                    CustomGroupCase{"Task", 8, "CustomFields", "TaskCustomName", "TaskCustom",
                                    "Custom Task Calendar Field ", "Custom Task Info ", ""},
                    CustomGroupCase{"TimeEntry", 6, "CustomFields", "DocketCustomName", "DocketCustom",
                                    "Custom Time Entry Field ", "Custom Time Entry Info ", ""},
                    CustomGroupCase{"Firm", 4, "CustomAddressFields", "CompanyLabel", "FirmCustom",
                                    "Your Company Custom Field ", "Company Custom Info ", "Your "}),
    rowName);

class SqlLog : public ForwardingDatabaseService {
public:
    using ForwardingDatabaseService::ForwardingDatabaseService;
    std::vector<std::string> opened;
    std::int32_t openRecordset(std::string_view sql, std::int32_t cursor, std::int32_t lock, bool showError,
                               std::string_view errorText, bool keep) override
    {
        opened.emplace_back(sql);
        return ForwardingDatabaseService::openRecordset(sql, cursor, lock, showError, errorText, keep);
    }
};

TEST_F(CatalogueTest, AnAppointmentsListAsksForItsLabelsAndNothingElse)
{
    const auto log = std::make_shared<SqlLog>(database);
    serviceRegistry().database = log;
    build(5);
    EXPECT_EQ(log->opened,
              (std::vector<std::string>{
                  "SELECT ApptCustomName1, ApptCustomName2, ApptCustomName3, ApptCustomName4, ApptCustomName5 "
                  "FROM CustomFields;",
                  "SELECT CompanyLabel1, CompanyLabel2, CompanyLabel3, CompanyLabel4, CompanyLabel5 "
                  "FROM CustomAddressFields;",
                  "SELECT CustomName1, CustomName2, CustomName3, CustomName4, CustomName5 FROM CustomFields;",
                  "SELECT ContactLabel1, ContactLabel2, ContactLabel3, ContactLabel4, ContactLabel5 "
                  "FROM CustomAddressFields;",
                  "SELECT CompanyLabel1, CompanyLabel2, CompanyLabel3, CompanyLabel4, CompanyLabel5 "
                  "FROM CustomAddressFields;"}));
}

// --- Faults ---

std::function<std::function<std::string()>(TestWorld&)> taskListBuilding(bool resultIsList)
{
    return [resultIsList](TestWorld&) -> std::function<std::string()> {
        auto engine = std::make_shared<clsInsertFieldsInRTB>();
        engine->ListType(8);
        return [engine, resultIsList] {
            bool noListBox = false;
            engine->createDefaultFieldListStructure(noListBox, false);
            std::string rows;
            for (const FieldListRow& row : engine->FieldList()->rows())
                rows += row.displayName.str() + "\n";
            return resultIsList ? rows : "";
        };
    };
}

TEST(CatalogueFaults, LeavingKeepsTheRoutinesBalanced)
{
    expectFaultsLeave({"createDefaultFieldListStructure", "", taskListBuilding(false)});
    expectEmptySlotsLeave({"createDefaultFieldListStructure", "", taskListBuilding(false)});
}

TEST(CatalogueFaults, RetryingGivesTheSameList)
{
    expectFaultsRetry({"createDefaultFieldListStructure", "", taskListBuilding(true)});
}

} // namespace
} // namespace qncal::test
