#include "component/items/StoredItemTest.h"
#include "controls/mousePointer.h"
#include "core/RecordSet.h"
#include "support/FaultInjector.h"

namespace qncal {
namespace {

class clsCalendarItemLoadTest : public test::StoredItemTest {};
class clsCalendarItemLoadKindTest : public test::StoredItemKindTest {};

TEST_P(clsCalendarItemLoadKindTest, LoadsEveryColumnById)
{
    const auto& [kind, table, key] = GetParam();
    const std::int32_t id = addRow(table, test::fullRow);
    useKind(kind);
    item.itemID(id);
    ASSERT_TRUE(item.loadCalendarItem());
    EXPECT_EQ(recording->opened, (std::vector<std::pair<std::string, std::int32_t>>{
                                     {"SELECT " + table + ".* FROM " + table + " WHERE " + table + "." + key + "="
                                          + std::to_string(id) + ";",
                                      1}}));
    EXPECT_TRUE(recording->open.empty());
    EXPECT_TRUE(item.IsSaved());
    EXPECT_FALSE(item.IsDirty());
    EXPECT_EQ(item.itemID(), id);
    EXPECT_EQ(item.userIDNum(), 2);
    EXPECT_EQ(item.companyIDNum(), 5);
    EXPECT_EQ(item.contactIDNum(), -1);
    EXPECT_EQ(item.clientType(), 2);
    EXPECT_EQ(item.ScheduleTypeIDNum(), 3);
    EXPECT_EQ(item.ScheduleIDNum(), 4);
    EXPECT_EQ(item.ProjectStepIDNum(), 6);
    EXPECT_EQ(item.CommunicationLogIDNum(), 8);
    EXPECT_EQ(item.SeriesNum(), kind == enumLocalCalendarTaskItem ? 9 : 0);
    EXPECT_TRUE(item.RecurAnnually());
    EXPECT_EQ(item.RepeatNum(), 12);
    EXPECT_EQ(item.UserGroupNum(), 13);
    EXPECT_EQ(item.Subject(), "Budget");
    EXPECT_EQ(item.DateFrom(), Date::of(2026, 4, 2));
    EXPECT_EQ(item.TimeFrom(), Date::timeOf(11));
    EXPECT_EQ(item.TimeTo(), Date::timeOf(12, 30));
    EXPECT_EQ(item.timeduration(), 1.5F);
    EXPECT_EQ(item.BeforeAppointmentText(), "before");
    EXPECT_EQ(item.appointmentText(), "text");
    EXPECT_EQ(item.AfterAppointmentText(), "after");
    EXPECT_EQ(item.Notes_RichText(), "{\\rtf1 notes}");
    EXPECT_EQ(item.TitleText(), "title");
    EXPECT_EQ(item.ColourSchemeID(), 21);
    EXPECT_EQ(item.TitleBackColour(), 101);
    EXPECT_EQ(item.TitleForeColour(), 102);
    EXPECT_EQ(item.BackColour(), 103);
    EXPECT_EQ(item.ForeColour(), 104);
    EXPECT_TRUE(item.NotesFlag());
    EXPECT_TRUE(item.ClientNotifiedFlag());
    EXPECT_TRUE(item.Remind());
    EXPECT_EQ(item.reminderPeriod(), "1 Hr");
    EXPECT_TRUE(item.PrivateItem());
    EXPECT_EQ(item.notifyType(), 5);
    EXPECT_TRUE(item.hideInTasks());
    EXPECT_EQ(item.Custom1() + item.Custom2() + item.Custom3() + item.Custom4() + item.Custom5(), "c1c2c3c4c5");
    EXPECT_TRUE(item.Status1() && !item.Status2() && item.Status3() && !item.Status4() && item.Status5());
    EXPECT_EQ(item.CalendarItemArchiveStatus(), CalendarItemArchiveStatus_Normal);
}

TEST_P(clsCalendarItemLoadKindTest, ReadsTheColumnsInTheirOrder)
{
    class FieldNames : public ForwardingDatabaseService {
    public:
        using ForwardingDatabaseService::ForwardingDatabaseService;
        std::vector<std::string> names;
        Variant getField(std::int32_t handle, std::string_view name) override
        {
            names.emplace_back(name);
            return ForwardingDatabaseService::getField(handle, name);
        }
    };
    const auto& [kind, table, key] = GetParam();
    item.itemID(addRow(table, test::fullRow));
    useKind(kind);
    const auto fields = std::make_shared<FieldNames>(database);
    serviceRegistry().database = fields;
    ASSERT_TRUE(item.loadCalendarItem());
    std::vector<std::string> expected;
    for (const auto& [column, value] : test::fullRow) {
        if (column != "SeriesNum" || kind == enumLocalCalendarTaskItem)
            expected.emplace_back(column);
        if (column == "CompanyIDNum")
            expected.emplace_back("ContactIDNum");
    }
    EXPECT_EQ(fields->names, expected);
}

TEST_P(clsCalendarItemLoadKindTest, AnAllNullRowKeepsTheDefaults)
{
    const auto& [kind, table, key] = GetParam();
    item.itemID(addRow(table, {}));
    useKind(kind);
    ASSERT_TRUE(item.loadCalendarItem());
    EXPECT_EQ(item.Subject(), "");
    EXPECT_EQ(item.userIDNum(), -1);
    EXPECT_EQ(item.clientType(), 0);
    EXPECT_EQ(item.DateFrom(), today());
    EXPECT_EQ(item.TimeFrom(), Date::timeOf(9));
    EXPECT_EQ(item.TimeTo(), Date::timeOf(10));
    EXPECT_EQ(item.timeduration(), 1.0F);
    EXPECT_EQ(item.reminderPeriod(), "15 Min");
    EXPECT_EQ(item.TitleBackColour(), 10649190);
    EXPECT_EQ(item.ColourSchemeID(), -1);
}

INSTANTIATE_TEST_SUITE_P(Kinds, clsCalendarItemLoadKindTest, testing::ValuesIn(test::kindRows),
                         [](const auto& row) { return row.param.table; });

TEST_F(clsCalendarItemLoadTest, LoadingWithoutARowLeavesTheDefaults)
{
    useKind(enumLocalCalendarAppointmentItem);
    item.itemID(17);
    item.Subject("x");
    EXPECT_FALSE(item.loadCalendarItem());
    EXPECT_EQ(item.Subject(), "");
    EXPECT_EQ(item.itemID(), 17);
    EXPECT_FALSE(item.IsSaved());
    EXPECT_TRUE(recording->open.empty());
}

TEST_F(clsCalendarItemLoadTest, AnUnknownKindLoadsNothing)
{
    item.itemID(1);
    EXPECT_FALSE(item.loadCalendarItem());
    EXPECT_TRUE(recording->operations.empty());
}

TEST_F(clsCalendarItemLoadTest, ABlankedTitleLoadsEmpty)
{
    item.itemID(addRow("Appointments", {{"TitleText", " 0 "}}));
    useKind(enumLocalCalendarAppointmentItem);
    ASSERT_TRUE(item.loadCalendarItem());
    EXPECT_EQ(item.TitleText(), "");
}

TEST_F(clsCalendarItemLoadTest, DatesAndTimesAreReducedToTheirParts)
{
    item.itemID(addRow("Appointments", {{"DateFrom", "2026-04-02 13:00:00"}, {"TimeFrom", "2026-04-02 11:15:00"}}));
    useKind(enumLocalCalendarAppointmentItem);
    ASSERT_TRUE(item.loadCalendarItem());
    EXPECT_EQ(item.DateFrom(), Date::of(2026, 4, 2));
    EXPECT_EQ(item.TimeFrom(), Date::timeOf(11, 15));
}

TEST_F(clsCalendarItemLoadTest, LoadingStoresTheRawFieldsWithoutSideEffects)
{
    addRow("ColourSchemes", {{"BackColour", "77"}});
    item.itemID(addRow("Appointments", {{"CompanyIDNum", "5"},
                                        {"ContactIDNum", "7"},
                                        {"SchemeID", "1"},
                                        {"BackColour", "103"},
                                        {"notifyType", "4"},
                                        {"TextBody", "notes"}}));
    useKind(enumLocalCalendarAppointmentItem);
    ASSERT_TRUE(item.loadCalendarItem());
    EXPECT_EQ(item.companyIDNum(), 5);
    EXPECT_EQ(item.contactIDNum(), 7);
    EXPECT_EQ(item.clientType(), 1);
    EXPECT_EQ(item.BackColour(), 103);
    EXPECT_FALSE(item.ClientNotifiedFlag());
    EXPECT_FALSE(item.NotesFlag());
}

TEST_F(clsCalendarItemLoadTest, LoadsTheCurrentRecordOfACallersSetWhenItHasNoId)
{
    addRow("Appointments", {{"Subject", "first"}});
    const std::int32_t second = addRow("Appointments", {{"Subject", "second"}});
    useKind(enumLocalCalendarAppointmentItem);
    auto rst = RecordSet::openReadOnly("SELECT Appointments.* FROM Appointments;");
    rst.moveNext();
    startRecording();
    ASSERT_TRUE(item.loadCalendarItem(rst.handle()));
    EXPECT_EQ(item.itemID(), second);
    EXPECT_EQ(item.Subject(), "second");
    EXPECT_TRUE(recording->opened.empty());
    EXPECT_TRUE(database->isRecordsetOpen(rst.handle()));
    rst.close();
}

TEST_F(clsCalendarItemLoadTest, FindsItsIdInACallersSet)
{
    addRow("Appointments", {{"Subject", "first"}});
    const std::int32_t second = addRow("Appointments", {{"Subject", "second"}});
    useKind(enumLocalCalendarAppointmentItem);
    auto rst = RecordSet::openReadOnly("SELECT Appointments.* FROM Appointments;");
    startRecording();
    item.itemID(second);
    ASSERT_TRUE(item.loadCalendarItem(rst.handle()));
    EXPECT_EQ(item.Subject(), "second");
    EXPECT_TRUE(recording->opened.empty());
    rst.close();
}

TEST_F(clsCalendarItemLoadTest, OpensItsRowItselfWhenTheCallersSetLacksIt)
{
    const std::int32_t first = addRow("Appointments", {{"Subject", "first"}});
    const std::int32_t second = addRow("Appointments", {{"Subject", "second"}});
    useKind(enumLocalCalendarAppointmentItem);
    auto rst = RecordSet::openReadOnly(
        "SELECT Appointments.* FROM Appointments WHERE AppointmentID=" + std::to_string(first) + ";");
    item.itemID(second);
    ASSERT_TRUE(item.loadCalendarItem(rst.handle()));
    EXPECT_EQ(item.Subject(), "second");
    EXPECT_EQ(recording->open, std::vector<std::int32_t>{rst.handle()}) << "its own is closed, the caller's is not";
    rst.close();
}

TEST_F(clsCalendarItemLoadTest, AHandleOfZeroLoadsById)
{
    item.itemID(addRow("Appointments", {{"Subject", "by id"}}));
    useKind(enumLocalCalendarAppointmentItem);
    ASSERT_TRUE(item.loadCalendarItem(0));
    EXPECT_EQ(item.Subject(), "by id");
}

TEST_F(clsCalendarItemLoadTest, ALoadResetsTheArchiveStatusAndSoReadsTheLivingTable)
{
    addRow("archiveTasks", {{"Subject", "archived"}});
    const std::int32_t id = addRow("Tasks", {{"Subject", "living"}});
    useKind(enumLocalCalendarTaskItem);
    item.itemID(id);
    item.CalendarItemArchiveStatus(CalendarItemArchiveStatus_Archived);
    ASSERT_TRUE(item.loadCalendarItem());
    EXPECT_EQ(item.Subject(), "living");
    EXPECT_EQ(item.CalendarItemArchiveStatus(), CalendarItemArchiveStatus_Normal);
}

/// Loads while the reset that a load begins with cannot push its label: the item keeps its archive status.
bool loadWithoutReset(clsCalendarItem& item, std::int32_t tempRST = -1)
{
    test::FaultInjector faults;
    faults.failCall(2);
    const bool loaded = item.loadCalendarItem(tempRST);
    EXPECT_EQ(faults.failedOperation(), "enterRoutine");
    return loaded;
}

TEST_F(clsCalendarItemLoadTest, AnArchivedTaskThatCouldNotBeResetIsReadFromTheArchive)
{
    addRow("archiveTasks", {{"oldTaskID", "77"}, {"Subject", "archived"}, {"SeriesNum", "4"}});
    useKind(enumLocalCalendarTaskItem);
    item.itemID(77);
    item.CalendarItemArchiveStatus(CalendarItemArchiveStatus_Archived);
    ASSERT_TRUE(loadWithoutReset(item));
    EXPECT_EQ(errorsSeen(), 1u);
    EXPECT_EQ(recording->opened, (std::vector<std::pair<std::string, std::int32_t>>{
                                     {"SELECT archiveTasks.* FROM archiveTasks WHERE oldTaskID=77;", 1}}));
    EXPECT_EQ(item.itemID(), 77);
    EXPECT_EQ(item.Subject(), "archived");
    EXPECT_EQ(item.SeriesNum(), 4);
    EXPECT_EQ(item.CalendarItemArchiveStatus(), CalendarItemArchiveStatus_Archived);
    EXPECT_TRUE(item.IsSaved());
    EXPECT_FALSE(item.IsDirty());
    EXPECT_TRUE(recording->open.empty());
}

TEST_F(clsCalendarItemLoadTest, AnArchivedTaskThatTheArchiveLacksIsNotSoughtAmongTheLiving)
{
    const std::int32_t id = addRow("Tasks", {{"Subject", "living"}});
    useKind(enumLocalCalendarTaskItem);
    item.itemID(id);
    item.CalendarItemArchiveStatus(CalendarItemArchiveStatus_Archived);
    EXPECT_FALSE(loadWithoutReset(item));
    EXPECT_EQ(errorsSeen(), 1u);
    EXPECT_EQ(recording->openedSql(),
              std::vector<std::string>{"SELECT archiveTasks.* FROM archiveTasks WHERE oldTaskID=" + std::to_string(id)
                                       + ";"});
    EXPECT_EQ(item.CalendarItemArchiveStatus(), CalendarItemArchiveStatus_Archived);
    EXPECT_FALSE(item.IsSaved());
    EXPECT_TRUE(recording->open.empty());
}

TEST_F(clsCalendarItemLoadTest, AnArchivedTaskInACallersSetIsTakenFromThere)
{
    const std::int32_t id = addRow("Tasks", {{"Subject", "living"}});
    useKind(enumLocalCalendarTaskItem);
    item.itemID(id);
    item.CalendarItemArchiveStatus(CalendarItemArchiveStatus_Archived);
    auto rst = RecordSet::openReadOnly("SELECT Tasks.* FROM Tasks;");
    startRecording();
    EXPECT_TRUE(loadWithoutReset(item, rst.handle()));
    EXPECT_EQ(errorsSeen(), 1u);
    EXPECT_EQ(item.Subject(), "living");
    EXPECT_EQ(item.CalendarItemArchiveStatus(), CalendarItemArchiveStatus_Archived);
    EXPECT_TRUE(recording->opened.empty());
    rst.close();
}

TEST_F(clsCalendarItemLoadTest, OnlyTasksAreReadFromAnArchive)
{
    for (const auto& [kind, table, key] : {test::kindRows[0], test::kindRows[2]}) {
        const std::int32_t id = addRow(table, {{"Subject", "living"}});
        useKind(kind);
        item.itemID(id);
        item.CalendarItemArchiveStatus(CalendarItemArchiveStatus_Archived);
        EXPECT_TRUE(loadWithoutReset(item)) << table;
        EXPECT_EQ(errorsSeen(), 1u);
        EXPECT_EQ(recording->openedSql(),
                  std::vector<std::string>{"SELECT " + table + ".* FROM " + table + " WHERE " + table + "." + key + "="
                                           + std::to_string(id) + ";"});
        EXPECT_EQ(item.CalendarItemArchiveStatus(), CalendarItemArchiveStatus_Normal) << table;
    }
}

TEST_F(clsCalendarItemLoadTest, AFaultWhileLoadingGivesFalse)
{
    item.itemID(addRow("Appointments", {{"Subject", "x"}}));
    useKind(enumLocalCalendarAppointmentItem);
    serviceRegistry().utility.reset();
    EXPECT_FALSE(item.loadCalendarItem());
    EXPECT_FALSE(item.IsSaved());
    EXPECT_EQ(errorsSeen(), 1u);
    EXPECT_TRUE(recording->open.empty());
}

TEST_F(clsCalendarItemLoadTest, ThePointerIsTheHourglassWhileLoadingAndThenAsItWas)
{
    class PointerAtEachCall : public ForwardingDatabaseService {
    public:
        using ForwardingDatabaseService::ForwardingDatabaseService;
        std::vector<std::pair<std::string, MousePointer>> pointers;

    protected:
        void beforeCall(std::string_view operation) override { pointers.emplace_back(operation, mousePointer()); }
    };
    item.itemID(addRow("Appointments", {{"Subject", "x"}}));
    useKind(enumLocalCalendarAppointmentItem);
    const auto watched = std::make_shared<PointerAtEachCall>(database);
    serviceRegistry().database = watched;
    dialogs->mousePointer(static_cast<MousePointer>(2));
    ASSERT_TRUE(item.loadCalendarItem());
    EXPECT_EQ(watched->pointers.front().first, "isConnected");
    EXPECT_EQ(watched->pointers.back().first, "closeRecordset");
    for (const auto& [operation, pointer] : watched->pointers)
        EXPECT_EQ(pointer, MousePointer::hourglass) << operation;
    EXPECT_EQ(dialogs->mousePointer(), static_cast<MousePointer>(2));
}

TEST_F(clsCalendarItemLoadTest, ThePointerIsTheHourglassWhileSavingAndThenAsItWas)
{
    std::vector<MousePointer> whileSaving;
    item.refreshedTitleBarText.subscribe([&](std::string&) { whileSaving.push_back(dialogs->mousePointer()); });
    useKind(enumLocalCalendarAppointmentItem);
    dialogs->mousePointer(static_cast<MousePointer>(2));
    ASSERT_TRUE(item.saveCalendarItem());
    EXPECT_EQ(whileSaving, std::vector<MousePointer>{MousePointer::hourglass});
    EXPECT_EQ(dialogs->mousePointer(), static_cast<MousePointer>(2));
    ASSERT_TRUE(item.loadCalendarItem());
    EXPECT_EQ(dialogs->mousePointer(), static_cast<MousePointer>(2));
    item.itemID(999);
    ASSERT_FALSE(item.loadCalendarItem());
    EXPECT_EQ(dialogs->mousePointer(), static_cast<MousePointer>(2));
}

TEST_F(clsCalendarItemLoadTest, ThePointerStaysTheHourglassAfterAFault)
{
    item.itemID(addRow("Appointments", {{"Subject", "x"}}));
    useKind(enumLocalCalendarAppointmentItem);
    serviceRegistry().utility.reset();
    EXPECT_FALSE(item.loadCalendarItem());
    EXPECT_EQ(errorsSeen(), 1u);
    EXPECT_EQ(dialogs->mousePointer(), MousePointer::hourglass);
}

TEST_F(clsCalendarItemLoadTest, WithoutADialogHostThereIsNoPointer)
{
    item.itemID(addRow("Appointments", {{"Subject", "x"}}));
    useKind(enumLocalCalendarAppointmentItem);
    setDialogHost(nullptr);
    EXPECT_TRUE(item.loadCalendarItem());
    EXPECT_TRUE(item.saveCalendarItem());
}

} // namespace
} // namespace qncal
