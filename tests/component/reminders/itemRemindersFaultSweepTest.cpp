#include "items/clsCalendarItem.h"
#include "support/RoutineSweep.h"
#include "support/rowName.h"

#include <gtest/gtest.h>

// The reminders and notifications of an item, with every service call in them failing once.

namespace qncal {
namespace {

using test::SweptRoutine;
using test::TestWorld;
using Run = std::function<std::string()>;

/// An item of user 1 and company 8 with a reminder and two notifications, one of them sent.
std::shared_ptr<clsCalendarItem> itemOfKind(TestWorld& world, enumLocalCalendarItemType kind)
{
    const bool isTask = kind == enumLocalCalendarTaskItem;
    const std::int32_t schedule = world.addRow("Schedule", {{"ScheduleName", "Payroll"}, {"ClientNum", "4"}});
    const std::int32_t id = world.addRow(isTask ? "Tasks" : "Appointments",
                                         {{"Subject", "Year end"},
                                          {"CompanyIDNum", "8"},
                                          {"TimeFrom", "09:30:00"},
                                          {isTask ? "ScheduleIDNum" : "UserIDNum", std::to_string(schedule)}});
    world.addRow("Reminders", {{"UserIDNum", "1"},
                               {isTask ? "TaskIDNum" : "AppointmentIDNum", std::to_string(id)},
                               {"ReminderType", isTask ? "5" : "3"},
                               {"ReminderDate", "2026-04-04"},
                               {"ReminderTime", "09:15:00"}});
    for (const char* sent : {"True", "False"})
        world.addRow("ClientNotification",
                     {{isTask ? "TaskNum" : "AppointmentNum", std::to_string(id)}, {"NotificationSent", sent}});
    auto item = std::make_shared<clsCalendarItem>();
    item->calendarItemType(kind);
    item->itemID(id);
    item->userIDNum(1);
    item->companyIDNum(8);
    item->ScheduleIDNum(schedule);
    item->Subject("Year end");
    item->DateFrom(Date::of(2026, 4, 5));
    item->TimeFrom(Date::timeOf(0, 10)); // the reminder falls on the weekend day before
    item->Remind(true);
    item->notifyType(1 | 8);
    item->notifiedDate(Date::of(2026, 4, 4));
    item->ShowNotificationWindow(true);
    return item;
}

constexpr auto appointment = enumLocalCalendarAppointmentItem;
constexpr auto task = enumLocalCalendarTaskItem;

/// A routine without a result of its own leaves its default as the text.
SweptRoutine onItem(const char* name, enumLocalCalendarItemType kind, std::function<std::string(clsCalendarItem&)> call,
                    const char* defaultResult = "")
{
    return {name, defaultResult, [kind, call](TestWorld& world) -> Run {
                return [item = itemOfKind(world, kind), call] { return call(*item); };
            }};
}

template <class Routine>
SweptRoutine withoutResult(const char* name, enumLocalCalendarItemType kind, Routine routine)
{
    return onItem(name, kind, [routine](clsCalendarItem& item) {
        routine(item);
        return std::string();
    });
}

std::vector<SweptRoutine> routines()
{
    std::vector<SweptRoutine> all = {
        withoutResult("ScheduleAnAppointmentsReminder", appointment,
                      [](clsCalendarItem& item) { item.schedulePopupReminderForItem(); }),
        withoutResult("ScheduleATasksReminder", task,
                      [](clsCalendarItem& item) { item.schedulePopupReminderForItem(); }),
        withoutResult("ScheduleWithTheReminderOff", appointment,
                      [](clsCalendarItem& item) {
                          item.Remind(false);
                          item.schedulePopupReminderForItem();
                      }),
        withoutResult("CancelPopups", task, [](clsCalendarItem& item) { item.checkToCancelPopups(true); }),
        withoutResult("CancelNotifications", appointment,
                      [](clsCalendarItem& item) { item.checkToCancelAutoNotifications(true); }),
        withoutResult("ScheduleAnAppointmentsNotifications", appointment,
                      [](clsCalendarItem& item) { item.scheduleAutoNotifications(); }),
        withoutResult("ScheduleATasksNotifications", task,
                      [](clsCalendarItem& item) { item.scheduleAutoNotifications(); }),
        onItem("StoredStatus", appointment,
               [](clsCalendarItem& item) { return item.getPopupReminderCurrentStatusText(true); }),
    };
    SweptRoutine planned =
        withoutResult("ReminderTime", task, [](clsCalendarItem& item) { item.getPopUpReminderTime(); });
    SweptRoutine words =
        onItem("PopupWords", appointment, [](clsCalendarItem& item) { return item.getPopUpReminderPopupText(); });
    for (SweptRoutine* routine : {&planned, &words}) {
        routine->needsDatabase = false;
        all.push_back(*routine);
    }
    return all;
}

class itemRemindersFaultSweepTest : public testing::TestWithParam<SweptRoutine> {};

TEST_P(itemRemindersFaultSweepTest, EveryFaultLeaves) { test::expectFaultsLeave(GetParam()); }
TEST_P(itemRemindersFaultSweepTest, EveryLastingFaultLeaves) { test::expectLastingFaultsLeave(GetParam()); }
TEST_P(itemRemindersFaultSweepTest, EveryFaultIsRetriedAlone) { test::expectFaultsRetry(GetParam()); }
TEST_P(itemRemindersFaultSweepTest, EveryEmptySlotLeaves) { test::expectEmptySlotsLeave(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Routines, itemRemindersFaultSweepTest, testing::ValuesIn(routines()), test::rowName);

} // namespace
} // namespace qncal
