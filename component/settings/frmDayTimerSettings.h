#pragma once

#include "core/forms.h"

namespace qncal {

/// The options dialog of one calendar kind for one user.
class frmDayTimerSettings : public DayTimerSettingsForm {
public:
    frmDayTimerSettings() : DayTimerSettingsForm("frmDayTimerSettings") {}

    void Initialize(enumLocalCalendarItemType kind, std::int32_t userIDNum, std::int16_t goToTab) override;

    enumLocalCalendarItemType calendarKind() const { return calendarKind_; }
    std::int32_t editedUserID() const { return editedUserID_; }
    std::int16_t goToTab() const { return goToTab_; }

private:
    enumLocalCalendarItemType calendarKind_ = enumLocalCalendarUnknownItem;
    std::int32_t editedUserID_ = -1;
    std::int16_t goToTab_ = 0;
};

} // namespace qncal
