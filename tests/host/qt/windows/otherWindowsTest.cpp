#include "controls/ListView.h"
#include "controls/RichTextBox.h"
#include "controls/TabStrip.h"
#include "controls/TextBox.h"
#include "controls/captionedControls.h"
#include "controls/listControls.h"
#include "controls/rangeControls.h"
#include "controls/richTextStream.h"
#include "host/qt/QtDialogTest.h"
#include "items/frmSelectStartTime.h"
#include "qt/widgets/ColourButton.h"
#include "qt/widgets/DateTimeEdit.h"
#include "qt/widgets/RichTextEdit.h"
#include "qt/windows/ColourSchemesForm.h"
#include "settings/CellBackgroundPage.h"
#include "templates/frmTestComment.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QTreeWidget>

namespace qncal::test {
namespace {

struct SelectTimeWindowTest : QtDialogTest {
    SelectTimeWindowTest()
    {
        form.TimeType(frmSelectStartTime::startTime);
        form.TimeSelected(Date::timeOf(9, 20));
    }
    frmSelectStartTime form;
};

TEST_F(SelectTimeWindowTest, AQuarterHourIsTypedAndTaken)
{
    whenShown("frmSelectStartTime", [&](host::FormWindow& window) {
        picture(window, "frmSelectStartTime");
        EXPECT_EQ(widget<host::DateTimeEdit>(window, "dtpTime").edit().text(), "9:20 AM");
        auto& quarter = widget<QComboBox>(window, "cboField");
        EXPECT_EQ(quarter.currentText(), "9:15 AM");
        quarter.setFocus();
        quarter.lineEdit()->selectAll();
        QTest::keyClicks(&quarter, "2:45 PM");
        EXPECT_EQ(form.dtpTime.value(), Date::timeOf(14, 45));
        QTest::keyClick(&quarter, Qt::Key_Return);
    });
    form.Initialize();
    EXPECT_FALSE(form.cancelFlag());
    EXPECT_EQ(form.TimeSelected(), Date::timeOf(14, 45));
}

TEST_F(SelectTimeWindowTest, LeavingThePickerFillsTheQuarterHour)
{
    whenShown("frmSelectStartTime", [&](host::FormWindow& window) {
        auto& time = widget<host::DateTimeEdit>(window, "dtpTime").edit();
        time.setFocus();
        time.setCurrentSection(QDateTimeEdit::HourSection);
        QTest::keyClick(&time, Qt::Key_Up);
        EXPECT_EQ(form.cboField.text(), "9:15 AM");
        widget<QWidget>(window, "cboField").setFocus();
        EXPECT_EQ(form.cboField.text(), "10:15 AM");
        EXPECT_EQ(widget<QComboBox>(window, "cboField").currentText(), "10:15 AM");
        QTest::keyClick(&window, Qt::Key_Escape);
    });
    form.Initialize();
    EXPECT_TRUE(form.cancelFlag());
}

TEST_F(SelectTimeWindowTest, TheBoxInTheCornerCancels)
{
    whenShown("frmSelectStartTime", [&](host::FormWindow& window) { window.close(); });
    form.Initialize();
    EXPECT_TRUE(form.cancelFlag());
}

struct ColourSchemesWindowTest : QtDialogTest {
    ColourSchemesWindowTest()
    {
        for (const char* name : {"Blue", "Amber"})
            addRow("ColourSchemes", {{"SchemeName", name},
                                     {"SchemeType", "0"},
                                     {"TitleBackColour", "11826975"},
                                     {"TitleForeColour", "16777215"},
                                     {"BackColour", "16574434"},
                                     {"ForeColour", "4203520"}});
    }
    host::ColourSchemesForm form;
};

TEST_F(ColourSchemesWindowTest, ANameIsStoredAtEachKeyAndTakesItsPlace)
{
    whenShown("frmColourSchemes", [&](host::FormWindow& window) {
        QCoreApplication::processEvents();
        picture(window, "frmColourSchemes");
        auto& list = widget<QTreeWidget>(window, "lvSchemes");
        EXPECT_EQ(window.windowTitle(), "Appointment Colour Schemes");
        EXPECT_EQ(list.currentItem()->text(0), "Amber");
        type(window, "txtSchemeName", "Zebra");
        QCoreApplication::processEvents();
        EXPECT_EQ(list.indexOfTopLevelItem(list.currentItem()), 1);
        EXPECT_EQ(list.currentItem()->text(0), "Zebra");
        EXPECT_EQ(form.page.txtSchemeName.text(), "Zebra");
        EXPECT_TRUE(widget<QLineEdit>(window, "txtSchemeName").hasFocus());
    });
    form.open(enumLocalCalendarAppointmentItem);
    EXPECT_EQ(cell("ColourSchemes", form.page.currentSchemeID(), "SchemeName"), "Zebra");
}

TEST_F(ColourSchemesWindowTest, ThePreviewHasTheColoursOfTheScheme)
{
    whenShown("frmColourSchemes", [&](host::FormWindow& window) {
        const auto& title = widget<QLabel>(window, "lblTitleBar(1)");
        EXPECT_EQ(title.palette().color(QPalette::WindowText), QColor(Qt::white));
        form.page.cpBackColour(0).colour(0x0000FF);
        EXPECT_EQ(title.palette().color(QPalette::Window), QColor(255, 0, 0));
        EXPECT_EQ(widget<QPlainTextEdit>(window, "txtApptPreview").palette().color(QPalette::Base).blue(), 252);
    });
    form.open(enumLocalCalendarAppointmentItem);
}

TEST_F(ColourSchemesWindowTest, SchemesAreAddedAndDeletedByTheMouse)
{
    whenShown("frmColourSchemes", [&](host::FormWindow& window) {
        click(window, "cmdAddScheme");
        QCoreApplication::processEvents();
        auto& list = widget<QTreeWidget>(window, "lvSchemes");
        EXPECT_EQ(list.topLevelItemCount(), 3);
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.topLevelItem(1)).center());
        EXPECT_EQ(form.page.txtSchemeName.text(), "Blue");
        click(window, "cmdDeleteScheme");
        QCoreApplication::processEvents();
        EXPECT_EQ(list.topLevelItemCount(), 2);
    });
    form.open(enumLocalCalendarAppointmentItem);
    EXPECT_EQ(rowCount("ColourSchemes"), 2);
}

/// The window of the form with both pages of colours.
struct ColourPagesForm : host::ColourSchemesForm {
    CellBackgroundPage cells{*this};
};

struct CellBackgroundTest : QtDialogTest {
    CellBackgroundTest()
    {
        for (int day = 0; day < 7; ++day)
            form.cells.cpDayViewBackColour(day).colour(0x010101 * (255 - 20 * day));
    }
    ColourPagesForm form;
};

TEST_F(CellBackgroundTest, TheWeekTakesTheColoursOfTheDay)
{
    whenShown("frmColourSchemes", [&](host::FormWindow& window) {
        EXPECT_EQ(window.windowTitle(), "Appointment Colour Schemes");
        auto& same = widget<QCheckBox>(window, "chkUseSameColours(0)");
        EXPECT_TRUE(same.isVisible());
        QTest::keyClick(&same, Qt::Key_Space);
        EXPECT_EQ(form.cells.cpWeekViewBackColour(6).colour(), form.cells.cpDayViewBackColour(6).colour());
        EXPECT_NE(form.cells.cpMonthViewBackColour(6).colour(), form.cells.cpDayViewBackColour(6).colour());
        picture(window, "cellBackground");
        QTest::keyClick(&window, Qt::Key_C, Qt::AltModifier);
        EXPECT_TRUE(widget<QTreeWidget>(window, "lvSchemes").isVisible());
        QTest::keyClick(&window, Qt::Key_Escape);
        EXPECT_FALSE(window.isVisible());
    });
    form.open(enumLocalCalendarAppointmentItem);
}

struct TestCommentWindowTest : QtDialogTest {
    frmTestComment form;
    const std::string text = streamAround("Dear {\\b Ann Example},\\par\\par Your meeting is on {\\ul March 31} at "
                                          "{\\i 9:30 am}.\\par Caf\\'e9");
};

TEST_F(TestCommentWindowTest, ShowsTheTextAndIsClosedByTheMouse)
{
    whenShown("frmTestComment", [&](host::FormWindow& window) {
        picture(window, "frmTestComment");
        auto& shown = widget<host::RichTextEdit>(window, "rtbClientNotes");
        QTest::keyClicks(&shown, "typed");
        EXPECT_EQ(form.rtbClientNotes.text(), "Dear Ann Example,\n\nYour meeting is on March 31 at 9:30 am.\nCafé");
        click(window, "cmdOk");
        EXPECT_FALSE(window.isVisible());
    });
    form.Initialize(text);
}

TEST_F(TestCommentWindowTest, EnterAndEscapeCloseIt)
{
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        whenShown("frmTestComment", [&](host::FormWindow& window) {
            QTest::keyClick(window.focusWidget(), key);
            EXPECT_FALSE(window.isVisible());
        });
        form.Initialize(text);
    }
}

/// A form of every kind of control and no window class.
struct EverythingForm : Form {
    EverythingForm() : Form("frmEverything")
    {
        caption("Everything");
        file.caption("&File");
        open.caption("&Open");
        open.parent("mnuFile");
        label.caption("&Name:");
        rows.addItem("One");
        rows.addItem("Two");
        lines.multiLine(true);
        table.addColumn("Client", 3000);
        table.addColumn("City");
        table.addRow({{"Ann", "York"}, 1});
        tabs.addTab("General");
        tabs.addTab("Notes");
        check.caption("&Private");
        option.caption("&Busy");
        notes.textRTF(streamAround("{\\b Bold} notes"));
        image.picture(14);
        ok.caption("&Ok");
        ok.isDefault(true);
        ok.Click = [this] { unload(); };
    }
    MenuItem file{*this, "mnuFile"};
    MenuItem open{*this, "mnuOpen"};
    TabStrip tabs{*this, "tabPages"};
    Label label{*this, "lblName"};
    TextBox name{*this, "txtName"};
    TextBox lines{*this, "txtLines"};
    ComboBox combo{*this, "cboKind"};
    ListBox rows{*this, "lstRows"};
    ListView table{*this, "lvTable"};
    CheckBox check{*this, "chkPrivate"};
    OptionButton option{*this, "optBusy"};
    DateTimePicker date{*this, "dtpDate"};
    UpDown upDown{*this, "updCount"};
    ScrollBar scrollBar{*this, "scrTime"};
    ColourPicker colour{*this, "cpColour"};
    Image image{*this, "imgStatus"};
    Panel panel{*this, "fraGroup"};
    RichTextBox notes{*this, "rtbNotes"};
    CommandButton ok{*this, "cmdOk"};
};

struct PlainWindowTest : QtDialogTest {};

TEST_F(PlainWindowTest, ShowsEveryControlOfAFormWithoutAWindowClass)
{
    EverythingForm form;
    form.date.value(today());
    whenShown("frmEverything", [&](host::FormWindow& window) {
        window.resize(window.width(), 960);
        picture(window, "plain");
        const auto& area = *window.findChild<QScrollArea*>();
        EXPECT_EQ(area.widget()->width(), area.viewport()->width()) << "no column is cut off";
        for (const Control* control : form.controls())
            EXPECT_TRUE(window.findChild<QObject*>(QString::fromStdString(control->path()))) << control->path();
        type(window, "txtName", "Ann");
        EXPECT_EQ(form.name.text(), "Ann");
        ASSERT_TRUE(window.findChild<QMenuBar*>());
        QTest::keyClick(&window, Qt::Key_O, Qt::AltModifier);
    });
    form.showModal();
}

TEST_F(PlainWindowTest, AFormWithoutControlsHasATitleToBeSeenAndIsClosedByItsBox)
{
    Form form("frmNothing");
    form.caption("Nothing to see");
    whenShown("frmNothing", [&](host::FormWindow& window) {
        EXPECT_GE(window.width(), window.fontMetrics().horizontalAdvance(window.windowTitle()));
        picture(window, "plain-empty");
        window.close();
        EXPECT_FALSE(window.isVisible());
    });
    form.showModal();
}

TEST_F(PlainWindowTest, AFormWithoutTheControlsOfItsWindowGetsAPlainOne)
{
    Form form("frmApptStatusOptions");
    TextBox name(form, "txtOther");
    whenShown("frmApptStatusOptions", [&](host::FormWindow& window) {
        type(window, "txtOther", "Ann");
        EXPECT_EQ(name.text(), "Ann");
    });
    form.showModal();
}

} // namespace
} // namespace qncal::test
