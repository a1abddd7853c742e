#include "controls/ProgressDialog.h"
#include "controls/RichTextBox.h"
#include "controls/TabStrip.h"
#include "controls/TextBox.h"
#include "controls/captionedControls.h"
#include "host/qt/QtDialogTest.h"
#include "qt/QtMessages.h"

#include <QColorDialog>
#include <QFontDialog>
#include <QLineEdit>
#include <QMenu>
#include <QPrinter>
#include <QProgressDialog>
#include <QPushButton>
#include <QTemporaryDir>

namespace qncal::test {
namespace {

struct NameForm : Form {
    NameForm() : Form("frmName")
    {
        cmdOk.Click = [this] { unload(); };
    }
    void Form_QueryUnload(bool& cancel, bool byUser) override { cancel = refuses && byUser; }
    TextBox txtName{*this, "txtName"};
    CommandButton cmdOk{*this, "cmdOk"};
    bool refuses = false;
};

struct QtDialogHostTest : QtDialogTest {
    NameForm form;
};

TEST_F(QtDialogHostTest, AModalFormReturnsWhenItIsHidden)
{
    bool shown = false;
    whenShown("frmName", [&](host::FormWindow& window) {
        shown = true;
        EXPECT_TRUE(window.isModal());
        EXPECT_EQ(qt->windowOf(form), &window);
        form.hide();
    });
    form.showModal();
    EXPECT_TRUE(shown);
    EXPECT_FALSE(qt->windowOf(form));
}

TEST_F(QtDialogHostTest, AFormMayBeShownAgainWithItsState)
{
    whenShown("frmName", [&](host::FormWindow& window) {
        type(window, "txtName", "Ann");
        form.hide();
    });
    form.showModal();
    whenShown("frmName", [&](host::FormWindow& window) {
        EXPECT_EQ(widget<QLineEdit>(window, "txtName").text(), "Ann");
        form.hide();
    });
    form.showModal();
}

TEST_F(QtDialogHostTest, AFormMayRefuseTheBoxInTheCorner)
{
    form.refuses = true;
    whenShown("frmName", [&](host::FormWindow& window) {
        window.close();
        EXPECT_TRUE(window.isVisible());
        click(window, "cmdOk");
        EXPECT_FALSE(window.isVisible());
    });
    form.showModal();
}

TEST_F(QtDialogHostTest, EscapeWithoutACancelButtonDoesNothing)
{
    whenShown("frmName", [&](host::FormWindow& window) {
        QTest::keyClick(&window, Qt::Key_Escape);
        EXPECT_TRUE(window.isVisible());
    });
    form.showModal();
}

TEST_F(QtDialogHostTest, AFormMayHideItselfWhileItComesUp)
{
    form.txtName.GotFocus = [&] { form.hide(); };
    form.showModal();
    EXPECT_FALSE(form.isVisible());
}

TEST_F(QtDialogHostTest, AModelessFormStaysWhileTheProgramGoesOn)
{
    form.show();
    auto* window = qt->windowOf(form);
    ASSERT_TRUE(window);
    EXPECT_FALSE(window->isModal());
    form.caption("Later");
    EXPECT_EQ(window->windowTitle(), "Later");
    form.bringToFront();
    form.show();
    EXPECT_EQ(qt->windowOf(form), window) << "one window for each form";
    form.hide();
    EXPECT_FALSE(window->isVisible());
}

TEST_F(QtDialogHostTest, AModelessFormOutlivesTheModalOneThatItWasShownFrom)
{
    NameForm modal;
    whenShown("frmName", [&](host::FormWindow& window) {
        form.show();
        const QPointer<host::FormWindow> above = qt->windowOf(form);
        EXPECT_NE(above->parentWidget(), &window);
        type(*above, "txtName", "Ann");
        EXPECT_EQ(form.txtName.text(), "Ann") << "within reach while the modal one is open";
        modal.hide();
    });
    modal.showModal();
    QWidget* window = qt->windowOf(form);
    ASSERT_TRUE(window);
    EXPECT_TRUE(window->isVisible());
    form.show();
    EXPECT_EQ(qt->windowOf(form), window);
    form.hide();
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(qt->windowOf(form));
}

TEST_F(QtDialogHostTest, AModalFormOutlivesTheModelessOneBelowIt)
{
    NameForm below;
    below.show();
    const QPointer<host::FormWindow> windowBelow = qt->windowOf(below);
    ASSERT_TRUE(QTest::qWaitForWindowActive(windowBelow));
    whenShown("frmName", [&](host::FormWindow& window) {
        EXPECT_EQ(&window, qt->windowOf(form));
        const QPointer<host::FormWindow> alive(&window);
        below.hide();
        ASSERT_TRUE(QTest::qWaitFor([&] { return !windowBelow; }));
        ASSERT_TRUE(alive);
        EXPECT_TRUE(window.isVisible());
        type(window, "txtName", "Ann");
        click(window, "cmdOk");
    });
    form.showModal();
    EXPECT_EQ(form.txtName.text(), "Ann");
}

TEST_F(QtDialogHostTest, AModalFormReturnsWhenItsWindowGoesWithTheMainWindow)
{
    auto* mainWindow = new QWidget;
    mainWindow->show();
    qt->mainWindow(mainWindow);
    NameForm modeless;
    modeless.show();
    QTimer::singleShot(0, qApp, [&] {
        EXPECT_TRUE(qt->windowOf(form));
        delete mainWindow;
    });
    form.showModal();
    EXPECT_FALSE(form.isVisible());
    EXPECT_FALSE(modeless.isVisible()) << "no form is left visible without a window";
    modeless.show();
    EXPECT_TRUE(qt->windowOf(modeless));
    modeless.hide();
    EXPECT_FALSE(qt->windowOf(modeless));
}

TEST_F(QtDialogHostTest, ComingToTheFrontKeepsAWindowMaximised)
{
    form.show();
    auto& window = *qt->windowOf(form);
    window.setWindowState(Qt::WindowMaximized | Qt::WindowMinimized);
    form.bringToFront();
    EXPECT_TRUE(window.isMaximized());
    EXPECT_FALSE(window.isMinimized());
}

TEST_F(QtDialogHostTest, AFormThatEndsTakesItsWindowAway)
{
    QPointer<host::FormWindow> window;
    {
        NameForm shortLived;
        shortLived.show();
        window = qt->windowOf(shortLived);
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(window);
}

TEST_F(QtDialogHostTest, AHostThatEndsTakesItsWindowsAway)
{
    form.show();
    const QPointer<host::FormWindow> window = qt->windowOf(form);
    setDialogHost(nullptr);
    qt.reset();
    EXPECT_FALSE(window);
    form.hide();
}

TEST_F(QtDialogHostTest, TheFocusThatTheFormSetsIsTheWindows)
{
    form.cmdOk.setFocus();
    whenShown("frmName", [&](host::FormWindow& window) {
        EXPECT_TRUE(widget<QPushButton>(window, "cmdOk").hasFocus());
        form.txtName.setFocus();
        EXPECT_TRUE(widget<QLineEdit>(window, "txtName").hasFocus());
    });
    form.showModal();
}

TEST_F(QtDialogHostTest, ThePointerOfTheApplicationAndOfAForm)
{
    qt->mousePointer(MousePointer::hourglass);
    ASSERT_TRUE(QApplication::overrideCursor());
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    qt->mousePointer(MousePointer::standard);
    EXPECT_FALSE(QApplication::overrideCursor());
    form.show();
    form.mousePointer(MousePointer::hourglass);
    EXPECT_EQ(qt->windowOf(form)->cursor().shape(), Qt::WaitCursor);
}

TEST_F(QtDialogHostTest, TellsTheKeysHeldDown)
{
    form.show();
    QWidget& window = *qt->windowOf(form);
    QTest::keyPress(&window, Qt::Key_Shift, Qt::ShiftModifier);
    EXPECT_TRUE(qt->isKeyDown(ModifierKey::shift));
    EXPECT_FALSE(qt->isKeyDown(ModifierKey::control));
    QTest::keyRelease(&window, Qt::Key_Shift);
    EXPECT_FALSE(qt->isKeyDown(ModifierKey::shift));
}

TEST_F(QtDialogHostTest, DoEventsRunsWhatWaits)
{
    bool ran = false;
    QTimer::singleShot(0, qApp, [&] { ran = true; });
    qt->doEvents();
    EXPECT_TRUE(ran);
}

TEST_F(QtDialogHostTest, AProgressDialogShowsItsStateAndCanBeCancelled)
{
    ProgressDialog progress;
    progress.text("Working");
    progress.maximum(10);
    int steps = 0;
    progress.StartProgress = [&] {
        auto* window = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(window);
        EXPECT_EQ(window->labelText(), "Working");
        EXPECT_EQ(window->maximum(), 10);
        while (!progress.isCancelled() && steps < 10) {
            progress.value(++steps);
            EXPECT_EQ(window->value(), steps);
            if (steps == 4)
                QTest::mouseClick(window->findChild<QPushButton*>(), Qt::LeftButton);
        }
    };
    progress.show();
    EXPECT_EQ(steps, 4);
    EXPECT_TRUE(progress.isClosed());
    EXPECT_FALSE(QApplication::activeModalWidget());
}

TEST_F(QtDialogHostTest, AWorkGoesOnWhenItsWindowGoes)
{
    auto* mainWindow = new QWidget;
    mainWindow->show();
    qt->mainWindow(mainWindow);
    ASSERT_TRUE(QTest::qWaitForWindowActive(mainWindow));
    ProgressDialog progress;
    int steps = 0;
    progress.StartProgress = [&] {
        while (steps < 3) {
            if (++steps == 2)
                QTimer::singleShot(0, mainWindow, [mainWindow] { delete mainWindow; });
            progress.value(steps);
        }
    };
    progress.show();
    EXPECT_EQ(steps, 3);
    EXPECT_TRUE(progress.isClosed());
}

/// What is open when the window that owns it goes.
struct OpenDialog {
    const char* name;
    std::function<void(host::QtDialogHost& dialogs, Form& form)> open;
};
void PrintTo(const OpenDialog& row, std::ostream* out) { *out << row.name; }

struct DialogOfAWindowThatGoesTest : QtDialogHostTest, testing::WithParamInterface<OpenDialog> {};

TEST_P(DialogOfAWindowThatGoesTest, CountsAsCancelled)
{
    auto* mainWindow = new QWidget;
    mainWindow->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(mainWindow));
    QTimer::singleShot(0, mainWindow, [mainWindow] {
        QWidget* popup = QApplication::activePopupWidget();
        EXPECT_TRUE(popup || QApplication::activeModalWidget());
        delete mainWindow;
    });
    GetParam().open(*qt, form);
    EXPECT_FALSE(QApplication::activeModalWidget());
    EXPECT_FALSE(QApplication::activePopupWidget());
}

INSTANTIATE_TEST_SUITE_P(
    Dialogs, DialogOfAWindowThatGoesTest,
    testing::Values(OpenDialog{"Colour", [](auto& dialogs, Form&) { EXPECT_FALSE(dialogs.pickColour(0)); }},
                    OpenDialog{"Font", [](auto& dialogs, Form&) { EXPECT_FALSE(dialogs.pickFont({})); }},
                    OpenDialog{"Menu",
                               [](auto& dialogs, Form& form) {
                                   MenuItem menu(form, "mnuSMEdit");
                                   MenuItem copy(form, "mnuSMEditCopy");
                                   copy.caption("C&opy");
                                   copy.parent("mnuSMEdit");
                                   dialogs.popUpMenu(menu);
                               }},
                    OpenDialog{"Question",
                               [](auto& dialogs, Form&) {
                                   const std::shared_ptr<host::QtDialogHost> notOwned(&dialogs, [](auto*) {});
                                   host::QtMessages messages(notOwned);
                                   EXPECT_EQ(messages.askQuestion("Go on?", 3, nullptr, 0, 0, 0, 0, "", 0),
                                             MessageDialogService::answerNo);
                               }},
                    OpenDialog{"Message",
                               [](auto& dialogs, Form&) {
                                   const std::shared_ptr<host::QtDialogHost> notOwned(&dialogs, [](auto*) {});
                                   host::QtMessages(notOwned).showMessage("Done", 3, nullptr, 0, 0, 0, 0, "", 0);
                               }}),
    [](const auto& test) { return test.param.name; });

TEST_F(QtDialogHostTest, ACancelledColourDialogPicksNone)
{
    QTimer::singleShot(0, qApp, [] { qobject_cast<QDialog*>(QApplication::activeModalWidget())->reject(); });
    EXPECT_FALSE(qt->pickColour(0));
}

TEST_F(QtDialogHostTest, PicksAFont)
{
    const auto inTheDialog = [](const std::function<void(QFontDialog&)>& act) {
        QTimer::singleShot(0, qApp, [act] { act(*qobject_cast<QFontDialog*>(QApplication::activeModalWidget())); });
    };
    inTheDialog([](QFontDialog& dialog) { dialog.reject(); });
    EXPECT_FALSE(qt->pickFont({}));
    const std::string family = QApplication::font().family().toStdString();
    inTheDialog([](QFontDialog& dialog) {
        QFont font = dialog.currentFont();
        EXPECT_EQ(font.pointSize(), 12);
        font.setPointSize(14);
        dialog.setCurrentFont(font);
        dialog.accept();
    });
    const auto picked = qt->pickFont({family, 12, false, false});
    ASSERT_TRUE(picked);
    EXPECT_EQ(picked->name, family);
    EXPECT_EQ(picked->points, 14);
}

TEST_F(QtDialogHostTest, ShowsTheEntriesOfAPopupMenu)
{
    MenuItem menu(form, "mnuSMEdit");
    MenuItem copy(form, "mnuSMEditCopy");
    MenuItem ofTheBar(form, "mnuFile");
    copy.caption("C&opy");
    copy.parent("mnuSMEdit");
    int chosen = 0;
    copy.Click = [&] { ++chosen; };
    QTimer::singleShot(0, qApp, [] {
        auto* shown = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(shown);
        ASSERT_EQ(shown->actions().size(), 1);
        EXPECT_EQ(shown->actions().front()->text(), "C&opy");
        QTest::keyClick(shown, Qt::Key_Down);
        QTest::keyClick(shown, Qt::Key_Return);
    });
    menu.popUp();
    EXPECT_EQ(chosen, 1);
}

TEST_F(QtDialogHostTest, AFormMayAskForItsPlaceByTheMainWindow)
{
    QWidget mainWindow;
    mainWindow.setGeometry(300, 250, 300, 200);
    mainWindow.show();
    qt->mainWindow(&mainWindow);
    // The window that the form would come up before.
    NameForm opener;
    opener.show();
    qt->windowOf(opener)->move(0, 0);
    ASSERT_TRUE(QTest::qWaitForWindowActive(qt->windowOf(opener)));
    const auto distance = [&] {
        const QPoint centre = qt->windowOf(form)->geometry().center();
        return (centre - mainWindow.frameGeometry().center()).manhattanLength();
    };
    constexpr int frame = 10;
    form.show();
    EXPECT_GT(distance(), frame);
    form.hide();
    form.startUpPosition(StartUpPosition::byMainWindow);
    form.show();
    EXPECT_LE(distance(), frame);
}

TEST_F(QtDialogHostTest, AControlThatRefusesToBeLeftKeepsTheFocusOfTheWindow)
{
    form.txtName.Validate = [&](bool& cancel) { cancel = form.txtName.text().empty(); };
    whenShown("frmName", [&](host::FormWindow& window) {
        EXPECT_TRUE(form.txtName.hasFocus());
        click(window, "cmdOk");
        EXPECT_TRUE(form.isVisible()) << "the click came to nothing";
        EXPECT_TRUE(widget<QLineEdit>(window, "txtName").hasFocus());
        type(window, "txtName", "Ann");
        click(window, "cmdOk");
        EXPECT_FALSE(form.isVisible());
    });
    form.showModal();
    EXPECT_FALSE(form.isVisible());
}

TEST_F(QtDialogHostTest, WhatStandsOnAPageBehindIsNotShown)
{
    TabStrip tabs(form, "tabPages");
    tabs.addTab("General");
    tabs.addTab("Notes");
    form.txtName.container(tabs, 1);
    form.show();
    const auto& box = widget<QLineEdit>(*qt->windowOf(form), "txtName");
    EXPECT_FALSE(box.isVisible());
    tabs.selectedTab(1);
    EXPECT_TRUE(box.isVisible());
    EXPECT_TRUE(box.isEnabled());
    tabs.enabled(false);
    EXPECT_FALSE(box.isEnabled());
}

TEST_F(QtDialogHostTest, PrintsARichText)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("notes.pdf");
    RichTextBox box(form, "rtbNotes");
    box.textRTF("{\\rtf1 Notes\\par}");
    qt->choosePrinter([](QPrinter&) { return false; });
    EXPECT_FALSE(box.print());
    qt->choosePrinter([&](QPrinter& printer) {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(path);
        return true;
    });
    EXPECT_TRUE(box.print());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().startsWith("%PDF"));
}

} // namespace
} // namespace qncal::test
