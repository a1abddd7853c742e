#include "qt/widgets/UpDownButtons.h"

#include <QToolButton>
#include <QVBoxLayout>

namespace qncal::host {

UpDownButtons::UpDownButtons(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    const auto add = [&](Qt::ArrowType arrow, const QString& name, void (UpDownButtons::*signal)()) {
        auto* button = new QToolButton(this);
        button->setArrowType(arrow);
        button->setAutoRepeat(true);
        button->setAccessibleName(name);
        button->setFocusPolicy(Qt::NoFocus);
        button->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Expanding);
        connect(button, &QToolButton::clicked, this, signal);
        layout->addWidget(button);
    };
    add(Qt::UpArrow, "Up", &UpDownButtons::up);
    add(Qt::DownArrow, "Down", &UpDownButtons::down);
}

} // namespace qncal::host
