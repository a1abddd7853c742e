#pragma once

#include "reminders/modPopUpReminders.h"

#include <cstdint>

namespace qncal::test {

/// A type of reminder with the column and the id of the record that it hangs on.
struct TypeRow {
    const char* name;
    std::int32_t type;
    const char* column;
    std::int32_t modPopUpReminders::ReminderIDs::*id;
};

/// Those that are stored with the id of their record.
inline constexpr TypeRow typesOnRecords[] = {
    {"Appointment", 3, "AppointmentIDNum", &modPopUpReminders::ReminderIDs::appointmentOrScheduleID},
    {"Task", 5, "TaskIDNum", &modPopUpReminders::ReminderIDs::taskID},
    {"MissingInfo", 7, "MissingInfoIDNum", &modPopUpReminders::ReminderIDs::missingInfoID},
    {"CommunicationLog", 8, "CommunicationLogIDNum", &modPopUpReminders::ReminderIDs::communicationLogID},
    {"CompanyProject", 9, "CompanyProjectIDNum", &modPopUpReminders::ReminderIDs::companyProjectID},
    {"CompanyProjectStep", 10, "CompanyProjectStepIDNum", &modPopUpReminders::ReminderIDs::companyProjectStepID},
};

} // namespace qncal::test
