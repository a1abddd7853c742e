#include "qt/widgets/IconTile.h"

#include <QPainter>

namespace qncal::host {

IconTile::IconTile(QWidget* parent) : QToolButton(parent)
{
    constexpr int picture = 24;
    setCheckable(true);
    setAutoRaise(true);
    setFocusPolicy(Qt::StrongFocus);
    setIconSize({picture, picture});
    setFixedSize(edge, edge);
}

void IconTile::paintEvent(QPaintEvent* event)
{
    QToolButton::paintEvent(event);
    if (!isChecked() && !hasFocus())
        return;
    constexpr qreal inset = 2.5;
    constexpr qreal corner = 4;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(
        QPen(palette().color(QPalette::Highlight), isChecked() ? 2 : 1, isChecked() ? Qt::SolidLine : Qt::DotLine));
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), corner, corner);
}

} // namespace qncal::host
