#include "core/readColour.h"

#include "support/ComponentTest.h"
#include "support/SpoiltDatabase.h"
#include "support/rowName.h"

#include <gtest/gtest.h>

namespace qncal {
namespace {

struct ColourRow {
    const char* name;
    Variant stored;
    std::int32_t colour;
};

class ReadColourTest : public test::ComponentTestWith<ColourRow> {};

TEST_P(ReadColourTest, ANumberIsTakenAndAnythingElseLeavesTheTarget)
{
    addRow("ColourSchemes", {});
    const auto spoilt = std::make_shared<test::SpoiltDatabase>(database);
    spoilt->cells["BackColour"] = GetParam().stored;
    serviceRegistry().database = spoilt;
    const auto row = RecordSet::openReadOnly("SELECT ColourSchemes.* FROM ColourSchemes;");
    std::int32_t colour = 7;
    readColour(row, "BackColour", colour);
    EXPECT_EQ(colour, GetParam().colour);
}

INSTANTIATE_TEST_SUITE_P(Cells, ReadColourTest,
                         testing::Values(ColourRow{"Number", 255, 255}, ColourRow{"NumberAsText", "65280", 65280},
                                         ColourRow{"Null", {}, 7}, ColourRow{"EmptyText", "", 7},
                                         ColourRow{"Word", "red", 7}, ColourRow{"Beyond32Bits", 5000000000.0, 7}),
                         test::rowName);

} // namespace
} // namespace qncal
