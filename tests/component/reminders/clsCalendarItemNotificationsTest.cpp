#include "items/clsCalendarItem.h"

#include "support/ComponentTest.h"
#include "support/RecordingDatabase.h"
#include "support/rowName.h"

#include <gmock/gmock.h>

namespace qncal {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::Pair;
using Calls = std::vector<std::string>;

constexpr auto appointment = enumLocalCalendarAppointmentItem;
constexpr auto task = enumLocalCalendarTaskItem;
constexpr auto docket = enumLocalCalendarDocketItem;

/// Item 17, to be told of on Monday, 30 March 2026.
class ItemNotificationTest : public test::ComponentTest {
protected:
    ItemNotificationTest()
    {
        item.calendarItemType(appointment);
        item.itemID(17);
        item.notifiedDate(Date::of(2026, 3, 30));
    }
    /// What the service is asked for a set of channels.
    Calls callsFor(std::uint8_t notifyType)
    {
        autoNotify->calls.clear();
        item.notifyType(notifyType);
        item.scheduleAutoNotifications();
        return autoNotify->calls;
    }
    std::vector<std::uint8_t> channels() const
    {
        std::vector<std::uint8_t> present;
        for (const auto& notification : autoNotify->notifications)
            present.push_back(notification.channel);
        return present;
    }

    clsCalendarItem item;
};

TEST_F(ItemNotificationTest, EachChannelIsSettledBeforeTheNext)
{
    EXPECT_EQ(callsFor(2 | 8),
              (Calls{"getNotificationID 0 17 1", "notificationExists 0 17 2",
                     "createFaxNotification 0 17 2026-03-30 -1 -1 -1", "getNotificationID 0 17 4",
                     "notificationExists 0 17 8", "createLetterNotification 0 17 2026-03-30 -1 -1 -1"}));
    EXPECT_EQ(channels(), (std::vector<std::uint8_t>{2, 8}));
    EXPECT_EQ(callsFor(1 | 4), (Calls{"notificationExists 0 17 1", "createEmailNotification 0 17 2026-03-30 -1 -1 -1",
                                      "getNotificationID 0 17 2", "deleteNotification 1", "notificationExists 0 17 4",
                                      "createPhoneNotification 0 17 2026-03-30 -1 -1 -1", "getNotificationID 0 17 8",
                                      "deleteNotification 2"}));
    EXPECT_EQ(channels(), (std::vector<std::uint8_t>{1, 4}));
}

TEST_F(ItemNotificationTest, TheUserWithTheWindowMovesTheDateOfEachChannel)
{
    item.ShowNotificationWindow(true);
    EXPECT_EQ(callsFor(15), (Calls{"notificationExists 0 17 1", "createEmailNotification 0 17 2026-03-30 -1 -1 -1",
                                   "setEmailNotificationDate 0 1 1 2026-03-30 -1", "refreshNotification 0",
                                   "notificationExists 0 17 2", "createFaxNotification 0 17 2026-03-30 -1 -1 -1",
                                   "setFaxNotificationDate 0 1 2 2026-03-30 -1", "refreshNotification 0",
                                   "notificationExists 0 17 4", "createPhoneNotification 0 17 2026-03-30 -1 -1 -1",
                                   "setPhoneNotificationDate 0 1 3 2026-03-30 -1", "refreshNotification 0",
                                   "notificationExists 0 17 8", "createLetterNotification 0 17 2026-03-30 -1 -1 -1",
                                   "setLetterNotificationDate 0 1 4 2026-03-30 -1", "refreshNotification 0"}));
}

TEST_F(ItemNotificationTest, OneThatIsThereIsLinkedAndWithTheWindowMoved)
{
    callsFor(1);
    Calls calls{"notificationExists 0 17 1", "getNotificationID 0 17 1", "linkNotification 0 1 17",
                "getNotificationID 0 17 2",  "getNotificationID 0 17 4", "getNotificationID 0 17 8"};
    EXPECT_EQ(callsFor(1), calls);
    item.ShowNotificationWindow(true);
    item.notifiedDate(Date::of(2026, 4, 2));
    calls.insert(calls.begin() + 3, {"setEmailNotificationDate 0 1 1 2026-04-02 -1", "refreshNotification 0"});
    EXPECT_EQ(callsFor(1), calls);
    EXPECT_EQ(autoNotify->notifications.size(), 1u);
}

TEST_F(ItemNotificationTest, ANewOneIsDatedTheFridayBeforeASundayButMovedToTheSunday)
{
    item.notifiedDate(Date::of(2026, 3, 29));
    item.ShowNotificationWindow(true);
    const Calls calls = callsFor(1);
    ASSERT_GE(calls.size(), 3u);
    EXPECT_EQ(calls[1], "createEmailNotification 0 17 2026-03-27 -1 -1 -1");
    EXPECT_EQ(calls[2], "setEmailNotificationDate 0 1 1 2026-03-29 -1") << "the date as it was given";
}

TEST_F(ItemNotificationTest, WithoutTheWindowANewOneKeepsTheFridayBefore)
{
    item.notifiedDate(Date::of(2026, 3, 29));
    callsFor(1);
    ASSERT_EQ(autoNotify->notifications.size(), 1u);
    EXPECT_EQ(autoNotify->notifications[0].date, Date::of(2026, 3, 27));
}

TEST_F(ItemNotificationTest, TheIdZeroIsOneToDelete)
{
    autoNotify->nextID = 0;
    callsFor(1);
    ASSERT_EQ(autoNotify->notifications.size(), 1u);
    EXPECT_THAT(callsFor(0), Contains("deleteNotification 0"));
    EXPECT_THAT(autoNotify->notifications, IsEmpty());
    EXPECT_THAT(callsFor(0), Not(Contains(testing::StartsWith("deleteNotification"))));
}

TEST_F(ItemNotificationTest, ATimeEntryIsNeverMoved)
{
    item.calendarItemType(docket);
    item.ShowNotificationWindow(true);
    EXPECT_EQ(callsFor(8), (Calls{"getNotificationID 2 17 1", "getNotificationID 2 17 2", "getNotificationID 2 17 4",
                                  "notificationExists 2 17 8", "createLetterNotification 2 17 2026-03-30 -1 -1 -1"}));
}

TEST_F(ItemNotificationTest, ATaskMovesWithItsOwnCodeWhateverItsSchedule)
{
    item.calendarItemType(task);
    item.ShowNotificationWindow(true);
    const Calls expected{"getNotificationID 1 1 1",
                         "getNotificationID 1 1 2",
                         "getNotificationID 1 1 4",
                         "notificationExists 1 1 8",
                         "createLetterNotification 1 1 2026-03-30 -1 -1 -1",
                         "setLetterNotificationDate 1 2 1 2026-03-30 -1",
                         "refreshNotification 1"};
    for (const char* total : {"111", "0"}) { // an entry that stands by itself, and another
        autoNotify->notifications.clear();
        autoNotify->nextID = 1;
        const auto schedule = addRow("Schedule", {{"totalNum", total}, {"scheduleNum", "5"}});
        item.itemID(1);
        if (rowCount("Tasks") == 0)
            addRow("Tasks", {});
        setCell("Tasks", 1, "ScheduleIDNum", std::to_string(schedule));
        EXPECT_EQ(callsFor(8), expected) << total;
    }
}

TEST_F(ItemNotificationTest, OnlyAMovedTaskAsksForItsSchedule)
{
    const std::string question = "Vestrel.exe-modDatabaseFunctions-isThisTaskAssociatedWithIndependentScheduleEntry";
    const auto labelsFor = [&](enumLocalCalendarItemType kind, bool window) {
        item.calendarItemType(kind);
        item.ShowNotificationWindow(window);
        const auto before = static_cast<std::ptrdiff_t>(errors->labels().size());
        callsFor(1);
        return std::vector<std::string>(errors->labels().begin() + before, errors->labels().end());
    };
    EXPECT_THAT(labelsFor(task, true), Contains(question).Times(1));
    EXPECT_THAT(labelsFor(task, false), Not(Contains(question)));
    EXPECT_THAT(labelsFor(appointment, true), Not(Contains(question)));
    EXPECT_THAT(labelsFor(docket, true), Not(Contains(question)));
}

TEST_F(ItemNotificationTest, ASaveSchedulesForAppointmentsAlone)
{
    for (const auto kind : {task, docket, appointment}) {
        item.calendarItemType(kind);
        item.addNewItem();
        item.notifyType(1);
        ASSERT_TRUE(item.saveCalendarItem());
        EXPECT_EQ(autoNotify->notifications.size(), kind == appointment ? 1u : 0u);
        EXPECT_EQ(autoNotify->calls.empty(), kind != appointment);
    }
}

TEST_F(ItemNotificationTest, TurningAllOffKeepsWhatWasSent)
{
    item.itemID(-1);
    ASSERT_TRUE(item.saveCalendarItem());
    const std::string id = std::to_string(item.itemID());
    addRow("ClientNotification", {{"AppointmentNum", id}, {"NotificationSent", "True"}});
    addRow("ClientNotification", {{"AppointmentNum", id}, {"NotificationSent", "False"}});
    item.notifyType(0);
    ASSERT_TRUE(item.saveCalendarItem());
    EXPECT_EQ(rowCount("ClientNotification"), 1);
    EXPECT_EQ(cell("ClientNotification", 1, "NotificationSent"), "True");
}

struct KindRow {
    const char* name;
    enumLocalCalendarItemType kind;
    std::string column;
};

class NotificationRowsTest : public test::ComponentTestWith<KindRow> {
protected:
    NotificationRowsTest()
    {
        item.calendarItemType(GetParam().kind);
        item.itemID(17);
        serviceRegistry().database = recording;
        for (const char* sent : {"True", "False"})
            addRow("ClientNotification", {{GetParam().column, "17"}, {"NotificationSent", sent}});
    }
    std::shared_ptr<test::RecordingDatabase> recording = std::make_shared<test::RecordingDatabase>(database);
    clsCalendarItem item;
};

TEST_P(NotificationRowsTest, AreCancelledByTheKindsColumn)
{
    item.checkToCancelAutoNotifications(true);
    EXPECT_THAT(recording->opened,
                ElementsAre(Pair("SELECT ClientNotification." + GetParam().column
                                     + ", ClientNotification.NotificationSent FROM ClientNotification WHERE "
                                     + GetParam().column + " = 17;",
                                 DatabaseService::updatable)));
    EXPECT_EQ(rowCount("ClientNotification"), 1);
    EXPECT_EQ(cell("ClientNotification", 1, "NotificationSent"), "True");
    item.checkToCancelAutoNotifications(false);
    EXPECT_EQ(rowCount("ClientNotification"), 0);
}

TEST_P(NotificationRowsTest, GoWithTheItem)
{
    item.itemID(-1);
    ASSERT_TRUE(item.saveCalendarItem());
    setCell("ClientNotification", 1, GetParam().column, std::to_string(item.itemID()));
    ASSERT_TRUE(item.deleteCalendarItem());
    EXPECT_EQ(rowCount("ClientNotification"), 1) << "the one of item 17 stays";
}

TEST_P(NotificationRowsTest, AreLeftAloneWithoutAConnection)
{
    recording->connected = false;
    item.checkToCancelAutoNotifications(false);
    EXPECT_THAT(recording->opened, IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(Kinds, NotificationRowsTest,
                         testing::Values(KindRow{"Appointment", appointment, "AppointmentNum"},
                                         KindRow{"Task", task, "TaskNum"}, KindRow{"TimeEntry", docket, "DocketNum"}),
                         test::rowName);

} // namespace
} // namespace qncal
