#pragma once

#include "qt/FormWindow.h"

namespace qncal::host {

/// "frmColourSchemes": a form with the page "Colour Schemes". With the controls of the page "Cell Background" it shows
/// both as tabs, with `cmdClose` that button.
class ColourSchemesWindow : public FormWindow {
public:
    explicit ColourSchemesWindow(Form& form, QWidget* parent = nullptr);
};

} // namespace qncal::host
