#pragma once

#include "settings/FieldNamesForm.h"

namespace qncal {

/// Names the five status fields of a kind of item.
class frmChangeApptStatusFields : public FieldNamesForm {
public:
    frmChangeApptStatusFields();
    /// Opens `frmApptStatusOptions` on the status and reads the names anew afterwards.
    void cmdAdvancedOptions_Click(int index) override;
};

} // namespace qncal
