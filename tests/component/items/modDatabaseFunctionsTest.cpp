#include "items/modDatabaseFunctions.h"

#include "support/ComponentTest.h"
#include "support/RecordingDatabase.h"
#include "support/rowName.h"

namespace qncal {
namespace {

namespace mod = modDatabaseFunctions;

class modDatabaseFunctionsTest : public test::ComponentTest {
protected:
    modDatabaseFunctionsTest() { serviceRegistry().database = recording; }

    std::shared_ptr<test::RecordingDatabase> recording = std::make_shared<test::RecordingDatabase>(database);
};

// Usable ids.

struct ValidID {
    const char* name;
    bool (*valid)(const std::string& id);
};

class validIDTest : public test::ComponentTestWith<ValidID> {};

TEST_P(validIDTest, TakesNumbersAboveZeroAlone)
{
    const std::pair<const char*, bool> texts[] = {
        {"0", false},   {"-3", false},  {"abc", false}, {"", false},    {"12", true},
        {" 12 ", true}, {"0.4", false}, {"1.6", true},  {"12a", false}, {"2147483647", true},
    };
    for (const auto& [text, valid] : texts)
        EXPECT_EQ(GetParam().valid(text), valid) << text;
    EXPECT_EQ(errors->labels().front(), std::string("Vestrel.exe-modDatabaseFunctions-") + GetParam().name);
}

TEST_P(validIDTest, ANumberThatIsNoIdIsReportedAndFalse)
{
    EXPECT_FALSE(GetParam().valid("2147483648"));
    const auto reported = errors->takeErrors();
    ASSERT_EQ(reported.size(), 1u);
    EXPECT_EQ(reported[0].number, 6);
}

INSTANTIATE_TEST_SUITE_P(
    Family, validIDTest,
    testing::Values(ValidID{"validAppointmentID", mod::validAppointmentID},
                    ValidID{"validDocketID", mod::validDocketID}, ValidID{"validScheduleID", mod::validScheduleID},
                    ValidID{"validTaskID", mod::validTaskID}, ValidID{"validClientID", mod::validClientID},
                    ValidID{"validCompanyID", mod::validCompanyID}, ValidID{"validContactID", mod::validContactID},
                    ValidID{"validFirmID", mod::validFirmID}, ValidID{"validEmployeeID", mod::validEmployeeID},
                    ValidID{"validColourSchemeID", mod::validColourSchemeID}),
    test::rowName);

// Clients of records.

struct ClientLookup {
    const char* name;
    std::int32_t (*lookUp)(std::int32_t id);
    const char* table;
    const char* column;
    const char* query;
};

class ClientLookupTest : public modDatabaseFunctionsTest, public testing::WithParamInterface<ClientLookup> {};

TEST_P(ClientLookupTest, ReadsTheClientOfTheRecord)
{
    const std::int32_t id = addRow(GetParam().table, {{GetParam().column, "31"}});
    EXPECT_EQ(GetParam().lookUp(id), 31);
    EXPECT_EQ(recording->opened,
              (std::vector<std::pair<std::string, std::int32_t>>{{GetParam().query + std::to_string(id) + ";", 1}}));
    EXPECT_TRUE(recording->open.empty());
    EXPECT_EQ(errors->labels(),
              std::vector<std::string>{std::string("Vestrel.exe-modDatabaseFunctions-") + GetParam().name});
}

TEST_P(ClientLookupTest, NoRowNullOrNoConnectionIsMinusOne)
{
    EXPECT_EQ(GetParam().lookUp(99), -1);
    const std::int32_t id = addRow(GetParam().table, {});
    EXPECT_EQ(GetParam().lookUp(id), -1);
    setCell(GetParam().table, id, GetParam().column, "31");
    recording->connected = false;
    EXPECT_EQ(GetParam().lookUp(id), -1);
}

INSTANTIATE_TEST_SUITE_P(
    Family, ClientLookupTest,
    testing::Values(ClientLookup{"getCompanyIDFromTaskID", mod::getCompanyIDFromTaskID, "Tasks", "CompanyIDNum",
                                 "SELECT Tasks.TaskID, Tasks.CompanyIDNum FROM Tasks WHERE TaskID="},
                    ClientLookup{"getContactIDFromTaskID", mod::getContactIDFromTaskID, "Tasks", "ContactIDNum",
                                 "SELECT Tasks.TaskID, Tasks.ContactIDNum FROM Tasks WHERE TaskID="},
                    ClientLookup{"getCompanyIDFromAppointmentID", mod::getCompanyIDFromAppointmentID, "Appointments",
                                 "CompanyIDNum",
                                 "SELECT Appointments.AppointmentID, Appointments.CompanyIDNum FROM Appointments WHERE "
                                 "AppointmentID="},
                    ClientLookup{"getContactIDFromAppointmentID", mod::getContactIDFromAppointmentID, "Appointments",
                                 "ContactIDNum",
                                 "SELECT Appointments.AppointmentID, Appointments.ContactIDNum FROM Appointments WHERE "
                                 "AppointmentID="},
                    ClientLookup{"getCompanyIDFromMissingInfoID", mod::getCompanyIDFromMissingInfoID, "MissingInfo",
                                 "CompanyIDNum",
                                 "SELECT MissingInfo.MissingInfoID, MissingInfo.CompanyIDNum FROM MissingInfo WHERE "
                                 "MissingInfoID="},
                    ClientLookup{"getContactIDFromMissingInfoID", mod::getContactIDFromMissingInfoID, "MissingInfo",
                                 "ContactIDNum",
                                 "SELECT MissingInfo.MissingInfoID, MissingInfo.ContactIDNum FROM MissingInfo WHERE "
                                 "MissingInfoID="},
                    ClientLookup{"getCompanyIDFromCommunicationLogID", mod::getCompanyIDFromCommunicationLogID,
                                 "CommunicationLog", "CompanyIDNum",
                                 "SELECT CommunicationLog.CommunicationLogID, CommunicationLog.CompanyIDNum FROM "
                                 "CommunicationLog WHERE CommunicationLogID="},
                    ClientLookup{"getContactIDFromCommunicationLogID", mod::getContactIDFromCommunicationLogID,
                                 "CommunicationLog", "ContactIDNum",
                                 "SELECT CommunicationLog.CommunicationLogID, CommunicationLog.ContactIDNum FROM "
                                 "CommunicationLog WHERE CommunicationLogID="}),
    test::rowName);

// Series and groups.

struct Tie {
    const char* name;
    const char* column;
    bool (*isTied)(enumLocalCalendarItemType kind, std::int32_t itemID);
    std::int32_t (*number)(enumLocalCalendarItemType kind, std::int32_t itemID);
    std::int32_t (*freeNumber)(enumLocalCalendarItemType kind);
};

class TieTest : public modDatabaseFunctionsTest, public testing::WithParamInterface<Tie> {
protected:
    void useNumbers(const std::vector<int>& numbers)
    {
        for (const int number : numbers)
            addRow("Tasks", {{GetParam().column, std::to_string(number)}});
    }
};

TEST_P(TieTest, ReadsTheNumberByKind)
{
    for (const char* table : {"Appointments", "Tasks", "Dockets"}) {
        const auto kind = static_cast<enumLocalCalendarItemType>(table == std::string("Appointments") ? 0
                                                                 : table == std::string("Tasks")      ? 1
                                                                                                      : 2);
        const std::int32_t tied = addRow(table, {{GetParam().column, "6"}});
        const std::int32_t free = addRow(table, {{GetParam().column, "0"}});
        EXPECT_TRUE(GetParam().isTied(kind, tied));
        EXPECT_EQ(GetParam().number(kind, tied), 6);
        EXPECT_FALSE(GetParam().isTied(kind, free));
        EXPECT_EQ(GetParam().number(kind, free), 0);
        EXPECT_FALSE(GetParam().isTied(kind, 99));
        EXPECT_EQ(GetParam().number(kind, 99), 0);
    }
}

TEST_P(TieTest, AnUnknownKindHasNone)
{
    EXPECT_FALSE(GetParam().isTied(enumLocalCalendarUnknownItem, 1));
    EXPECT_EQ(GetParam().number(enumLocalCalendarUnknownItem, 1), 0);
    EXPECT_EQ(GetParam().freeNumber(enumLocalCalendarUnknownItem), 0);
    EXPECT_TRUE(recording->opened.empty());
}

TEST_P(TieTest, TheFreeNumberOfAnEmptyTableIsZero)
{
    EXPECT_EQ(GetParam().freeNumber(enumLocalCalendarTaskItem), 0);
    const std::string column = GetParam().column;
    EXPECT_EQ(recording->openedSql(), std::vector<std::string>{"SELECT Tasks." + column + " From Tasks GROUP BY Tasks."
                                                               + column + " ORDER BY Tasks." + column + ";"});
    EXPECT_TRUE(recording->open.empty());
}

TEST_P(TieTest, EveryQuestionOpensToReadOnly)
{
    GetParam().isTied(enumLocalCalendarDocketItem, 1);
    GetParam().number(enumLocalCalendarDocketItem, 1);
    GetParam().freeNumber(enumLocalCalendarDocketItem);
    ASSERT_EQ(recording->opened.size(), 3u);
    for (const auto& [sql, lock] : recording->opened)
        EXPECT_EQ(lock, DatabaseService::readOnly) << sql;
}

TEST_P(TieTest, ZeroIsFreeWhenOnlyLaterOnesAreUsed)
{
    useNumbers({4, 1, 2, 2});
    EXPECT_EQ(GetParam().freeNumber(enumLocalCalendarTaskItem), 0);
}

TEST_P(TieTest, AGapIsUsedAgain)
{
    useNumbers({0, 1, 2, 4});
    EXPECT_EQ(GetParam().freeNumber(enumLocalCalendarTaskItem), 3);
    EXPECT_EQ(GetParam().freeNumber(enumLocalCalendarAppointmentItem), 0) << "each table counts for itself";
}

TEST_P(TieTest, ANullIsNoNumber)
{
    addRow("Tasks", {});
    EXPECT_EQ(GetParam().freeNumber(enumLocalCalendarTaskItem), 0);
}

TEST_P(TieTest, WithoutAConnectionTheNumberIsZero)
{
    useNumbers({0, 1});
    recording->connected = false;
    EXPECT_EQ(GetParam().freeNumber(enumLocalCalendarTaskItem), 0);
    EXPECT_EQ(GetParam().number(enumLocalCalendarTaskItem, 2), 0);
}

INSTANTIATE_TEST_SUITE_P(Family, TieTest,
                         testing::Values(Tie{"Series", "RepeatNum", mod::isAppointmentRepeaterAppointment,
                                             mod::getAppointmentRepeaterID, mod::getAppointmentRepeatUniqueID},
                                         Tie{"Group", "UserGroupNum", mod::isAppointmentPartOfGroupedAppointment,
                                             mod::getAppointmentGroupID, mod::getAppointmentGroupUniqueID}),
                         test::rowName);

TEST_F(modDatabaseFunctionsTest, DeletesTheSeriesOfOneUserWithRemindersAndNotifications)
{
    const auto first = addRow("Appointments", {{"RepeatNum", "3"}, {"UserIDNum", "1"}});
    const auto otherUser = addRow("Appointments", {{"RepeatNum", "3"}, {"UserIDNum", "2"}});
    const auto second = addRow("Appointments", {{"RepeatNum", "3"}, {"UserIDNum", "1"}});
    const auto otherSeries = addRow("Appointments", {{"RepeatNum", "4"}, {"UserIDNum", "1"}});
    addRow("Reminders", {{"AppointmentIDNum", std::to_string(first)}, {"Completed", "True"}});
    addRow("ClientNotification", {{"AppointmentNum", std::to_string(second)}});
    const auto kept = addRow("Reminders", {{"AppointmentIDNum", std::to_string(otherUser)}});

    EXPECT_TRUE(mod::deleteRepeaterAppointmentForUser(enumLocalCalendarAppointmentItem, 3, 1));
    EXPECT_EQ(cell("Appointments", first, "RepeatNum"), "no row");
    EXPECT_EQ(cell("Appointments", second, "RepeatNum"), "no row");
    EXPECT_EQ(cell("Appointments", otherUser, "RepeatNum"), "3");
    EXPECT_EQ(cell("Appointments", otherSeries, "RepeatNum"), "4");
    EXPECT_EQ(rowCount("Reminders"), 1);
    EXPECT_EQ(cell("Reminders", kept, "Completed"), "False");
    EXPECT_EQ(rowCount("ClientNotification"), 0);
    EXPECT_TRUE(recording->open.empty());
    EXPECT_FALSE(mod::deleteRepeaterAppointmentForUser(enumLocalCalendarAppointmentItem, 3, 1)) << "none is left";
}

TEST_F(modDatabaseFunctionsTest, NoSeriesIsDeletedWithoutAKindOrAConnection)
{
    addRow("Appointments", {{"RepeatNum", "3"}, {"UserIDNum", "1"}});
    EXPECT_FALSE(mod::deleteRepeaterAppointmentForUser(enumLocalCalendarUnknownItem, 3, 1));
    recording->connected = false;
    EXPECT_FALSE(mod::deleteRepeaterAppointmentForUser(enumLocalCalendarAppointmentItem, 3, 1));
    EXPECT_EQ(rowCount("Appointments"), 1);
}

// Tasks and schedule rows.

TEST_F(modDatabaseFunctionsTest, FindsTheTaskOfAScheduleRow)
{
    const std::int32_t id = addRow("Tasks", {{"ScheduleIDNum", "40"}});
    addRow("archiveTasks", {{"oldTaskID", "77"}, {"ScheduleIDNum", "41"}});
    EXPECT_EQ(mod::getTaskIDFromScheduleID(40), id);
    EXPECT_EQ(mod::getTaskIDFromScheduleID(41), 77);
    EXPECT_EQ(mod::getTaskIDFromScheduleID(42), -1);
    EXPECT_EQ(mod::getTaskIDFromScheduleID(-1), -1);
    recording->connected = false;
    EXPECT_EQ(mod::getTaskIDFromScheduleID(40), -1);
}

TEST_F(modDatabaseFunctionsTest, TheTaskOfAScheduleRowIsSoughtAmongTheLivingFirst)
{
    mod::getTaskIDFromScheduleID(41);
    EXPECT_EQ(recording->opened, (std::vector<std::pair<std::string, std::int32_t>>{
                                     {"SELECT Tasks.TaskID, Tasks.ScheduleIDNum FROM Tasks WHERE ScheduleIDNum=41;", 1},
                                     {"SELECT archiveTasks.oldTaskID, archiveTasks.ScheduleIDNum FROM archiveTasks "
                                      "WHERE ScheduleIDNum=41;",
                                      1}}));
    EXPECT_TRUE(recording->open.empty());
}

TEST_F(modDatabaseFunctionsTest, AnIndependentScheduleEntryHasItsTwoMarkers)
{
    const std::tuple<const char*, const char*, bool> entries[] = {
        {"111", "5", true}, {"111", "4", false}, {"110", "5", false}, {"5", "111", false}};
    for (const auto& [total, step, independent] : entries) {
        const std::int32_t schedule = addRow("Schedule", {{"totalNum", total}, {"scheduleNum", step}});
        const std::int32_t task = addRow("Tasks", {{"ScheduleIDNum", std::to_string(schedule)}});
        EXPECT_EQ(mod::isThisTaskAssociatedWithIndependentScheduleEntry(task), independent) << total << " " << step;
    }
    recording->opened.resize(2);
    EXPECT_EQ(recording->opened,
              (std::vector<std::pair<std::string, std::int32_t>>{
                  {"SELECT Tasks.TaskID, Tasks.ScheduleIDNum FROM Tasks WHERE TaskID=1;", 1},
                  {"SELECT Schedule.ScheduleID, Schedule.scheduleNum, Schedule.totalNum FROM Schedule "
                   "WHERE ScheduleID=1;",
                   1}}));
    EXPECT_TRUE(recording->open.empty());
}

TEST_F(modDatabaseFunctionsTest, ATaskWithoutAScheduleRowIsNotIndependent)
{
    EXPECT_FALSE(mod::isThisTaskAssociatedWithIndependentScheduleEntry(99));
    EXPECT_FALSE(mod::isThisTaskAssociatedWithIndependentScheduleEntry(addRow("Tasks", {})));
    EXPECT_FALSE(mod::isThisTaskAssociatedWithIndependentScheduleEntry(addRow("Tasks", {{"ScheduleIDNum", "7"}})));
    EXPECT_FALSE(mod::isThisTaskAssociatedWithIndependentScheduleEntry(
        addRow("Tasks", {{"ScheduleIDNum", std::to_string(addRow("Schedule", {}))}})));
}

// Colour schemes.

TEST_F(modDatabaseFunctionsTest, NamesAColourScheme)
{
    const std::int32_t id = addRow("ColourSchemes", {{"SchemeName", "Sea"}});
    EXPECT_EQ(mod::getColourSchemeNameFromColourSchemeID(id), "Sea");
    EXPECT_EQ(mod::getColourSchemeNameFromColourSchemeID(99), "");
    EXPECT_EQ(mod::getColourSchemeNameFromColourSchemeID(addRow("ColourSchemes", {})), "");
    EXPECT_EQ(recording->openedSql().front(),
              "SELECT ColourSchemes.ColourSchemeID, ColourSchemes.SchemeName FROM ColourSchemes "
              "WHERE ColourSchemes.ColourSchemeID = "
                  + std::to_string(id) + ";");
    recording->connected = false;
    EXPECT_EQ(mod::getColourSchemeNameFromColourSchemeID(id), "");
}

} // namespace
} // namespace qncal
