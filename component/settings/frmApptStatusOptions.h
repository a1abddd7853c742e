#pragma once

#include "controls/ControlArray.h"
#include "controls/TextBox.h"
#include "controls/captionedControls.h"
#include "controls/rangeControls.h"
#include "core/forms.h"
#include "settings/kindWords.h"

namespace qncal {

/// One status of a kind of item: its name, its colour and its icon.
class frmApptStatusOptions : public ApptStatusOptionsForm {
public:
    static constexpr int iconCount = 42;

    frmApptStatusOptions();

    /// Reads the status and shows the dialog modally. `fieldNumber` is 1 to 5.
    void Initialize(enumLocalCalendarItemType kind, const std::string& fieldName, std::int16_t fieldNumber) override;

    void setupForm();
    void setupScrollBars();
    /// `ok` tells whether the status was stored; a message has told the user why not.
    void saveFields(bool& ok);

    /// The icons behave as a radio group that may be empty.
    void chkSample_Click(int index);
    void cmdOK_Click();
    void cmdCancel_Click();
    void txtField_Change();
    void VScrollBar_Change();
    void VScrollBar_Scroll();
    void picScrollBarContainer_Resize();

    enumLocalCalendarItemType calendarKind() const { return calendarKind_; }
    std::string_view kindPrefix() const { return textOfKind(columnPrefixes, calendarKind_); }
    std::int16_t fieldNumber() const { return fieldNumber_; }
    bool changed() const { return changed_; }

    Panel Frame1{*this, "Frame1"};
    Label lblField{*this, "lblField"};
    TextBox txtField{*this, "txtField"};
    /// 0 shows the colour, 1 shows the icon.
    ControlArray<CheckBox> chkField{*this, "chkField", 0, 1};
    ColourPicker cpBackgroundColour{*this, "cpBackgroundColour"};
    Panel picScrollBarContainer{*this, "picScrollBarContainer"};
    Panel picIconsOptions{*this, "picIconsOptions"};
    ControlArray<CheckBox> chkSample{*this, "chkSample", 1, iconCount};
    ScrollBar vScrollBar{*this, "vScrollBar"};
    CommandButton cmdOK{*this, "cmdOK"};
    CommandButton cmdCancel{*this, "cmdCancel"};

private:
    void populateFields();
    /// The checked icon, 0 when none is.
    int chosenIcon() const;
    std::string columnName(std::string_view middle) const;

    enumLocalCalendarItemType calendarKind_ = enumLocalCalendarUnknownItem;
    std::int16_t fieldNumber_ = 0;
    bool settingSample_ = false;
    bool changed_ = false;
};

} // namespace qncal
