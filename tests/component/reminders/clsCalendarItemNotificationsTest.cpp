#include "items/clsCalendarItem.h"

#include "support/ComponentTest.h"

#include <gtest/gtest.h>

namespace qncal {
namespace {

class ItemNotificationTest : public test::ComponentTest {
protected:
    ItemNotificationTest()
    {
        item.calendarItemType(enumLocalCalendarAppointmentItem);
        item.itemID(17);
        item.notifiedDate(Date::of(2026, 3, 30));
    }
    std::vector<std::uint8_t> channels() const
    {
        std::vector<std::uint8_t> present;
        for (const auto& notification : autoNotify->notifications)
            present.push_back(notification.channel);
        return present;
    }
    using Calls = std::vector<std::string>;

    clsCalendarItem item;
};

TEST_F(ItemNotificationTest, FiveMakesEmailAndPhoneAndRemovesFaxAndLetter)
{
    item.notifyType(2 | 8);
    item.scheduleAutoNotifications();
    EXPECT_EQ(channels(), (std::vector<std::uint8_t>{2, 8}));
    item.notifyType(5);
    item.scheduleAutoNotifications();
    EXPECT_EQ(channels(), (std::vector<std::uint8_t>{1, 4}));
}

TEST_F(ItemNotificationTest, ASundayGivesTheFridayBeforeInANewRow)
{
    item.notifyType(1);
    item.notifiedDate(Date::of(2026, 3, 29));
    item.scheduleAutoNotifications();
    ASSERT_EQ(autoNotify->notifications.size(), 1u);
    EXPECT_EQ(autoNotify->notifications[0].date, Date::of(2026, 3, 27));
}

TEST_F(ItemNotificationTest, OneThatIsThereIsLinkedNotMadeAgain)
{
    item.notifyType(1);
    item.scheduleAutoNotifications();
    item.scheduleAutoNotifications();
    EXPECT_EQ(autoNotify->notifications.size(), 1u);
    EXPECT_EQ(autoNotify->calls, (Calls{"createEmailNotification 0 17 2026-03-30", "linkNotification 0 1 17"}));
}

TEST_F(ItemNotificationTest, OnlyTheUserWithTheWindowMovesTheDate)
{
    item.notifyType(1);
    item.ShowNotificationWindow(true);
    item.scheduleAutoNotifications();
    EXPECT_EQ(autoNotify->calls, (Calls{"createEmailNotification 0 17 2026-03-30",
                                        "setEmailNotificationDate 0 1 1 2026-03-30", "refreshNotification 0"}));
}

TEST_F(ItemNotificationTest, ATaskMovesWithItsOwnCodeAndATimeEntryNotAtAll)
{
    item.calendarItemType(enumLocalCalendarTaskItem);
    item.notifyType(8);
    item.ShowNotificationWindow(true);
    item.scheduleAutoNotifications();
    EXPECT_EQ(autoNotify->calls, (Calls{"createLetterNotification 1 17 2026-03-30",
                                        "setLetterNotificationDate 1 2 1 2026-03-30", "refreshNotification 1"}));
    autoNotify->calls.clear();
    item.calendarItemType(enumLocalCalendarDocketItem);
    item.scheduleAutoNotifications();
    EXPECT_EQ(autoNotify->calls, Calls{"createLetterNotification 2 17 2026-03-30"});
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
    ASSERT_TRUE(item.deleteCalendarItem());
    EXPECT_EQ(rowCount("ClientNotification"), 0) << "they go with the item";
}

TEST_F(ItemNotificationTest, ASaveSchedulesForAppointments)
{
    item.itemID(-1);
    item.notifyType(1);
    ASSERT_TRUE(item.saveCalendarItem());
    EXPECT_EQ(autoNotify->notifications.size(), 1u);
}

} // namespace
} // namespace qncal
