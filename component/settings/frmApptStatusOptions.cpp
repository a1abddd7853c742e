#include "settings/frmApptStatusOptions.h"

namespace qncal {

void frmApptStatusOptions::Initialize(enumLocalCalendarItemType kind, const std::string& fieldName,
                                      std::int16_t customNum)
{
    calendarKind_ = kind;
    fieldName_ = fieldName;
    fieldNumber_ = customNum;
    showModal();
}

std::shared_ptr<ApptStatusOptionsForm> newApptStatusOptionsForm() { return std::make_shared<frmApptStatusOptions>(); }

} // namespace qncal
