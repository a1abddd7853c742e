#include "apps/firmcal-desktop/DesktopTest.h"

#include <QColorDialog>
#include <QLineEdit>
#include <QMenu>
#include <QToolButton>
#include <QTreeWidget>

namespace qncal::test {
namespace {

using SettingsCommandsTest = DesktopTest;

TEST_F(SettingsCommandsTest, AStatusIsRenamedInTheRealWindow)
{
    whenShown("frmChangeApptStatusFields", [&](host::FormWindow& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Appointment Status Fields");
        EXPECT_EQ(dialog.parentWidget(), &window);
        type(dialog, "txtField(2)", "Called off");
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    chooseFromMenu(Qt::Key_S, {Qt::Key_S});
    EXPECT_EQ(ofFields("ApptStatusName2"), "Called off");
    EXPECT_EQ(ofFields("TaskStatusName2"), "Cancelled");
}

TEST_F(SettingsCommandsTest, TheDialogsAreAboutTheKindThatIsShown)
{
    window.kind(enumLocalCalendarTaskItem);
    whenShown("frmApptCustomFields", [&](host::FormWindow& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Task Custom Fields");
        type(dialog, "txtField(1)", "Waiting for slips from");
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    chooseFromMenu(Qt::Key_S, {Qt::Key_C});
    EXPECT_EQ(ofFields("TaskCustomName1"), "Waiting for slips from");
}

TEST_F(SettingsCommandsTest, EveryStatusHasItsOptionsUnderItsName)
{
    auto& menu = widget<QMenu>(window, "statusOptions");
    QMetaObject::invokeMethod(&menu, "aboutToShow");
    ASSERT_EQ(menu.actions().size(), 5);
    EXPECT_EQ(menu.actions().at(2)->text(), "&3  Postponed...");
    whenShown("frmApptStatusOptions", [&](host::FormWindow& dialog) {
        EXPECT_EQ(widget<QLineEdit>(dialog, "txtField").text(), "Postponed");
        click(dialog, "chkSample(13)");
        click(dialog, "cmdOK");
    });
    chooseFromMenu(Qt::Key_S, {Qt::Key_O, Qt::Key_3});
    EXPECT_EQ(ofFields("ApptStatusIcon3"), "13");
}

TEST_F(SettingsCommandsTest, ASchemeIsEditedAndStoredWhenTheWindowCloses)
{
    const std::string amber = "SELECT ColourSchemes.* FROM ColourSchemes WHERE SchemeName='Client visit';";
    whenShown("frmColourSchemes", [&](host::FormWindow& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "Appointment Colour Schemes");
        EXPECT_EQ(widget<QTreeWidget>(dialog, "lvSchemes").currentItem()->text(0), "Client meeting");
        type(dialog, "txtSchemeName", "Client visit");
        QTimer::singleShot(0, &dialog, [] {
            auto* colours = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(colours);
            colours->setCurrentColor(QColor(1, 2, 3));
            colours->accept();
        });
        click(dialog, "cpBackColour(2)");
        picture(dialog, "desktop-colour-schemes");
        QTest::keyClick(&dialog, Qt::Key_Escape);
        EXPECT_FALSE(dialog.isVisible());
    });
    chooseFromMenu(Qt::Key_S, {Qt::Key_H});
    EXPECT_EQ(value(amber, "BackColour"), std::to_string(0x030201));
}

TEST_F(SettingsCommandsTest, AnEmptyNameIsToldInFrontOfTheDialog)
{
    whenShown("frmApptStatusOptions", [&](host::FormWindow& dialog) {
        type(dialog, "txtField", "");
        whenAsked([&](QMessageBox& box) {
            EXPECT_EQ(box.parentWidget(), &dialog);
            EXPECT_EQ(box.text(), "You must enter a name in the text field before exiting this window.");
            QTest::keyClick(&box, Qt::Key_Return);
        });
        click(dialog, "cmdOK");
        EXPECT_TRUE(dialog.isVisible());
    });
    chooseFromMenu(Qt::Key_S, {Qt::Key_O, Qt::Key_1});
    EXPECT_EQ(ofFields("ApptStatusName1"), "Completed");
}

} // namespace
} // namespace qncal::test
