#pragma once

#include <QToolButton>

namespace qncal::host {

/// A picture that can be checked; framed in the colour of selections while it is.
class IconTile : public QToolButton {
public:
    static constexpr int edge = 40;

    explicit IconTile(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace qncal::host
