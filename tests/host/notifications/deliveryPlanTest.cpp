#include "notifications/deliveryPlan.h"

#include "host/notifications/DeliveryTest.h"

namespace qncal::host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using Outcome = MailResult::Outcome;

class DeliveryPlanTest : public test::DeliveryTest {};

constexpr auto email = AutoNotifyService::email;

TEST_F(DeliveryPlanTest, WaitsForTheDay)
{
    addAppointment(email);
    present = Date::of(2026, 3, 1, 23, 59);
    EXPECT_THAT(run(), IsEmpty());
    present = at(0, 1);
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::sent));
}

TEST_F(DeliveryPlanTest, APlanChangesNothing)
{
    addAppointment(email);
    addAppointment(email, contact, at(7));
    const std::vector<Delivery> plan = delivery().plan();
    ASSERT_THAT(plan, SizeIs(2));
    EXPECT_EQ(plan[0].step, DeliveryStep::attempt);
    EXPECT_EQ(plan[0].recipient, "ann@client.example");
    EXPECT_EQ(plan[1].step, DeliveryStep::tooLate);
    EXPECT_THAT(mail.messages, IsEmpty());
    EXPECT_TRUE(rows("DeliveryState <> 0").isEmpty());
}

TEST_F(DeliveryPlanTest, NobodyIsToldOfThePast)
{
    addAppointment(email, contact, at(8));
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::tooLate));
    EXPECT_THAT(mail.messages, IsEmpty());
    EXPECT_EQ(state(), DeliveryState::tooLate);
    EXPECT_FALSE(rows().boolean("NotificationSent"));
    EXPECT_EQ(rows().text("LastError"), "the item began on Mar 2, 2026 at 8:00 am");
    EXPECT_THAT(run(), IsEmpty());
}

TEST_F(DeliveryPlanTest, AnItemThatIsMovedAheadGetsItsChanceAnew)
{
    const std::int32_t id = addAppointment(email, contact, at(8));
    run();
    clsCalendarItem item;
    item.calendarItemType(enumLocalCalendarAppointmentItem);
    item.itemID(id);
    ASSERT_TRUE(item.loadCalendarItem());
    item.DateFrom(Date::of(2026, 3, 9));
    ASSERT_TRUE(item.saveCalendarItem());
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::sent));
}

TEST_F(DeliveryPlanTest, FailuresEndWhenTheItemBegins)
{
    addAppointment(email, contact, at(8, 30));
    mail.answers = {{Outcome::failed, "no route"}};
    run();
    present = at(8, 30);
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::tooLate));
    EXPECT_THAT(mail.messages, SizeIs(1));
}

TEST_F(DeliveryPlanTest, WaitsFourTimesAsLongEachTimeAndADayAtMost)
{
    const Date from = at(0);
    EXPECT_EQ(nextAttempt(from, 1), at(0, 5));
    EXPECT_EQ(nextAttempt(from, 2), at(0, 20));
    EXPECT_EQ(nextAttempt(from, 3), at(1, 20));
    EXPECT_EQ(nextAttempt(from, 4), at(5, 20));
    EXPECT_EQ(nextAttempt(from, 5), at(21, 20));
    EXPECT_EQ(nextAttempt(from, 6), from.addDays(1));
    EXPECT_EQ(nextAttempt(from, 1000000), from.addDays(1));
}

TEST_F(DeliveryPlanTest, AMissingAddressIsAFailureWithItsReason)
{
    const auto nobody = addRow(*database, "Contacts", {{"DisplayName", "Bob"}});
    addAppointment(email, nobody);
    EXPECT_EQ(delivery().plan().front().reason, "the client has no e-mail address");
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::failed));
    EXPECT_EQ(rows().text("LastError"), "the client has no e-mail address");
    EXPECT_THAT(mail.messages, IsEmpty());
}

TEST_F(DeliveryPlanTest, AnAddressThatCameOrChangedSinceTheFailureIsTriedAtOnce)
{
    const auto nobody = addRow(*database, "Contacts", {{"DisplayName", "Bob"}});
    addAppointment(email, nobody);
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::failed));
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::later));
    const auto setAddress = [&](const char* address) {
        Rows::change(*database, "SELECT Contacts.* FROM Contacts WHERE ContactID=" + std::to_string(nobody) + ";")
            .set("BusinessEmail", address);
    };
    setAddress("bob@wrong.example");
    mail.answers = {{Outcome::failed, "550 nobody of that name"}};
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::failed));
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::later));
    setAddress("bob@client.example");
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::sent));
    EXPECT_EQ(rows().text("Recipient"), "bob@client.example");
}

TEST_F(DeliveryPlanTest, ADeletedClientAndNoClientAreToldApart)
{
    addAppointment(email);
    Rows::change(*database, "SELECT Contacts.* FROM Contacts;").deleteCurrent();
    EXPECT_EQ(deliverOne().reason, "the client is gone");
    EXPECT_EQ(rows().text("LastError"), "the client is gone");
    change("Appointments", "ContactIDNum", "-1");
    present = at(9);
    EXPECT_EQ(deliverOne().reason, "the item has no client");
    EXPECT_THAT(mail.messages, IsEmpty());
}

TEST_F(DeliveryPlanTest, TwoRowsForOneClientAreSentOnce)
{
    const std::int32_t item = addAppointment(email);
    const std::int32_t second = addRow(*database, "ClientNotification",
                                       {{"AppointmentNum", std::to_string(item)},
                                        {"NotificationType", "1"},
                                        {"NotificationDate", "2026-03-01"},
                                        {"ContactIDNum", std::to_string(contact)}});
    const std::vector<Delivery> done = deliver();
    ASSERT_THAT(done, SizeIs(2));
    EXPECT_EQ(done[0].id, second);
    EXPECT_EQ(done[0].step, DeliveryStep::cancelled);
    EXPECT_EQ(done[0].reason, "notification " + std::to_string(done[1].id) + " tells the same");
    EXPECT_EQ(done[1].step, DeliveryStep::sent);
    EXPECT_THAT(mail.messages, SizeIs(1));
}

TEST_F(DeliveryPlanTest, WhatAnotherHostHasSentIsLeftAlone)
{
    addAppointment(email);
    change("ClientNotification", "NotificationSent", "True");
    EXPECT_THAT(run(), IsEmpty());
    EXPECT_EQ(delivery().markSent(rows().integer("ClientNotificationID")), Settlement::sentAlready);
}

TEST_F(DeliveryPlanTest, AClockThatIsPutBackHoldsNothingUp)
{
    addAppointment(email);
    mail.answers = {{Outcome::failed, "no route"}};
    present = Date::of(2026, 3, 3, 12);
    run();
    present = at(8);
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::sent));
}

TEST_F(DeliveryPlanTest, AnAttemptOfTheFutureIsLeftBehind)
{
    addAppointment(email);
    mail.whileSending = [] { throw std::runtime_error("the process dies here"); };
    EXPECT_THROW(deliver(), std::runtime_error);
    present = at(7);
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::unknown));
}

TEST_F(DeliveryPlanTest, AnAddressWithALineBreakIsRefused)
{
    const auto odd =
        addRow(*database, "Contacts",
               {{"DisplayName", "Bob"}, {"BusinessEmail", "bob@client.example\r\nBcc: all@client.example"}});
    addAppointment(email, odd);
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::failed));
    EXPECT_EQ(rows().text("LastError"), "the client's e-mail address cannot be one");
    EXPECT_THAT(mail.messages, IsEmpty());
}

TEST_F(DeliveryPlanTest, ADeletedItemTellsNobody)
{
    const std::int32_t id = addAppointment(email);
    deleteAppointment(id);
    EXPECT_THAT(run(), IsEmpty());
    EXPECT_THAT(mail.messages, IsEmpty());
}

TEST_F(DeliveryPlanTest, ARowWhoseItemIsGoneIsCancelled)
{
    addAppointment(email);
    Rows::change(*database, "SELECT Appointments.* FROM Appointments;").deleteCurrent();
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::cancelled));
    EXPECT_EQ(state(), DeliveryState::cancelled);
    EXPECT_THAT(run(), IsEmpty());
}

TEST_F(DeliveryPlanTest, SwitchingTheChannelOffAndOnDoesNotSendTwice)
{
    const std::int32_t id = addAppointment(email);
    run();
    clsCalendarItem item;
    item.calendarItemType(enumLocalCalendarAppointmentItem);
    item.itemID(id);
    ASSERT_TRUE(item.loadCalendarItem());
    for (const std::uint8_t channels : {AutoNotifyService::phone, email}) {
        item.notifyType(channels);
        item.notifiedDate(Date::of(2026, 3, 2));
        ASSERT_TRUE(item.saveCalendarItem());
    }
    EXPECT_THAT(run(), IsEmpty());
    EXPECT_THAT(mail.messages, SizeIs(1));
}

TEST_F(DeliveryPlanTest, ACallWithoutANumberSaysSo)
{
    change("Contacts", "HomePhone_Main", "");
    addAppointment(AutoNotifyService::phone);
    EXPECT_EQ(deliverOne().reason, "the client has no telephone number");
}

} // namespace
} // namespace qncal::host
