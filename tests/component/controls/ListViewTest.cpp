#include "controls/ListView.h"

#include "controls/Form.h"

#include <gtest/gtest.h>

#include <string>

namespace qncal {
namespace {

struct ListViewTest : testing::Test {
    ListViewTest()
    {
        view.addColumn("Name");
        view.addRow({{"beta"}, 1, false});
        view.addRow({{"Alpha"}, 2, false});
        view.addRow({{"gamma"}, 3, false});
    }
    std::string order() const
    {
        std::string numbers;
        for (const ListView::Row& row : view.rows())
            numbers += std::to_string(row.itemData);
        return numbers;
    }
    Form form{"frmTest"};
    ListView view{form, "lvSchemes"};
    int clicks = 0;
};

TEST_F(ListViewTest, SortsByColumnAndKeepsTheSelectedRow)
{
    view.selectedRow(0);
    view.clickColumn(0);
    EXPECT_EQ(order(), "213");
    EXPECT_EQ(view.selectedItemData(), 1);
    view.clickColumn(0);
    EXPECT_EQ(order(), "312");
    EXPECT_EQ(view.selectedItemData(), 1);
}

TEST_F(ListViewTest, ARowAddedToASortedListGoesToItsPlace)
{
    view.selectedRow(2);
    view.sort(0);
    view.addRow({{"BETA"}, 4, false});
    view.addRow({{"delta"}, 5, false});
    EXPECT_EQ(order(), "21453") << "behind those that sort alike";
    EXPECT_EQ(view.selectedItemData(), 3);
    view.clear();
    view.addRow({{"b"}, 1, false});
    view.addRow({{"a"}, 2, false});
    EXPECT_EQ(order(), "21") << "a list that is filled anew stays sorted";
    view.sort(-1);
    view.addRow({{"a"}, 3, false});
    EXPECT_EQ(order(), "213");
}

TEST_F(ListViewTest, AnotherTextInTheSortedColumnEndsTheSorting)
{
    view.addColumn("City");
    view.sort(0);
    view.setCell(0, 1, "Ajax");
    EXPECT_EQ(view.sortColumn(), 0);
    view.setCell(0, 0, "omega");
    EXPECT_EQ(view.sortColumn(), -1);
    EXPECT_EQ(order(), "213");
}

TEST_F(ListViewTest, AListInAnOrderOfItsOwnIsNotSortedByItsHeadings)
{
    view.headingsSort(false);
    std::int32_t clicked = -1;
    view.ColumnClick = [&](std::int32_t column) { clicked = column; };
    view.clickColumn(0);
    EXPECT_EQ(clicked, 0);
    EXPECT_EQ(order(), "123");
    EXPECT_EQ(view.sortColumn(), -1);
}

TEST_F(ListViewTest, LosingTheSelectedRowIsAChangeOfTheSelection)
{
    view.selectedRow(1);
    view.Click = [this] {
        ++clicks;
        EXPECT_EQ(view.selectedRow(), -1);
    };
    view.removeRow(0);
    EXPECT_EQ(clicks, 0) << "the same row is selected still";
    view.removeRow(0);
    EXPECT_EQ(clicks, 1);
    view.clear();
    EXPECT_EQ(clicks, 1) << "nothing was selected any more";
}

TEST_F(ListViewTest, ClearingTellsThatTheSelectionIsGone)
{
    view.selectedRow(1);
    view.Click = [this] { ++clicks; };
    view.clear();
    view.clear();
    EXPECT_EQ(clicks, 1);
}

} // namespace
} // namespace qncal
