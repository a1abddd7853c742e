#include "utilities/readableValue.h"

#include "support/rowName.h"

#include <gtest/gtest.h>

namespace qncal {
namespace {

struct ValueRow {
    const char* name;
    Variant value;
    std::optional<std::int32_t> integer;
    std::optional<bool> boolean;
};

class ReadableValueTest : public testing::TestWithParam<ValueRow> {};

TEST_P(ReadableValueTest, GivesWhatCanBeReadAndNothingElse)
{
    EXPECT_EQ(integerIn(GetParam().value), GetParam().integer);
    EXPECT_EQ(booleanIn(GetParam().value), GetParam().boolean);
}

const ValueRow values[] = {
    {"Null", {}, {}, {}},
    {"EmptyText", "", {}, {}},
    {"Number", 255, 255, true},
    {"Zero", 0, 0, false},
    {"NumberAsText", "255", 255, true},
    {"Word", "red", {}, {}},
    {"BooleanWord", "true", {}, true},
    {"AnotherBooleanWord", "False", {}, false},
    {"Boolean", true, -1, true},
    {"HalfToEven", 2.5, 2, true},
    {"Largest", 2147483647.0, 2147483647, true},
    {"Smallest", -2147483648.0, -2147483647 - 1, true},
    {"TooLarge", 2147483648.0, {}, true},
    {"FarTooLarge", "1e300", {}, true},
};
INSTANTIATE_TEST_SUITE_P(Values, ReadableValueTest, testing::ValuesIn(values), test::rowName);

} // namespace
} // namespace qncal
