#pragma once

#include "core/ClientDropDownService.h"
#include "core/enumerations.h"
#include "utilities/Clock.h"
#include "utilities/Date.h"

#include <cstdint>
#include <string>

namespace qncal {

/// The fields of a calendar item that `resetAllInformation` resets, each with its reset value.
struct CalendarItemRecord {
    std::int32_t clientType = static_cast<std::int32_t>(ClientKind::none);
    std::int32_t companyIDNum = -1;
    std::int32_t contactIDNum = -1;
    std::int32_t userIDNum = -1;
    std::int32_t scheduleTypeIDNum = -1;
    std::int32_t scheduleIDNum = -1;
    std::int32_t projectStepIDNum = -1;
    std::int32_t communicationLogIDNum = -1;
    std::int32_t seriesNum = 0;
    std::string subject;
    Date dateFrom = today();
    float timeduration = 1.0F; ///< hours
    Date timeFrom = Date::timeOf(9);
    Date timeTo = Date::timeOf(10);
    std::string titleText;
    std::string appointmentText;
    std::string afterAppointmentText;
    std::string beforeAppointmentText;
    bool recurAnnually = false;
    bool hideInTasks = false;
    std::int32_t repeatNum = 0;
    std::int32_t userGroupNum = 0;
    bool privateItem = false;
    std::string reminderPeriod = "15 Min";
    bool remind = false;
    bool clientNotifiedFlag = false;
    std::int32_t foreColour = 0;
    std::int32_t backColour = 0xFFFFFF;
    std::int32_t titleForeColour = 0xFFFFFF;
    std::int32_t titleBackColour = 10649190;
    std::int32_t colourSchemeID = -1;
    bool notesFlag = false;
    std::string notesRichText;
    std::uint8_t notifyType = 0; ///< bits of `AutoNotifyService`
    Date notifiedDate = dateFrom.addDays(-1);
    bool status1 = false;
    bool status2 = false;
    bool status3 = false;
    bool status4 = false;
    bool status5 = false;
    std::string custom1;
    std::string custom2;
    std::string custom3;
    std::string custom4;
    std::string custom5;
    enumCalendarItemArchiveStatus archiveStatus = CalendarItemArchiveStatus_Normal;
    std::string titleBarTextTemplate;
    std::string displayTextTemplate;
    /// Where `getPopUpReminderTime` leaves the moment of the popup reminder.
    Date reminderDate = dateFrom;
    Date reminderTime = Date::timeOf(8, 45);
};

} // namespace qncal
