#include "settings/frmChangeApptStatusFields.h"

namespace qncal {

void frmChangeApptStatusFields::Initialize(enumLocalCalendarItemType kind)
{
    calendarKind_ = kind;
    showModal();
}

std::shared_ptr<ChangeApptStatusFieldsForm> newChangeApptStatusFieldsForm() { return std::make_shared<frmChangeApptStatusFields>(); }

} // namespace qncal
