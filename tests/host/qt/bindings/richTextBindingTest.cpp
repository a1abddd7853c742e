#include "controls/RichTextBox.h"
#include "controls/richTextStream.h"
#include "headless/HeadlessDialogHost.h"
#include "host/qt/bindings/TestForm.h"
#include "qt/bindings/anyWidget.h"
#include "qt/widgets/RichTextEdit.h"
#include "qt/widgets/RichTextToolBar.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAction>
#include <QClipboard>
#include <QComboBox>
#include <QGuiApplication>
#include <QMimeData>
#include <QToolButton>

namespace qncal::test {
namespace {

using Formats = host::RichTextActions;

struct RichTextBindingTest : testing::Test {
    host::RichTextEdit& shown()
    {
        auto& edit = t.show<host::RichTextEdit>(box);
        t.open();
        edit.setFocus();
        return edit;
    }
    bool streamHas(const char* word) const { return box.textRTF().find(word) != std::string::npos; }

    TestForm t;
    RichTextBox box{t.form, "rtbNotes"};
};

TEST_F(RichTextBindingTest, WhatIsOnlyShownStaysByteForByte)
{
    const std::string stream = streamAround("{\\*\\unknown x}{\\b Bold}");
    box.textRTF(stream);
    box.Change = t.note("Change");
    const auto& edit = shown();
    EXPECT_EQ(edit.toPlainText(), "Bold");
    EXPECT_EQ(box.textRTF(), stream);
    EXPECT_TRUE(t.events.empty());
}

TEST_F(RichTextBindingTest, TypingRaisesChangeAndMovesTheCaret)
{
    box.textRTF(streamAround("ab"));
    box.Change = t.note("Change");
    auto& edit = shown();
    edit.moveCursor(QTextCursor::End);
    QTest::keyClicks(&edit, "c");
    QTest::keyClick(&edit, Qt::Key_Return);
    EXPECT_EQ(box.text(), "abc\n");
    EXPECT_EQ(box.selStart(), 4);
    EXPECT_EQ(t.events, (Events{"Change", "Change"}));
}

TEST_F(RichTextBindingTest, TextThatCodeInsertsIsShownWithTheCaretBehindIt)
{
    box.textRTF(streamAround("one two"));
    auto& edit = shown();
    box.insertText(4, "and ");
    EXPECT_EQ(edit.toPlainText(), "one and two");
    EXPECT_EQ(edit.textCursor().position(), 8);
    edit.setFocus();
    QTest::keyClicks(&edit, "x");
    EXPECT_EQ(box.text(), "one and xtwo");
}

TEST_F(RichTextBindingTest, TheSelectionGoesBothWaysInCharacters)
{
    box.textRTF(streamAround("\\u-10179?\\u-8704?abc"));
    auto& edit = shown();
    box.selStart(1);
    box.selLength(2);
    EXPECT_EQ(edit.textCursor().selectedText(), "ab");
    edit.moveCursor(QTextCursor::End);
    EXPECT_EQ(box.selStart(), 4);
    EXPECT_EQ(box.selLength(), 0);
}

TEST_F(RichTextBindingTest, TheKeysFormatTheSelection)
{
    box.textRTF(streamAround("abc"));
    auto& edit = shown();
    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_B, Qt::ControlModifier);
    EXPECT_TRUE(streamHas("\\b "));
    EXPECT_TRUE(edit.formats().action(Formats::bold)->isChecked());
    QTest::keyClick(&edit, Qt::Key_I, Qt::ControlModifier);
    EXPECT_TRUE(streamHas("\\i "));
    QTest::keyClick(&edit, Qt::Key_U, Qt::ControlModifier);
    EXPECT_TRUE(streamHas("\\ul "));
    QTest::keyClick(&edit, Qt::Key_B, Qt::ControlModifier);
    EXPECT_FALSE(streamHas("\\b "));
    EXPECT_EQ(box.text(), "abc");
}

TEST_F(RichTextBindingTest, TheToolBarFormats)
{
    box.textRTF(streamAround("abc"));
    auto& edit = shown();
    host::RichTextToolBar bar(edit);
    bar.show();
    edit.selectAll();
    auto& sizes = *bar.findChild<QComboBox*>("fontSize");
    sizes.setCurrentIndex(sizes.findData(14));
    emit sizes.activated(sizes.currentIndex());
    EXPECT_TRUE(streamHas("\\fs28 "));
    edit.formats().action(Formats::bold)->trigger();
    EXPECT_EQ(bar.findChild<QToolButton*>("format:" + edit.formats().action(Formats::bold)->objectName())->text(), "B");
    const auto dialogs = std::make_shared<host::HeadlessDialogHost>();
    dialogs->colourToPick(0x0000FF);
    setDialogHost(dialogs);
    edit.formats().action(Formats::colour)->trigger();
    setDialogHost(nullptr);
    EXPECT_TRUE(streamHas("\\red255\\green0\\blue0;"));
    edit.formats().action(Formats::bullets)->trigger();
    EXPECT_TRUE(streamHas("\\pnlvlblt"));
    EXPECT_EQ(box.text(), "abc");
    edit.formats().action(Formats::bullets)->trigger();
    EXPECT_FALSE(streamHas("\\pnlvlblt"));
    EXPECT_FALSE(streamHas("\\li"));
}

struct KeyCase {
    const char* name;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    const char* word;
};
void PrintTo(const KeyCase& row, std::ostream* out) { *out << row.name; }

class RichTextKeyTest : public RichTextBindingTest, public testing::WithParamInterface<KeyCase> {};

TEST_P(RichTextKeyTest, FormatsTheParagraphsThatAreSelected)
{
    box.textRTF(R"({\rtf1 one\par two\par three\par})");
    auto& edit = shown();
    edit.moveCursor(QTextCursor::Start);
    edit.moveCursor(QTextCursor::Down, QTextCursor::KeepAnchor);
    QTest::keyClick(&edit, GetParam().key, GetParam().modifiers);
    std::size_t count = 0;
    for (std::size_t at = box.textRTF().find(GetParam().word); at != std::string::npos;
         at = box.textRTF().find(GetParam().word, at + 1))
        ++count;
    EXPECT_EQ(count, 2U) << box.textRTF();
    EXPECT_EQ(box.text(), "one\ntwo\nthree");
}

INSTANTIATE_TEST_SUITE_P(Keys, RichTextKeyTest,
                         testing::Values(KeyCase{"Centre", Qt::Key_E, Qt::ControlModifier, "\\qc"},
                                         KeyCase{"Right", Qt::Key_R, Qt::ControlModifier, "\\qr"},
                                         KeyCase{"Justify", Qt::Key_J, Qt::ControlModifier, "\\qj"},
                                         KeyCase{"Indent", Qt::Key_M, Qt::ControlModifier, "\\li720"},
                                         KeyCase{"Bullets", Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier,
                                                 "\\pnlvlblt"}),
                         [](const auto& test) { return test.param.name; });

TEST_F(RichTextBindingTest, AnIndentEndsAtTheMargin)
{
    box.textRTF(R"({\rtf1\pard\li900 one\par})");
    auto& edit = shown();
    QTest::keyClick(&edit, Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_TRUE(streamHas("\\li180"));
    QTest::keyClick(&edit, Qt::Key_M, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_FALSE(streamHas("\\li"));
}

TEST_F(RichTextBindingTest, TheFontIsPickedByTheKeys)
{
    box.textRTF(streamAround("abc"));
    auto& edit = shown();
    host::RichTextToolBar bar(edit);
    t.window->layout()->addWidget(&bar);
    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    auto& fonts = *bar.findChild<QComboBox*>("fontName");
    ASSERT_TRUE(fonts.view()->isVisible());
    QTest::keyClicks(fonts.view(), "Geo");
    QTest::keyClick(fonts.view(), Qt::Key_Return);
    EXPECT_TRUE(streamHas("Georgia"));
    EXPECT_TRUE(edit.hasFocus());
    edit.setFocus();
    bar.setParent(nullptr);
}

TEST_F(RichTextBindingTest, TheToolBarShowsAFontThatItDoesNotOffer)
{
    box.textRTF(R"({\rtf1{\fonttbl{\f0 Garamond;}}\f0\fs20 x\par})");
    auto& edit = shown();
    const host::RichTextToolBar bar(edit);
    edit.moveCursor(QTextCursor::End);
    EXPECT_EQ(bar.findChild<QComboBox*>("fontName")->currentText(), "Garamond");
    EXPECT_EQ(bar.findChild<QComboBox*>("fontSize")->currentText(), "10");
}

TEST_F(RichTextBindingTest, AReadOnlyTextIsNotFormatted)
{
    box.readOnly(true);
    box.textRTF(streamAround("abc"));
    auto& edit = shown();
    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_B, Qt::ControlModifier);
    edit.formats().action(Formats::bullets)->trigger();
    QTest::keyClicks(&edit, "x");
    EXPECT_EQ(box.textRTF(), streamAround("abc"));
}

TEST_F(RichTextBindingTest, TheToolBarIsThereWhileTheTextCanBeEdited)
{
    QWidget& pane = *host::newWidgetFor(box, *t.window);
    t.window->layout()->addWidget(&pane);
    t.open();
    const auto& bar = *pane.findChild<host::RichTextToolBar*>();
    EXPECT_TRUE(bar.isVisible());
    box.readOnly(true);
    EXPECT_FALSE(bar.isVisible());
    box.readOnly(false);
    EXPECT_TRUE(bar.isVisible());
    box.visible(false);
    EXPECT_FALSE(bar.isVisible());
    box.visible(true);
    EXPECT_TRUE(bar.isVisible());
    box.enabled(false);
    EXPECT_FALSE(bar.isVisible());
    box.enabled(true);
    EXPECT_TRUE(bar.isVisible());
}

TEST_F(RichTextBindingTest, FormatsAreCopiedAsAStreamAndPagesArePastedPlain)
{
    box.textRTF(streamAround("{\\b bold}"));
    auto& edit = shown();
    edit.selectAll();
    edit.copy();
    EXPECT_TRUE(QGuiApplication::clipboard()->mimeData()->data("text/rtf").contains("\\b bold"));
    edit.moveCursor(QTextCursor::End);
    edit.paste();
    EXPECT_EQ(box.text(), "boldbold");
    auto* page = new QMimeData;
    page->setHtml("<table><tr><td>cell</td></tr></table>");
    page->setText("cell");
    QGuiApplication::clipboard()->setMimeData(page);
    edit.selectAll();
    edit.paste();
    EXPECT_EQ(box.text(), "cell");
}

} // namespace
} // namespace qncal::test
