#include "reminders/modPopUpReminders.h"

#include "support/ComponentTest.h"
#include "support/rowName.h"

#include <gtest/gtest.h>

// The words of a reminder from the rows that it hangs on.

namespace qncal {
namespace {

using namespace modPopUpReminders;
using Values = test::TestWorld::Values;

/// Company 8 and contact 5 are on the host's lists, no others.
template <class Row>
class ReminderTextTest : public test::ComponentTestWith<Row> {
protected:
    ReminderTextTest()
    {
        this->clientDropDown->companies[8] = {{"CompanyName", "Maple Leaf Bakery"}};
        this->clientDropDown->contacts[5] = {{"DisplayName", "Ann Reed"}};
    }
};

struct AppointmentRow {
    const char* name;
    Values values;
    const char* text;
};

class AppointmentReminderTextTest : public ReminderTextTest<AppointmentRow> {};

TEST_P(AppointmentReminderTextTest, IsReadFromTheRow)
{
    const auto id = addRow("Appointments", GetParam().values);
    EXPECT_EQ(getPopUpReminderText(reminderType::appointment, id), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, AppointmentReminderTextTest,
    testing::Values(
        AppointmentRow{
            "Company",
            {{"Subject", "Year end"}, {"CompanyIDNum", "8"}, {"ReminderPeriod", "5 Days"}, {"TimeFrom", "14:05"}},
            "Appointment: Year end\r\nYou have an appointment with Maple Leaf Bakery in 5 days at 2:05 pm."},
        AppointmentRow{"CompanyGoesBeforeContact",
                       {{"Subject", "a"},
                        {"CompanyIDNum", "8"},
                        {"ContactIDNum", "5"},
                        {"ReminderPeriod", "1 Hr"},
                        {"TimeFrom", "9:00"}},
                       "Appointment: a\r\nYou have an appointment with Maple Leaf Bakery in 1 hour at 9:00 am."},
        AppointmentRow{"Contact",
                       {{"Subject", "a"},
                        {"CompanyIDNum", "-1"},
                        {"ContactIDNum", "5"},
                        {"ReminderPeriod", "1 Hr"},
                        {"TimeFrom", "9:00"}},
                       "Appointment: a\r\nYou have an appointment with Ann Reed in 1 hour at 9:00 am."},
        AppointmentRow{"NoClient",
                       {{"Subject", "a"}, {"ReminderPeriod", "5 Weeks"}, {"TimeFrom", "9:00"}},
                       "Appointment: a\r\nYou have an appointment in 5 weeks at 9:00 am."},
        AppointmentRow{"ClientThatTheHostLacks",
                       {{"Subject", "a"}, {"CompanyIDNum", "99"}, {"ReminderPeriod", "1 Hr"}, {"TimeFrom", "9:00"}},
                       "Appointment: a\r\nYou have an appointment in 1 hour at 9:00 am."},
        AppointmentRow{"NullSubjectAndPeriod",
                       {{"CompanyIDNum", "8"}, {"TimeFrom", "9:00"}},
                       "Appointment: \r\nYou have an appointment with Maple Leaf Bakery at 9:00 am."},
        AppointmentRow{"PeriodOutsideOfTheTable",
                       {{"Subject", "a"}, {"ReminderPeriod", "4 Min"}, {"TimeFrom", "9:00"}},
                       "Appointment: a\r\nYou have an appointment at 9:00 am."}),
    test::rowName);

struct TaskRow {
    const char* name;
    Values schedule;
    Values client;
    const char* period;
    const char* text;
};

class TaskReminderTextTest : public ReminderTextTest<TaskRow> {};

TEST_P(TaskReminderTextTest, IsReadFromTheSchedule)
{
    if (!GetParam().client.empty())
        addRow("Clients", GetParam().client);
    const auto id = addRow("Schedule", GetParam().schedule);
    for (const std::int32_t type : {reminderType::task, reminderType::schedule})
        EXPECT_EQ(getPopUpReminderText(type, id, GetParam().period), GetParam().text) << type;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, TaskReminderTextTest,
    testing::Values(
        TaskRow{"Client",
                {{"ScheduleName", "Payroll"}, {"ClientNum", "1"}},
                {{"CompanyIDNum", "8"}},
                "1 Day",
                "Your upcoming Payroll task for Maple Leaf Bakery is due in 1 day"},
        TaskRow{"NoClient", {{"ScheduleName", "Payroll"}}, {}, "1 Day", "Your upcoming Payroll task is due in 1 day"},
        TaskRow{"ClientWithoutARow",
                {{"ScheduleName", "Payroll"}, {"ClientNum", "1"}},
                {},
                "1 Day",
                "Your upcoming Payroll task is due in 1 day"},
        TaskRow{"ClientThatTheHostLacks",
                {{"ScheduleName", "Payroll"}, {"ClientNum", "1"}},
                {{"CompanyIDNum", "99"}},
                "1 Day",
                "Your upcoming Payroll task is due in 1 day"},
        TaskRow{"NullName", {{"ClientNum", "-1"}}, {}, "1 Day", "Your upcoming  task is due in 1 day"},
        TaskRow{"PeriodOutsideOfTheTable", {{"ScheduleName", "Payroll"}}, {}, "4 Min", "Your upcoming Payroll task"}),
    test::rowName);

class MissingRowTextTest : public test::ComponentTest {};

TEST_F(MissingRowTextTest, LeavesTheSentenceAtItsDefaults)
{
    EXPECT_EQ(getPopUpReminderText(reminderType::task, 999, "1 Day"), "Your upcoming  task is due in 1 day");
    EXPECT_EQ(getPopUpReminderText(reminderType::task, 999), "Your upcoming  task");
    EXPECT_EQ(getPopUpReminderText(reminderType::appointment, 999),
              "Appointment: \r\nYou have an appointment at 12:00 am.");
}

TEST_F(MissingRowTextTest, OtherTypesHaveNoWords)
{
    for (const std::int32_t type : {1, 4, 6, 7, 8, 9, 10})
        EXPECT_EQ(getPopUpReminderText(type, 1), "") << type;
}

TEST_F(MissingRowTextTest, WithoutAPeriodATasksOwnIsRead)
{
    const auto schedule = addRow("Schedule", {{"ScheduleName", "Payroll"}});
    addRow("Tasks", {{"ScheduleIDNum", std::to_string(schedule)}, {"ReminderPeriod", "2 Weeks"}});
    EXPECT_EQ(getPopUpReminderText(reminderType::task, schedule), "Your upcoming Payroll task is due in 2 weeks");
}

} // namespace
} // namespace qncal
