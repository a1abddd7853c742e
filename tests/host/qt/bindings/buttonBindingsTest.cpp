#include "controls/ControlArray.h"
#include "controls/captionedControls.h"
#include "host/qt/bindings/TestForm.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

namespace qncal::test {
namespace {

TEST(CommandButtonBindingTest, AClickAndTheAccessKeyPressTheModel)
{
    TestForm t;
    CommandButton button{t.form, "cmdSave"};
    button.caption("&Save");
    button.isDefault(true);
    button.Click = t.note("Click");
    auto& widget = t.show<QPushButton>(button);
    t.open();
    EXPECT_EQ(widget.text(), "&Save");
    EXPECT_TRUE(widget.isDefault());
    QTest::mouseClick(&widget, Qt::LeftButton);
    QTest::keyClick(t.window.get(), Qt::Key_S, Qt::AltModifier);
    // A button reached by its key is seen to go down for a moment.
    EXPECT_TRUE(QTest::qWaitFor([&] { return t.events == Events{"Click", "Click"}; }));
}

TEST(CommandButtonBindingTest, ADisabledButtonIsNotPressed)
{
    TestForm t;
    CommandButton button{t.form, "cmdSave"};
    button.Click = t.note("Click");
    auto& widget = t.show<QPushButton>(button);
    button.enabled(false);
    t.open();
    QTest::mouseClick(&widget, Qt::LeftButton);
    EXPECT_TRUE(t.events.empty());
}

TEST(CheckBoxBindingTest, GoesBothWays)
{
    TestForm t;
    CheckBox box{t.form, "chkDone"};
    box.caption("Done");
    auto& widget = t.show<QCheckBox>(box);
    box.Click = t.note("Click");
    t.open();
    QTest::keyClick(&widget, Qt::Key_Space);
    EXPECT_EQ(box.value(), 1);
    EXPECT_EQ(t.events, Events{"Click"});
    box.value(0);
    EXPECT_FALSE(widget.isChecked());
    EXPECT_EQ(t.events, (Events{"Click", "Click"}));
}

TEST(CheckBoxBindingTest, GreyedIsShownAndLeftByAClick)
{
    TestForm t;
    CheckBox box{t.form, "chkDone"};
    box.value(2);
    auto& widget = t.show<QCheckBox>(box);
    t.open();
    EXPECT_EQ(widget.checkState(), Qt::PartiallyChecked);
    QTest::keyClick(&widget, Qt::Key_Space);
    EXPECT_EQ(box.value(), 1);
    QTest::keyClick(&widget, Qt::Key_Space);
    EXPECT_EQ(box.value(), 0);
}

TEST(CheckBoxBindingTest, AHandlerMayRefuse)
{
    TestForm t;
    CheckBox box{t.form, "chkDone"};
    box.Click = [&] { box.value(0); };
    auto& widget = t.show<QToolButton>(box);
    t.open();
    QTest::mouseClick(&widget, Qt::LeftButton);
    EXPECT_FALSE(widget.isChecked());
}

struct OptionButtonBindingTest : testing::Test {
    TestForm t;
    ControlArray<OptionButton> options{t.form, "optKind", 0, 1};
    OptionButton alone{t.form, "optAlone"};
    QRadioButton& first = t.show<QRadioButton>(options(0));
    QRadioButton& second = t.show<QRadioButton>(options(1));
    QRadioButton& other = t.show<QRadioButton>(alone);
};

TEST_F(OptionButtonBindingTest, OneOfAGroupIsOn)
{
    options(0).value(true);
    alone.value(true);
    EXPECT_TRUE(first.isChecked());
    options(1).Click = t.note("Click 1");
    t.open();
    QTest::mouseClick(&second, Qt::LeftButton, {}, QPoint(6, second.height() / 2));
    EXPECT_TRUE(options(1).value());
    EXPECT_FALSE(options(0).value());
    EXPECT_FALSE(first.isChecked());
    EXPECT_TRUE(other.isChecked());
    EXPECT_EQ(t.events, Events{"Click 1"});
}

TEST_F(OptionButtonBindingTest, AGroupMayBeEmptyAgain)
{
    options(0).value(true);
    options(0).value(false);
    EXPECT_FALSE(first.isChecked());
    EXPECT_FALSE(second.isChecked());
}

TEST(LabelBindingTest, ShowsItsCaptionWithoutTheAccessKeyAndIsClicked)
{
    TestForm t;
    Label label{t.form, "lblMore"};
    label.caption("&More <b>&& more</b>");
    label.Click = t.note("Click");
    auto& widget = t.show<QLabel>(label);
    t.open();
    EXPECT_EQ(widget.text(), "More <b>& more</b>");
    EXPECT_EQ(widget.textFormat(), Qt::PlainText);
    QTest::mouseClick(&widget, Qt::LeftButton);
    EXPECT_EQ(t.events, Events{"Click"});
    label.backColour(0x00FF00);
    EXPECT_TRUE(widget.autoFillBackground());
    EXPECT_EQ(widget.palette().color(QPalette::Window), QColor(0, 255, 0));
}

TEST(PanelBindingTest, TheHeightGoesToTheModelAndTheTopToTheWidget)
{
    TestForm t;
    Panel panel{t.form, "picArea"};
    panel.caption("Area");
    panel.Resize = t.note("Resize");
    QGroupBox box(t.window.get());
    t.window->layout()->removeWidget(&box);
    host::bind(panel, box);
    box.show();
    EXPECT_EQ(box.title(), "Area");
    box.resize(100, 77);
    t.open();
    EXPECT_EQ(panel.height(), box.height());
    EXPECT_FALSE(t.events.empty());
}

TEST(PanelBindingTest, AFreePanelMovesToItsTop)
{
    TestForm t;
    Panel panel{t.form, "picArea"};
    QWidget frame;
    auto* area = new QWidget(&frame);
    host::bind(panel, *area);
    panel.top(-40);
    EXPECT_EQ(area->y(), -40);
}

TEST(ImageBindingTest, ShowsTheStatusIconOfItsNumber)
{
    TestForm t;
    Image image{t.form, "imgStatus"};
    auto& widget = t.show<QLabel>(image);
    EXPECT_TRUE(widget.pixmap(Qt::ReturnByValue).isNull());
    image.picture(3);
    EXPECT_FALSE(widget.pixmap(Qt::ReturnByValue).isNull());
    image.picture(43);
    EXPECT_TRUE(widget.pixmap(Qt::ReturnByValue).isNull());
}

TEST(MenuItemBindingTest, IsChosenAndShowsItsState)
{
    TestForm t;
    MenuItem item{t.form, "mnuShow"};
    item.caption("&Show");
    item.Click = t.note("Click");
    QAction action;
    host::bind(item, action);
    action.trigger();
    EXPECT_EQ(t.events, Events{"Click"});
    item.checked(true);
    EXPECT_TRUE(action.isChecked());
    action.trigger();
    EXPECT_TRUE(action.isChecked()) << "the model alone decides";
    item.enabled(false);
    EXPECT_FALSE(action.isEnabled());
}

} // namespace
} // namespace qncal::test
