#include "host/qt/QtDialogTest.h"
#include "qt/icons.h"
#include "settings/frmApptStatusOptions.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QLineEdit>
#include <QScrollBar>
#include <QToolButton>

namespace qncal::test {
namespace {

struct StatusOptionsWindowTest : QtDialogTest {
    StatusOptionsWindowTest()
    {
        row = addRow("CustomFields", {{"ApptStatusName2", "Cancelled"},
                                      {"ApptUseStatusColour2", "True"},
                                      {"ApptStatusColour2", "3937500"},
                                      {"ApptUseStatusIcon2", "True"},
                                      {"ApptStatusIcon2", "2"}});
    }
    void show() { form.Initialize(enumLocalCalendarAppointmentItem, "Cancelled", 2); }

    frmApptStatusOptions form;
    std::int32_t row = -1;
};

TEST_F(StatusOptionsWindowTest, ShowsTheStatus)
{
    whenShown("frmApptStatusOptions", [&](host::FormWindow& window) {
        EXPECT_EQ(widget<QLineEdit>(window, "txtField").text(), "Cancelled");
        EXPECT_TRUE(widget<QCheckBox>(window, "chkField(0)").isChecked());
        EXPECT_TRUE(widget<QToolButton>(window, "chkSample(2)").isChecked());
        EXPECT_FALSE(widget<QToolButton>(window, "chkSample(1)").isChecked());
        EXPECT_EQ(widget<QToolButton>(window, "chkSample(42)").accessibleName(), host::statusIconName(42));
        picture(window, "frmApptStatusOptions");
    });
    show();
}

TEST_F(StatusOptionsWindowTest, OneIconIsChosenByTheMouse)
{
    whenShown("frmApptStatusOptions", [&](host::FormWindow& window) {
        click(window, "chkSample(7)");
        EXPECT_EQ(widget<QToolButton>(window, "chkSample(7)").accessibleName(), host::statusIconName(7));
        EXPECT_FALSE(widget<QToolButton>(window, "chkSample(2)").isChecked());
        click(window, "cmdOK");
    });
    show();
    EXPECT_EQ(cell("CustomFields", row, "ApptStatusIcon2"), "7");
}

TEST_F(StatusOptionsWindowTest, TheKeysReachEveryIconAndScrollToIt)
{
    whenShown("frmApptStatusOptions", [&](host::FormWindow& window) {
        auto& last = widget<QToolButton>(window, "chkSample(42)");
        EXPECT_TRUE(last.visibleRegion().isEmpty());
        widget<QToolButton>(window, "chkSample(41)").setFocus();
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        EXPECT_TRUE(last.hasFocus());
        EXPECT_EQ(last.visibleRegion().boundingRect().height(), last.height());
        EXPECT_EQ(form.vScrollBar.value(), form.vScrollBar.maximum());
        QTest::keyClick(&last, Qt::Key_Space);
        EXPECT_TRUE(form.chkSample(42).isChecked());
        EXPECT_FALSE(form.chkSample(2).isChecked());
    });
    show();
}

TEST_F(StatusOptionsWindowTest, TheArrowKeysWalkTheIcons)
{
    whenShown("frmApptStatusOptions", [&](host::FormWindow& window) {
        const std::pair<Qt::Key, const char*> steps[] = {{Qt::Key_Right, "chkSample(2)"},
                                                         {Qt::Key_Down, "chkSample(8)"},
                                                         {Qt::Key_Left, "chkSample(7)"},
                                                         {Qt::Key_Up, "chkSample(1)"}};
        widget<QToolButton>(window, "chkSample(1)").setFocus();
        for (const auto& [key, reached] : steps) {
            QTest::keyClick(window.focusWidget(), key);
            EXPECT_EQ(form.focusedControl()->path(), reached);
        }
    });
    show();
}

TEST_F(StatusOptionsWindowTest, TheBarFollowsTheSizeOfTheWindow)
{
    whenShown("frmApptStatusOptions", [&](host::FormWindow& window) {
        const std::int32_t before = form.vScrollBar.maximum();
        EXPECT_GT(before, 0);
        window.resize(window.width(), window.height() + 60);
        EXPECT_EQ(form.vScrollBar.maximum(), before - 60);
        window.resize(window.width(), window.height() + 600);
        EXPECT_FALSE(form.vScrollBar.isEnabled());
        form.vScrollBar.value(0);
    });
    show();
}

TEST_F(StatusOptionsWindowTest, TheColourDialogSetsTheColour)
{
    whenShown("frmApptStatusOptions", [&](host::FormWindow& window) {
        QTimer::singleShot(0, &window, [] {
            auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialog);
            dialog->setCurrentColor(QColor(1, 2, 3));
            dialog->accept();
        });
        click(window, "cpBackgroundColour");
        EXPECT_EQ(form.cpBackgroundColour.colour(), 0x030201);
    });
    show();
}

TEST_F(StatusOptionsWindowTest, AnEmptyNameKeepsTheWindowOpen)
{
    messages->expectMessage("You must enter a name in the text field before exiting this window.");
    whenShown("frmApptStatusOptions", [&](host::FormWindow& window) {
        type(window, "txtField", "");
        widget<QWidget>(window, "chkField(0)").setFocus();
        click(window, "cmdOK");
        EXPECT_TRUE(window.isVisible());
        EXPECT_TRUE(widget<QLineEdit>(window, "txtField").hasFocus());
    });
    show();
}

} // namespace
} // namespace qncal::test
