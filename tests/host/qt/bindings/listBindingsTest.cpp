#include "controls/ListView.h"
#include "controls/TabStrip.h"
#include "controls/listControls.h"
#include "host/qt/bindings/TestForm.h"

#include <gtest/gtest.h>

#include <QHeaderView>
#include <QListWidget>
#include <QTabBar>
#include <QTreeWidget>

namespace qncal::test {
namespace {

TEST(ListBoxBindingTest, GoesBothWays)
{
    TestForm t;
    ListBox box{t.form, "lstUsers"};
    box.addItem("Ann", 5);
    box.addItem("Bob", 7);
    auto& list = t.show<QListWidget>(box);
    box.Click = t.note("Click");
    box.DblClick = t.note("DblClick");
    t.open();
    EXPECT_EQ(list.count(), 2);
    QTest::keyClick(&list, Qt::Key_Down);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(box.selectedItemData(), 7);
    box.listIndex(0);
    QCoreApplication::processEvents();
    EXPECT_EQ(list.currentRow(), 0);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(0)).center());
    EXPECT_EQ(t.events, (Events{"Click", "Click", "Click", "DblClick"}));
    box.clear();
    QCoreApplication::processEvents();
    EXPECT_EQ(list.count(), 0);
}

TEST(ListBoxBindingTest, AClickPicksTheRowThatIsSeenAlthoughTheModelHasAnother)
{
    TestForm t;
    ListBox box{t.form, "lstUsers"};
    box.addItem("Ann", 5);
    box.addItem("Bob", 7);
    auto& list = t.show<QListWidget>(box);
    t.open();
    const QPoint second = list.visualItemRect(list.item(1)).center();
    box.insertItem(0, "Abe", 9);
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, second);
    EXPECT_EQ(box.selectedItemData(), 7);
}

struct ListViewBindingTest : testing::Test {
    ListViewBindingTest()
    {
        view.addColumn("Name", 3000);
        view.addColumn("City");
        view.addRow({{"Bob", "Ajax"}, 1});
        view.addRow({{"Ann", "York"}, 2});
    }
    TestForm t;
    ListView view{t.form, "lvClients"};
};

TEST_F(ListViewBindingTest, ShowsColumnsAndRows)
{
    const auto& tree = t.show<QTreeWidget>(view);
    EXPECT_EQ(tree.columnCount(), 2);
    EXPECT_EQ(tree.columnWidth(0), 200);
    EXPECT_EQ(tree.topLevelItem(1)->text(1), "York");
    view.setCell(1, 1, "Oshawa");
    view.addRow({{"Cy"}, 3});
    QCoreApplication::processEvents();
    EXPECT_EQ(tree.topLevelItem(1)->text(1), "Oshawa");
    EXPECT_EQ(tree.topLevelItemCount(), 3);
    EXPECT_EQ(tree.topLevelItem(2)->text(1), "");
}

TEST_F(ListViewBindingTest, AClickOnAHeadingSortsThroughTheModel)
{
    auto& tree = t.show<QTreeWidget>(view);
    view.selectedRow(0);
    view.ColumnClick = [this](std::int32_t column) { t.events.push_back("Column " + std::to_string(column)); };
    t.open();
    const QPoint heading(tree.header()->sectionViewportPosition(0) + 10, tree.header()->height() / 2);
    QTest::mouseClick(tree.header()->viewport(), Qt::LeftButton, {}, heading);
    QCoreApplication::processEvents();
    EXPECT_EQ(tree.topLevelItem(0)->text(0), "Ann");
    EXPECT_EQ(view.selectedItemData(), 1) << "the selected row stays selected";
    EXPECT_EQ(tree.indexOfTopLevelItem(tree.currentItem()), 1);
    QTest::mouseClick(tree.header()->viewport(), Qt::LeftButton, {}, heading);
    QCoreApplication::processEvents();
    EXPECT_EQ(tree.topLevelItem(0)->text(0), "Bob");
    EXPECT_EQ(t.events, (Events{"Column 0", "Column 0"}));
}

TEST_F(ListViewBindingTest, ARowIsPickedByTheMouse)
{
    auto& tree = t.show<QTreeWidget>(view);
    view.Click = t.note("Click");
    view.DblClick = t.note("DblClick");
    t.open();
    const QPoint second = tree.visualItemRect(tree.topLevelItem(1)).center();
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, second);
    EXPECT_EQ(view.selectedItemData(), 2);
    QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, second);
    EXPECT_EQ(t.events, (Events{"Click", "DblClick"}));
}

TEST_F(ListViewBindingTest, AClickPicksTheRowThatIsSeenAlthoughTheModelHasSorted)
{
    auto& tree = t.show<QTreeWidget>(view);
    t.open();
    const QPoint first = tree.visualItemRect(tree.topLevelItem(0)).center();
    view.sort(0);
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, first);
    EXPECT_EQ(view.selectedItemData(), 1) << "Bob, whom the widget still shows first";
}

TEST_F(ListViewBindingTest, ChecksGoBothWays)
{
    view.checkBoxes(true);
    view.checked(0, true);
    view.ItemCheck = [this](std::int32_t row) { t.events.push_back("Check " + std::to_string(row)); };
    auto& tree = t.show<QTreeWidget>(view);
    t.open();
    EXPECT_EQ(tree.topLevelItem(0)->checkState(0), Qt::Checked);
    tree.setCurrentItem(tree.topLevelItem(1));
    QTest::keyClick(&tree, Qt::Key_Space);
    EXPECT_TRUE(view.isChecked(1));
    EXPECT_EQ(t.events, Events{"Check 1"});
}

TEST(TabStripBindingTest, GoesBothWays)
{
    TestForm t;
    TabStrip strip{t.form, "tabPages"};
    strip.addTab("General");
    strip.addTab("Notes");
    strip.addTab("More");
    strip.tabVisible(1, false);
    auto& bar = t.show<QTabBar>(strip);
    strip.Click = [&](std::int32_t previous) { t.events.push_back("left " + std::to_string(previous)); };
    t.open();
    EXPECT_FALSE(bar.isTabVisible(1));
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(2).center());
    EXPECT_EQ(strip.selectedTab(), 2);
    strip.selectedTab(0);
    EXPECT_EQ(bar.currentIndex(), 0);
    EXPECT_EQ(t.events, (Events{"left 0", "left 2"}));
}

} // namespace
} // namespace qncal::test
