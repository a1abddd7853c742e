#include "qt/widgets/PanelScrollArea.h"

#include <QScrollBar>

namespace qncal::host {

PanelScrollArea::PanelScrollArea(QWidget* parent) : QAbstractScrollArea(parent)
{
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setFocusPolicy(Qt::NoFocus);
}

void PanelScrollArea::setPanel(QWidget* panel)
{
    panel_ = panel;
    panel->setParent(viewport());
    panel->resize(viewport()->width(), panel->sizeHint().height());
}

void PanelScrollArea::ensureVisible(const QWidget& child)
{
    const int top = child.mapTo(panel_, QPoint(0, 0)).y();
    const int hiddenBelow = top + child.height() - viewport()->height();
    QScrollBar& bar = *verticalScrollBar();
    if (top < bar.value())
        bar.setValue(top);
    else if (hiddenBelow > bar.value())
        bar.setValue(hiddenBelow);
}

void PanelScrollArea::resizeEvent(QResizeEvent* event)
{
    QAbstractScrollArea::resizeEvent(event);
    if (panel_)
        panel_->resize(viewport()->width(), panel_->height());
}

void PanelScrollArea::scrollContentsBy(int, int) {}

} // namespace qncal::host
