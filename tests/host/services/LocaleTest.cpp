#include "services/Locale.h"

#include <gtest/gtest.h>

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

} // namespace
} // namespace qncal::host
