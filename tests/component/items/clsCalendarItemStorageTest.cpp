#include "core/RecordSet.h"
#include "items/clsCalendarItem.h"
#include "support/ComponentTest.h"
#include "support/RecordingDatabase.h"
#include "utilities/RunTimeError.h"

#include <algorithm>

namespace qncal {
namespace {

struct KindRow {
    enumLocalCalendarItemType kind;
    std::string table;
    std::string key;
};

const KindRow kindRows[] = {{enumLocalCalendarAppointmentItem, "Appointments", "AppointmentID"},
                            {enumLocalCalendarTaskItem, "Tasks", "TaskID"},
                            {enumLocalCalendarDocketItem, "Dockets", "DocketID"}};

/// A row with a value of its own in every column.
const test::TestWorld::Values fullRow = {
    {"UserIDNum", "2"},
    {"CompanyIDNum", "5"},
    {"ScheduleTypeIDNum", "3"},
    {"ScheduleIDNum", "4"},
    {"CompanyProjectStepIDNum", "6"},
    {"CommunicationLogIDNum", "8"},
    {"SeriesNum", "9"},
    {"RecurAnnually", "True"},
    {"RepeatNum", "12"},
    {"UserGroupNum", "13"},
    {"Subject", "Budget"},
    {"DateFrom", "2026-04-02"},
    {"TimeFrom", "11:00:00"},
    {"TimeTo", "12:30:00"},
    {"BeforeAppointmentText", "before"},
    {"AppointmentText", "text"},
    {"AfterAppointmentText", "after"},
    {"TextBody", "{\\rtf1 notes}"},
    {"TitleText", "title"},
    {"SchemeID", "21"},
    {"TitleBackColour", "101"},
    {"TitleForeColour", "102"},
    {"BackColour", "103"},
    {"ForeColour", "104"},
    {"NotesFlag", "True"},
    {"ClientNotifiedFlag", "True"},
    {"Remind", "True"},
    {"ReminderPeriod", "1 Hr"},
    {"Private", "True"},
    {"notifyType", "5"},
    {"hideInTasks", "True"},
    {"Custom1", "c1"},
    {"Custom2", "c2"},
    {"Custom3", "c3"},
    {"Custom4", "c4"},
    {"Custom5", "c5"},
    {"Status1", "True"},
    {"Status2", "False"},
    {"Status3", "True"},
    {"Status4", "False"},
    {"Status5", "True"},
};

class clsCalendarItemStorageTest : public test::ComponentTest {
protected:
    clsCalendarItemStorageTest()
    {
        // Templates without fields: the texts are rendered, but have nothing to merge.
        Values templates{{"UserIDNum", "-1"}};
        for (const char* column : {"ApptTitleBarText", "ApptTemplate", "TaskTitleBarText", "TaskTemplate",
                                   "DocketTitleBarText", "DocketTemplate"})
            templates.emplace_back(column, "text");
        addRow("UserCalendarSettings", templates);
        serviceRegistry().database = recording;
    }

    /// The templates are loaded by then, so that the record holds what the routine under test does.
    void startRecording()
    {
        recording->opened.clear();
        recording->written.clear();
        recording->operations.clear();
        errorsSeen();
    }
    /// The statements on a table and their lock types; rendering the texts opens others before them.
    std::vector<std::pair<std::string, std::int32_t>> openedOn(const std::string& table) const
    {
        auto statements = recording->opened;
        std::erase_if(statements,
                      [&](const auto& statement) { return !statement.first.starts_with("SELECT " + table + "."); });
        return statements;
    }
    std::size_t errorsSeen() { return errors->takeErrors().size(); }
    void useKind(enumLocalCalendarItemType kind)
    {
        item.calendarItemType(kind);
        startRecording();
    }

    std::shared_ptr<test::RecordingDatabase> recording = std::make_shared<test::RecordingDatabase>(database);
    clsCalendarItem item;
};

class clsCalendarItemKindTest : public clsCalendarItemStorageTest, public testing::WithParamInterface<KindRow> {};

TEST_P(clsCalendarItemKindTest, LoadsEveryColumnById)
{
    const auto& [kind, table, key] = GetParam();
    const std::int32_t id = addRow(table, fullRow);
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

TEST_P(clsCalendarItemKindTest, ReadsTheColumnsInTheirOrder)
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
    item.itemID(addRow(table, fullRow));
    useKind(kind);
    const auto fields = std::make_shared<FieldNames>(database);
    serviceRegistry().database = fields;
    ASSERT_TRUE(item.loadCalendarItem());
    std::vector<std::string> expected;
    for (const auto& [column, value] : fullRow) {
        if (column != "SeriesNum" || kind == enumLocalCalendarTaskItem)
            expected.emplace_back(column);
        if (column == "CompanyIDNum")
            expected.emplace_back("ContactIDNum");
    }
    EXPECT_EQ(fields->names, expected);
}

TEST_P(clsCalendarItemKindTest, AnAllNullRowKeepsTheDefaults)
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

TEST_P(clsCalendarItemKindTest, SavesEveryColumnInTheOrderOfSaving)
{
    const auto& [kind, table, key] = GetParam();
    item.itemID(addRow(table, fullRow));
    useKind(kind);
    ASSERT_TRUE(item.loadCalendarItem());
    startRecording();
    ASSERT_TRUE(item.saveCalendarItem());
    std::vector<std::string> expected = {"UserIDNum=2",
                                         "CompanyIDNum=5",
                                         "ContactIDNum=-1",
                                         "ScheduleTypeIDNum=3",
                                         "ScheduleIDNum=4",
                                         "CompanyProjectStepIDNum=6",
                                         "CommunicationLogIDNum=8",
                                         "SeriesNum=9",
                                         "RecurAnnually=True",
                                         "RepeatNum=12",
                                         "UserGroupNum=13",
                                         "Subject=Budget",
                                         "DateFrom=2026-04-02",
                                         "TimeFrom=11:00:00",
                                         "TimeTo=12:30:00",
                                         "BeforeAppointmentText=before",
                                         "AppointmentText=" + item.appointmentText(),
                                         "AfterAppointmentText=after",
                                         "TextBody={\\rtf1 notes}",
                                         "TitleText=" + item.TitleText(),
                                         "SchemeID=21",
                                         "TitleBackColour=101",
                                         "TitleForeColour=102",
                                         "BackColour=103",
                                         "ForeColour=104",
                                         "Remind=True",
                                         "ReminderPeriod=1 Hr",
                                         "Private=True",
                                         "hideInTasks=True",
                                         "Custom1=c1",
                                         "Custom2=c2",
                                         "Custom3=c3",
                                         "Custom4=c4",
                                         "Custom5=c5",
                                         "Status1=True",
                                         "Status2=False",
                                         "Status3=True",
                                         "Status4=False",
                                         "Status5=True",
                                         "AppointmentText=" + item.appointmentText(),
                                         "TitleText=" + item.TitleText(),
                                         "notifyType=5"};
    if (kind != enumLocalCalendarTaskItem)
        std::erase(expected, "SeriesNum=9");
    recording->written.resize(std::min(recording->written.size(), expected.size())); // reminders may follow
    EXPECT_EQ(recording->written, expected);
}

TEST_P(clsCalendarItemKindTest, ANewItemAddsARowAndTakesItsId)
{
    const auto& [kind, table, key] = GetParam();
    useKind(kind);
    item.itemID(0);
    item.userIDNum(2);
    item.Subject("Lunch");
    ASSERT_TRUE(item.saveCalendarItem());
    EXPECT_TRUE(item.IsSaved());
    EXPECT_FALSE(item.IsDirty());
    EXPECT_GT(item.itemID(), 0);
    EXPECT_EQ(rowCount(table), 1);
    EXPECT_EQ(cell(table, item.itemID(), "Subject"), "Lunch");
    EXPECT_EQ(cell(table, item.itemID(), "UserIDNum"), "2");
    EXPECT_EQ(openedOn(table),
              (std::vector<std::pair<std::string, std::int32_t>>{{"SELECT " + table + ".* FROM " + table + ";", 3}}));
    EXPECT_EQ(recording->written.front(), "Subject=New " + item.CalendarItemTypeClassRef()->TypeName());
    EXPECT_TRUE(recording->open.empty());
}

TEST_P(clsCalendarItemKindTest, DeletesTheRowWithItsNotifications)
{
    const auto& [kind, table, key] = GetParam();
    const std::int32_t id = addRow(table, {});
    addRow("ClientNotification", {{table == "Appointments" ? "AppointmentNum"
                                   : table == "Tasks"      ? "TaskNum"
                                                           : "DocketNum",
                                   std::to_string(id)},
                                  {"NotificationSent", "True"}});
    useKind(kind);
    item.itemID(id);
    EXPECT_TRUE(item.deleteCalendarItem());
    EXPECT_EQ(rowCount(table), 0);
    EXPECT_EQ(rowCount("ClientNotification"), 0);
    EXPECT_EQ(recording->opened.front(),
              (std::pair<std::string, std::int32_t>{"SELECT " + table + "." + key + " FROM " + table + " WHERE " + table
                                                        + "." + key + "=" + std::to_string(id) + ";",
                                                    3}));
    EXPECT_TRUE(recording->open.empty());
    EXPECT_FALSE(item.deleteCalendarItem()) << "the row has gone";
}

INSTANTIATE_TEST_SUITE_P(Kinds, clsCalendarItemKindTest, testing::ValuesIn(kindRows),
                         [](const auto& row) { return row.param.table; });

// Loading.

TEST_F(clsCalendarItemStorageTest, LoadingWithoutARowLeavesTheDefaults)
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

TEST_F(clsCalendarItemStorageTest, AnUnknownKindLoadsNothing)
{
    item.itemID(1);
    EXPECT_FALSE(item.loadCalendarItem());
    EXPECT_TRUE(recording->operations.empty());
}

TEST_F(clsCalendarItemStorageTest, WithoutAConnectionNothingIsLoadedSavedOrDeleted)
{
    const std::int32_t id = addRow("Appointments", {{"Subject", "stays"}});
    useKind(enumLocalCalendarAppointmentItem);
    recording->connected = false;
    item.itemID(id);
    item.Subject("changed");
    EXPECT_FALSE(item.saveCalendarItem());
    EXPECT_TRUE(item.IsDirty());
    EXPECT_FALSE(item.deleteCalendarItem());
    EXPECT_FALSE(item.loadCalendarItem());
    EXPECT_TRUE(recording->opened.empty());
    EXPECT_EQ(cell("Appointments", id, "Subject"), "stays");
}

TEST_F(clsCalendarItemStorageTest, ABlankedTitleLoadsEmpty)
{
    item.itemID(addRow("Appointments", {{"TitleText", " 0 "}}));
    useKind(enumLocalCalendarAppointmentItem);
    ASSERT_TRUE(item.loadCalendarItem());
    EXPECT_EQ(item.TitleText(), "");
}

TEST_F(clsCalendarItemStorageTest, DatesAndTimesAreReducedToTheirParts)
{
    item.itemID(addRow("Appointments", {{"DateFrom", "2026-04-02 13:00:00"}, {"TimeFrom", "2026-04-02 11:15:00"}}));
    useKind(enumLocalCalendarAppointmentItem);
    ASSERT_TRUE(item.loadCalendarItem());
    EXPECT_EQ(item.DateFrom(), Date::of(2026, 4, 2));
    EXPECT_EQ(item.TimeFrom(), Date::timeOf(11, 15));
}

TEST_F(clsCalendarItemStorageTest, LoadingStoresTheRawFieldsWithoutSideEffects)
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

TEST_F(clsCalendarItemStorageTest, LoadsTheCurrentRecordOfACallersSetWhenItHasNoId)
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

TEST_F(clsCalendarItemStorageTest, FindsItsIdInACallersSet)
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

TEST_F(clsCalendarItemStorageTest, OpensItsRowItselfWhenTheCallersSetLacksIt)
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

TEST_F(clsCalendarItemStorageTest, AHandleOfZeroLoadsById)
{
    item.itemID(addRow("Appointments", {{"Subject", "by id"}}));
    useKind(enumLocalCalendarAppointmentItem);
    ASSERT_TRUE(item.loadCalendarItem(0));
    EXPECT_EQ(item.Subject(), "by id");
}

TEST_F(clsCalendarItemStorageTest, ALoadResetsTheArchiveStatusAndSoReadsTheLivingTable)
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

TEST_F(clsCalendarItemStorageTest, AFaultWhileLoadingGivesFalse)
{
    item.itemID(addRow("Appointments", {{"Subject", "x"}}));
    useKind(enumLocalCalendarAppointmentItem);
    serviceRegistry().utility.reset();
    EXPECT_FALSE(item.loadCalendarItem());
    EXPECT_FALSE(item.IsSaved());
    EXPECT_EQ(errorsSeen(), 1u);
    EXPECT_TRUE(recording->open.empty());
}

// Saving.

TEST_F(clsCalendarItemStorageTest, SavingAVanishedRowAddsANewOne)
{
    useKind(enumLocalCalendarAppointmentItem);
    item.itemID(17);
    ASSERT_TRUE(item.saveCalendarItem());
    EXPECT_NE(item.itemID(), 17);
    EXPECT_EQ(rowCount("Appointments"), 1);
    EXPECT_EQ(openedOn("Appointments")[0].first,
              "SELECT Appointments.* FROM Appointments WHERE Appointments.AppointmentID=17;");
    EXPECT_EQ(openedOn("Appointments")[1].first, "SELECT Appointments.* FROM Appointments;");
    EXPECT_TRUE(recording->open.empty());
}

TEST_F(clsCalendarItemStorageTest, SavesIntoTheCallersRecordWithoutUpdateOrClose)
{
    const std::int32_t id = addRow("Appointments", {{"Subject", "old"}});
    useKind(enumLocalCalendarAppointmentItem);
    auto rst = RecordSet::openUpdatable("SELECT Appointments.* FROM Appointments;");
    startRecording();
    item.Subject("new");
    ASSERT_TRUE(item.saveCalendarItem(rst.handle()));
    EXPECT_EQ(cell("Appointments", id, "Subject"), "new");
    EXPECT_EQ(item.itemID(), -1) << "the record is the caller's to know";
    EXPECT_EQ(std::ranges::count(recording->operations, "update"), 0);
    EXPECT_TRUE(database->isRecordsetOpen(rst.handle()));
    rst.close();
}

TEST_F(clsCalendarItemStorageTest, SavingPutsStartAndEndInOrder)
{
    useKind(enumLocalCalendarAppointmentItem);
    item.TimeFrom(Date::timeOf(15));
    item.TimeTo(Date::timeOf(11));
    ASSERT_TRUE(item.saveCalendarItem());
    EXPECT_EQ(item.TimeFrom(), Date::timeOf(11));
    EXPECT_EQ(item.TimeTo(), Date::timeOf(15));
    EXPECT_NE(std::ranges::find(recording->written, "TimeFrom=11:00:00"), recording->written.end());
}

TEST_F(clsCalendarItemStorageTest, SavingSetsTheFlagsInTheItemButNotInTheirColumns)
{
    const std::int32_t id = addRow("Tasks", {{"NotesFlag", "False"}, {"ClientNotifiedFlag", "False"}});
    useKind(enumLocalCalendarTaskItem);
    item.itemID(id);
    item.Notes_RichText("notes");
    item.NotesFlag(false);
    item.Notified_ByFax(true);
    ASSERT_TRUE(item.saveCalendarItem());
    EXPECT_TRUE(item.NotesFlag());
    EXPECT_TRUE(item.ClientNotifiedFlag());
    EXPECT_EQ(cell("Tasks", id, "NotesFlag"), "False");
    EXPECT_EQ(cell("Tasks", id, "ClientNotifiedFlag"), "False");
    EXPECT_EQ(cell("Tasks", id, "notifyType"), "2");
}

TEST_F(clsCalendarItemStorageTest, AnAppointmentWithoutReminderLosesItsOpenOnesAndKeepsTheRest)
{
    const std::int32_t id = addRow("Appointments", {});
    const std::string number = std::to_string(id);
    const auto open = addRow("Reminders", {{"AppointmentIDNum", number}, {"Completed", "False"}});
    const auto done = addRow("Reminders", {{"AppointmentIDNum", number}, {"Completed", "True"}});
    const auto other = addRow("Reminders", {{"AppointmentIDNum", "999"}, {"Completed", "False"}});
    const auto waiting = addRow("ClientNotification", {{"AppointmentNum", number}, {"NotificationSent", "False"}});
    const auto sent = addRow("ClientNotification", {{"AppointmentNum", number}, {"NotificationSent", "True"}});
    useKind(enumLocalCalendarAppointmentItem);
    item.itemID(id);
    ASSERT_TRUE(item.saveCalendarItem());
    EXPECT_EQ(cell("Reminders", open, "Completed"), "no row");
    EXPECT_EQ(cell("Reminders", done, "Completed"), "True");
    EXPECT_EQ(cell("Reminders", other, "Completed"), "False");
    EXPECT_EQ(cell("ClientNotification", waiting, "NotificationSent"), "no row");
    EXPECT_EQ(cell("ClientNotification", sent, "NotificationSent"), "True");
}

TEST_F(clsCalendarItemStorageTest, ATaskWithoutReminderCancelsNothing)
{
    const std::int32_t id = addRow("Tasks", {});
    addRow("Reminders", {{"TaskIDNum", std::to_string(id)}});
    addRow("ClientNotification", {{"TaskNum", std::to_string(id)}});
    useKind(enumLocalCalendarTaskItem);
    item.itemID(id);
    ASSERT_TRUE(item.saveCalendarItem());
    EXPECT_EQ(rowCount("Reminders"), 1);
    EXPECT_EQ(rowCount("ClientNotification"), 1);
}

TEST_F(clsCalendarItemStorageTest, AnArchivedTaskIsWrittenToTheArchivedTable)
{
    useKind(enumLocalCalendarTaskItem);
    item.CalendarItemArchiveStatus(CalendarItemArchiveStatus_Archived);
    item.Subject("old task");
    ASSERT_TRUE(item.saveCalendarItem());
    EXPECT_EQ(openedOn("archivedTasks").front().first, "SELECT archivedTasks.* FROM archivedTasks;");
    EXPECT_EQ(cell("archivedTasks", item.itemID(), "Subject"), "old task");

    startRecording();
    item.Subject("changed");
    ASSERT_TRUE(item.saveCalendarItem());
    EXPECT_EQ(openedOn("archivedTasks").front().first,
              "SELECT archivedTasks.* FROM archivedTasks WHERE archivedTasks.oldTaskID=" + std::to_string(item.itemID())
                  + ";");
    EXPECT_EQ(cell("archivedTasks", item.itemID(), "Subject"), "changed");
    EXPECT_EQ(rowCount("archivedTasks"), 1);
    EXPECT_EQ(rowCount("Tasks"), 0);
}

TEST_F(clsCalendarItemStorageTest, ASaveRendersBothTextsAndRaisesTheirEvents)
{
    std::vector<std::string> raised;
    item.refreshedTitleBarText.subscribe([&](std::string& text) { raised.push_back("title:" + text); });
    item.refreshedAppointmentText.subscribe([&](std::string& text) { raised.push_back("text:" + text); });
    useKind(enumLocalCalendarAppointmentItem);
    ASSERT_TRUE(item.saveCalendarItem());
    EXPECT_EQ(raised, (std::vector<std::string>{"title:" + item.TitleText(), "text:" + item.appointmentText()}));
}

TEST_F(clsCalendarItemStorageTest, AFaultInTheMiddleOfASaveLeavesTheRowHalfWritten)
{
    class FailingWrite : public ForwardingDatabaseService {
    public:
        using ForwardingDatabaseService::ForwardingDatabaseService;
        bool setFieldValue(std::int32_t handle, std::string_view name, std::string_view value, bool a, bool b,
                           bool c) override
        {
            if (name == "DateFrom")
                throw RunTimeError(errorNumber::invalidProcedureCall, "no");
            return ForwardingDatabaseService::setFieldValue(handle, name, value, a, b, c);
        }
    };
    const std::int32_t id = addRow("Appointments", {{"Subject", "old"}, {"Custom1", "old"}});
    useKind(enumLocalCalendarAppointmentItem);
    item.itemID(id);
    item.Subject("new");
    item.Custom1("new");
    serviceRegistry().database = std::make_shared<FailingWrite>(database);
    EXPECT_FALSE(item.saveCalendarItem());
    EXPECT_TRUE(item.IsDirty());
    EXPECT_EQ(errorsSeen(), 1u);
    EXPECT_EQ(cell("Appointments", id, "Subject"), "new");
    EXPECT_EQ(cell("Appointments", id, "Custom1"), "old");
}

// The mouse pointer.

TEST_F(clsCalendarItemStorageTest, ThePointerIsTheHourglassWhileWorkingAndThenAsItWas)
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

TEST_F(clsCalendarItemStorageTest, ThePointerStaysTheHourglassAfterAFault)
{
    item.itemID(addRow("Appointments", {{"Subject", "x"}}));
    useKind(enumLocalCalendarAppointmentItem);
    serviceRegistry().utility.reset();
    EXPECT_FALSE(item.loadCalendarItem());
    EXPECT_EQ(errorsSeen(), 1u);
    EXPECT_EQ(dialogs->mousePointer(), MousePointer::hourglass);
}

TEST_F(clsCalendarItemStorageTest, WithoutADialogHostThereIsNoPointer)
{
    item.itemID(addRow("Appointments", {{"Subject", "x"}}));
    useKind(enumLocalCalendarAppointmentItem);
    setDialogHost(nullptr);
    EXPECT_TRUE(item.loadCalendarItem());
    EXPECT_TRUE(item.saveCalendarItem());
}

// Deleting.

TEST_F(clsCalendarItemStorageTest, DeletingWithoutAnIdTouchesNothing)
{
    addRow("Appointments", {});
    useKind(enumLocalCalendarAppointmentItem);
    EXPECT_FALSE(item.deleteCalendarItem());
    EXPECT_TRUE(recording->operations.empty());
    EXPECT_EQ(rowCount("Appointments"), 1);
}

TEST_F(clsCalendarItemStorageTest, DeletingTakesAllRemindersAlong)
{
    const std::int32_t id = addRow("Tasks", {});
    addRow("Reminders", {{"TaskIDNum", std::to_string(id)}, {"Completed", "True"}});
    addRow("Reminders", {{"TaskIDNum", std::to_string(id)}});
    addRow("Reminders", {{"AppointmentIDNum", std::to_string(id)}});
    useKind(enumLocalCalendarTaskItem);
    item.itemID(id);
    EXPECT_TRUE(item.deleteCalendarItem());
    EXPECT_EQ(rowCount("Reminders"), 1);
    EXPECT_EQ(recording->openedSql()[1],
              "SELECT Reminders.TaskIDNum, Reminders.Completed FROM Reminders WHERE TaskIDNum = " + std::to_string(id)
                  + ";");
    EXPECT_EQ(recording->openedSql()[2],
              "SELECT ClientNotification.TaskNum, ClientNotification.NotificationSent FROM ClientNotification WHERE "
              "TaskNum = "
                  + std::to_string(id) + ";");
}

TEST_F(clsCalendarItemStorageTest, ATimeEntryHasNoRemindersToCancel)
{
    useKind(enumLocalCalendarDocketItem);
    item.itemID(1);
    item.checkToCancelPopups(false);
    EXPECT_TRUE(recording->opened.empty());
}

TEST_F(clsCalendarItemStorageTest, AlwaysAllowsTheSave) { EXPECT_TRUE(item.checkOKToSave()); }

} // namespace
} // namespace qncal
