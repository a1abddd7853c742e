#include "duplicates/frmDuplicateAppointments.h"

namespace qncal {

std::shared_ptr<Form> newDuplicateAppointmentsForm() { return std::make_shared<frmDuplicateAppointments>(); }

} // namespace qncal
