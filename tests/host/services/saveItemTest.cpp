#include "services/saveItem.h"

#include "host/services/HostTest.h"
#include "support/rowName.h"
#include "utilities/Clock.h"

namespace qncal::host::test {
namespace {

struct KindRow {
    const char* name;
    enumLocalCalendarItemType kind;
    /// None for a kind without reminders.
    const char* reminderColumn;
    const char* notificationColumn;
};

/// An item of Monday, 6 April 2026, with a reminder and an e-mail to its client.
class SaveItemTest : public HostTest, public testing::WithParamInterface<KindRow> {
protected:
    SaveItemTest()
    {
        item.calendarItemType(GetParam().kind);
        item.addNewItem();
        item.userIDNum(1);
        item.DateFrom(Date::of(2026, 4, 6));
        item.Remind(true);
        item.notifyType(AutoNotifyService::email);
        notifyTheDayBefore(item);
    }
    std::int32_t count(const std::string& table) const
    {
        return Rows::read(*database, "SELECT " + table + ".* FROM " + table + ";").count();
    }

    ClockOverride clock{Date::of(2026, 3, 31, 8, 30)};
    clsCalendarItem item;
};

TEST_P(SaveItemTest, MakesReminderAndNotificationOnce)
{
    for (int turn = 0; turn < 2; ++turn) {
        ASSERT_TRUE(saveItem(item));
        const bool reminds = GetParam().reminderColumn != nullptr;
        ASSERT_EQ(count("Reminders"), reminds ? 1 : 0);
        if (reminds) {
            EXPECT_EQ(Rows::read(*database, "SELECT Reminders.* FROM Reminders;").integer(GetParam().reminderColumn),
                      item.itemID());
        }
        ASSERT_EQ(count("ClientNotification"), 1);
        const Rows row = Rows::read(*database, "SELECT ClientNotification.* FROM ClientNotification;");
        EXPECT_EQ(row.integer(GetParam().notificationColumn), item.itemID());
        EXPECT_EQ(row.field("NotificationDate").toDate(), Date::of(2026, 4, 3)) << "the Friday before";
    }
}

TEST_P(SaveItemTest, CancelsWhatIsOpenAndKeepsWhatIsDone)
{
    ASSERT_TRUE(saveItem(item));
    const std::string id = std::to_string(item.itemID());
    if (GetParam().reminderColumn)
        addRow(*database, "Reminders", {{GetParam().reminderColumn, id}, {"UserIDNum", "1"}, {"Completed", "True"}});
    addRow(*database, "ClientNotification", {{GetParam().notificationColumn, id}, {"NotificationSent", "True"}});
    item.Remind(false);
    item.notifyType(0);
    ASSERT_TRUE(saveItem(item));
    const Rows reminders = Rows::read(*database, "SELECT Reminders.* FROM Reminders;");
    EXPECT_EQ(reminders.count(), GetParam().reminderColumn ? 1 : 0);
    if (GetParam().reminderColumn) {
        EXPECT_TRUE(reminders.boolean("Completed"));
    }
    const Rows notifications = Rows::read(*database, "SELECT ClientNotification.* FROM ClientNotification;");
    EXPECT_EQ(notifications.count(), 1);
    EXPECT_TRUE(notifications.boolean("NotificationSent"));
}

INSTANTIATE_TEST_SUITE_P(Kinds, SaveItemTest,
                         testing::Values(KindRow{"Appointment", enumLocalCalendarAppointmentItem, "AppointmentIDNum",
                                                 "AppointmentNum"},
                                         KindRow{"Task", enumLocalCalendarTaskItem, "TaskIDNum", "TaskNum"},
                                         KindRow{"TimeEntry", enumLocalCalendarDocketItem, nullptr, "DocketNum"}),
                         qncal::test::rowName);

TEST_F(HostTest, AnItemThatCannotBeStoredIsNotSaved)
{
    clsCalendarItem item;
    item.calendarItemType(enumLocalCalendarTaskItem);
    database->close();
    EXPECT_FALSE(saveItem(item));
}

} // namespace
} // namespace qncal::host::test
