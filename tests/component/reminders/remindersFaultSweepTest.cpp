#include "items/clsCalendarItem.h"
#include "reminders/modPopUpReminders.h"
#include "support/RoutineSweep.h"
#include "support/rowName.h"

#include <gtest/gtest.h>

// Every routine of reminders and notifications, with every service call in it failing once.

namespace qncal {
namespace {

using namespace modPopUpReminders;
using test::SweptRoutine;
using test::TestWorld;
using Run = std::function<std::string()>;

constexpr auto appointment = enumLocalCalendarAppointmentItem;
constexpr auto task = enumLocalCalendarTaskItem;

const Date day = Date::of(2026, 3, 30);
const Date time = Date::timeOf(9, 15);

SweptRoutine withoutDatabase(SweptRoutine routine)
{
    routine.needsDatabase = false;
    return routine;
}

/// A routine of item 1 of user 1, which has a row and a client; the item's first reminder is of a Sunday.
SweptRoutine onItem(const char* name, enumLocalCalendarItemType kind, std::function<std::string(clsCalendarItem&)> call,
                    std::function<void(TestWorld&)> fill = {})
{
    return {
        name, "", [=](TestWorld& world) -> Run {
            world.clientDropDown->companies[8] = {{"CompanyName", "Maple Leaf Bakery"}};
            world.addRow("UserCalendarSettings", {{"UserIDNum", "-1"}, {"ApptTemplate", "a"}, {"TaskTemplate", "t"}});
            const auto schedule = world.addRow("Schedule", {{"ScheduleName", "Payroll"}, {"totalNum", "111"}});
            world.addRow("Appointments", {{"Subject", "Year end"}, {"CompanyIDNum", "8"}});
            world.addRow("Tasks", {{"ScheduleIDNum", std::to_string(schedule)}});
            if (fill)
                fill(world);
            auto item = std::make_shared<clsCalendarItem>();
            item->calendarItemType(kind);
            item->itemID(1);
            item->userIDNum(1);
            item->companyIDNum(8);
            item->ScheduleIDNum(schedule);
            item->DateFrom(Date::of(2026, 4, 6));
            item->reminderPeriod("1 Day");
            item->Remind(true);
            return [item, call] { return call(*item); };
        }};
}

/// A notification of each channel, by ids from 1.
std::function<void(TestWorld&)> allChannels(enumLocalCalendarItemType kind)
{
    return [kind](TestWorld& world) {
        for (const std::uint8_t channel :
             {AutoNotifyService::email, AutoNotifyService::fax, AutoNotifyService::phone, AutoNotifyService::letter})
            world.autoNotify->notifications.push_back(
                {world.autoNotify->nextID++, static_cast<std::int16_t>(kind), 1, channel, day});
    };
}

void rowsOfBothMarks(TestWorld& world)
{
    for (const char* done : {"True", "False"}) {
        world.addRow("Reminders", {{"UserIDNum", "1"}, {"AppointmentIDNum", "1"}, {"Completed", done}});
        world.addRow("ClientNotification", {{"AppointmentNum", "1"}, {"NotificationSent", done}});
    }
}

void reminderOfTomorrow(TestWorld& world)
{
    world.addRow("Reminders", {{"UserIDNum", "1"},
                               {"AppointmentIDNum", "1"},
                               {"ReminderType", "3"},
                               {"ReminderDate", "2026-04-01"},
                               {"ReminderTime", "09:15:00"}});
}

std::string notifyByEmailAndPhone(clsCalendarItem& item)
{
    item.notifyType(AutoNotifyService::email | AutoNotifyService::phone);
    item.ShowNotificationWindow(true);
    item.scheduleAutoNotifications();
    return {};
}

std::string schedulePopup(clsCalendarItem& item)
{
    item.schedulePopupReminderForItem();
    return {};
}

std::string cancelPopup(clsCalendarItem& item)
{
    item.Remind(false);
    return schedulePopup(item);
}

std::vector<SweptRoutine> routines()
{
    return {
        {"CreateForAnAppointment", "False",
         [](TestWorld& world) -> Run {
             const auto id = world.addRow("Appointments", {{"CompanyIDNum", "8"}});
             return [id] {
                 std::int32_t type = reminderType::appointment;
                 ReminderIDs ids;
                 ids.appointmentOrScheduleID = id;
                 return std::string(booleanText(createPopUpReminder(type, 1, day, time, "words", ids)));
             };
         }},
        {"CreateForASchedule", "False",
         [](TestWorld& world) -> Run {
             world.addRow("Tasks", {{"ScheduleIDNum", "31"}, {"ContactIDNum", "5"}});
             world.addRow("Reminders", {{"UserIDNum", "1"}, {"TaskIDNum", "1"}, {"ReminderType", "5"}});
             return [] {
                 std::int32_t type = reminderType::schedule;
                 ReminderIDs ids;
                 ids.appointmentOrScheduleID = 31;
                 return std::string(booleanText(createPopUpReminder(type, 1, day, time, "words", ids)));
             };
         }},
        {"Delete", "False",
         [](TestWorld& world) -> Run {
             for (int row = 0; row < 2; ++row)
                 world.addRow("Reminders", {{"UserIDNum", "1"}, {"TaskIDNum", "4"}, {"ReminderType", "5"}});
             return [] {
                 std::int32_t type = reminderType::task;
                 ReminderIDs ids;
                 ids.taskID = 4;
                 return std::string(booleanText(deletePopUpReminder(type, 1, ids)));
             };
         }},
        {"TextOfAnAppointment", "",
         [](TestWorld& world) -> Run {
             const auto id = world.addRow("Appointments", {{"Subject", "Year end"}, {"CompanyIDNum", "8"}});
             return [id] { return getPopUpReminderText(reminderType::appointment, id); };
         }},
        {"TextOfATask", "",
         [](TestWorld& world) -> Run {
             world.addRow("Clients", {{"CompanyIDNum", "8"}});
             world.addRow("Tasks", {{"ScheduleIDNum", "1"}, {"ReminderPeriod", "1 Day"}});
             const auto id = world.addRow("Schedule", {{"ScheduleName", "Payroll"}, {"ClientNum", "1"}});
             return [id] { return getPopUpReminderText(reminderType::task, id); };
         }},
        withoutDatabase({"Time", "not adjusted",
                         [](TestWorld&) -> Run {
                             return [] {
                                 Date date = Date::of(2026, 3, 30);
                                 Date moment = time;
                                 modPopUpReminders::getPopUpReminderTime("1 Day", date, moment);
                                 return date == Date::of(2026, 3, 27) ? "adjusted" : "not adjusted";
                             };
                         }}),
        withoutDatabase(onItem("TimeOfTheItem", appointment,
                               [](clsCalendarItem& item) {
                                   item.getPopUpReminderTime();
                                   return std::string();
                               })),
        withoutDatabase(onItem("PopupTextOfAnAppointment", appointment,
                               [](clsCalendarItem& item) { return item.getPopUpReminderPopupText(); })),
        withoutDatabase(
            onItem("PopupTextOfATask", task, [](clsCalendarItem& item) { return item.getPopUpReminderPopupText(); })),
        onItem(
            "StoredStatus", appointment,
            [](clsCalendarItem& item) { return item.getPopupReminderCurrentStatusText(true); }, reminderOfTomorrow),
        withoutDatabase(onItem("PlannedStatus", appointment,
                               [](clsCalendarItem& item) { return item.getPopupReminderCurrentStatusText(false); })),
        onItem("ScheduleAnAppointmentsPopup", appointment, schedulePopup),
        onItem("ScheduleATasksPopup", task, schedulePopup),
        onItem("CancelAnAppointmentsPopup", appointment, cancelPopup, reminderOfTomorrow),
        onItem(
            "CheckToCancelPopups", appointment,
            [](clsCalendarItem& item) {
                item.checkToCancelPopups(true);
                return std::string();
            },
            rowsOfBothMarks),
        onItem(
            "CheckToCancelAutoNotifications", appointment,
            [](clsCalendarItem& item) {
                item.checkToCancelAutoNotifications(true);
                return std::string();
            },
            rowsOfBothMarks),
        onItem("NotifyOfAnAppointmentAnew", appointment, notifyByEmailAndPhone),
        onItem("NotifyOfAnAppointmentAgain", appointment, notifyByEmailAndPhone, allChannels(appointment)),
        onItem("NotifyOfATaskAnew", task, notifyByEmailAndPhone),
        onItem("NotifyOfATaskAgain", task, notifyByEmailAndPhone, allChannels(task)),
    };
}

class remindersFaultSweepTest : public testing::TestWithParam<SweptRoutine> {};

TEST_P(remindersFaultSweepTest, EveryFaultLeaves) { test::expectFaultsLeave(GetParam()); }
TEST_P(remindersFaultSweepTest, EveryLastingFaultLeaves) { test::expectLastingFaultsLeave(GetParam()); }
TEST_P(remindersFaultSweepTest, EveryFaultIsRetriedAlone) { test::expectFaultsRetry(GetParam()); }
TEST_P(remindersFaultSweepTest, EveryEmptySlotLeaves) { test::expectEmptySlotsLeave(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Routines, remindersFaultSweepTest, testing::ValuesIn(routines()), test::rowName);

} // namespace
} // namespace qncal
