#include "qt/bindings/ControlBinding.h"

#include "controls/Form.h"
#include "qt/bindings/keyCodes.h"
#include "qt/convert.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

namespace qncal::host {

namespace {

constexpr const char* boundControl = "qncalControl";

void colour(QPalette& palette, const std::optional<Colour>& value, std::initializer_list<QPalette::ColorRole> roles)
{
    const QColor shown = value ? toQtColour(*value) : QColor();
    if (shown.isValid())
        for (const QPalette::ColorRole role : roles)
            palette.setColor(role, shown);
}

} // namespace

ControlBinding::ControlBinding(Control& control, QWidget& widget)
    : QObject(&widget), control_(&control), widget_(&widget), destroyed_(control.destroyed, this, [this] {
          control_ = nullptr;
          updated_.forget();
          destroyed_.forget();
          widget_->setEnabled(false);
      })
{
    widget.setObjectName(toQt(control.path()));
    widget.setProperty(boundControl, QVariant::fromValue(static_cast<void*>(&control)));
    watch(widget);
}

QWidget* ControlBinding::widgetOf(const QWidget& window, const Control& control)
{
    const auto named = window.findChildren<QWidget*>(toQt(control.path()));
    for (QWidget* widget : named)
        if (widget->property(boundControl).value<void*>() == &control)
            return widget;
    return nullptr;
}

void ControlBinding::start(When when)
{
    if (when == When::atOnce)
        updated_ = Subscription(control_->updated, this, [this] { showEverything(); });
    else
        updated_ = Subscription(control_->updated, this, [this] { showLater(); });
    showEverything();
}

void ControlBinding::watch(QWidget& part) { part.installEventFilter(this); }

void ControlBinding::showLater()
{
    if (std::exchange(waiting_, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            waiting_ = false;
            showEverything();
        },
        Qt::QueuedConnection);
}

void ControlBinding::showEverything()
{
    if (!control_ || takingOver_)
        return;
    const QScopedValueRollback mark(showing_, true);
    showGeneral();
    show();
}

void ControlBinding::showGeneral()
{
    widget_->setEnabled(control_->isReachable());
    // A widget without a parent would become a window of its own.
    if (!control_->isShown() || widget_->parentWidget())
        widget_->setVisible(control_->isShown());
    // A window may give names of its own to what the form leaves unnamed.
    if (std::exchange(shownToolTip_, control_->toolTip()) != control_->toolTip())
        widget_->setToolTip(toQt(shownToolTip_));
    if (std::exchange(shownName_, control_->accessibleName()) != control_->accessibleName())
        widget_->setAccessibleName(withoutAccessKey(shownName_));
    if (shownBack_ != control_->backColour() || shownFore_ != control_->foreColour()) {
        shownBack_ = control_->backColour();
        shownFore_ = control_->foreColour();
        showColours();
    }
}

void ControlBinding::showColours()
{
    QPalette palette;
    colour(palette, control_->backColour(), {QPalette::Window, QPalette::Base, QPalette::Button});
    colour(palette, control_->foreColour(), {QPalette::WindowText, QPalette::Text, QPalette::ButtonText});
    widget_->setPalette(palette);
}

bool ControlBinding::eventFilter(QObject* watched, QEvent* event)
{
    if (!control_)
        return QObject::eventFilter(watched, event);
    // What the form does about it may end the window, and with it this and the widget that the event is for.
    const QPointer<ControlBinding> alive(this);
    const bool isDone = hear(watched, *event);
    return !alive || isDone || QObject::eventFilter(watched, event);
}

/// True when the widget is not to get the event. Nothing here may touch a member after a call into the form unless it
/// has asked whether this is still there.
bool ControlBinding::hear(QObject* watched, QEvent& event)
{
    switch (event.type()) {
    case QEvent::FocusIn:
        return focusRefused();
    case QEvent::FocusOut:
        refused_ = false;
        break;
    case QEvent::MouseButtonPress:
        // The control that had the focus keeps it, and the click comes to nothing.
        return refused_;
    case QEvent::MouseButtonRelease:
        mouseReleased(event);
        break;
    case QEvent::ContextMenu:
        // A control that hears of the mouse shows a menu of its own.
        return static_cast<bool>(control_->MouseUp);
    case QEvent::KeyPress:
        return keyPressed(watched, event);
    case QEvent::KeyRelease:
        if (const auto& key = static_cast<QKeyEvent&>(event); !key.isAutoRepeat())
            control_->keyUp(keyCodeOf(key));
        break;
    case QEvent::MouseButtonDblClick:
        doubleClicked();
        break;
    default:
        break;
    }
    return false;
}

bool ControlBinding::focusRefused()
{
    const QPointer<ControlBinding> alive(this);
    const bool refused = !control_->setFocus();
    if (alive)
        refused_ = refused;
    // The focus has gone back meanwhile: the widget must not look as if it had it.
    return refused;
}

void ControlBinding::mouseReleased(const QEvent& event)
{
    if (!control_->MouseUp)
        return;
    switch (static_cast<const QMouseEvent&>(event).button()) {
    case Qt::LeftButton:
        return control_->MouseUp(MouseButton::left);
    case Qt::RightButton:
        return control_->MouseUp(MouseButton::right);
    case Qt::MiddleButton:
        return control_->MouseUp(MouseButton::middle);
    default:
        return;
    }
}

/// True when a handler swallowed the key or put another in its place.
bool ControlBinding::keyPressed(QObject* watched, const QEvent& event)
{
    const auto& key = static_cast<const QKeyEvent&>(event);
    if (passingOn_)
        return false;
    const QPointer<ControlBinding> alive(this);
    if (!control_->keyDown(keyCodeOf(key)) || !alive || !control_)
        return true;
    const bool leaves = key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab;
    if (leaves || !control_->KeyPress || key.text().isEmpty()
        || (key.modifiers() & (Qt::AltModifier | Qt::MetaModifier)) != 0)
        return false;
    const auto typed = static_cast<std::int32_t>(key.text().toUcs4().front());
    std::int32_t character = typed;
    control_->KeyPress(character);
    if (!alive || character == 0)
        return true;
    if (character == typed)
        return false;
    passingOn_ = true;
    const auto changed = static_cast<char32_t>(character);
    QKeyEvent other(QEvent::KeyPress, 0, key.modifiers() & ~Qt::ControlModifier, QString::fromUcs4(&changed, 1));
    QCoreApplication::sendEvent(watched, &other);
    if (alive)
        passingOn_ = false;
    return true;
}

} // namespace qncal::host
