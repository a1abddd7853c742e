#pragma once

#include <QAbstractScrollArea>

namespace qncal::host {

/// Shows a part of a panel that is larger than itself. It only shows: a model, tied to the scroll bar and to the
/// panel's place, does the scrolling.
class PanelScrollArea : public QAbstractScrollArea {
public:
    explicit PanelScrollArea(QWidget* parent = nullptr);

    /// Takes the panel over and gives it its preferred height and the width of the area.
    void setPanel(QWidget* panel);
    /// Scrolls so that the child of the panel can be seen.
    void ensureVisible(const QWidget& child);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;

private:
    QWidget* panel_ = nullptr;
};

} // namespace qncal::host
