#include "settings/frmChangeApptStatusFields.h"

#include "core/routineScope.h"
#include "settings/frmApptStatusOptions.h"

namespace qncal {

frmChangeApptStatusFields::frmChangeApptStatusFields()
    : FieldNamesForm({"frmChangeApptStatusFields",
                      {"Appointment Status Fields", "Task Status Fields", "Time Entry Status Fields"},
                      {"You can define status information for your appointments by entering the names below:",
                       "You can define status information for your tasks by entering the names below:",
                       "You can define status information for your time entries by entering the names below:"},
                      "Status Field ",
                      "StatusName"})
{
    constexpr std::string_view hints[] = {"Default: Completed", "Default: Cancelled", "Default: Postponed",
                                          "Default: Out-of-Office", "Default: Important"};
    lblField.forEach([&](Label& hint, int index) { hint.caption(std::string(hints[index - 1])); });
}

void frmChangeApptStatusFields::cmdAdvancedOptions_Click(int index)
{
    routine(label("cmdAdvancedOptions_Click"), [&] {
        frmApptStatusOptions options;
        options.Initialize(calendarKind(), txtField(index).text(), static_cast<std::int16_t>(index));
        populateFieldNames();
    });
}

std::shared_ptr<ItemKindForm> newChangeApptStatusFieldsForm() { return std::make_shared<frmChangeApptStatusFields>(); }

} // namespace qncal
