#include "controls/TextBox.h"
#include "host/qt/bindings/TestForm.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>

namespace qncal::test {
namespace {

struct TextBindingTest : testing::Test {
    TestForm t;
    TextBox box{t.form, "txtName"};
};

TEST_F(TextBindingTest, AWidgetMadeLateShowsThePresentState)
{
    box.text("Ann");
    box.enabled(false);
    box.visible(false);
    box.toolTip("The name");
    box.accessibleName("&Name");
    box.readOnly(true);
    const auto& edit = t.show<QLineEdit>(box);
    EXPECT_EQ(edit.text(), "Ann");
    EXPECT_FALSE(edit.isEnabled());
    EXPECT_TRUE(edit.isHidden());
    EXPECT_EQ(edit.toolTip(), "The name");
    EXPECT_EQ(edit.accessibleName(), "Name");
    EXPECT_TRUE(edit.isReadOnly());
}

TEST_F(TextBindingTest, TheModelDrivesTheWidget)
{
    const auto& edit = t.show<QLineEdit>(box);
    box.text("Zoë");
    box.enabled(false);
    EXPECT_EQ(edit.text(), "Zoë");
    EXPECT_FALSE(edit.isEnabled());
}

TEST_F(TextBindingTest, TypingRaisesOneChangeForEachKey)
{
    auto& edit = t.show<QLineEdit>(box);
    box.Change = t.note("Change");
    t.open();
    QTest::keyClicks(&edit, "ab");
    EXPECT_EQ(box.text(), "ab");
    EXPECT_EQ(t.events, (Events{"Change", "Change"}));
    EXPECT_EQ(box.selStart(), 2);
}

TEST_F(TextBindingTest, AHandlerMayChangeTheTextThatIsTyped)
{
    auto& edit = t.show<QLineEdit>(box);
    box.Change = [this] { box.text("#" + box.text().substr(box.text().find_first_not_of('#'))); };
    t.open();
    QTest::keyClicks(&edit, "a");
    EXPECT_EQ(edit.text(), "#a");
}

TEST_F(TextBindingTest, KeyPressMayChangeOrSwallowAKey)
{
    auto& edit = t.show<QLineEdit>(box);
    box.KeyPress = [](std::int32_t& key) { key = key == 'x' ? 0 : key - 'a' + 'A'; };
    t.open();
    QTest::keyClicks(&edit, "axb");
    EXPECT_EQ(edit.text(), "AB");
    EXPECT_EQ(box.text(), "AB");
}

TEST_F(TextBindingTest, KeyUpTellsTheKeysNumber)
{
    auto& edit = t.show<QLineEdit>(box);
    std::vector<std::int32_t> codes;
    box.KeyUp = [&](std::int32_t code) { codes.push_back(code); };
    t.open();
    QTest::keyClick(&edit, Qt::Key_A);
    QTest::keyClick(&edit, Qt::Key_Left);
    QTest::keyClick(&edit, Qt::Key_F2);
    EXPECT_EQ(codes, (std::vector<std::int32_t>{'A', 37, 113}));
}

TEST_F(TextBindingTest, TheLimitCountsCharactersAndBindsOnlyTheUser)
{
    box.maxLength(3);
    auto& edit = t.show<QLineEdit>(box);
    t.open();
    edit.insert("a😀b😀");
    EXPECT_EQ(box.text(), "a😀b");
    QTest::keyClicks(&edit, "c");
    EXPECT_EQ(box.text(), "a😀b");
    box.text("longer");
    EXPECT_EQ(edit.text(), "longer");
    edit.setCursorPosition(6);
    QTest::keyClick(&edit, Qt::Key_Backspace);
    EXPECT_EQ(box.text(), "longe");
    QTest::keyClicks(&edit, "x");
    EXPECT_EQ(box.text(), "longe");
}

TEST_F(TextBindingTest, ALimitCutsWhatIsPastedBeforeTheCaret)
{
    box.maxLength(5);
    box.text("ab");
    auto& edit = t.show<QLineEdit>(box);
    t.open();
    edit.setCursorPosition(1);
    edit.insert("12345");
    EXPECT_EQ(box.text(), "a123b");
    EXPECT_EQ(edit.cursorPosition(), 4);
}

TEST_F(TextBindingTest, TheSelectionGoesBothWaysInCharacters)
{
    box.text("😀abc");
    auto& edit = t.show<QLineEdit>(box);
    t.open();
    box.selStart(1);
    box.selLength(2);
    EXPECT_EQ(edit.selectedText(), "ab");
    edit.setSelection(2, 3);
    EXPECT_EQ(box.selStart(), 1);
    EXPECT_EQ(box.selLength(), 3);
}

TEST_F(TextBindingTest, FocusGoesBothWays)
{
    TextBox other{t.form, "txtOther"};
    auto& edit = t.show<QLineEdit>(box);
    auto& second = t.show<QLineEdit>(other);
    box.GotFocus = t.note("got");
    box.LostFocus = t.note("lost");
    t.open();
    edit.setFocus();
    EXPECT_TRUE(box.hasFocus());
    QTest::keyClick(&edit, Qt::Key_Tab);
    EXPECT_TRUE(second.hasFocus());
    EXPECT_TRUE(other.hasFocus());
    EXPECT_EQ(t.events, (Events{"got", "lost"}));
}

TEST_F(TextBindingTest, ADoubleClickReachesTheModel)
{
    TextBox other{t.form, "txtLines"};
    auto& edit = t.show<QLineEdit>(box);
    box.DblClick = t.note("DblClick");
    t.open();
    QTest::mouseDClick(&edit, Qt::LeftButton);
    auto& lines = t.show<QPlainTextEdit>(other);
    other.DblClick = t.note("DblClick of lines");
    QTest::mouseDClick(lines.viewport(), Qt::LeftButton);
    EXPECT_EQ(t.events, (Events{"DblClick", "DblClick of lines"}));
}

TEST_F(TextBindingTest, TheTabKeyIsNoKeyPress)
{
    auto& edit = t.show<QLineEdit>(box);
    box.KeyPress = [this](std::int32_t&) { t.events.push_back("KeyPress"); };
    t.open();
    edit.setFocus();
    QTest::keyClick(&edit, Qt::Key_Tab);
    EXPECT_TRUE(t.events.empty());
}

TEST_F(TextBindingTest, ColoursComeAndGo)
{
    const auto& edit = t.show<QLineEdit>(box);
    box.backColour(0x0000FF);
    box.foreColour(0xFF0000);
    EXPECT_EQ(edit.palette().color(QPalette::Base), QColor(255, 0, 0));
    EXPECT_EQ(edit.palette().color(QPalette::Text), QColor(0, 0, 255));
    box.backColour({});
    box.foreColour({});
    EXPECT_EQ(edit.palette().color(QPalette::Base), QPalette().color(QPalette::Base));
}

TEST_F(TextBindingTest, AColourOfTheSystemIsLeftToTheToolkit)
{
    const auto& edit = t.show<QLineEdit>(box);
    box.backColour(static_cast<Colour>(0x80000005));
    EXPECT_EQ(edit.palette().color(QPalette::Base), QPalette().color(QPalette::Base));
}

TEST_F(TextBindingTest, ManyLinesKeepTheLineEndsThatTheyCameWith)
{
    box.text("a\r\nb");
    auto& edit = t.show<QPlainTextEdit>(box);
    t.open();
    EXPECT_EQ(edit.toPlainText(), "a\nb");
    edit.moveCursor(QTextCursor::End);
    QTest::keyClick(&edit, Qt::Key_Return);
    QTest::keyClicks(&edit, "c");
    EXPECT_EQ(box.text(), "a\r\nb\r\nc");
}

TEST_F(TextBindingTest, ATextOfManyLinesStaysUnchangedWhileItIsOnlyShown)
{
    box.text("a\r\nb");
    box.Change = t.note("Change");
    t.show<QPlainTextEdit>(box);
    t.open();
    EXPECT_EQ(box.text(), "a\r\nb");
    EXPECT_TRUE(t.events.empty());
}

TEST(BindingLifeTest, AWidgetOutlivesItsControl)
{
    TestForm t;
    QLineEdit* edit = nullptr;
    {
        TextBox box{t.form, "txtName"};
        edit = &t.show<QLineEdit>(box);
        t.open();
    }
    EXPECT_FALSE(edit->isEnabled());
    edit->setText("typed into nothing");
    EXPECT_EQ(edit->text(), "typed into nothing");
}

TEST(BindingLifeTest, AControlOutlivesItsWidget)
{
    TestForm t;
    TextBox box{t.form, "txtName"};
    delete &t.show<QLineEdit>(box);
    box.text("Ann");
    EXPECT_EQ(box.text(), "Ann");
}

TEST(BindingLifeTest, AWidgetMayGoInTheMiddleOfTheChangeThatItShows)
{
    TestForm t;
    TextBox box{t.form, "txtName"};
    QPointer<QLineEdit> edit;
    box.updated.subscribe([&] { delete edit; });
    edit = &t.show<QLineEdit>(box);
    box.text("after");
    EXPECT_FALSE(edit);
    EXPECT_EQ(box.text(), "after");
}

} // namespace
} // namespace qncal::test
