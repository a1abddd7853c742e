#include "services/NotificationLedger.h"

#include "host/services/HostTest.h"
#include "services/DeliveryState.h"
#include "support/DatabaseThatFailsLate.h"
#include "utilities/RunTimeError.h"
#include "utilities/dateText.h"

namespace qncal::host {
namespace {

constexpr std::int16_t appointment = 0;
constexpr std::int16_t task = 1;
constexpr std::int16_t docket = 2;
const Date monday = Date::of(2026, 3, 2);

class NotificationLedgerTest : public test::HostTest {
protected:
    Rows row(std::int32_t id)
    {
        return Rows::read(*database, "SELECT ClientNotification.* FROM ClientNotification WHERE ClientNotificationID="
                                         + std::to_string(id) + ";");
    }

    NotificationLedger rows{database};
    AutoNotifyService& service = rows;
};

TEST_F(NotificationLedgerTest, CreatesARowForTheItemAndTheChannel)
{
    const std::int32_t id = service.createPhoneNotification(task, 12, monday, -1, -1, -1);
    const Rows created = row(id);
    EXPECT_EQ(created.integer("TaskNum"), 12);
    EXPECT_TRUE(created.field("AppointmentNum").isNull());
    EXPECT_EQ(created.integer("NotificationType"), 4);
    EXPECT_EQ(created.field("NotificationDate"), Variant(monday));
    EXPECT_FALSE(created.boolean("NotificationSent"));
}

TEST_F(NotificationLedgerTest, FindsByKindItemAndChannel)
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

TEST_F(NotificationLedgerTest, MovesTheDateOfEachChannel)
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

TEST_F(NotificationLedgerTest, LinksARowToAnotherItem)
{
    const std::int32_t id = service.createEmailNotification(appointment, 12, monday, -1, -1, -1);
    service.linkNotification(appointment, id, 40);
    EXPECT_EQ(row(id).integer("AppointmentNum"), 40);
}

TEST_F(NotificationLedgerTest, DeletesARow)
{
    const std::int32_t id = service.createEmailNotification(appointment, 12, monday, -1, -1, -1);
    service.deleteNotification(id);
    EXPECT_TRUE(row(id).isEmpty());
}

TEST_F(NotificationLedgerTest, KeepsWhatWasSent)
{
    const std::int32_t id = service.createEmailNotification(appointment, 12, monday, -1, -1, -1);
    Rows::change(*database, "SELECT ClientNotification.* FROM ClientNotification;").set("NotificationSent", "True");
    service.deleteNotification(id);
    EXPECT_FALSE(row(id).isEmpty());
}

class LedgerClientTest : public NotificationLedgerTest {
protected:
    void SetUp() override
    {
        item = addRow(*database, "Appointments", {{"ContactIDNum", "5"}});
        id = service.createEmailNotification(appointment, item, monday, -1, -1, -1);
    }
    void giveItemTo(std::int32_t contact)
    {
        Rows::change(*database, "SELECT Appointments.* FROM Appointments;")
            .set("ContactIDNum", std::to_string(contact));
    }
    std::int32_t found() { return service.getNotificationID(appointment, item, AutoNotifyService::email); }

    std::int32_t item = -1;
    std::int32_t id = -1;
};

TEST_F(LedgerClientTest, NotesTheItemsClient)
{
    EXPECT_EQ(row(id).integer("ContactIDNum"), 5);
    EXPECT_LT(row(id).integer("CompanyIDNum"), 0);
}

TEST_F(LedgerClientTest, ARowThatIsNotSentFollowsTheItemToItsNewClient)
{
    giveItemTo(6);
    EXPECT_EQ(found(), id);
    service.linkNotification(appointment, id, item);
    EXPECT_EQ(row(id).integer("ContactIDNum"), 6);
}

TEST_F(LedgerClientTest, AfterItWasSentANewClientGetsARowOfHisOwn)
{
    Rows::change(*database, "SELECT ClientNotification.* FROM ClientNotification;").set("NotificationSent", "True");
    EXPECT_EQ(found(), id);
    giveItemTo(6);
    EXPECT_LT(found(), 0);
    const std::int32_t second = service.createEmailNotification(appointment, item, monday, -1, -1, -1);
    EXPECT_EQ(found(), second);
    service.linkNotification(appointment, id, item);
    EXPECT_EQ(row(id).integer("ContactIDNum"), 5) << "who got it stays on record";
}

TEST_F(LedgerClientTest, AnItemThatMovesBeforeItsNotificationTakesItAlong)
{
    const auto moveItemTo = [&](Date date) {
        Rows::change(*database, "SELECT Appointments.* FROM Appointments;").set("DateFrom", defaultDateText(date));
        service.linkNotification(appointment, id, item);
    };
    moveItemTo(Date::of(2026, 3, 12));
    EXPECT_EQ(row(id).field("NotificationDate"), Variant(monday)) << "an item that moves away leaves the day";
    moveItemTo(monday);
    EXPECT_EQ(row(id).field("NotificationDate"), Variant(monday)) << "the day itself may have been meant";
    moveItemTo(Date::of(2026, 3, 1));
    EXPECT_EQ(row(id).field("NotificationDate"), Variant(Date::of(2026, 2, 27))) << "the Friday before";
}

TEST_F(LedgerClientTest, WhatWasSentKeepsItsDay)
{
    Rows::change(*database, "SELECT ClientNotification.* FROM ClientNotification;").set("NotificationSent", "True");
    Rows::change(*database, "SELECT Appointments.* FROM Appointments;").set("DateFrom", "2026-03-01");
    service.linkNotification(appointment, id, item);
    EXPECT_EQ(row(id).field("NotificationDate"), Variant(monday));
}

TEST_F(NotificationLedgerTest, AnIdWithoutARowChangesNothing)
{
    service.deleteNotification(99);
    service.linkNotification(appointment, 99, 1);
    service.setEmailNotificationDate(appointment, 1, 99, monday, -1);
    EXPECT_TRUE(Rows::read(*database, "SELECT ClientNotification.* FROM ClientNotification;").isEmpty());
}

TEST_F(NotificationLedgerTest, AnUnknownKindIsAnError)
{
    EXPECT_THROW(service.createEmailNotification(3, 12, monday, -1, -1, -1), RunTimeError);
}

TEST_F(NotificationLedgerTest, TellsThatAKindIsToBeShownAnew)
{
    std::vector<std::int16_t> refreshed;
    rows.refreshed.subscribe([&](std::int16_t kind) { refreshed.push_back(kind); });
    service.refreshNotification(task);
    EXPECT_EQ(refreshed, std::vector<std::int16_t>{task});
}

TEST_F(NotificationLedgerTest, AWriteThatFailsWhenItIsStoredIsTold)
{
    const std::int32_t id = service.createEmailNotification(task, 12, monday, -1, -1, -1);
    NotificationLedger ledger{std::make_shared<qncal::test::DatabaseThatFailsLate>(database)};
    EXPECT_THROW(ledger.linkNotification(task, id, 13), RunTimeError);
    Rows sent = Rows::change(*database, notificationByKey(id));
    sent.set("NotificationSent", "True");
    sent.close();
    EXPECT_THROW(ledger.linkNotification(task, id, 14), RunTimeError) << "also for one that was sent";
}

} // namespace
} // namespace qncal::host
