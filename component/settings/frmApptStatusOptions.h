#pragma once

#include "core/forms.h"

namespace qncal {

/// The colour and the icon of one status field.
class frmApptStatusOptions : public ApptStatusOptionsForm {
public:
    void Initialize(enumLocalCalendarItemType kind, const std::string& fieldName, std::int16_t customNum) override;

    enumLocalCalendarItemType calendarKind() const { return calendarKind_; }
    const std::string& fieldName() const { return fieldName_; }
    std::int16_t fieldNumber() const { return fieldNumber_; }

private:
    enumLocalCalendarItemType calendarKind_ = enumLocalCalendarUnknownItem;
    std::string fieldName_;
    std::int16_t fieldNumber_ = 0;
};

} // namespace qncal
