#pragma once

#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/captionedControls.h"
#include "controls/rangeControls.h"

namespace qncal {

/// The page "Cell Background" of the settings dialog: a colour for each weekday, Sunday to Saturday, of the day, week
/// and month views. Its controls belong to the dialog that hosts it.
class CellBackgroundPage {
public:
    explicit CellBackgroundPage(Form& form);

    /// When checked, the view's seven colours become those of the day view: index 0 the week view, 1 the month view.
    void chkUseSameColours_Click(int index);
    /// While the dialog fills the page, a check box that changes does nothing.
    void populating(bool populating) { populating_ = populating; }

    ControlArray<ColourPicker> cpDayViewBackColour;
    ControlArray<ColourPicker> cpWeekViewBackColour;
    ControlArray<ColourPicker> cpMonthViewBackColour;
    ControlArray<CheckBox> chkUseSameColours;

private:
    bool populating_ = false;
};

} // namespace qncal
