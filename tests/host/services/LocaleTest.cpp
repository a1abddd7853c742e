#include "services/Locale.h"

#include "host/services/HostTest.h"

namespace qncal::host {
namespace {

TEST(Locale, GivesWhatWasSet)
{
    Locale locale({LocaleService::unitedStates, 8, "Ledger", 3, 17});
    EXPECT_EQ(locale.getCountryCode(), 2);
    EXPECT_EQ(locale.getProvinceCode(), 8);
    EXPECT_EQ(locale.getProductName(), "Ledger");
    EXPECT_EQ(locale.getRightsLevel(), 3);
    EXPECT_EQ(locale.getSignedInUserID(), 17);
    locale.values().signedInUserID = 4;
    EXPECT_EQ(locale.getSignedInUserID(), 4);
}

TEST(Locale, ReadsCountries)
{
    for (const char* text : {"CA", "ca", "canada", "1"})
        EXPECT_EQ(countryFromText(text), LocaleService::canada) << text;
    for (const char* text : {"US", "usa", "United States", "2"})
        EXPECT_EQ(countryFromText(text), LocaleService::unitedStates) << text;
    for (const char* text : {"", "3", "France"})
        EXPECT_FALSE(countryFromText(text)) << text;
}

TEST(Locale, ReadsProvinces)
{
    for (const char* text : {"QC", "qc", "quebec", "8"}) {
        ASSERT_TRUE(provinceFromText(text)) << text;
        EXPECT_EQ(provinceFromText(text)->code, 8) << text;
    }
    for (const char* text : {"", "5", "Yukon"})
        EXPECT_FALSE(provinceFromText(text)) << text;
    EXPECT_EQ(provinceFromCode(11)->letters, "NL");
    EXPECT_FALSE(provinceFromCode(7));
}

class RegionTest : public test::HostTest {};

TEST_F(RegionTest, IsTheDefaultAsLongAsNothingIsStored)
{
    Locale::Values values;
    readRegion(*database, values);
    EXPECT_EQ(values.country, LocaleService::canada);
    EXPECT_EQ(values.province, 3);
}

TEST_F(RegionTest, IsReadAsItWasStored)
{
    storeRegion(*database, {.country = LocaleService::canada, .province = 8});
    storeRegion(*database, {.country = LocaleService::unitedStates, .province = 9});
    Locale::Values values;
    readRegion(*database, values);
    EXPECT_EQ(values.country, LocaleService::unitedStates);
    EXPECT_EQ(values.province, 9);
    const Rows rows = Rows::read(*database, "SELECT GlobalGeneralSettings.* FROM GlobalGeneralSettings;");
    EXPECT_EQ(rows.count(), 1);
    EXPECT_TRUE(rows.boolean("DateStampShowTime")) << "the date stamp keeps its defaults";
    EXPECT_TRUE(rows.boolean("DateStampShowName"));
}

TEST_F(RegionTest, NullLeavesTheValueAsItWas)
{
    addRow(*database, "GlobalGeneralSettings", {{"CountryCode", "2"}});
    Locale::Values values{.province = 11};
    readRegion(*database, values);
    EXPECT_EQ(values.country, LocaleService::unitedStates);
    EXPECT_EQ(values.province, 11);
}

} // namespace
} // namespace qncal::host
