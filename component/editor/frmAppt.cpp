#include "editor/frmAppt.h"

namespace qncal {

std::shared_ptr<ApptForm> newApptForm() { return std::make_shared<frmAppt>(); }

} // namespace qncal
