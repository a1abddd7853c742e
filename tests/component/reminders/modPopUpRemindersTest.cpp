#include "reminders/modPopUpReminders.h"

#include "support/ComponentTest.h"
#include "support/RoutineSweep.h"
#include "support/rowName.h"

#include <gtest/gtest.h>

namespace qncal {
namespace {

using namespace modPopUpReminders;

const Date reminderDay = Date::of(2026, 3, 30);
const Date reminderTime = Date::timeOf(9, 15);

class PopUpReminderTest : public test::ComponentTest {
protected:
    bool create(std::int32_t type, ReminderIDs ids, const std::string& text = "words")
    {
        return createPopUpReminder(type, 1, reminderDay, reminderTime, text, ids);
    }
    std::string reminder(std::int32_t key, std::string_view column) { return cell("Reminders", key, column); }
};

struct TypeRow {
    const char* name;
    std::int32_t type;
    const char* column;
    std::int32_t ReminderIDs::*id;
};

class PopUpReminderTypeTest : public test::ComponentTestWith<TypeRow> {};

TEST_P(PopUpReminderTypeTest, HangsOnItsRecordAndIsMovedWhenMadeAgain)
{
    ReminderIDs ids;
    ids.*GetParam().id = 17;
    std::int32_t type = GetParam().type;
    ASSERT_TRUE(createPopUpReminder(type, 1, reminderDay, reminderTime, "first", ids));
    EXPECT_EQ(cell("Reminders", 1, GetParam().column), "17");
    EXPECT_EQ(cell("Reminders", 1, "UserIDNum"), "1");
    EXPECT_EQ(cell("Reminders", 1, "ReminderDate"), "2026-03-30");
    EXPECT_EQ(cell("Reminders", 1, "ReminderTime"), "09:15:00");
    ASSERT_TRUE(createPopUpReminder(type, 1, reminderDay.addDays(1), reminderTime, "second", ids));
    EXPECT_EQ(rowCount("Reminders"), 1);
    EXPECT_EQ(cell("Reminders", 1, "ReminderDate"), "2026-03-31");
    EXPECT_EQ(cell("Reminders", 1, "TextBody"), "second");
    ASSERT_TRUE(createPopUpReminder(type, 2, reminderDay, reminderTime, "another user", ids));
    EXPECT_EQ(rowCount("Reminders"), 2);
    EXPECT_TRUE(deletePopUpReminder(type, 1, ids));
    EXPECT_EQ(rowCount("Reminders"), 1);
    EXPECT_FALSE(deletePopUpReminder(type, 1, ids)) << "nothing is left";
}

INSTANTIATE_TEST_SUITE_P(
    Types, PopUpReminderTypeTest,
    testing::Values(TypeRow{"Appointment", 3, "AppointmentIDNum", &ReminderIDs::appointmentOrScheduleID},
                    TypeRow{"Task", 5, "TaskIDNum", &ReminderIDs::taskID},
                    TypeRow{"MissingInfo", 7, "MissingInfoIDNum", &ReminderIDs::missingInfoID},
                    TypeRow{"CommunicationLog", 8, "CommunicationLogIDNum", &ReminderIDs::communicationLogID},
                    TypeRow{"CompanyProject", 9, "CompanyProjectIDNum", &ReminderIDs::companyProjectID},
                    TypeRow{"CompanyProjectStep", 10, "CompanyProjectStepIDNum", &ReminderIDs::companyProjectStepID}),
    test::rowName);

TEST_F(PopUpReminderTest, TypesOneAndSixAlwaysMakeANewRow)
{
    for (const std::int32_t type : {1, 6, 1, 6})
        EXPECT_TRUE(create(type, {}));
    EXPECT_EQ(rowCount("Reminders"), 4);
    std::int32_t type = 1;
    ReminderIDs ids;
    EXPECT_FALSE(deletePopUpReminder(type, 1, ids));
    EXPECT_EQ(rowCount("Reminders"), 4);
}

TEST_F(PopUpReminderTest, ATypeTwoBecomesATaskByItsSchedule)
{
    const auto task = addRow("Tasks", {{"ScheduleIDNum", "31"}, {"CompanyIDNum", "8"}});
    std::int32_t type = reminderType::schedule;
    ReminderIDs ids;
    ids.appointmentOrScheduleID = 31;
    ASSERT_TRUE(createPopUpReminder(type, 1, reminderDay, reminderTime, "words", ids));
    EXPECT_EQ(type, reminderType::task);
    EXPECT_EQ(ids.taskID, task);
    EXPECT_EQ(reminder(1, "ReminderType"), "5");
    EXPECT_EQ(reminder(1, "TaskIDNum"), std::to_string(task));
    EXPECT_EQ(reminder(1, "CompanyIDNum"), "8") << "the task's client";
}

TEST_F(PopUpReminderTest, ATypeTwoWithAnUnknownScheduleKeepsTheLookupsDefault)
{
    ReminderIDs ids;
    ids.appointmentOrScheduleID = 99;
    EXPECT_TRUE(create(reminderType::schedule, ids));
    EXPECT_EQ(reminder(1, "TaskIDNum"), "-1");
}

TEST_F(PopUpReminderTest, TheClientIsFilledInOnlyWhenNoneIsGiven)
{
    const auto appointment = addRow("Appointments", {{"CompanyIDNum", "8"}});
    ReminderIDs ids;
    ids.appointmentOrScheduleID = appointment;
    create(reminderType::appointment, ids);
    EXPECT_EQ(reminder(1, "CompanyIDNum"), "8");
    EXPECT_EQ(reminder(1, "ContactIDNum"), "Null");
    ids.contactID = 5;
    create(reminderType::appointment, ids);
    EXPECT_EQ(reminder(1, "ContactIDNum"), "5");
}

TEST_F(PopUpReminderTest, WithoutAConnectionNothingIsWritten)
{
    database->close();
    EXPECT_FALSE(create(reminderType::newRow, {}));
    std::int32_t type = reminderType::appointment;
    ReminderIDs ids;
    EXPECT_FALSE(deletePopUpReminder(type, 1, ids));
    EXPECT_EQ(getPopUpReminderText(reminderType::appointment, 1), "");
}

struct MomentRow {
    const char* name;
    const char* period;
    Date start;
    Date date;
    Date time;
};

class ReminderMomentTest : public test::ComponentTestWith<MomentRow> {};

TEST_P(ReminderMomentTest, LiesThePeriodAhead)
{
    Date date = GetParam().start.dateOnly();
    Date time = GetParam().start.timeOnly();
    modPopUpReminders::getPopUpReminderTime(GetParam().period, date, time);
    EXPECT_EQ(date, GetParam().date);
    EXPECT_EQ(defaultDateText(time), defaultDateText(GetParam().time));
}

INSTANTIATE_TEST_SUITE_P(
    Moments, ReminderMomentTest,
    testing::Values(
        MomentRow{"SameDay", "15 Min", Date::of(2026, 3, 31, 9, 30), Date::of(2026, 3, 31), Date::timeOf(9, 15)},
        MomentRow{"AWeek", "1 Week", Date::of(2026, 3, 31, 9, 30), Date::of(2026, 3, 24), Date::timeOf(9, 30)},
        MomentRow{"OverMidnight", "1 Hr", Date::of(2026, 3, 31, 0, 30), Date::of(2026, 3, 30), Date::timeOf(23, 30)},
        MomentRow{"OnASunday", "1 Day", Date::of(2026, 3, 30, 9, 0), Date::of(2026, 3, 27), Date::timeOf(9)},
        MomentRow{"SameWeekendDayStays", "15 Min", Date::of(2026, 3, 29, 9, 0), Date::of(2026, 3, 29),
                  Date::timeOf(8, 45)},
        MomentRow{"OutsideOfTheTable", "4 Min", Date::of(2026, 3, 31, 9, 30), Date::of(2026, 3, 31),
                  Date::timeOf(9, 30)},
        MomentRow{"SecondsAreCut", "5 Min", Date::of(2026, 3, 31, 9, 30, 59), Date::of(2026, 3, 31),
                  Date::timeOf(9, 25)}),
    test::rowName);

TEST_F(PopUpReminderTest, AnAppointmentIsToldWithItsClientAndTime)
{
    clientDropDown->companies[8] = {{"CompanyName", "Maple Leaf Bakery"}};
    const auto appointment =
        addRow("Appointments",
               {{"Subject", "Year end"}, {"CompanyIDNum", "8"}, {"ReminderPeriod", "5 Days"}, {"TimeFrom", "14:05"}});
    EXPECT_EQ(getPopUpReminderText(reminderType::appointment, appointment),
              "Appointment: Year end\r\nYou have an appointment with Maple Leaf Bakery in 5 days at 2:05 pm.");
    setCell("Appointments", appointment, "CompanyIDNum", "");
    EXPECT_EQ(getPopUpReminderText(reminderType::appointment, appointment),
              "Appointment: Year end\r\nYou have an appointment in 5 days at 2:05 pm.");
    EXPECT_EQ(getPopUpReminderText(reminderType::appointment, 999), "");
}

TEST_F(PopUpReminderTest, ATaskIsToldByItsSchedule)
{
    clientDropDown->companies[8] = {{"CompanyName", "Maple Leaf Bakery"}};
    const auto client = addRow("Clients", {{"CompanyIDNum", "8"}});
    const auto schedule = addRow("Schedule", {{"ScheduleName", "Payroll"}, {"ClientNum", std::to_string(client)}});
    EXPECT_EQ(getPopUpReminderText(reminderType::task, schedule, "1 Day"),
              "Your upcoming Payroll task for Maple Leaf Bakery is due in 1 day");
    addRow("Tasks", {{"ScheduleIDNum", std::to_string(schedule)}, {"ReminderPeriod", "2 Weeks"}});
    setCell("Schedule", schedule, "ClientNum", "");
    EXPECT_EQ(getPopUpReminderText(reminderType::task, schedule), "Your upcoming Payroll task is due in 2 weeks");
}

const test::SweptRoutine sweptRoutines[] = {
    {"createPopUpReminder", "False",
     [](test::TestWorld& world) {
         const auto appointment = world.addRow("Appointments", {{"CompanyIDNum", "8"}});
         return [appointment] {
             std::int32_t type = reminderType::appointment;
             ReminderIDs ids;
             ids.appointmentOrScheduleID = appointment;
             return std::string(booleanText(createPopUpReminder(type, 1, reminderDay, reminderTime, "words", ids)));
         };
     }},
    {"deletePopUpReminder", "False",
     [](test::TestWorld& world) {
         world.addRow("Reminders", {{"UserIDNum", "1"}, {"TaskIDNum", "4"}, {"ReminderType", "5"}});
         return [] {
             std::int32_t type = reminderType::task;
             ReminderIDs ids;
             ids.taskID = 4;
             return std::string(booleanText(deletePopUpReminder(type, 1, ids)));
         };
     }},
    {"getPopUpReminderText", "",
     [](test::TestWorld& world) {
         const auto appointment = world.addRow("Appointments", {{"Subject", "Year end"}, {"CompanyIDNum", "8"}});
         return [appointment] { return getPopUpReminderText(reminderType::appointment, appointment); };
     }},
};

class PopUpReminderSweep : public testing::TestWithParam<test::SweptRoutine> {};

TEST_P(PopUpReminderSweep, FaultsLeave) { test::expectFaultsLeave(GetParam()); }
TEST_P(PopUpReminderSweep, LastingFaultsLeave) { test::expectLastingFaultsLeave(GetParam()); }
TEST_P(PopUpReminderSweep, FaultsRetry) { test::expectFaultsRetry(GetParam()); }
TEST_P(PopUpReminderSweep, EmptySlotsLeave) { test::expectEmptySlotsLeave(GetParam()); }

INSTANTIATE_TEST_SUITE_P(Routines, PopUpReminderSweep, testing::ValuesIn(sweptRoutines), test::rowName);

} // namespace
} // namespace qncal
