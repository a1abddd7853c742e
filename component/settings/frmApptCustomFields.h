#pragma once

#include "settings/FieldNamesForm.h"

namespace qncal {

/// Names the five custom fields of a kind of item.
class frmApptCustomFields : public FieldNamesForm {
public:
    frmApptCustomFields();
    /// The buttons are there but do nothing: custom fields have no further options.
    void cmdAdvancedOptions_Click(int index) override;
};

} // namespace qncal
