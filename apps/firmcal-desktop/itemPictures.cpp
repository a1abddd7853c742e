#include "firmcal-desktop/itemPictures.h"

#include "qt/convert.h"
#include "qt/icons.h"

#include <QGuiApplication>
#include <QPainter>

#include <algorithm>

namespace qncal::desktop {

namespace {

constexpr int edge = 16;
constexpr int gap = 3;
constexpr qreal corner = 3;

/// Transparent, at the resolution of the screen.
QPixmap canvas(int width, int height)
{
    const qreal ratio = qGuiApp->devicePixelRatio();
    QPixmap picture(QSize(width, height) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    return picture;
}

void paintBlock(QPainter& painter, const QRectF& place, const QColor& colour)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawRoundedRect(place, corner, corner);
}

void paintStatus(QPainter& painter, const QRect& place, const firmcal::StatusField& status)
{
    const QIcon icon = status.icon ? host::statusIcon(*status.icon) : QIcon();
    const QColor colour = status.colour ? host::toQtColour(*status.colour) : QColor();
    if (icon.isNull()) {
        paintBlock(painter, place, colour.isValid() ? colour : QColor(Qt::gray));
        return;
    }
    if (colour.isValid()) {
        // The drawing stays the darker part whatever the colour is, also on the bar of a selected row.
        const auto pale = [](int part) { return (255 * 2 + part) / 3; };
        paintBlock(painter, place, QColor(pale(colour.red()), pale(colour.green()), pale(colour.blue())));
    }
    icon.paint(&painter, place.adjusted(1, 1, -1, -1));
}

} // namespace

QPixmap swatch(const QColor& colour)
{
    if (!colour.isValid())
        return {};
    constexpr int width = 8;
    QPixmap picture = canvas(width, edge);
    QPainter painter(&picture);
    paintBlock(painter, QRectF(0, 0, width, edge), colour);
    return picture;
}

QPixmap statusPicture(const firmcal::ItemRow& row, const firmcal::StatusFields& statuses)
{
    const auto count = static_cast<int>(std::ranges::count(row.statuses, true));
    if (count == 0)
        return {};
    QPixmap picture = canvas(count * edge + (count - 1) * gap, edge);
    QPainter painter(&picture);
    int left = 0;
    for (std::size_t i = 0; i < statuses.size(); ++i) {
        if (!row.statuses[i])
            continue;
        paintStatus(painter, {left, 0, edge, edge}, statuses[i]);
        left += edge + gap;
    }
    return picture;
}

QString statusNames(const firmcal::ItemRow& row, const firmcal::StatusFields& statuses)
{
    QStringList names;
    for (std::size_t i = 0; i < statuses.size(); ++i)
        if (row.statuses[i])
            names += statuses[i].name.empty() ? QObject::tr("Status %1").arg(i + 1) : host::toQt(statuses[i].name);
    return names.join(", ");
}

} // namespace qncal::desktop
