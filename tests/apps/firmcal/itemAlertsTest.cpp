#include "apps/firmcal/CommandLine.h"

#include "services/Rows.h"
#include "store/SqliteDatabase.h"
#include "support/rowName.h"

// The reminders and notifications that come and go with an item, of each kind.

namespace qncal::firmcal::test {
namespace {

class ItemAlertsTest : public EmptyDatabaseTest {
protected:
    void SetUp() override
    {
        EmptyDatabaseTest::SetUp();
        const auto store = host::SqliteDatabase::open(database());
        host::addRow(*store, "Contacts", {{"DisplayName", "Ann Reed"}});
    }
    std::string reminders() const
    {
        return rows("SELECT AppointmentIDNum, TaskIDNum, ReminderDate, ReminderTime, Completed FROM Reminders");
    }
    std::string notifications() const
    {
        return rows("SELECT AppointmentNum, TaskNum, DocketNum, NotificationType, NotificationDate "
                    "FROM ClientNotification");
    }
    /// The date of the one notification.
    std::string notificationDate() const { return rows("SELECT NotificationDate FROM ClientNotification"); }
};

TEST_F(ItemAlertsTest, AnAppointmentsReminderComesAndGoes)
{
    succeed({"item", "add", "Call", "--date", "2026-03-20", "--set", "Remind=yes", "--set", "reminderPeriod=1 Hr"});
    EXPECT_EQ(reminders(), "{\"AppointmentIDNum\":1,\"TaskIDNum\":null,\"ReminderDate\":\"2026-03-20\","
                           "\"ReminderTime\":\"08:00:00\",\"Completed\":false}\n");
    succeed({"item", "set", "1", "--set", "Remind=no"});
    EXPECT_EQ(reminders(), "");
}

TEST_F(ItemAlertsTest, ATasksReminderComesAndMovesAndGoes)
{
    succeed({"item", "add", "File T2", "--kind", "task", "--date", "2026-03-20", "--set", "Remind=yes"});
    EXPECT_EQ(reminders(), "{\"AppointmentIDNum\":null,\"TaskIDNum\":1,\"ReminderDate\":\"2026-03-20\","
                           "\"ReminderTime\":\"08:45:00\",\"Completed\":false}\n");
    succeed({"item", "set", "1", "--kind", "task", "--start", "14:00"});
    EXPECT_EQ(reminders(), "{\"AppointmentIDNum\":null,\"TaskIDNum\":1,\"ReminderDate\":\"2026-03-20\","
                           "\"ReminderTime\":\"13:45:00\",\"Completed\":false}\n");
    succeed({"item", "set", "1", "--kind", "task", "--set", "Remind=no"});
    EXPECT_EQ(reminders(), "");
}

TEST_F(ItemAlertsTest, AReminderThatWasShownStaysWhenItIsTurnedOff)
{
    succeed({"item", "add", "File T2", "--kind", "task", "--date", "2026-03-02", "--set", "Remind=yes"});
    succeed({"remind"});
    succeed({"item", "set", "1", "--kind", "task", "--set", "Remind=no"});
    EXPECT_EQ(reminders(), "{\"AppointmentIDNum\":null,\"TaskIDNum\":1,\"ReminderDate\":\"2026-03-02\","
                           "\"ReminderTime\":\"08:45:00\",\"Completed\":true}\n");
}

TEST_F(ItemAlertsTest, TheClientIsNotifiedOfItemsOfEveryKind)
{
    const auto numbers = [](const char* appointment, const char* task, const char* docket) {
        return std::string("{\"AppointmentNum\":") + appointment + ",\"TaskNum\":" + task + ",\"DocketNum\":" + docket
               + ",\"NotificationType\":1,\"NotificationDate\":\"2026-03-19\"}\n";
    };
    for (const auto& [kind, notification] :
         {std::pair("appointment", numbers("1", "null", "null")), std::pair("task", numbers("null", "1", "null")),
          std::pair("docket", numbers("null", "null", "1"))}) {
        succeed(
            {"item", "add", "Call", "--kind", kind, "--date", "2026-03-20", "--contact", "1", "--set", "notifyType=1"});
        EXPECT_EQ(notifications(), notification);
        succeed({"item", "set", "1", "--kind", kind, "--set", "notifyType=0"});
        EXPECT_EQ(notifications(), "") << kind;
    }
}

struct DateRow {
    const char* name;
    std::vector<std::string> changes;
    const char* date;
};

/// An item of 20 March that was stored without notifications; now it gets one.
class NotificationDateTest : public ItemAlertsTest, public testing::WithParamInterface<DateRow> {};

TEST_P(NotificationDateTest, IsTheDayBeforeTheItemUnlessItIsGiven)
{
    succeed({"item", "add", "Call", "--date", "2026-03-20", "--contact", "1"});
    std::vector<std::string> command{"item", "set", "1", "--set", "notifyType=1"};
    command.insert(command.end(), GetParam().changes.begin(), GetParam().changes.end());
    succeed(command);
    EXPECT_EQ(notificationDate(), std::string("{\"NotificationDate\":\"") + GetParam().date + "\"}\n");
}

INSTANTIATE_TEST_SUITE_P(Changes, NotificationDateTest,
                         testing::Values(DateRow{"OfTheLoadedItem", {}, "2026-03-19"},
                                         DateRow{"OfItsNewDate", {"--date", "2026-03-26"}, "2026-03-25"},
                                         DateRow{"OfItsAssignedDate", {"--set", "DateFrom=2026-03-26"}, "2026-03-25"},
                                         DateRow{"FridayBeforeAMonday", {"--date", "2026-03-23"}, "2026-03-20"},
                                         DateRow{"Given", {"--set", " NotifiedDate = 2026-03-17"}, "2026-03-17"},
                                         DateRow{"GivenWithADate",
                                                 {"--date", "2026-03-26", "--set", "notifiedDate=2026-03-17"},
                                                 "2026-03-17"}),
                         qncal::test::rowName);

TEST_F(ItemAlertsTest, AMissingNotificationIsMadeForTheDayThatTheItemMovesTo)
{
    for (const char* id : {"1", "2"}) {
        succeed({"item", "add", "Call", "--date", "2026-03-20", "--contact", "1", "--set", "notifyType=1"});
        const auto store = host::SqliteDatabase::open(database());
        host::Rows row = host::Rows::change(*store, "SELECT ClientNotification.* FROM ClientNotification;");
        row.deleteCurrent();
        row.close();
        std::vector<std::string> command{"item", "move", id, "--to", "2026-03-26"};
        if (id == std::string("2"))
            command.emplace_back("--best");
        succeed(command);
        EXPECT_EQ(notificationDate(), "{\"NotificationDate\":\"2026-03-25\"}\n") << id;
        EXPECT_EQ(run({"item", "delete", id, "--yes"}).status, 0);
    }
}

} // namespace
} // namespace qncal::firmcal::test
