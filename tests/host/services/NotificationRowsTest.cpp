#include "services/NotificationRows.h"

#include "host/services/HostTest.h"
#include "utilities/RunTimeError.h"

namespace qncal::host {
namespace {

constexpr std::int16_t appointment = 0;
constexpr std::int16_t task = 1;
constexpr std::int16_t docket = 2;
const Date monday = Date::of(2026, 3, 2);

class NotificationRowsTest : public test::HostTest {
protected:
    Rows row(std::int32_t id)
    {
        return Rows::read(*database, "SELECT ClientNotification.* FROM ClientNotification WHERE ClientNotificationID="
                                         + std::to_string(id) + ";");
    }

    NotificationRows rows{database};
    AutoNotifyService& service = rows;
};

TEST_F(NotificationRowsTest, CreatesARowForTheItemAndTheChannel)
{
    const std::int32_t id = service.createPhoneNotification(task, 12, monday, -1, -1, -1);
    const Rows created = row(id);
    EXPECT_EQ(created.integer("TaskNum"), 12);
    EXPECT_TRUE(created.field("AppointmentNum").isNull());
    EXPECT_EQ(created.integer("NotificationType"), 4);
    EXPECT_EQ(created.field("NotificationDate"), Variant(monday));
    EXPECT_FALSE(created.boolean("NotificationSent"));
}

TEST_F(NotificationRowsTest, FindsByKindItemAndChannel)
{
    const std::int32_t email = service.createEmailNotification(appointment, 12, monday, -1, -1, -1);
    const std::int32_t fax = service.createFaxNotification(appointment, 12, monday, -1, -1, -1);
    EXPECT_NE(email, fax);
    EXPECT_EQ(service.getNotificationID(appointment, 12, AutoNotifyService::email), email);
    EXPECT_EQ(service.getNotificationID(appointment, 12, AutoNotifyService::fax), fax);
    EXPECT_TRUE(service.notificationExists(appointment, 12, AutoNotifyService::fax));
    EXPECT_FALSE(service.notificationExists(appointment, 12, AutoNotifyService::letter));
    EXPECT_FALSE(service.notificationExists(appointment, 13, AutoNotifyService::email));
    EXPECT_FALSE(service.notificationExists(docket, 12, AutoNotifyService::email));
    EXPECT_LT(service.getNotificationID(task, 12, AutoNotifyService::email), 0);
}

TEST_F(NotificationRowsTest, MovesTheDateOfEachChannel)
{
    const std::int32_t id = service.createLetterNotification(docket, 3, monday, -1, -1, -1);
    const Date other = Date::of(2026, 4, 1);
    service.setEmailNotificationDate(docket, 1, id, other, -1);
    EXPECT_EQ(row(id).field("NotificationDate"), Variant(other));
    service.setFaxNotificationDate(docket, 1, id, monday, -1);
    EXPECT_EQ(row(id).field("NotificationDate"), Variant(monday));
    service.setPhoneNotificationDate(docket, 1, id, other, -1);
    EXPECT_EQ(row(id).field("NotificationDate"), Variant(other));
    service.setLetterNotificationDate(docket, 1, id, monday, -1);
    EXPECT_EQ(row(id).field("NotificationDate"), Variant(monday));
}

TEST_F(NotificationRowsTest, LinksARowToAnotherItem)
{
    const std::int32_t id = service.createEmailNotification(appointment, 12, monday, -1, -1, -1);
    service.linkNotification(appointment, id, 40);
    EXPECT_EQ(row(id).integer("AppointmentNum"), 40);
}

TEST_F(NotificationRowsTest, DeletesARow)
{
    const std::int32_t id = service.createEmailNotification(appointment, 12, monday, -1, -1, -1);
    service.deleteNotification(id);
    EXPECT_TRUE(row(id).isEmpty());
}

TEST_F(NotificationRowsTest, AnIdWithoutARowChangesNothing)
{
    service.deleteNotification(99);
    service.linkNotification(appointment, 99, 1);
    service.setEmailNotificationDate(appointment, 1, 99, monday, -1);
    EXPECT_TRUE(Rows::read(*database, "SELECT ClientNotification.* FROM ClientNotification;").isEmpty());
}

TEST_F(NotificationRowsTest, AnUnknownKindIsAnError)
{
    EXPECT_THROW(service.createEmailNotification(3, 12, monday, -1, -1, -1), RunTimeError);
}

TEST_F(NotificationRowsTest, TellsThatAKindIsToBeShownAnew)
{
    std::vector<std::int16_t> refreshed;
    rows.refreshed.subscribe([&](std::int16_t kind) { refreshed.push_back(kind); });
    service.refreshNotification(task);
    EXPECT_EQ(refreshed, std::vector<std::int16_t>{task});
}

} // namespace
} // namespace qncal::host
