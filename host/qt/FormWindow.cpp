#include "qt/FormWindow.h"

#include "controls/captionedControls.h"
#include "qt/bindings/ControlBinding.h"
#include "qt/convert.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QPushButton>

namespace qncal::host {

namespace {

/// Whether the Tab key stops there.
bool takesFocus(const QWidget& widget)
{
    const QWidget& proxied = widget.focusProxy() ? *widget.focusProxy() : widget;
    return (proxied.focusPolicy() & Qt::TabFocus) != 0;
}

} // namespace

FormWindow::FormWindow(Form& form, QWidget* parent)
    : QDialog(parent), form_(&form), updated_(form.updated, this, [this] { showGeneral(); }),
      focusMoved_(form.focusMoved, this, [this] { focusControl(); }), destroyed_(form.destroyed, this, [this] {
          form_ = nullptr;
          updated_.forget();
          focusMoved_.forget();
          destroyed_.forget();
      })
{
    setObjectName(toQt(form.name()));
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    showGeneral();
}

QHBoxLayout* FormWindow::addButtons(std::initializer_list<std::string_view> paths)
{
    auto* row = new QHBoxLayout;
    row->setContentsMargins(0, fontMetrics().height() / 2, 0, 0);
    row->addStretch();
    for (const std::string_view path : paths)
        row->addWidget(add<QPushButton, CommandButton>(path));
    return row;
}

void FormWindow::finish()
{
    QWidget* previous = nullptr;
    for (const Control* control : form_->controls()) {
        QWidget* widget = ControlBinding::widgetOf(*this, *control);
        if (!widget || !takesFocus(*widget))
            continue;
        if (previous)
            setTabOrder(previous, widget);
        previous = widget;
    }
}

QWidget* FormWindow::firstWidget() const
{
    for (const Control* control : form_->controls())
        if (QWidget* widget = ControlBinding::widgetOf(*this, *control);
            widget && takesFocus(*widget) && control->isReachable())
            return widget;
    return nullptr;
}

void FormWindow::showGeneral()
{
    setWindowTitle(toQt(form_->caption()));
    if (form_->mousePointer() == MousePointer::hourglass)
        setCursor(Qt::WaitCursor);
    else
        unsetCursor();
}

void FormWindow::focusControl()
{
    QWidget* widget = form_->focusedControl() ? ControlBinding::widgetOf(*this, *form_->focusedControl()) : nullptr;
    const QWidget* focused = focusWidget();
    if (widget && focused != widget && !(focused && widget->isAncestorOf(focused)))
        widget->setFocus(Qt::OtherFocusReason);
}

void FormWindow::closeEvent(QCloseEvent* event)
{
    if (!form_)
        return;
    // The form decides; when it goes, the host takes the window away.
    event->ignore();
    form_->closeByUser();
}

void FormWindow::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (!form_)
        return;
    if (form_->focusedControl())
        focusControl();
    else if (QWidget* first = firstWidget())
        first->setFocus(Qt::ActiveWindowFocusReason);
}

void FormWindow::reject()
{
    if (!form_) {
        QDialog::reject();
        return;
    }
    for (Control* control : form_->controls())
        if (auto* button = dynamic_cast<CommandButton*>(control); button && button->isCancel()) {
            button->press();
            return;
        }
}

} // namespace qncal::host
