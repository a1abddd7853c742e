#include "qt/QtDialogHost.h"

#include "controls/RichTextBox.h"
#include "qt/ProgressWindow.h"
#include "qt/bindings/anyWidget.h"
#include "qt/convert.h"
#include "qt/printRichText.h"
#include "qt/runWindow.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QColorDialog>
#include <QCursor>
#include <QEventLoop>
#include <QFontDialog>
#include <QMenu>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace qncal::host {

QtDialogHost::~QtDialogHost()
{
    QObject::disconnect(beforeWaiting_);
    // The entries first: a window that goes would look for its own.
    for (const Shown& shown : std::exchange(shown_, {}))
        delete shown.window;
}

void QtDialogHost::onTurn(std::function<void()> action)
{
    onTurn_ = std::move(action);
    QObject::disconnect(beforeWaiting_);
    if (auto* const loops = QAbstractEventDispatcher::instance())
        beforeWaiting_ = QObject::connect(loops, &QAbstractEventDispatcher::aboutToBlock, [this] { turn(); });
}

void QtDialogHost::turn() const
{
    if (onTurn_)
        onTurn_();
}

std::vector<QtDialogHost::Shown>::const_iterator QtDialogHost::find(const Form& form) const
{
    return std::find_if(shown_.begin(), shown_.end(), [&](const Shown& shown) { return shown.form == &form; });
}

std::optional<QtDialogHost::Shown> QtDialogHost::take(const Form& form)
{
    const auto found = find(form);
    if (found == shown_.end())
        return {};
    std::optional<Shown> taken(*found);
    shown_.erase(found);
    return taken;
}

FormWindow* QtDialogHost::windowOf(const Form& form) const
{
    const auto found = find(form);
    return found == shown_.end() ? nullptr : found->window.data();
}

QWidget* QtDialogHost::windowInFront() const
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    QWidget* active = QApplication::activeWindow();
    return active ? active : mainWindow_.data();
}

/// A window that outlives the form's: a modeless form may be hidden at any time, a modal one only by the code that
/// stands above it. A modeless form does not end with the modal one that it was shown from.
QWidget* QtDialogHost::ownerFor(bool isModal) const
{
    QWidget* const modal = isModal ? QApplication::activeModalWidget() : nullptr;
    return modal ? modal : mainWindow_.data();
}

FormWindow* QtDialogHost::open(Form& form, QEventLoop* loop)
{
    turn();
    QWidget* const opener = windowInFront();
    FormWindow* window = windows_.make(form, ownerFor(loop != nullptr));
    window->setModal(loop != nullptr);
    shown_.push_back({&form, window, loop});
    QObject::connect(window, &QObject::destroyed, &watch_, [this, &form] { windowWent(form); });
    // Handlers that run while the window comes up may take the form away again.
    const QPointer<FormWindow> alive(window);
    if (opener)
        standBefore(*window, *opener);
    if (QWidget* over = form.startUpPosition() == StartUpPosition::byMainWindow ? mainWindow_.data() : opener)
        placeOver(*window, *over);
    window->show();
    if (alive && find(form) != shown_.end()) {
        window->raise();
        window->activateWindow();
    }
    return alive;
}

/// Keeps the window above its opener, and within reach while the opener is modal, without making it the owner.
void QtDialogHost::standBefore(QWidget& window, const QWidget& opener)
{
    window.winId();
    window.windowHandle()->setTransientParent(opener.window()->windowHandle());
}

void QtDialogHost::placeOver(QWidget& window, const QWidget& other)
{
    if (!window.testAttribute(Qt::WA_Resized))
        window.adjustSize();
    QRect place(QPoint(), window.size());
    place.moveCenter(other.frameGeometry().center());
    const QRect screen = other.screen()->availableGeometry();
    place.moveLeft(std::max(std::min(place.left(), screen.right() - place.width()), screen.left()));
    place.moveTop(std::max(std::min(place.top(), screen.bottom() - place.height()), screen.top()));
    window.move(place.topLeft());
}

/// A window that its owner has taken along: its form is not on the screen any more.
void QtDialogHost::windowWent(const Form& form)
{
    const auto gone = take(form);
    if (!gone)
        return;
    if (gone->loop)
        gone->loop->quit();
    gone->form->hide();
}

void QtDialogHost::showModal(Form& form)
{
    if (!qApp)
        return;
    hide(form);
    QEventLoop loop;
    const QPointer<FormWindow> window = open(form, &loop);
    const auto isOpen = [&] { return window && windowOf(form) == window; };
    if (isOpen())
        loop.exec(QEventLoop::DialogExec);
    // The application may have ended the loop rather than the form.
    if (isOpen())
        hide(form);
    delete window;
}

void QtDialogHost::show(Form& form)
{
    if (!qApp)
        return;
    if (windowOf(form))
        bringToFront(form);
    else
        open(form, nullptr);
}

void QtDialogHost::hide(Form& form)
{
    const auto shown = take(form);
    if (!shown)
        return;
    if (shown->window) {
        // The form may have another window by the time that this one is deleted.
        QObject::disconnect(shown->window, nullptr, &watch_, nullptr);
        shown->window->hide();
    }
    // A modal window goes when its loop has ended; what hides a modeless one may stand in one of its own handlers.
    if (shown->loop)
        shown->loop->quit();
    else if (shown->window)
        shown->window->deleteLater();
}

void QtDialogHost::bringToFront(Form& form)
{
    if (FormWindow* window = windowOf(form)) {
        window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
        window->show();
        window->raise();
        window->activateWindow();
    }
}

void QtDialogHost::mousePointer(MousePointer pointer)
{
    if (pointer_ == pointer)
        return;
    pointer_ = pointer;
    if (!qApp)
        return;
    if (pointer == MousePointer::hourglass)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

bool QtDialogHost::isKeyDown(ModifierKey key) const
{
    const Qt::KeyboardModifiers down = qApp ? QApplication::keyboardModifiers() : Qt::NoModifier;
    switch (key) {
    case ModifierKey::shift:
        return down.testFlag(Qt::ShiftModifier);
    case ModifierKey::control:
        return down.testFlag(Qt::ControlModifier);
    case ModifierKey::alt:
        return down.testFlag(Qt::AltModifier);
    }
    return false;
}

void QtDialogHost::doEvents()
{
    turn();
    if (qApp)
        QApplication::processEvents();
}

void QtDialogHost::runProgress(ProgressDialog& dialog)
{
    if (!qApp) {
        dialog.run();
        return;
    }
    turn();
    // Without an owner, which could take the window along in the middle of a step.
    ProgressWindow window(dialog);
    if (const QWidget* opener = windowInFront()) {
        standBefore(window, *opener);
        placeOver(window, *opener);
    }
    window.run();
}

bool QtDialogHost::print(const RichTextBox& box)
{
    turn();
    return qApp && printRichText(box.textRTF(), windowInFront(), choosePrinter_);
}

std::optional<std::int32_t> QtDialogHost::pickColour(std::int32_t current)
{
    if (!qApp)
        return {};
    turn();
    const auto run = [](QColorDialog& dialog) -> std::optional<std::int32_t> {
        dialog.setObjectName("pickColour");
        if (dialog.exec() != QDialog::Accepted)
            return {};
        return fromQtColour(dialog.selectedColor());
    };
    return runWindow(new QColorDialog(toQtColour(current), windowInFront()), run);
}

std::optional<FontChoice> QtDialogHost::pickFont(const FontChoice& current)
{
    if (!qApp)
        return {};
    turn();
    QFont shown(toQt(current.name));
    if (current.points > 0)
        shown.setPointSizeF(current.points);
    shown.setBold(current.bold);
    shown.setItalic(current.italic);
    const auto run = [](QFontDialog& dialog) -> std::optional<FontChoice> {
        dialog.setObjectName("pickFont");
        if (dialog.exec() != QDialog::Accepted)
            return {};
        const QFont font = dialog.selectedFont();
        return FontChoice{fromQt(font.family()), font.pointSizeF(), font.bold(), font.italic()};
    };
    return runWindow(new QFontDialog(shown, windowInFront()), run);
}

void QtDialogHost::popUpMenu(MenuItem& menu)
{
    if (!qApp)
        return;
    turn();
    runWindow(newMenuFor(menu, windowInFront()), [](QMenu& shown) { shown.exec(QCursor::pos()); });
}

} // namespace qncal::host
