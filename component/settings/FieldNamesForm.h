#pragma once

#include "controls/ControlArray.h"
#include "controls/TextBox.h"
#include "controls/captionedControls.h"
#include "core/forms.h"
#include "settings/kindWords.h"

namespace qncal {

/// The two dialogs that name the five status fields and the five custom fields of a kind of item, as far as they
/// are alike. The names live in the one row of `CustomFields`, one column for each.
class FieldNamesForm : public ItemKindForm {
public:
    /// Reads the names and shows the dialog modally.
    void Initialize(enumLocalCalendarItemType kind) override;

    void setupForm();
    void populateFieldNames();
    void saveFields();

    void cmdOK_Click();
    void cmdApply_Click();
    void cmdCancel_Click();
    virtual void cmdAdvancedOptions_Click(int index) = 0;
    void txtField_Change();

    enumLocalCalendarItemType calendarKind() const { return calendarKind_; }
    std::string_view kindPrefix() const { return textOfKind(columnPrefixes, calendarKind_); }
    /// True once a name was changed, by the user or by reading it from the database; False again after unloading.
    bool changed() const { return changed_; }

    Label lblIntroduction{*this, "lblIntroduction"};
    ControlArray<Label> lblCaption{*this, "lblCaption", 1, 5};
    /// The hint beside each name.
    ControlArray<Label> lblField{*this, "lblField", 1, 5};
    ControlArray<TextBox> txtField{*this, "txtField", 1, 5};
    ControlArray<CommandButton> cmdAdvancedOptions{*this, "cmdAdvancedOptions", 1, 5};
    CommandButton cmdOK{*this, "cmdOK"};
    CommandButton cmdApply{*this, "cmdApply"};
    CommandButton cmdCancel{*this, "cmdCancel"};

protected:
    /// What tells one dialog from the other.
    struct Texts {
        std::string_view formName;
        TextsByKind titles;
        TextsByKind introductions;
        /// "Status Field " in "Status Field 1:".
        std::string_view fieldCaption;
        /// "StatusName" in "ApptStatusName1".
        std::string_view column;
    };
    explicit FieldNamesForm(const Texts& texts);

    void Form_Unload() override;
    /// The fixed label of a routine of this dialog.
    std::string label(std::string_view routineName) const;

private:
    std::string columnName(int index) const;
    std::string selectStatement() const;

    Texts texts_;
    enumLocalCalendarItemType calendarKind_ = enumLocalCalendarUnknownItem;
    bool changed_ = false;
};

} // namespace qncal
