#include "MergeEngineTest.h"

#include "core/forwarding/ForwardingLocaleService.h"
#include "support/RoutineSweep.h"

namespace qncal::test {
namespace {

constexpr std::int32_t canada = LocaleService::canada;
constexpr std::int32_t unitedStates = LocaleService::unitedStates;

class CatalogueTest : public MergeEngineTest {};

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

/// A firm that moves to Quebec once its province has been asked for a number of times.
class MovingProvince : public ForwardingLocaleService {
public:
    MovingProvince(std::shared_ptr<LocaleService> target, int reads)
        : ForwardingLocaleService(std::move(target)), reads_(reads)
    {
    }
    std::int32_t getProvinceCode() override { return reads_-- > 0 ? 3 : 8; }

private:
    int reads_;
};

TEST_F(CatalogueTest, TheProvinceIsReadForEachRowThatDependsOnIt)
{
    serviceRegistry().locale = std::make_shared<MovingProvince>(locale, 2);
    build(2);
    EXPECT_EQ(fieldOf("HST Number"), "GSTNumber");
    EXPECT_EQ(fieldOf("HST Filing Method"), "GSTFilingMethod");
    EXPECT_EQ(fieldOf("QST Number"), "PSTNumber");
    EXPECT_EQ(fieldOf("Que. Corp. Tax Number"), "ONCorpNumber");
    EXPECT_FALSE(hasField("ON Corp. MCBS Number"));
    EXPECT_EQ(fieldOf("NEQ Number"), "WSIBNumber");
}

TEST_F(CatalogueTest, TheSampleCountryIsTheFirmsOwn)
{
    for (const auto& [country, sample] : {std::pair{canada, "Canada"}, std::pair{unitedStates, "United States"}}) {
        region(country, 3);
        build(1);
        int found = 0;
        for (const FieldListRow& row : engine.FieldList()->rows()) {
            if (!row.displayName.view().ends_with("Country"))
                continue;
            ++found;
            EXPECT_EQ(row.sampleText.view(), sample) << row.displayName.view();
        }
        EXPECT_EQ(found, 7);
    }
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

// --- Faults ---

std::function<std::function<std::string()>(TestWorld&)> taskListBuilding(bool resultIsList)
{
    return [resultIsList](TestWorld& world) -> std::function<std::string()> {
        world.addRow("CustomFields", {{"TaskCustomName1", "Colour"}});
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
