#pragma once

#include <QWidget>

namespace qncal::host {

/// A pair of arrows, one above the other, that repeat while they are held down.
class UpDownButtons : public QWidget {
    Q_OBJECT

public:
    explicit UpDownButtons(QWidget* parent = nullptr);

signals:
    void up();
    void down();
};

} // namespace qncal::host
