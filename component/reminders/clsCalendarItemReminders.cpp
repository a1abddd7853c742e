#include "core/RecordSet.h"
#include "core/ServiceRegistry.h"
#include "items/clsCalendarItem.h"
#include "items/itemQueries.h"
#include "reminders/appointmentReminderText.h"
#include "reminders/modPopUpReminders.h"
#include "reminders/reminderPeriods.h"
#include "utilities/Clock.h"
#include "utilities/dateText.h"

// The popup reminders of an item. Time entries have none.

namespace qncal {

using namespace modPopUpReminders;

namespace {

/// "Mar 31 26 at 9:15 am".
std::string dateAndTime(Date date, Date time)
{
    return formatDate(date, "mmm d yy") + " at " + formatDate(time, "h:nn am/pm");
}

} // namespace

void clsCalendarItem::checkToCancelPopups(bool keepCompleted)
{
    routine("Vestrel.exe-clsCalendarItem-checkToCancelPopups", [&] {
        if (isDatabaseConnected())
            deleteRemindersOfItem(calendarItemType(), itemID_, keepCompleted);
    });
}

void clsCalendarItem::schedulePopupReminderForItem()
{
    routine("Vestrel.exe-clsCalendarItem-schedulePopupReminderForItem", [&] {
        const bool isAppointment = calendarItemType() == enumLocalCalendarAppointmentItem;
        if (!isAppointment && calendarItemType() != enumLocalCalendarTaskItem)
            return;
        std::int32_t type = isAppointment ? reminderType::appointment : reminderType::task;
        ReminderIDs ids;
        ids.companyID = record_.companyIDNum;
        ids.contactID = record_.contactIDNum;
        (isAppointment ? ids.appointmentOrScheduleID : ids.taskID) = itemID_;
        if (!record_.remind) {
            deletePopUpReminder(type, record_.userIDNum, ids);
            return;
        }
        getPopUpReminderTime();
        const std::string text = isAppointment
                                     ? getPopUpReminderText(type, itemID_)
                                     : getPopUpReminderText(type, record_.scheduleIDNum, record_.reminderPeriod);
        createPopUpReminder(type, record_.userIDNum, record_.reminderDate, record_.reminderTime, text, ids);
    });
}

void clsCalendarItem::getPopUpReminderTime()
{
    routine("Vestrel.exe-clsCalendarItem-getPopUpReminderTime", [&] {
        record_.reminderDate = record_.dateFrom.dateOnly();
        record_.reminderTime = record_.timeFrom;
        modPopUpReminders::getPopUpReminderTime(record_.reminderPeriod, record_.reminderDate, record_.reminderTime);
    });
}

std::string clsCalendarItem::getPopUpReminderPopupText()
{
    return routine("Vestrel.exe-clsCalendarItem-getPopUpReminderPopupText", std::string(), [&] {
        const ReminderPeriod& period = qncal::reminderPeriod(record_.reminderPeriod);
        const std::string client = clientName(record_.companyIDNum, record_.contactIDNum);
        if (calendarItemType() == enumLocalCalendarAppointmentItem)
            return appointmentReminderText(record_.subject, client, period.appointmentPopupWording, record_.timeFrom);
        if (calendarItemType() != enumLocalCalendarTaskItem)
            return std::string();
        const std::string heading = "Task: " + record_.subject + "\r\n";
        if (!client.empty())
            return heading + "Your task for " + client + std::string(period.taskWording);
        // Without a client the sentence has its verb already.
        return heading + "Your task is due" + std::string(period.appointmentWording);
    });
}

std::string clsCalendarItem::getPopupReminderCurrentStatusText(bool checkRemindersTableForRealStatus)
{
    return routine("Vestrel.exe-clsCalendarItem-getPopupReminderCurrentStatusText", std::string(),
                   [&] { return checkRemindersTableForRealStatus ? storedReminderStatus() : plannedReminderStatus(); });
}

std::string clsCalendarItem::storedReminderStatus() const
{
    const bool isTask = calendarItemType() == enumLocalCalendarTaskItem;
    if ((!isTask && calendarItemType() != enumLocalCalendarAppointmentItem) || !isDatabaseConnected())
        return {};
    const std::string column = isTask ? "TaskIDNum" : "AppointmentIDNum";
    auto reminder = RecordSet::openReadOnly("SELECT Reminders." + column
                                            + ", Reminders.UserIDNum, Reminders.Completed, Reminders.ReminderDate, "
                                              "Reminders.ReminderTime From Reminders WHERE Reminders.UserIDNum = "
                                            + std::to_string(record_.userIDNum) + " AND Reminders." + column + " = "
                                            + std::to_string(itemID_) + ";");
    std::string status;
    if (reminder.hasRecords()) {
        bool completed = false;
        Date date;
        Date time;
        reminder.read("Completed", completed);
        reminder.read("ReminderDate", date);
        reminder.read("ReminderTime", time);
        if (completed)
            status = "This reminder has already occured";
        else if (date.dateOnly() > today())
            status = "You will be notified on " + dateAndTime(date, time);
        else
            status = "This reminder was scheduled for " + dateAndTime(date, time);
    }
    reminder.close();
    return status;
}

std::string clsCalendarItem::plannedReminderStatus()
{
    getPopUpReminderTime();
    if (record_.reminderDate > today())
        return "You will be notified on " + dateAndTime(record_.reminderDate, record_.reminderTime);
    if (record_.reminderDate == today() && record_.reminderTime > now().timeOnly())
        return "You will be notified today at " + formatDate(record_.reminderTime, "h:nn am/pm");
    return "This reminder has already occured";
}

} // namespace qncal
