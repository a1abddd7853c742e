#pragma once

#include "core/forms.h"

namespace qncal {

/// The wizard that finds and deletes calendar rows which repeat an earlier row.
class frmDuplicateAppointments : public Form {
public:
    frmDuplicateAppointments() : Form("frmDuplicateAppointments") {}
};

} // namespace qncal
