#include "utilities/replaceText.h"

#include "support/rowName.h"

#include <gtest/gtest.h>

namespace qncal {
namespace {

struct Replacement {
    const char* name;
    std::string text;
    std::string wanted;
    std::string replacement;
    std::string result;
};

class ReplaceNoCaseTest : public testing::TestWithParam<Replacement> {};

TEST_P(ReplaceNoCaseTest, ReplacesInPlace)
{
    std::string text = GetParam().text;
    const bool replaced = replaceNoCase(text, GetParam().wanted, GetParam().replacement);
    EXPECT_EQ(text, GetParam().result);
    EXPECT_EQ(replaced, GetParam().text != GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(Texts, ReplaceNoCaseTest,
                         testing::Values(Replacement{"EveryOccurrence", "a b a", "a", "x", "x b x"},
                                         Replacement{"InAnyCase", "Docket dOCKET", "docket", "Entry", "Entry Entry"},
                                         Replacement{"ReplacementIsNotSearched", "aa", "a", "aa", "aaaa"},
                                         Replacement{"OverlappingTakesTheFirst", "aaa", "aa", "b", "ba"},
                                         Replacement{"ByNothing", "«x»y«x»", "«X»", "", "y"},
                                         Replacement{"WholeText", "abc", "ABC", "d", "d"},
                                         Replacement{"AtTheEnd", "xabc", "abc", "d", "xd"},
                                         Replacement{"SignsDifferingInTheCaseBit", "[a] {a}", "{A}", "b", "[a] b"},
                                         Replacement{"NoOccurrence", "abc", "abd", "x", "abc"},
                                         Replacement{"LongerThanTheText", "ab", "abc", "x", "ab"},
                                         Replacement{"EmptyWanted", "ab", "", "x", "ab"}),
                         test::rowName);

TEST(FindNoCase, StartsAtThePosition)
{
    EXPECT_EQ(findNoCase("abcABC", "Bc"), 1u);
    EXPECT_EQ(findNoCase("abcABC", "Bc", 2), 4u);
    EXPECT_EQ(findNoCase("abcABC", "Bc", 5), std::string_view::npos);
    EXPECT_EQ(findNoCase("abcABC", "Bc", 60), std::string_view::npos);
}

} // namespace
} // namespace qncal
