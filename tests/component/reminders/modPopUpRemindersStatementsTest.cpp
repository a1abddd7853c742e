#include "reminders/modPopUpReminders.h"

#include "component/reminders/reminderTypes.h"
#include "support/ComponentTest.h"
#include "support/RecordingDatabase.h"
#include "support/rowName.h"

#include <gmock/gmock.h>

// What the database is asked, word for word and in which order; hosts may rely on it.

namespace qncal {
namespace {

using namespace modPopUpReminders;
using test::TypeRow;
using test::typesOnRecords;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using Texts = std::vector<std::string>;

const Date reminderDay = Date::of(2026, 3, 30);
const Date reminderTime = Date::timeOf(9, 15);
constexpr auto readOnly = DatabaseService::readOnly;
constexpr auto updatable = DatabaseService::updatable;

template <class Base>
class Recorded : public Base {
protected:
    Recorded() { serviceRegistry().database = recording; }

    std::shared_ptr<test::RecordingDatabase> recording = std::make_shared<test::RecordingDatabase>(this->database);
};

class ReminderStatementTest : public Recorded<test::ComponentTestWith<TypeRow>> {
protected:
    ReminderStatementTest()
    {
        ids.companyID = 8; // given, so that none is looked up
        ids.*GetParam().id = 17;
    }
    /// The condition that finds the reminder.
    static std::string condition()
    {
        return std::string("UserIDNum = 1 AND ") + GetParam().column
               + " = 17 AND ReminderType = " + std::to_string(GetParam().type) + ";";
    }
    static std::string findStatement()
    {
        return std::string("SELECT Reminders.ReminderID, Reminders.UserIDNum, Reminders.") + GetParam().column
               + ", Reminders.ReminderType FROM Reminders WHERE " + condition();
    }

    std::int32_t type = GetParam().type;
    ReminderIDs ids;
};

TEST_P(ReminderStatementTest, LooksForTheRowThenAddsOne)
{
    ASSERT_TRUE(createPopUpReminder(type, 1, reminderDay, reminderTime, "words", ids));
    EXPECT_THAT(recording->opened,
                ElementsAre(Pair(findStatement(), readOnly), Pair("SELECT Reminders.* FROM Reminders;", updatable)));
    EXPECT_THAT(recording->open, IsEmpty());
}

TEST_P(ReminderStatementTest, LooksForTheRowThenChangesIt)
{
    addRow("Reminders", {{"UserIDNum", "2"}});
    addRow("Reminders",
           {{"UserIDNum", "1"}, {GetParam().column, "17"}, {"ReminderType", std::to_string(GetParam().type)}});
    ASSERT_TRUE(createPopUpReminder(type, 1, reminderDay, reminderTime, "words", ids));
    EXPECT_THAT(recording->opened,
                ElementsAre(Pair(findStatement(), readOnly),
                            Pair("SELECT Reminders.* FROM Reminders WHERE ReminderID=2;", updatable)));
    EXPECT_THAT(recording->open, IsEmpty());
}

TEST_P(ReminderStatementTest, DeletesWhatTheSameConditionFinds)
{
    deletePopUpReminder(type, 1, ids);
    EXPECT_THAT(recording->opened,
                ElementsAre(Pair("SELECT Reminders.* FROM Reminders WHERE " + condition(), updatable)));
    EXPECT_THAT(recording->open, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Types, ReminderStatementTest, testing::ValuesIn(typesOnRecords), test::rowName);
INSTANTIATE_TEST_SUITE_P(ToDo, ReminderStatementTest,
                         testing::Values(TypeRow{"ToDo", 4, "ToDoIDNum", &ReminderIDs::toDoID}), test::rowName);

struct WrittenRow {
    const char* name;
    std::int32_t type;
    ReminderIDs ids;
    Texts written;
};

class ReminderColumnsTest : public Recorded<test::ComponentTestWith<WrittenRow>> {};

TEST_P(ReminderColumnsTest, AreWrittenInTheirOrderToANewRowAndToOneThatIsThere)
{
    for (const char* turn : {"new", "existing"}) {
        recording->written.clear();
        std::int32_t type = GetParam().type;
        ReminderIDs ids = GetParam().ids;
        ASSERT_TRUE(createPopUpReminder(type, 1, reminderDay, reminderTime, "words", ids));
        EXPECT_EQ(recording->written, GetParam().written) << turn;
    }
    EXPECT_EQ(rowCount("Reminders"), 1);
}

const ReminderIDs appointmentOfACompany{.companyID = 8, .appointmentOrScheduleID = 17};
const ReminderIDs appointmentOfAContact{.contactID = 5, .appointmentOrScheduleID = 17};
const ReminderIDs everyID{0, 0, 17, 18, 19, 20, 21, 22, 23};

INSTANTIATE_TEST_SUITE_P(
    Types, ReminderColumnsTest,
    testing::Values(WrittenRow{"AppointmentOfACompany",
                               3,
                               appointmentOfACompany,
                               {"UserIDNum=1", "CompanyIDNum=8", "AppointmentIDNum=17", "ReminderType=3",
                                "ReminderDate=2026-03-30", "ReminderTime=09:15 am", "TextBody=words"}},
                    WrittenRow{"AppointmentOfAContact",
                               3,
                               appointmentOfAContact,
                               {"UserIDNum=1", "ContactIDNum=5", "AppointmentIDNum=17", "ReminderType=3",
                                "ReminderDate=2026-03-30", "ReminderTime=09:15 am", "TextBody=words"}},
                    WrittenRow{"TaskWithEveryID",
                               5,
                               everyID,
                               {"UserIDNum=1", "CompanyIDNum=0", "ContactIDNum=0", "TaskIDNum=18",
                                "CommunicationLogIDNum=21", "MissingInfoIDNum=20", "CompanyProjectIDNum=22",
                                "CompanyProjectStepIDNum=23", "ReminderType=5", "ReminderDate=2026-03-30",
                                "ReminderTime=09:15 am", "TextBody=words"}}),
    test::rowName);

class ReminderCallsTest : public Recorded<test::ComponentTest> {};

TEST_F(ReminderCallsTest, ANewRowIsAddedAndClosed)
{
    std::int32_t type = reminderType::newRow;
    ReminderIDs ids;
    ASSERT_TRUE(createPopUpReminder(type, 1, reminderDay, reminderTime, "words", ids));
    EXPECT_EQ(recording->operations, (Texts{"isConnected", "openRecordset", "addNew", "setNewField", "setNewField",
                                            "setNewField", "setNewField", "setNewField", "update", "closeRecordset"}));
}

TEST_F(ReminderCallsTest, TheWordsOfATaskAskItsScheduleThenItsPeriodAndClient)
{
    addRow("Schedule", {{"ScheduleName", "Payroll"}, {"ClientNum", "4"}});
    getPopUpReminderText(reminderType::task, 1);
    EXPECT_THAT(
        recording->opened,
        ElementsAre(
            Pair("SELECT Schedule.ScheduleID, Schedule.ClientNum, Schedule.ScheduleName FROM Schedule "
                 "WHERE ScheduleID=1;",
                 readOnly),
            Pair("SELECT Tasks.ScheduleIDNum, Tasks.ReminderPeriod FROM Tasks WHERE ScheduleIDNum=1;", readOnly),
            Pair("SELECT Clients.ClientID, Clients.CompanyIDNum FROM Clients WHERE ClientID=4;", readOnly)));
    EXPECT_THAT(recording->open, IsEmpty());
}

TEST_F(ReminderCallsTest, TheWordsOfAnAppointmentAskItsRow)
{
    getPopUpReminderText(reminderType::appointment, 17);
    EXPECT_THAT(recording->opened,
                ElementsAre(Pair("SELECT Appointments.AppointmentID, Appointments.Subject, Appointments.CompanyIDNum, "
                                 "Appointments.ContactIDNum, Appointments.ReminderPeriod, Appointments.TimeFrom "
                                 "FROM Appointments WHERE AppointmentID=17;",
                                 readOnly)));
    EXPECT_THAT(recording->open, IsEmpty());
}

TEST_F(ReminderCallsTest, WithoutAConnectionNothingIsOpened)
{
    recording->connected = false;
    for (std::int32_t type = 1; type <= 10; ++type) {
        ReminderIDs ids{-1, -1, 17, 18, 19, 20, 21, 22, 23};
        std::int32_t changed = type;
        EXPECT_FALSE(createPopUpReminder(changed, 1, reminderDay, reminderTime, "words", ids)) << type;
        changed = type;
        EXPECT_FALSE(deletePopUpReminder(changed, 1, ids)) << type;
        EXPECT_EQ(getPopUpReminderText(type, 17), "") << type;
    }
    EXPECT_THAT(recording->opened, IsEmpty());
}

} // namespace
} // namespace qncal
