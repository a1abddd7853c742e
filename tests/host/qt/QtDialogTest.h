#pragma once

#include "qt/FormWindow.h"
#include "qt/QtDialogHost.h"
#include "support/ComponentTest.h"

#include <QDir>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>
#include <string>

namespace qncal::test {

/// A world whose dialogs come up as real windows. A script acts on each modal window by real keys and clicks.
class QtDialogTest : public ComponentTest {
protected:
    using Script = std::function<void(host::FormWindow& window)>;

    QtDialogTest() { setDialogHost(qt); }
    ~QtDialogTest() override
    {
        setDialogHost(dialogs);
        EXPECT_EQ(waiting_, 0) << "a script waited for a window that did not come";
    }

    /// Runs the script on the next form of that name, then closes what the script left open.
    void whenShown(std::string formName, Script script)
    {
        ++waiting_;
        auto* timer = new QTimer(qApp);
        QObject::connect(timer, &QTimer::timeout, qApp, [this, timer, formName, script] {
            auto* window = dynamic_cast<host::FormWindow*>(QApplication::activeModalWidget());
            if (!window || !window->form() || window->form()->name() != formName)
                return;
            timer->stop();
            timer->deleteLater();
            --waiting_;
            static_cast<void>(QTest::qWaitForWindowActive(window));
            const QPointer<host::FormWindow> alive(window);
            script(*window);
            if (alive && alive->form() && alive->form()->isVisible())
                alive->form()->hide();
        });
        timer->start(1);
    }

    /// The widget that shows the control of that path.
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
        QDir().mkpath(QNCAL_SCREENSHOTS);
        EXPECT_TRUE(window.grab().save(QString(QNCAL_SCREENSHOTS "/%1.png").arg(name)));
    }

    std::shared_ptr<host::QtDialogHost> qt = std::make_shared<host::QtDialogHost>();

private:
    int waiting_ = 0;
};

} // namespace qncal::test
