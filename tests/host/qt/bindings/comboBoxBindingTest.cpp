#include "controls/listControls.h"
#include "host/qt/bindings/TestForm.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>

namespace qncal::test {
namespace {

struct ComboBoxBindingTest : testing::Test {
    ComboBoxBindingTest()
    {
        for (const char* row : {"9:00 AM", "9:15 AM", "10:00 AM"})
            box.addItem(row, ++number);
    }
    TestForm t;
    ComboBox box{t.form, "cboTime"};
    std::int32_t number = 0;
};

TEST_F(ComboBoxBindingTest, ShowsRowsAndSelection)
{
    box.selectItemData(2);
    auto& combo = t.show<QComboBox>(box);
    EXPECT_EQ(combo.count(), 3);
    EXPECT_EQ(combo.currentIndex(), 1);
    EXPECT_EQ(combo.itemData(1), 2);
    box.removeItem(0);
    EXPECT_EQ(combo.count(), 2);
    EXPECT_EQ(combo.currentText(), "9:15 AM");
    box.clear();
    EXPECT_EQ(combo.count(), 0);
}

TEST_F(ComboBoxBindingTest, APickRaisesClickOnce)
{
    auto& combo = t.show<QComboBox>(box);
    box.Click = t.note("Click");
    t.open();
    QTest::keyClick(&combo, Qt::Key_Down);
    EXPECT_EQ(box.listIndex(), 0);
    EXPECT_EQ(box.text(), "9:00 AM");
    EXPECT_EQ(t.events, Events{"Click"});
}

TEST_F(ComboBoxBindingTest, PickingTheRowAgainAfterAnotherTextRaisesClick)
{
    auto& combo = t.show<QComboBox>(box);
    t.open();
    combo.setFocus();
    QTest::keyClick(&combo, Qt::Key_Down);
    box.text("noon");
    EXPECT_EQ(box.listIndex(), -1);
    EXPECT_EQ(combo.currentText(), "noon");
    box.Click = t.note("Click");
    QTest::keyClick(&combo, Qt::Key_Down);
    EXPECT_EQ(box.text(), "9:00 AM");
    emit combo.activated(0); // as when the selected row is picked from the open list
    EXPECT_EQ(t.events, (Events{"Click", "Click"}));
}

TEST_F(ComboBoxBindingTest, TypingSelectsTheRowThatItSpells)
{
    auto& combo = t.show<QComboBox>(box);
    t.open();
    combo.setFocus();
    QTest::keyClicks(&combo, "9:1");
    EXPECT_EQ(box.text(), "9:1") << "only a form completes what is typed";
    EXPECT_EQ(box.listIndex(), -1);
    QTest::keyClicks(&combo, "5 AM");
    EXPECT_EQ(box.selectedItemData(), 2);
    QTest::keyClick(&combo, Qt::Key_Backspace);
    EXPECT_EQ(box.listIndex(), -1);
    EXPECT_EQ(combo.currentText(), "9:15 A");
    combo.lineEdit()->setCursorPosition(1);
    QTest::keyClicks(&combo, "x");
    EXPECT_EQ(box.text(), "9x:15 A");
    EXPECT_EQ(combo.lineEdit()->cursorPosition(), 2);
}

struct CompletingComboBoxTest : ComboBoxBindingTest {
    CompletingComboBoxTest()
    {
        box.KeyPress = [this](std::int32_t& key) { box.autoCompleteKey(key); };
    }
};

TEST_F(CompletingComboBoxTest, TypingCompletesAndMarksTheCompletion)
{
    auto& combo = t.show<QComboBox>(box);
    t.open();
    combo.setFocus();
    QTest::keyClicks(&combo, "9:1");
    EXPECT_EQ(box.text(), "9:15 AM");
    EXPECT_EQ(box.selectedItemData(), 2);
    EXPECT_EQ(combo.lineEdit()->selectedText(), "5 AM");
    QTest::keyClicks(&combo, "7");
    EXPECT_EQ(box.text(), "9:17");
    EXPECT_EQ(combo.currentText(), "9:17");
    combo.lineEdit()->selectAll();
    QTest::keyClicks(&combo, "1");
    EXPECT_EQ(box.text(), "10:00 AM");
    combo.lineEdit()->setCursorPosition(2);
    QTest::keyClicks(&combo, "5");
    EXPECT_EQ(box.text(), "105:00 AM");
}

TEST_F(CompletingComboBoxTest, DeletingDoesNotCompleteAgain)
{
    auto& combo = t.show<QComboBox>(box);
    t.open();
    combo.setFocus();
    QTest::keyClicks(&combo, "9:1");
    QTest::keyClick(&combo, Qt::Key_Backspace);
    EXPECT_EQ(box.text(), "9:1");
    QTest::keyClick(&combo, Qt::Key_Backspace);
    EXPECT_EQ(box.text(), "9:");
    EXPECT_EQ(combo.currentText(), "9:");
}

TEST_F(ComboBoxBindingTest, AFixedListTakesOnlyItsRows)
{
    box.editable(false);
    auto& combo = t.show<QComboBox>(box);
    t.open();
    EXPECT_FALSE(combo.isEditable());
    combo.setFocus();
    QTest::keyClicks(&combo, "1");
    EXPECT_EQ(box.text(), "10:00 AM");
    EXPECT_EQ(box.selectedItemData(), 3);
}

} // namespace
} // namespace qncal::test
