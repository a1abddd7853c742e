#include "settings/frmApptCustomFields.h"

namespace qncal {

frmApptCustomFields::frmApptCustomFields()
    : FieldNamesForm({"frmApptCustomFields",
                      {"Appointment Custom Fields", "Task Custom Fields", "Time Entry Custom Fields"},
                      {"You can define custom fields for your appointments by entering the field names below:",
                       "You can define custom fields for your tasks by entering the field names below:",
                       "You can define custom fields for your time entries by entering the field names below:"},
                      "Custom Field ",
                      "CustomName"})
{
}

void frmApptCustomFields::cmdAdvancedOptions_Click(int) {}

std::shared_ptr<ItemKindForm> newApptCustomFieldsForm() { return std::make_shared<frmApptCustomFields>(); }

} // namespace qncal
