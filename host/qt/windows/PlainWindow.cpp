#include "qt/windows/PlainWindow.h"

#include "controls/captionedControls.h"
#include "qt/bindings/anyWidget.h"

#include <QFormLayout>
#include <QLabel>
#include <QMenuBar>
#include <QScrollArea>
#include <QScrollBar>

namespace qncal::host {

PlainWindow::PlainWindow(Form& form, QWidget* parent) : FormWindow(form, parent)
{
    auto* area = new QScrollArea(this);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setFocusPolicy(Qt::NoFocus);
    auto* page = new QWidget(area);
    auto* rows = new QFormLayout(page);
    area->setWidget(page);
    auto* foot = new QHBoxLayout;
    foot->addStretch();

    QLabel* heading = nullptr;
    for (Control* control : form.controls()) {
        if (dynamic_cast<MenuItem*>(control))
            continue;
        QWidget* widget = newWidgetFor(*control, *page);
        if (qobject_cast<QLabel*>(widget) && dynamic_cast<Label*>(control)) {
            // A label stands beside the control that follows it.
            if (heading)
                rows->addRow(heading);
            heading = static_cast<QLabel*>(widget);
        } else if (dynamic_cast<CommandButton*>(control)) {
            foot->addWidget(widget);
        } else if (heading) {
            rows->addRow(std::exchange(heading, nullptr), widget);
        } else {
            rows->addRow(widget);
        }
    }
    if (heading)
        rows->addRow(heading);

    area->setMinimumWidth(page->sizeHint().width() + area->verticalScrollBar()->sizeHint().width());

    auto* layout = new QVBoxLayout(this);
    if (QMenuBar* menus = newMenuBarFor(form, *this))
        layout->setMenuBar(menus);
    layout->addWidget(area, 1);
    layout->addLayout(foot);
    finish();
}

} // namespace qncal::host
