#pragma once

#include "qt/FormWindow.h"

#include <vector>

namespace qncal::host {

class PanelScrollArea;

/// `frmApptStatusOptions`: a status's name, colour and icon. The icons stand as a grid of tiles that scrolls.
class StatusOptionsWindow : public FormWindow {
public:
    explicit StatusOptionsWindow(Form& form, QWidget* parent = nullptr);

protected:
    /// The arrow keys walk the tiles; the one that they reach is scrolled into view.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* newIconPanel();
    QWidget* tileBeside(const QWidget& tile, int key) const;

    PanelScrollArea* area_ = nullptr;
    std::vector<QWidget*> tiles_;
};

} // namespace qncal::host
