#pragma once

#include "settings/ColourSchemePage.h"

namespace qncal::test {

struct ColourSchemesForm : Form {
    ColourSchemesForm() : Form("frmColourSchemes") { caption("Colour Schemes"); }
    ColourSchemePage page{*this};
};

} // namespace qncal::test
