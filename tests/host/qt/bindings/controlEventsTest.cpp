#include "controls/RichTextBox.h"
#include "controls/TextBox.h"
#include "controls/captionedControls.h"
#include "controls/rangeControls.h"
#include "host/qt/bindings/TestForm.h"
#include "qt/widgets/DateTimeEdit.h"
#include "qt/widgets/RichTextEdit.h"

#include <gtest/gtest.h>

#include <QCalendarWidget>
#include <QContextMenuEvent>
#include <QDateTimeEdit>
#include <QLineEdit>

// The events that every kind of control has.

namespace qncal::test {
namespace {

TEST(ControlEventsTest, AKeyGoesDownAtTheFormAndTheControlBeforeItTypes)
{
    TestForm t;
    TextBox box{t.form, "txtName"};
    auto& edit = t.show<QLineEdit>(box);
    t.form.KeyDown = [&](std::int32_t& key) { t.events.push_back("form " + std::to_string(key)); };
    box.KeyDown = [&](std::int32_t& key) {
        t.events.push_back("box " + std::to_string(key));
        if (key == 'B')
            key = 0;
    };
    box.KeyUp = [&](std::int32_t key) { t.events.push_back("up " + std::to_string(key)); };
    t.open();
    QTest::keyClicks(&edit, "ab");
    EXPECT_EQ(box.text(), "a") << "the other key was swallowed";
    EXPECT_EQ(t.events, (Events{"form 65", "box 65", "up 65", "form 66", "box 66", "up 66"}));
}

TEST(ControlEventsTest, AControlThatHearsOfTheMouseShowsAMenuOfItsOwn)
{
    TestForm t;
    RichTextBox box{t.form, "rtbNotes"};
    auto& edit = t.show<host::RichTextEdit>(box);
    box.MouseUp = [&](MouseButton button) { t.events.push_back(button == MouseButton::right ? "right" : "left"); };
    t.open();
    QTest::mouseClick(edit.viewport(), Qt::RightButton);
    QTest::mouseClick(edit.viewport(), Qt::LeftButton);
    EXPECT_EQ(t.events, (Events{"right", "left"}));
    QContextMenuEvent menu(QContextMenuEvent::Mouse, {1, 1}, edit.viewport()->mapToGlobal(QPoint(1, 1)));
    QCoreApplication::sendEvent(edit.viewport(), &menu);
    EXPECT_FALSE(QApplication::activePopupWidget());
}

TEST(ControlEventsTest, WhatStandsOnAHiddenPanelIsHidden)
{
    TestForm t;
    Panel panel{t.form, "picNotes"};
    TextBox box{t.form, "txtName"};
    box.container(panel);
    const auto& edit = t.show<QLineEdit>(box);
    panel.visible(false);
    EXPECT_TRUE(edit.isHidden());
    panel.visible(true);
    EXPECT_FALSE(edit.isHidden());
    panel.enabled(false);
    EXPECT_FALSE(edit.isEnabled());
}

TEST(ControlEventsTest, ACalendarThatDropsDownShowsWhatTheHandlerPutThere)
{
    TestForm t;
    DateTimePicker picker{t.form, "dtpFrom"};
    picker.value(Date::of(2026, 3, 31));
    picker.DropDown = [&] {
        t.events.push_back("DropDown");
        picker.value(Date::of(2026, 5, 4));
    };
    auto& widget = t.show<host::DateTimeEdit>(picker);
    t.open();
    widget.edit().setFocus();
    QTest::mouseClick(&widget.edit(), Qt::LeftButton, {},
                      QPoint(widget.edit().width() - 8, widget.edit().height() / 2));
    QWidget* calendar = QApplication::activePopupWidget();
    ASSERT_TRUE(calendar);
    EXPECT_EQ(t.events, Events{"DropDown"});
    EXPECT_EQ(widget.edit().calendarWidget()->selectedDate(), QDate(2026, 5, 4));
    QTest::keyClick(calendar, Qt::Key_Escape);
}

} // namespace
} // namespace qncal::test
