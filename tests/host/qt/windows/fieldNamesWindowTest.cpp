#include "host/qt/QtDialogTest.h"
#include "settings/frmApptCustomFields.h"
#include "settings/frmChangeApptStatusFields.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace qncal::test {
namespace {

struct FieldNamesWindowTest : QtDialogTest {
    FieldNamesWindowTest() { row = addRow("CustomFields", {{"ApptStatusName1", "Done"}, {"ApptCustomName2", "Room"}}); }
    std::int32_t row = -1;
};

TEST_F(FieldNamesWindowTest, StatusNamesAreTypedAndStoredByEnter)
{
    whenShown("frmChangeApptStatusFields", [&](host::FormWindow& window) {
        EXPECT_EQ(window.windowTitle(), "Appointment Status Fields");
        EXPECT_TRUE(widget<QLineEdit>(window, "txtField(1)").hasFocus());
        EXPECT_EQ(widget<QLineEdit>(window, "txtField(1)").text(), "Done");
        EXPECT_EQ(widget<QLabel>(window, "lblCaption(5)").text(), "Status Field 5:");
        picture(window, "frmChangeApptStatusFields");
        type(window, "txtField(2)", "Called off");
        QTest::keyClick(window.focusWidget(), Qt::Key_Return);
        EXPECT_FALSE(window.isVisible());
    });
    frmChangeApptStatusFields form;
    form.Initialize(enumLocalCalendarAppointmentItem);
    EXPECT_EQ(cell("CustomFields", row, "ApptStatusName2"), "Called off");
}

TEST_F(FieldNamesWindowTest, EscapeStoresNothing)
{
    whenShown("frmChangeApptStatusFields", [&](host::FormWindow& window) {
        type(window, "txtField(1)", "Other");
        QTest::keyClick(&window, Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
    });
    frmChangeApptStatusFields form;
    form.Initialize(enumLocalCalendarAppointmentItem);
    EXPECT_EQ(cell("CustomFields", row, "ApptStatusName1"), "Done");
}

TEST_F(FieldNamesWindowTest, ApplyStoresAndTheBoxInTheCornerCloses)
{
    whenShown("frmApptCustomFields", [&](host::FormWindow& window) {
        picture(window, "frmApptCustomFields");
        type(window, "txtField(2)", "Floor");
        click(window, "cmdApply");
        EXPECT_TRUE(window.isVisible());
        type(window, "txtField(2)", "lost");
        window.close();
        EXPECT_FALSE(window.isVisible());
    });
    frmApptCustomFields form;
    form.Initialize(enumLocalCalendarAppointmentItem);
    EXPECT_EQ(cell("CustomFields", row, "ApptCustomName2"), "Floor");
}

TEST_F(FieldNamesWindowTest, TheTabKeyWalksTheNamesAndTheAccessKeysWork)
{
    whenShown("frmChangeApptStatusFields", [&](host::FormWindow& window) {
        Form& form = *window.form();
        QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(form.focusedControl()->path(), "txtField(2)");
        QTest::keyClick(window.focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
        EXPECT_EQ(form.focusedControl()->path(), "txtField(1)");
        QTest::keyClick(&window, Qt::Key_C, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !form.isVisible(); }));
    });
    frmChangeApptStatusFields form;
    form.Initialize(enumLocalCalendarTaskItem);
}

TEST_F(FieldNamesWindowTest, AnotherWindowOpensInFrontAndItsNameComesBack)
{
    whenShown("frmChangeApptStatusFields", [&](host::FormWindow& window) {
        whenShown("frmApptStatusOptions", [&](host::FormWindow& options) {
            EXPECT_EQ(options.parentWidget(), &window);
            type(options, "txtField", "Finished");
            click(options, "cmdOK");
        });
        click(window, "cmdAdvancedOptions(1)");
        EXPECT_EQ(widget<QLineEdit>(window, "txtField(1)").text(), "Finished");
        EXPECT_TRUE(window.isVisible());
    });
    frmChangeApptStatusFields form;
    form.Initialize(enumLocalCalendarAppointmentItem);
    EXPECT_EQ(cell("CustomFields", row, "ApptStatusName1"), "Finished");
}

} // namespace
} // namespace qncal::test
