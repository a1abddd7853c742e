#pragma once

#include "utilities/Date.h"

#include <string>
#include <string_view>

namespace qncal {

/// "Appointment: Year end", a line break, "You have an appointment with Ann Reed in 15 minutes at 9:30 am.".
std::string appointmentReminderText(std::string_view subject, std::string_view client, std::string_view wording,
                                    Date timeFrom);

} // namespace qncal
