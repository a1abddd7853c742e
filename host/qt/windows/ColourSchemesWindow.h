#pragma once

#include "qt/FormWindow.h"

namespace qncal::host {

/// A form that is the page "Colour Schemes", and `cmdClose` when it has one: "frmColourSchemes".
class ColourSchemesWindow : public FormWindow {
public:
    explicit ColourSchemesWindow(Form& form, QWidget* parent = nullptr);
};

} // namespace qncal::host
