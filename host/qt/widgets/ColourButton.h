#pragma once

#include <QColor>
#include <QPushButton>

namespace qncal::host {

/// A button that shows a colour and lets the user pick another.
class ColourButton : public QPushButton {
    Q_OBJECT

public:
    explicit ColourButton(QWidget* parent = nullptr);

    /// An invalid colour is shown as none.
    void setColour(const QColor& colour);
    const QColor& colour() const { return colour_; }
    QSize sizeHint() const override;

signals:
    void picked(const QColor& colour);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void pick();

    QColor colour_;
};

} // namespace qncal::host
