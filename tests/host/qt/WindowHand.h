#pragma once

#include "qt/FormWindow.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#include <algorithm>
#include <functional>
#include <string>

namespace qncal::test {

/// What a test does with real windows, by real keys and clicks. Scripts wait for modal windows, which keep the code
/// under test until they are closed; a window that did not come fails the test.
class WindowHand {
public:
    using Script = std::function<void(host::FormWindow& window)>;
    using MessageScript = std::function<void(QMessageBox& box)>;

    WindowHand() = default;
    ~WindowHand() { EXPECT_EQ(waiting_, 0) << "a script waited for a window that did not come"; }
    WindowHand(const WindowHand&) = delete;
    WindowHand& operator=(const WindowHand&) = delete;

    /// Runs the script on the next form of that name, then closes what the script left open.
    void whenShown(std::string formName, Script script)
    {
        whenModal<host::FormWindow>(
            [formName](const host::FormWindow& window) { return window.form() && window.form()->name() == formName; },
            [script](host::FormWindow& window) {
                const QPointer<host::FormWindow> alive(&window);
                script(window);
                if (alive && alive->form() && alive->form()->isVisible())
                    alive->form()->hide();
            });
    }

    /// Runs the script on the next message box, then closes it if it is still open.
    void whenAsked(MessageScript script)
    {
        whenModal<QMessageBox>([](const QMessageBox&) { return true; },
                               [script](QMessageBox& box) {
                                   const QPointer<QMessageBox> alive(&box);
                                   script(box);
                                   if (alive && alive->isVisible())
                                       alive->reject();
                               });
    }

    /// The widget of that name.
    template <class WidgetType>
    static WidgetType& widget(const QWidget& window, const char* path)
    {
        auto* found = window.findChild<WidgetType*>(path);
        if (!found)
            throw std::logic_error(std::string("no such widget: ") + path);
        return *found;
    }
    static void click(const QWidget& window, const char* path)
    {
        QTest::mouseClick(&widget<QWidget>(window, path), Qt::LeftButton);
    }
    /// Without a window manager nobody does that when the window in front closes.
    static void bringToFront(QWidget& window)
    {
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    }
    /// Presses a key with Alt. A button that it reaches is seen to go down for a while before it acts.
    static void pressWithAlt(QWidget& window, Qt::Key key)
    {
        bringToFront(window);
        QTest::keyClick(&window, key, Qt::AltModifier);
        const auto buttons = window.findChildren<QAbstractButton*>();
        static_cast<void>(QTest::qWaitFor([&] {
            return std::none_of(buttons.begin(), buttons.end(), [](const auto* button) { return button->isDown(); });
        }));
    }
    /// Replaces the text of a line.
    static void type(const QWidget& window, const char* path, const QString& text)
    {
        auto& edit = widget<QLineEdit>(window, path);
        edit.setFocus();
        edit.selectAll();
        QTest::keyClick(&edit, Qt::Key_Delete);
        QTest::keyClicks(&edit, text);
    }
    /// Leaves a picture of the window in the build folder for people to look at.
    static void picture(QWidget& window, const QString& name)
    {
        // A scroll bar that a new size does away with goes only now.
        QCoreApplication::processEvents();
        QDir().mkpath(QNCAL_SCREENSHOTS);
        EXPECT_TRUE(window.grab().save(QString(QNCAL_SCREENSHOTS "/%1.png").arg(name)));
    }

private:
    template <class WindowType>
    void whenModal(std::function<bool(const WindowType&)> isIt, std::function<void(WindowType&)> script)
    {
        ++waiting_;
        auto* timer = new QTimer(qApp);
        QObject::connect(timer, &QTimer::timeout, qApp, [this, timer, isIt, script] {
            auto* window = dynamic_cast<WindowType*>(QApplication::activeModalWidget());
            if (!window || !isIt(*window))
                return;
            timer->stop();
            --waiting_;
            bringToFront(*window);
            script(*window);
            // Not before: waiting deletes, and this function with it.
            timer->deleteLater();
        });
        timer->start(1);
    }

    int waiting_ = 0;
};

} // namespace qncal::test
