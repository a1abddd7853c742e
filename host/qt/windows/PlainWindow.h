#pragma once

#include "qt/FormWindow.h"

class QVBoxLayout;

namespace qncal::host {

/// A window for a form without a class of its own: its controls one below the other, the buttons at the foot.
class PlainWindow : public FormWindow {
public:
    explicit PlainWindow(Form& form, QWidget* parent = nullptr);
};

} // namespace qncal::host
