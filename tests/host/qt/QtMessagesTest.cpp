#include "qt/QtMessages.h"

#include "controls/TextBox.h"
#include "core/ServiceRegistry.h"
#include "core/messages.h"
#include "host/qt/QtDialogTest.h"

#include <QAbstractButton>
#include <QLabel>

namespace qncal::test {
namespace {

constexpr std::int16_t yes = MessageDialogService::answerYes;
constexpr std::int16_t no = MessageDialogService::answerNo;

struct QtMessagesTest : QtDialogTest {
    QtMessagesTest() { serviceRegistry().messageDialogs = std::make_shared<host::QtMessages>(qt, "FirmCal"); }

    /// What the component hears when the user presses the key on a question.
    std::int16_t answerTo(Qt::Key key)
    {
        whenAsked([=](QMessageBox& box) { QTest::keyClick(box.focusWidget(), key); });
        return askYesNo("Delete it?", nullptr) ? yes : no;
    }
};

TEST_F(QtMessagesTest, AMessageIsReadAndClosedByEnter)
{
    whenAsked([&](QMessageBox& box) {
        EXPECT_EQ(box.text(), "The name is missing.\nPlease enter one.");
        EXPECT_EQ(box.windowTitle(), "FirmCal");
        EXPECT_EQ(box.icon(), QMessageBox::Information);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
        picture(box, "message");
        QTest::keyClick(box.focusWidget(), Qt::Key_Return);
        EXPECT_FALSE(box.isVisible());
    });
    showMessage("The name is missing.\r\nPlease enter one.", nullptr);
}

TEST_F(QtMessagesTest, EscapeClosesAMessage)
{
    whenAsked([&](QMessageBox& box) {
        QTest::keyClick(&box, Qt::Key_Escape);
        EXPECT_FALSE(box.isVisible());
    });
    showMessage("Done.", nullptr);
}

TEST_F(QtMessagesTest, WhatLooksLikeAMarkUpIsShownAsItStands)
{
    whenAsked([&](QMessageBox& box) { EXPECT_EQ(widget<QLabel>(box, "qt_msgbox_label").textFormat(), Qt::PlainText); });
    showMessage("<b>Reed & Partners</b>", nullptr);
}

TEST_F(QtMessagesTest, AQuestionHasYesAndNoAndIsAnsweredByTheirKeys)
{
    whenAsked([&](QMessageBox& box) {
        EXPECT_EQ(box.icon(), QMessageBox::Question);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Yes | QMessageBox::No);
        picture(box, "question");
        pressWithAlt(box, Qt::Key_Y);
        EXPECT_FALSE(box.isVisible());
    });
    EXPECT_TRUE(askYesNo("Delete it?", nullptr));
    whenAsked([&](QMessageBox& box) {
        pressWithAlt(box, Qt::Key_N);
        EXPECT_FALSE(box.isVisible());
    });
    EXPECT_FALSE(askYesNo("Delete it?", nullptr));
}

TEST_F(QtMessagesTest, EnterAndEscapeMeanNo)
{
    EXPECT_EQ(answerTo(Qt::Key_Return), no);
    EXPECT_EQ(answerTo(Qt::Key_Escape), no);
}

TEST_F(QtMessagesTest, TheBoxInTheCornerMeansNo)
{
    whenAsked([](QMessageBox& box) { box.close(); });
    EXPECT_FALSE(askYesNo("Delete it?", nullptr));
}

TEST_F(QtMessagesTest, YesIsReachedByTheTabKey)
{
    whenAsked([&](QMessageBox& box) {
        QTest::keyClick(box.focusWidget(), Qt::Key_Tab);
        QTest::keyClick(box.focusWidget(), Qt::Key_Space);
    });
    EXPECT_TRUE(askYesNo("Delete it?", nullptr));
}

TEST_F(QtMessagesTest, AnotherStyleHasNoIcon)
{
    whenAsked([](QMessageBox& box) { EXPECT_EQ(box.icon(), QMessageBox::NoIcon); });
    serviceRegistry().messageDialogs->showMessage("Plain", 0, nullptr);
}

TEST_F(QtMessagesTest, ACaptionOfTheCallerGoesBeforeTheProgramsOwn)
{
    whenAsked([](QMessageBox& box) { EXPECT_EQ(box.windowTitle(), "Settings"); });
    serviceRegistry().messageDialogs->showMessage("Saved", 3, nullptr, 0, 0, 101, 0, "Settings");
}

struct NameForm : Form {
    NameForm() : Form("frmName") {}
    TextBox txtName{*this, "txtName"};
};

TEST_F(QtMessagesTest, TheBoxStandsInFrontOfTheFormThatAsks)
{
    NameForm form;
    whenShown("frmName", [&](host::FormWindow& window) {
        whenAsked([&](QMessageBox& box) { EXPECT_EQ(box.parentWidget(), &window); });
        showMessage("The name is missing.", &form);
        whenAsked([&](QMessageBox& box) { EXPECT_EQ(box.parentWidget(), &window) << "the active window"; });
        showMessage("The name is missing.", nullptr);
    });
    form.showModal();
}

} // namespace
} // namespace qncal::test
