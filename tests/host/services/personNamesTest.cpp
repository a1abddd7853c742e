#include "services/personNames.h"

#include "support/rowName.h"

#include <gtest/gtest.h>

namespace qncal::host {
namespace {

struct Case {
    const char* name;
    PersonNames names;
    const char* expected;
};

class ContactAndSpouseNameTest : public testing::TestWithParam<Case> {};

TEST_P(ContactAndSpouseNameTest, Composes) { EXPECT_EQ(contactAndSpouseName(GetParam().names), GetParam().expected); }

INSTANTIATE_TEST_SUITE_P(
    All, ContactAndSpouseNameTest,
    testing::Values(Case{"NoSpouse", {"Ann Reed", "Ann", "Reed", ""}, "Ann Reed"},
                    Case{"BlankSpouse", {"Ann Reed", "Ann", "Reed", "  "}, "Ann Reed"},
                    Case{"SameFamilyName", {"Ann Reed", "Ann", "Reed", "Bob Reed"}, "Ann and Bob Reed"},
                    Case{"FamilyNameInAnotherCase", {"Ann Reed", "Ann", "Reed", "Bob REED"}, "Ann and Bob REED"},
                    Case{"TwoFamilyNames", {"Ann Reed", "Ann", "Reed", "Bob Stone"}, "Ann Reed and Bob Stone"},
                    Case{"FirstNameOfTheSpouseAlone", {"Ann Reed", "Ann", "Reed", "Bob"}, "Ann and Bob Reed"},
                    Case{"DisplayNameIsSplit", {"Ann Reed", "", "", "Bob Reed"}, "Ann and Bob Reed"},
                    Case{"MiddleNameStaysWithTheFirst", {"Ann May Reed", "", "", "Bob Reed"}, "Ann May and Bob Reed"},
                    Case{
                        "DisplayNameWithACommaIsNotSplit", {"Reed, Ann", "", "", "Bob Reed"}, "Reed, Ann and Bob Reed"},
                    Case{"DisplayNameOfOneWord", {"Ann", "", "", "Bob Reed"}, "Ann and Bob Reed"},
                    Case{"NoDisplayName", {"", "Ann", "Reed", ""}, "Ann Reed"},
                    Case{"SpouseAlone", {"", "", "", "Bob Reed"}, "Bob Reed"}, Case{"Nothing", {}, ""}),
    qncal::test::rowName);

} // namespace
} // namespace qncal::host
