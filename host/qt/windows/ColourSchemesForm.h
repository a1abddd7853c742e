#pragma once

#include "settings/ColourSchemePage.h"

namespace qncal::host {

/// The page of the colour schemes as a dialog of its own, for a host that has no dialog around it. Closing it stores
/// what is on it, as every other operation of the page does.
class ColourSchemesForm : public Form {
public:
    ColourSchemesForm();

    /// Shows the schemes of a kind modally.
    void open(enumLocalCalendarItemType kind);

    ColourSchemePage page{*this};
    CommandButton cmdClose{*this, "cmdClose"};

protected:
    void Form_Unload() override;
};

} // namespace qncal::host
