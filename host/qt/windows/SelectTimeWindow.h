#pragma once

#include "qt/FormWindow.h"

namespace qncal::host {

/// `frmSelectStartTime`: a time to the minute, or a quarter hour out of a list.
class SelectTimeWindow : public FormWindow {
public:
    explicit SelectTimeWindow(Form& form, QWidget* parent = nullptr);
};

} // namespace qncal::host
