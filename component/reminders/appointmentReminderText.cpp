#include "reminders/appointmentReminderText.h"

#include "utilities/dateText.h"

namespace qncal {

std::string appointmentReminderText(std::string_view subject, std::string_view client, std::string_view wording,
                                    Date timeFrom)
{
    std::string text = "Appointment: ";
    text += subject;
    text += "\r\n";
    if (client.empty()) {
        text += "You have an appointment";
    } else {
        text += "You have an appointment with ";
        text += client;
    }
    text += wording;
    text += " at ";
    text += formatDate(timeFrom, "h:nn am/pm");
    text += ".";
    return text;
}

} // namespace qncal
