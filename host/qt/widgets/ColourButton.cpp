#include "qt/widgets/ColourButton.h"

#include "controls/DialogHost.h"
#include "qt/convert.h"

#include <QPainter>

namespace qncal::host {

ColourButton::ColourButton(QWidget* parent) : QPushButton(parent)
{
    setAutoDefault(false);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QPushButton::clicked, this, &ColourButton::pick);
}

void ColourButton::setColour(const QColor& colour)
{
    if (colour_ == colour)
        return;
    colour_ = colour;
    setAccessibleDescription(colour.isValid() ? colour.name() : tr("No colour"));
    update();
}

QSize ColourButton::sizeHint() const
{
    return {QPushButton::sizeHint().width() + fontMetrics().averageCharWidth() * 4, QPushButton::sizeHint().height()};
}

void ColourButton::paintEvent(QPaintEvent* event)
{
    QPushButton::paintEvent(event);
    QPainter painter(this);
    const int margin = fontMetrics().height() / 3;
    const QRect swatch = rect().adjusted(margin, margin, -margin - 1, -margin - 1);
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
    if (colour_.isValid())
        painter.setBrush(isEnabled() ? QBrush(colour_) : QBrush(colour_, Qt::Dense4Pattern));
    painter.drawRect(swatch);
    if (!colour_.isValid())
        painter.drawLine(swatch.bottomLeft(), swatch.topRight());
}

void ColourButton::pick()
{
    const auto host = dialogHost();
    const auto colour = host ? host->pickColour(colour_.isValid() ? fromQtColour(colour_) : 0) : std::nullopt;
    if (colour)
        emit picked(toQtColour(*colour));
}

} // namespace qncal::host
