#include "utilities/FieldListCollection.h"

#include "utilities/RunTimeError.h"

#include <gtest/gtest.h>

namespace qncal {
namespace {

FieldListRow rowOf(std::int32_t key, std::string_view databaseField, std::string_view displayName)
{
    FieldListRow row;
    row.key = key;
    row.databaseField = FieldText::fixed(databaseField);
    row.displayName = FieldText::fixed(displayName);
    row.category = FieldText::fixed("TaskInfo");
    row.dataType = MergeDataType::date;
    row.sampleText = FieldText::owned("Mar 31, 2026");
    row.maximumLength = 50;
    return row;
}

class FieldListCollectionTest : public testing::Test {
protected:
    void SetUp() override
    {
        list.addRow(rowOf(1, "Subject", "Task Name"));
        list.addRow(rowOf(2, "CalendarDate", "Task Calendar Date"));
        list.addRow(rowOf(3, "DateFrom", "Task Calendar Date"));
    }
    FieldListCollection list;
};

TEST_F(FieldListCollectionTest, CountsAndClearsItsRows)
{
    EXPECT_EQ(list.getCount(), 3);
    list.clearRows();
    EXPECT_EQ(list.getCount(), 0);
    EXPECT_FALSE(list.moveToKey(1));
    EXPECT_EQ(list.findInColumn(FieldListCollection::displayName, "Task Name"), -1);
}

TEST_F(FieldListCollectionTest, ARowThatIsAddedBecomesCurrent) { EXPECT_EQ(list.getCurrentKey(), 3); }

TEST_F(FieldListCollectionTest, GivesEachColumnByItsNumber)
{
    ASSERT_TRUE(list.moveToKey(1));
    EXPECT_EQ(list.getColumn(1), Variant("Subject"));
    EXPECT_EQ(list.getColumn(2), Variant("Task Name"));
    EXPECT_EQ(list.getColumn(3), Variant("TaskInfo"));
    EXPECT_EQ(list.getColumn(4), Variant(2));
    EXPECT_EQ(list.getColumn(5), Variant("Mar 31, 2026"));
    EXPECT_EQ(list.getColumn(6), Variant(50));
    EXPECT_THROW(list.getColumn(7), RunTimeError);
}

TEST_F(FieldListCollectionTest, AnAbsentKeyLeavesTheCurrentRow)
{
    ASSERT_TRUE(list.moveToKey(2));
    EXPECT_FALSE(list.moveToKey(4));
    EXPECT_FALSE(list.moveToKey(-1));
    EXPECT_FALSE(list.moveToKey(0));
    EXPECT_EQ(list.getCurrentKey(), 2);
}

TEST_F(FieldListCollectionTest, KeysNeedNotBePositions)
{
    list.addRow(rowOf(70, "Year", "Task Year"));
    ASSERT_TRUE(list.moveToKey(70));
    EXPECT_EQ(list.current().displayName.view(), "Task Year");
    EXPECT_FALSE(list.moveToKey(4));
}

TEST_F(FieldListCollectionTest, OfTwoEqualNamesTheFirstIsFound)
{
    EXPECT_EQ(list.findInColumn(FieldListCollection::displayName, "Task Calendar Date"), 1);
    EXPECT_EQ(list.current().databaseField.view(), "CalendarDate");
}

TEST_F(FieldListCollectionTest, ASearchMayBeginBehindARow)
{
    for (int search = 0; search < 30; ++search) { // the first ones without an index, the later ones with it
        EXPECT_EQ(list.positionOfDisplayName("task calendar date"), 1);
        EXPECT_EQ(list.positionOfDisplayName("task calendar date", 2), 2);
        EXPECT_EQ(list.positionOfDisplayName("task calendar date", 3), -1);
    }
    EXPECT_EQ(list.getCurrentKey(), 3);
}

TEST_F(FieldListCollectionTest, TellsWhichBytesItsNamesHold)
{
    EXPECT_FALSE(list.displayNamesHold('#'));
    list.addRow(rowOf(4, "Custom1", "File #"));
    EXPECT_TRUE(list.displayNamesHold('#'));
    EXPECT_TRUE(list.displayNamesHold('T'));
    EXPECT_FALSE(list.displayNamesHold('?'));
}

TEST_F(FieldListCollectionTest, ComparesWithoutRegardToCase)
{
    EXPECT_EQ(list.findInColumn(FieldListCollection::displayName, "TASK calendar date"), 1);
    EXPECT_EQ(list.findInColumn(FieldListCollection::databaseField, "datefrom"), 2);
}

TEST_F(FieldListCollectionTest, FindsInEveryColumn)
{
    EXPECT_EQ(list.findInColumn(FieldListCollection::category, "TaskInfo"), 0);
    EXPECT_EQ(list.findInColumn(FieldListCollection::dataType, "2"), 0);
    EXPECT_EQ(list.findInColumn(FieldListCollection::sampleText, "mar 31, 2026"), 0);
    EXPECT_EQ(list.findInColumn(FieldListCollection::maximumLength, "50"), 0);
    EXPECT_EQ(list.findInColumn(FieldListCollection::maximumLength, "5"), -1);
    EXPECT_THROW(list.findInColumn(7, "x"), RunTimeError);
}

TEST_F(FieldListCollectionTest, AFailedSearchLeavesTheCurrentRow)
{
    ASSERT_TRUE(list.moveToKey(2));
    EXPECT_EQ(list.findInColumn(FieldListCollection::displayName, "Task"), -1);
    EXPECT_EQ(list.findInColumn(FieldListCollection::databaseField, ""), -1);
    EXPECT_EQ(list.getCurrentKey(), 2);
}

TEST_F(FieldListCollectionTest, ANameThatIsAddedAfterASearchIsFound)
{
    EXPECT_EQ(list.findInColumn(FieldListCollection::displayName, "Task Year"), -1);
    list.addRow(rowOf(4, "Year", "Task Year"));
    EXPECT_EQ(list.findInColumn(FieldListCollection::displayName, "Task Year"), 3);
}

TEST_F(FieldListCollectionTest, EveryNameOfALongListIsFound)
{
    FieldListCollection longList;
    for (int i = 0; i < 300; ++i) {
        FieldListRow row = rowOf(i + 1, "Field", "");
        row.displayName = FieldText::owned("Field " + std::to_string(i));
        longList.addRow(std::move(row));
    }
    for (int i = 0; i < 300; ++i)
        EXPECT_EQ(longList.findInColumn(FieldListCollection::displayName, "field " + std::to_string(i)), i);
}

TEST(FieldListCollection, WithoutACurrentRowAColumnIsAnError)
{
    const FieldListCollection list;
    EXPECT_THROW(list.getColumn(1), RunTimeError);
    EXPECT_THROW(list.getCurrentKey(), RunTimeError);
}

} // namespace
} // namespace qncal
