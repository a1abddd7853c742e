#include "utilities/UtilityService.h"

#include "support/RecordingErrorControl.h"
#include "support/rowName.h"

#include <gtest/gtest.h>

namespace qncal {
namespace {

TEST(UtilityServiceTest, NullAndEmptyTextAreNullValues)
{
    UtilityService service;
    EXPECT_TRUE(service.isNullValue(Variant()));
    EXPECT_TRUE(service.isNullValue(""));
    EXPECT_FALSE(service.isNullValue(" "));
    EXPECT_FALSE(service.isNullValue(0));
    EXPECT_FALSE(service.isNullValue(false));
    EXPECT_FALSE(service.isNullValue(Date()));
}

TEST(UtilityServiceTest, OnlyOneIsACheckedBox)
{
    UtilityService service;
    EXPECT_TRUE(service.checkBoxToBool(1));
    EXPECT_FALSE(service.checkBoxToBool(0));
    EXPECT_FALSE(service.checkBoxToBool(2)) << "the grey state";
    EXPECT_FALSE(service.checkBoxToBool(-1));
    EXPECT_EQ(service.boolToCheckBox(true), 1);
    EXPECT_EQ(service.boolToCheckBox(false), 0);
}

TEST(UtilityServiceTest, OrdinalStandsInASentence)
{
    UtilityService service;
    EXPECT_EQ("Repeat every " + service.getOrdinalText(3) + " day", "Repeat every 3rd day");
}

struct KeyRow {
    const char* name;
    std::int16_t key;
    bool passes;
};

class DigitKeyTest : public testing::TestWithParam<KeyRow> {};

TEST_P(DigitKeyTest, IsFiltered)
{
    UtilityService service;
    std::int16_t key = GetParam().key;
    service.filterDigitKeys(key);
    EXPECT_EQ(key, GetParam().passes ? GetParam().key : 0);
}

INSTANTIATE_TEST_SUITE_P(Keys, DigitKeyTest,
                         testing::Values(KeyRow{"Zero", '0', true}, KeyRow{"Five", '5', true},
                                         KeyRow{"Nine", '9', true}, KeyRow{"BelowZero", '/', false},
                                         KeyRow{"AboveNine", ':', false}, KeyRow{"Letter", 'a', false},
                                         KeyRow{"Minus", '-', false}, KeyRow{"Point", '.', false},
                                         KeyRow{"Comma", ',', false}, KeyRow{"Blank", ' ', false},
                                         KeyRow{"Backspace", 8, true}, KeyRow{"Tab", 9, true},
                                         KeyRow{"Enter", 13, true}, KeyRow{"Escape", 27, true}, KeyRow{"Copy", 3, true},
                                         KeyRow{"Paste", 22, true}, KeyRow{"Cut", 24, true}, KeyRow{"Undo", 26, true},
                                         KeyRow{"DeleteWord", 127, true}, KeyRow{"AccentedLetter", 233, false},
                                         KeyRow{"ArabicDigit", 1633, false}, KeyRow{"Negative", -5, false}),
                         test::rowName);

TEST(UtilityServiceTest, KeepsTheErrorControlItWasGiven)
{
    UtilityService service;
    EXPECT_EQ(service.errorControl(), nullptr);
    const auto errors = std::make_shared<test::RecordingErrorControl>();
    service.setErrorControl(errors);
    EXPECT_EQ(service.errorControl(), errors);
}

} // namespace
} // namespace qncal
