#include "component/items/StoredItemTest.h"
#include "core/RecordSet.h"
#include "utilities/RunTimeError.h"

#include <algorithm>
#include <utility>

namespace qncal {
namespace {

class clsCalendarItemSaveTest : public test::StoredItemTest {};
class clsCalendarItemSaveKindTest : public test::StoredItemKindTest {};

TEST_P(clsCalendarItemSaveKindTest, SavesEveryColumnInTheOrderOfSaving)
{
    const auto& [kind, table, key] = GetParam();
    item.itemID(addRow(table, test::fullRow));
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

TEST_P(clsCalendarItemSaveKindTest, ANewItemAddsARowAndTakesItsId)
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

TEST_P(clsCalendarItemSaveKindTest, ARowThatIsThereIsOpenedByItsKeyToBeWritten)
{
    const auto& [kind, table, key] = GetParam();
    const std::int32_t id = addRow(table, {});
    useKind(kind);
    item.itemID(id);
    ASSERT_TRUE(item.saveCalendarItem());
    EXPECT_EQ(openedOn(table), (std::vector<std::pair<std::string, std::int32_t>>{
                                   {"SELECT " + table + ".* FROM " + table + " WHERE " + table + "." + key + "="
                                        + std::to_string(id) + ";",
                                    3}}));
    EXPECT_EQ(std::ranges::count(recording->operations, "update"), 0);
    EXPECT_TRUE(recording->open.empty());
}

INSTANTIATE_TEST_SUITE_P(Kinds, clsCalendarItemSaveKindTest, testing::ValuesIn(test::kindRows),
                         [](const auto& row) { return row.param.table; });

TEST_F(clsCalendarItemSaveTest, WithoutAConnectionNothingIsLoadedSavedOrDeleted)
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

TEST_F(clsCalendarItemSaveTest, SavingAVanishedRowAddsANewOne)
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

TEST_F(clsCalendarItemSaveTest, SavesIntoTheCallersRecordWithoutUpdateOrClose)
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

TEST_F(clsCalendarItemSaveTest, SavingPutsStartAndEndInOrder)
{
    useKind(enumLocalCalendarAppointmentItem);
    item.TimeFrom(Date::timeOf(15));
    item.TimeTo(Date::timeOf(11));
    ASSERT_TRUE(item.saveCalendarItem());
    EXPECT_EQ(item.TimeFrom(), Date::timeOf(11));
    EXPECT_EQ(item.TimeTo(), Date::timeOf(15));
    EXPECT_NE(std::ranges::find(recording->written, "TimeFrom=11:00:00"), recording->written.end());
}

TEST_F(clsCalendarItemSaveTest, SavingSetsTheFlagsInTheItemButNotInTheirColumns)
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

TEST_F(clsCalendarItemSaveTest, AnAppointmentWithoutReminderLosesItsOpenOnesAndKeepsTheRest)
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

TEST_F(clsCalendarItemSaveTest, ATaskWithoutReminderCancelsNothing)
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

TEST_F(clsCalendarItemSaveTest, AnArchivedTaskIsWrittenToTheArchivedTable)
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

TEST_F(clsCalendarItemSaveTest, ASaveRendersBothTextsAndRaisesTheirEvents)
{
    std::vector<std::string> raised;
    item.refreshedTitleBarText.subscribe([&](std::string& text) { raised.push_back("title:" + text); });
    item.refreshedAppointmentText.subscribe([&](std::string& text) { raised.push_back("text:" + text); });
    useKind(enumLocalCalendarAppointmentItem);
    ASSERT_TRUE(item.saveCalendarItem());
    EXPECT_EQ(raised, (std::vector<std::string>{"title:" + item.TitleText(), "text:" + item.appointmentText()}));
}

TEST_F(clsCalendarItemSaveTest, AFaultInTheMiddleOfASaveLeavesTheRowHalfWritten)
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

/// A database in which a new record cannot be stored: `update` throws, or only says so.
class RefusedUpdate : public ForwardingDatabaseService {
public:
    RefusedUpdate(std::shared_ptr<DatabaseService> target, bool throws)
        : ForwardingDatabaseService(std::move(target)), throws_(throws)
    {
    }
    bool update(std::int32_t) override
    {
        if (throws_)
            throw RunTimeError(errorNumber::invalidProcedureCall, "no");
        return false;
    }

private:
    bool throws_;
};

TEST_F(clsCalendarItemSaveTest, ANewRowThatCannotBeStoredIsNotSavedAndCancelsNothing)
{
    useKind(enumLocalCalendarAppointmentItem);
    item.Subject("new");
    serviceRegistry().database = std::make_shared<RefusedUpdate>(recording, true);
    EXPECT_FALSE(item.saveCalendarItem());
    EXPECT_EQ(errorsSeen(), 1u);
    EXPECT_TRUE(item.IsDirty());
    EXPECT_TRUE(item.IsSaved()) << "it is marked before the row is stored";
    EXPECT_EQ(rowCount("Appointments"), 0);
    EXPECT_TRUE(openedOn("Reminders").empty());
    EXPECT_TRUE(recording->open.empty());
    EXPECT_EQ(dialogs->mousePointer(), MousePointer::hourglass);
}

TEST_F(clsCalendarItemSaveTest, WhatUpdateGivesDoesNotChangeTheResult)
{
    useKind(enumLocalCalendarTaskItem);
    item.Subject("new");
    serviceRegistry().database = std::make_shared<RefusedUpdate>(recording, false);
    EXPECT_TRUE(item.saveCalendarItem());
    EXPECT_FALSE(item.IsDirty());
    EXPECT_EQ(rowCount("Tasks"), 0);
}

TEST_F(clsCalendarItemSaveTest, AlwaysAllowsTheSave) { EXPECT_TRUE(item.checkOKToSave()); }

} // namespace
} // namespace qncal
