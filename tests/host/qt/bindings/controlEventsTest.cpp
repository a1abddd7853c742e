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
#include <QLabel>
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
    QWidget* calendar = openedCalendar(widget);
    ASSERT_TRUE(calendar);
    EXPECT_EQ(t.events, Events{"DropDown"});
    EXPECT_EQ(widget.edit().calendarWidget()->selectedDate(), QDate(2026, 5, 4));
    picker.CloseUp = t.note("CloseUp");
    QTest::keyClick(calendar, Qt::Key_Escape);
    EXPECT_EQ(t.events, (Events{"DropDown", "CloseUp"}));
}

/// A handler that ends the window of its control, and the event that calls it.
struct LastEvent {
    const char* name;
    std::function<void(TextBox& box, std::function<void()> endWindow)> handle;
    std::function<std::unique_ptr<QEvent>()> event;
};
void PrintTo(const LastEvent& row, std::ostream* out) { *out << row.name; }

std::unique_ptr<QEvent> mouse(QEvent::Type type)
{
    return std::make_unique<QMouseEvent>(type, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton, Qt::NoButton,
                                         Qt::NoModifier);
}

std::unique_ptr<QEvent> key(QEvent::Type type)
{
    return std::make_unique<QKeyEvent>(type, Qt::Key_A, Qt::NoModifier, "a");
}

struct LastEventTest : testing::TestWithParam<LastEvent> {};

TEST_P(LastEventTest, AHandlerMayEndTheWindow)
{
    TestForm t;
    TextBox box{t.form, "txtName"};
    const QPointer<QLineEdit> edit(&t.show<QLineEdit>(box));
    t.window->show();
    GetParam().handle(box, [&] { t.window.reset(); });
    const auto event = GetParam().event();
    QCoreApplication::sendEvent(edit, event.get());
    EXPECT_FALSE(edit);
}

INSTANTIATE_TEST_SUITE_P(
    Events, LastEventTest,
    testing::Values(LastEvent{"GotFocus", [](TextBox& box, auto end) { box.GotFocus = end; },
                              [] { return std::make_unique<QFocusEvent>(QEvent::FocusIn); }},
                    LastEvent{"MouseUp", [](TextBox& box, auto end) { box.MouseUp = [end](MouseButton) { end(); }; },
                              [] { return mouse(QEvent::MouseButtonRelease); }},
                    LastEvent{"DblClick", [](TextBox& box, auto end) { box.DblClick = end; },
                              [] { return mouse(QEvent::MouseButtonDblClick); }},
                    LastEvent{"KeyDown", [](TextBox& box, auto end) { box.KeyDown = [end](std::int32_t&) { end(); }; },
                              [] { return key(QEvent::KeyPress); }},
                    LastEvent{"KeyPress",
                              [](TextBox& box, auto end) { box.KeyPress = [end](std::int32_t&) { end(); }; },
                              [] { return key(QEvent::KeyPress); }},
                    LastEvent{"KeyUp", [](TextBox& box, auto end) { box.KeyUp = [end](std::int32_t) { end(); }; },
                              [] { return key(QEvent::KeyRelease); }}),
    [](const auto& test) { return test.param.name; });

TEST(ControlEventsTest, AHandlerMayUnloadTheFormThatRefusesToBeLeft)
{
    TestForm t;
    TextBox first{t.form, "txtFirst"};
    TextBox second{t.form, "txtSecond"};
    t.show<QLineEdit>(first);
    const QPointer<QLineEdit> edit(&t.show<QLineEdit>(second));
    t.window->show();
    first.setFocus();
    first.Validate = [&](bool& cancel) {
        t.window.reset();
        cancel = true;
    };
    QFocusEvent focus(QEvent::FocusIn);
    QCoreApplication::sendEvent(edit, &focus);
    EXPECT_FALSE(edit);
    EXPECT_TRUE(first.hasFocus());
}

TEST(ControlEventsTest, ALabelMayEndItsWindow)
{
    TestForm t;
    Label label{t.form, "lblClose"};
    const QPointer<QLabel> shown(&t.show<QLabel>(label));
    t.window->show();
    label.Click = [&] { t.window.reset(); };
    const auto event = mouse(QEvent::MouseButtonRelease);
    QCoreApplication::sendEvent(shown, event.get());
    EXPECT_FALSE(shown);
}

} // namespace
} // namespace qncal::test
