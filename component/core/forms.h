#pragma once

#include "controls/Form.h"
#include "core/enumerations.h"

#include <cstdint>
#include <memory>
#include <string>

namespace qncal {

class clsCalendarItem;

/// The dialogs that the lower folders open but that live in the higher ones: each as the part that its opener
/// uses, with the factory that is defined beside the dialog itself (settings/, editor/, duplicates/).

class DayTimerSettingsForm : public Form {
public:
    using Form::Form;
    /// Shows the dialog modally and returns when it closes. A `goToTab` below 4 selects that page.
    virtual void Initialize(enumLocalCalendarItemType kind, std::int32_t userIDNum, std::int16_t goToTab) = 0;
};
std::shared_ptr<DayTimerSettingsForm> newDayTimerSettingsForm();

class ApptStatusOptionsForm : public Form {
public:
    using Form::Form;
    /// Shows the dialog modally and returns when it closes.
    virtual void Initialize(enumLocalCalendarItemType kind, const std::string& fieldName, std::int16_t customNum) = 0;
};
std::shared_ptr<ApptStatusOptionsForm> newApptStatusOptionsForm();

/// A dialog that is opened on a kind of item.
class ItemKindForm : public Form {
public:
    using Form::Form;
    /// Shows the dialog modally and returns when it closes.
    virtual void Initialize(enumLocalCalendarItemType kind) = 0;
};
std::shared_ptr<ItemKindForm> newChangeApptStatusFieldsForm();
std::shared_ptr<ItemKindForm> newApptCustomFieldsForm();

/// The editor. Its opener hands it the item and `showTaskNotes`, calls `setupForm` and has it shown modally.
class ApptForm : public Form {
public:
    using Form::Form;
    /// The item to edit, or none. It stays its owner's and must outlive its time in the form.
    virtual clsCalendarItem* PassedClassRef() const = 0;
    virtual void PassedClassRef(clsCalendarItem* item) = 0;
    virtual void showTaskNotes(bool show) = 0;
    virtual void setupForm() = 0;
    /// True when the form was left after a save.
    virtual bool itemSaved() const = 0;
};
std::shared_ptr<ApptForm> newApptForm();

/// The duplicate removal wizard, modeless.
std::shared_ptr<Form> newDuplicateAppointmentsForm();

} // namespace qncal
