#include "reminders/modPopUpReminders.h"

#include "component/reminders/reminderTypes.h"
#include "support/ComponentTest.h"
#include "support/rowName.h"

#include <gtest/gtest.h>

// What becomes of the rows: made, moved, found again and deleted.

namespace qncal {
namespace {

using namespace modPopUpReminders;
using test::TypeRow;
using test::typesOnRecords;

const Date reminderDay = Date::of(2026, 3, 30);
const Date reminderTime = Date::timeOf(9, 15);

class PopUpReminderTest : public test::ComponentTest {
protected:
    bool create(std::int32_t type, ReminderIDs ids, const std::string& text = "words")
    {
        return createPopUpReminder(type, 1, reminderDay, reminderTime, text, ids);
    }
    static bool remove(std::int32_t type, ReminderIDs ids) { return deletePopUpReminder(type, 1, ids); }
    std::string reminder(std::int32_t key, std::string_view column) { return cell("Reminders", key, column); }
};

class PopUpReminderTypeTest : public test::ComponentTestWith<TypeRow> {};

TEST_P(PopUpReminderTypeTest, HangsOnItsRecordAndIsMovedWhenMadeAgain)
{
    ReminderIDs ids;
    ids.*GetParam().id = 17;
    std::int32_t type = GetParam().type;
    ASSERT_TRUE(createPopUpReminder(type, 1, reminderDay, reminderTime, "first", ids));
    EXPECT_EQ(cell("Reminders", 1, GetParam().column), "17");
    EXPECT_EQ(cell("Reminders", 1, "ReminderType"), std::to_string(GetParam().type));
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

TEST_P(PopUpReminderTypeTest, LeavesTheReminderOfAnotherTypeAlone)
{
    const std::string otherType = GetParam().type == reminderType::task ? "3" : "5";
    const auto other =
        addRow("Reminders", {{"UserIDNum", "1"}, {GetParam().column, "17"}, {"ReminderType", otherType}});
    ReminderIDs ids;
    ids.*GetParam().id = 17;
    std::int32_t type = GetParam().type;
    ASSERT_TRUE(createPopUpReminder(type, 1, reminderDay, reminderTime, "words", ids));
    EXPECT_EQ(rowCount("Reminders"), 2);
    EXPECT_EQ(cell("Reminders", other, "TextBody"), "Null");
    EXPECT_TRUE(deletePopUpReminder(type, 1, ids));
    EXPECT_EQ(rowCount("Reminders"), 1);
    EXPECT_EQ(cell("Reminders", other, "ReminderType"), otherType);
}

INSTANTIATE_TEST_SUITE_P(Types, PopUpReminderTypeTest, testing::ValuesIn(typesOnRecords), test::rowName);

TEST_F(PopUpReminderTest, TypesOneAndSixAlwaysMakeANewRow)
{
    for (const std::int32_t type : {1, 6, 1, 6})
        EXPECT_TRUE(create(type, {}));
    EXPECT_EQ(rowCount("Reminders"), 4);
    for (std::int32_t key = 1; key <= 4; ++key)
        EXPECT_EQ(reminder(key, "ReminderType"), key % 2 == 1 ? "1" : "6");
    EXPECT_FALSE(remove(1, {}));
    EXPECT_EQ(rowCount("Reminders"), 4);
}

TEST_F(PopUpReminderTest, AToDosReminderIsFoundByItsColumnButMadeWithoutIt)
{
    ReminderIDs ids;
    ids.toDoID = 17;
    ASSERT_TRUE(create(reminderType::toDo, ids));
    EXPECT_EQ(reminder(1, "ToDoIDNum"), "Null");
    EXPECT_EQ(reminder(1, "ReminderType"), "4");
    const auto found = addRow("Reminders", {{"UserIDNum", "1"}, {"ToDoIDNum", "17"}, {"ReminderType", "4"}});
    ASSERT_TRUE(create(reminderType::toDo, ids, "moved"));
    EXPECT_EQ(rowCount("Reminders"), 2);
    EXPECT_EQ(reminder(found, "TextBody"), "moved");
    EXPECT_EQ(reminder(found, "ToDoIDNum"), "17");
    EXPECT_TRUE(remove(reminderType::toDo, ids));
    EXPECT_EQ(rowCount("Reminders"), 1);
    EXPECT_EQ(reminder(found, "TextBody"), "no row");
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
    EXPECT_EQ(reminder(1, "AppointmentIDNum"), "Null") << "the schedule's id is none";
    EXPECT_EQ(reminder(1, "CompanyIDNum"), "8") << "the task's client";
}

TEST_F(PopUpReminderTest, ATypeTwoIsDeletedAsATask)
{
    const auto task = addRow("Tasks", {{"ScheduleIDNum", "31"}});
    addRow("Reminders", {{"UserIDNum", "1"}, {"TaskIDNum", std::to_string(task)}, {"ReminderType", "5"}});
    std::int32_t type = reminderType::schedule;
    ReminderIDs ids;
    ids.appointmentOrScheduleID = 31;
    EXPECT_TRUE(deletePopUpReminder(type, 1, ids));
    EXPECT_EQ(rowCount("Reminders"), 0);
    EXPECT_EQ(type, reminderType::task);
    EXPECT_EQ(ids.taskID, task);
}

TEST_F(PopUpReminderTest, ATypeTwoWithAnUnknownScheduleKeepsTheLookupsDefault)
{
    ReminderIDs ids;
    ids.appointmentOrScheduleID = 99;
    EXPECT_TRUE(create(reminderType::schedule, ids));
    EXPECT_EQ(reminder(1, "TaskIDNum"), "-1");
}

TEST_F(PopUpReminderTest, EveryRowFoundIsDeleted)
{
    for (const char* user : {"1", "2", "1"})
        addRow("Reminders", {{"UserIDNum", user}, {"AppointmentIDNum", "17"}, {"ReminderType", "3"}});
    ReminderIDs ids;
    ids.appointmentOrScheduleID = 17;
    EXPECT_TRUE(remove(reminderType::appointment, ids));
    EXPECT_EQ(rowCount("Reminders"), 1);
    EXPECT_EQ(reminder(2, "UserIDNum"), "2");
}

TEST_F(PopUpReminderTest, FurtherIdsAreStoredWhateverTheType)
{
    ReminderIDs ids;
    ids.communicationLogID = 4;
    ids.companyProjectID = 0;
    ASSERT_TRUE(create(reminderType::appointment, ids));
    EXPECT_EQ(reminder(1, "AppointmentIDNum"), "-1") << "an appointment's id is stored even when it is none";
    EXPECT_EQ(reminder(1, "CommunicationLogIDNum"), "4");
    EXPECT_EQ(reminder(1, "CompanyProjectIDNum"), "0");
    EXPECT_EQ(reminder(1, "MissingInfoIDNum"), "Null");
    EXPECT_EQ(reminder(1, "CompanyProjectStepIDNum"), "Null");
}

struct ClientRow {
    const char* name;
    std::int32_t type;
    const char* table;
    std::int32_t ReminderIDs::*id;
};

class PopUpReminderClientTest : public test::ComponentTestWith<ClientRow> {};

TEST_P(PopUpReminderClientTest, IsFilledInFromTheRecordOnlyWhenNoneIsGiven)
{
    const auto record = addRow(GetParam().table, {{"CompanyIDNum", "8"}, {"ContactIDNum", "5"}});
    const auto createFor = [&](std::int32_t companyID, std::int32_t contactID) {
        std::int32_t type = GetParam().type;
        ReminderIDs ids;
        ids.companyID = companyID;
        ids.contactID = contactID;
        ids.*GetParam().id = record;
        // A user for each, so that each gets a row of its own.
        const std::int32_t user = rowCount("Reminders") + 1;
        EXPECT_TRUE(createPopUpReminder(type, user, reminderDay, reminderTime, "words", ids));
        return cell("Reminders", user, "CompanyIDNum") + " " + cell("Reminders", user, "ContactIDNum");
    };
    EXPECT_EQ(createFor(-1, -1), "8 5");
    EXPECT_EQ(createFor(0, -1), "0 Null");
    EXPECT_EQ(createFor(-1, 6), "Null 6");
}

INSTANTIATE_TEST_SUITE_P(
    Types, PopUpReminderClientTest,
    testing::Values(ClientRow{"Appointment", 3, "Appointments", &ReminderIDs::appointmentOrScheduleID},
                    ClientRow{"Task", 5, "Tasks", &ReminderIDs::taskID},
                    ClientRow{"MissingInfo", 7, "MissingInfo", &ReminderIDs::missingInfoID},
                    ClientRow{"CommunicationLog", 8, "CommunicationLog", &ReminderIDs::communicationLogID}),
    test::rowName);

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

} // namespace
} // namespace qncal
