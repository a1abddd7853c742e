#include "settings/frmDayTimerSettings.h"

namespace qncal {

void frmDayTimerSettings::Initialize(enumLocalCalendarItemType kind, std::int32_t userIDNum, std::int16_t goToTab)
{
    calendarKind_ = kind;
    editedUserID_ = userIDNum;
    goToTab_ = goToTab;
    showModal();
}

std::shared_ptr<DayTimerSettingsForm> newDayTimerSettingsForm() { return std::make_shared<frmDayTimerSettings>(); }

} // namespace qncal
