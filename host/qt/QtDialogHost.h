#pragma once

#include "controls/DialogHost.h"
#include "qt/WindowClasses.h"

#include <QMetaObject>
#include <QObject>
#include <QPointer>

#include <functional>
#include <optional>
#include <vector>

class QEventLoop;
class QPrinter;

namespace qncal::host {

/// The dialog host over Qt Widgets. Lives on the thread of the QApplication; without one, forms that are shown
/// return at once as if closed.
class QtDialogHost : public DialogHost {
public:
    explicit QtDialogHost(WindowClasses windows = standardWindows()) : windows_(std::move(windows)) {}
    ~QtDialogHost() override;

    /// Windows open in front of this one when none is active, and go with it.
    void mainWindow(QWidget* window) { mainWindow_ = window; }
    /// What a new window opens in front of: the active window, or the main window while another program is in front.
    QWidget* windowInFront() const;
    /// The window of a form that is shown, none otherwise.
    FormWindow* windowOf(const Form& form) const;
    /// Asks for the printer before a text is printed; False cancels. The print dialog unless set.
    void choosePrinter(std::function<bool(QPrinter& printer)> choose) { choosePrinter_ = std::move(choose); }

    /// Called before the event loop waits and before anything is shown, for what must not be left standing while the
    /// user thinks. Must not throw, and has to be set after the QApplication is made.
    void onTurn(std::function<void()> action);

    void showModal(Form& form) override;
    void show(Form& form) override;
    void hide(Form& form) override;
    void bringToFront(Form& form) override;
    MousePointer mousePointer() const override { return pointer_; }
    void mousePointer(MousePointer pointer) override;
    bool isKeyDown(ModifierKey key) const override;
    void doEvents() override;
    void runProgress(ProgressDialog& dialog) override;
    bool print(const RichTextBox& box) override;
    std::optional<std::int32_t> pickColour(std::int32_t current) override;
    std::optional<FontChoice> pickFont(const FontChoice& current) override;
    void popUpMenu(MenuItem& menu) override;

private:
    struct Shown {
        Form* form;
        QPointer<FormWindow> window;
        /// The loop that waits for a modal form, none for a modeless one.
        QEventLoop* loop;
    };

    void turn() const;
    FormWindow* open(Form& form, QEventLoop* loop);
    QWidget* ownerFor(bool isModal) const;
    static void standBefore(QWidget& window, const QWidget& opener);
    static void placeOver(QWidget& window, const QWidget& other);
    std::vector<Shown>::const_iterator find(const Form& form) const;
    /// Out of the list, none when the form is not in it.
    std::optional<Shown> take(const Form& form);
    void windowWent(const Form& form);

    WindowClasses windows_;
    std::vector<Shown> shown_;
    QPointer<QWidget> mainWindow_;
    std::function<bool(QPrinter& printer)> choosePrinter_;
    std::function<void()> onTurn_;
    QMetaObject::Connection beforeWaiting_;
    MousePointer pointer_ = MousePointer::standard;
    /// Ends what the host hears of its windows.
    QObject watch_;
};

} // namespace qncal::host
