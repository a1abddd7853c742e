#pragma once

#include "controls/ControlArray.h"
#include "controls/Form.h"
#include "controls/captionedControls.h"
#include "controls/listControls.h"
#include "controls/rangeControls.h"

#include <cstdint>

namespace qncal {

/// Asks for a start or end time: a picker to the minute beside a list of quarter hours.
class frmSelectStartTime : public Form {
public:
    static constexpr std::int16_t startTime = 1;
    static constexpr std::int16_t endTime = 2;

    frmSelectStartTime();

    /// True when the user cancelled, also by the box in the corner.
    bool cancelFlag() const { return cancelFlag_; }
    void cancelFlag(bool cancelled) { cancelFlag_ = cancelled; }
    /// The time shown at first, and then the one chosen; a date comes back with it as long as no quarter hour was
    /// picked.
    Date TimeSelected() const { return timeSelected_; }
    void TimeSelected(Date time) { timeSelected_ = time; }
    /// `startTime`; every other value asks for an end time, also the 0 that nobody has set.
    std::int16_t TimeType() const { return timeType_; }
    void TimeType(std::int16_t type) { timeType_ = type; }

    /// Shows the form modally.
    void Initialize();

    void dtpTime_LostFocus();
    void cboField_Click();
    void cboField_KeyPress(std::int32_t& keyAscii);
    void cmdOpts_Click(int index);

    Label Label0{*this, "Label0"};
    DateTimePicker dtpTime{*this, "dtpTime"};
    Label Label1{*this, "Label1"};
    ComboBox cboField{*this, "cboField"};
    /// 0 Ok, 1 Cancel.
    ControlArray<CommandButton> cmdOpts{*this, "cmdOpts", 0, 1};

protected:
    void Form_QueryUnload(bool& cancel, bool byUser) override;

private:
    /// Puts the picker's time, cut to the quarter hour, into the list's text.
    void showTimeInField();

    Date timeSelected_;
    std::int16_t timeType_ = 0;
    bool cancelFlag_ = false;
    bool loading_ = false;
};

} // namespace qncal
