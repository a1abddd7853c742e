#include "utilities/NameIndex.h"

#include "utilities/hashNoCase.h"

#include <gtest/gtest.h>

#include <string>

namespace qncal {
namespace {

TEST(NameIndexTest, FindsNothingWhileItIsEmpty) { EXPECT_FALSE(NameIndex().find("Subject")); }

TEST(NameIndexTest, FindsANameInAnyCase)
{
    NameIndex index;
    index.add("Subject");
    index.add("DateFrom");
    EXPECT_EQ(index.find("SUBJECT"), 0u);
    EXPECT_EQ(index.find("datefrom"), 1u);
    EXPECT_FALSE(index.find("DateFro"));
    EXPECT_FALSE(index.find(""));
    EXPECT_EQ(index.name(1), "DateFrom");
}

TEST(NameIndexTest, OfEqualNamesTheFirstIsFoundAndEachHasItsPlace)
{
    NameIndex index;
    index.add("City");
    index.add("CITY");
    index.add("Country");
    EXPECT_EQ(index.size(), 3u);
    EXPECT_EQ(index.find("city"), 0u);
    EXPECT_EQ(index.find("Country"), 2u);
}

TEST(NameIndexTest, KeepsEveryPlaceWhileItGrows)
{
    NameIndex index;
    for (std::size_t i = 0; i < 1000; ++i)
        index.add("Column" + std::to_string(i));
    for (std::size_t i = 0; i < 1000; ++i)
        EXPECT_EQ(index.find("column" + std::to_string(i)), i);
    EXPECT_FALSE(index.find("Column1000"));
}

TEST(NameIndexTest, OnlyLettersFold)
{
    NameIndex index;
    index.add("a@b"); // with bit 0x20 set '@' becomes '`': the same hash is not the same name
    EXPECT_EQ(hashNoCase("a@b"), hashNoCase("a`b"));
    EXPECT_FALSE(index.find("a`b"));
    index.add("é");
    EXPECT_FALSE(index.find("É"));
    EXPECT_EQ(index.find("é"), 1u);
}

} // namespace
} // namespace qncal
