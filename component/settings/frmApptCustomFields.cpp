#include "settings/frmApptCustomFields.h"

namespace qncal {

void frmApptCustomFields::Initialize(enumLocalCalendarItemType kind)
{
    calendarKind_ = kind;
    showModal();
}

std::shared_ptr<ApptCustomFieldsForm> newApptCustomFieldsForm() { return std::make_shared<frmApptCustomFields>(); }

} // namespace qncal
