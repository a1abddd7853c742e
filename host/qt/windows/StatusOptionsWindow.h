#pragma once

#include "qt/FormWindow.h"

namespace qncal::host {

class PanelScrollArea;

/// `frmApptStatusOptions`: a status's name, colour and icon. The icons stand as a grid of tiles that scrolls.
class StatusOptionsWindow : public FormWindow {
public:
    explicit StatusOptionsWindow(Form& form, QWidget* parent = nullptr);

protected:
    /// The tile that the keys reach is scrolled into view.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* newIconPanel();

    PanelScrollArea* area_ = nullptr;
};

} // namespace qncal::host
