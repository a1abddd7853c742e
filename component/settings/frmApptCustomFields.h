#pragma once

#include "core/forms.h"

namespace qncal {

/// The names of the five custom fields of one kind.
class frmApptCustomFields : public ApptCustomFieldsForm {
public:
    void Initialize(enumLocalCalendarItemType kind) override;

    enumLocalCalendarItemType calendarKind() const { return calendarKind_; }

private:
    enumLocalCalendarItemType calendarKind_ = enumLocalCalendarUnknownItem;
};

} // namespace qncal
