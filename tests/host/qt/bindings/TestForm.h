#pragma once

#include "controls/Form.h"
#include "qt/bindings/bindings.h"
#include "qt/widgets/DateTimeEdit.h"

#include <QApplication>
#include <QDateTimeEdit>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

#include <memory>
#include <string>
#include <vector>

namespace qncal::test {

/// A form with a bare window for the widgets of a test; shown, active, and with the events noted.
struct TestForm {
    TestForm() { window->setLayout(new QVBoxLayout); }

    template <class WidgetType, class ControlType>
    WidgetType& show(ControlType& control)
    {
        auto* widget = new WidgetType(window.get());
        window->layout()->addWidget(widget);
        host::bind(control, *widget);
        return *widget;
    }
    /// Puts the window on the screen and lets its events run.
    void open()
    {
        window->show();
        window->activateWindow();
        static_cast<void>(QTest::qWaitForWindowActive(window.get()));
    }
    /// An event handler that notes its name.
    std::function<void()> note(std::string event)
    {
        return [this, event] { events.push_back(event); };
    }

    Form form{"frmTest"};
    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    std::vector<std::string> events;
};

using Events = std::vector<std::string>;

/// The calendar of a date picker, dropped down by a click on its arrow; none when it did not come.
inline QWidget* openedCalendar(const host::DateTimeEdit& picker)
{
    QDateTimeEdit& edit = picker.edit();
    edit.setFocus();
    QTest::mouseClick(&edit, Qt::LeftButton, {}, QPoint(edit.width() - 8, edit.height() / 2));
    return QApplication::activePopupWidget();
}

} // namespace qncal::test
