#pragma once

#include "qt/FormWindow.h"

namespace qncal::host {

/// The five names of a kind's status or custom fields: `frmChangeApptStatusFields`, `frmApptCustomFields`.
class FieldNamesWindow : public FormWindow {
public:
    explicit FieldNamesWindow(Form& form, QWidget* parent = nullptr);
};

} // namespace qncal::host
