#include "notifications/NotificationDelivery.h"

#include "host/notifications/DeliveryTest.h"
#include "store/SqliteDatabase.h"
#include "utilities/RunTimeError.h"

#include <csignal>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sys/wait.h>
#include <unistd.h>

namespace qncal::host {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using Outcome = MailResult::Outcome;

class NotificationDeliveryTest : public test::DeliveryTest {};

constexpr auto email = AutoNotifyService::email;

TEST_F(NotificationDeliveryTest, SendsAnEmailOnceAndRecordsIt)
{
    addAppointment(email);
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::sent));
    ASSERT_THAT(mail.messages, SizeIs(1));
    const MailMessage& message = mail.messages[0];
    EXPECT_EQ(message.to.address, "ann@client.example");
    EXPECT_EQ(message.to.name, "Ann Stone");
    EXPECT_EQ(message.from.address, "office@firm.example");
    EXPECT_EQ(message.subject, "Appointment on Wednesday, March 4, 2026");
    EXPECT_EQ(message.body, "Dear Ann Stone,\n\n"
                            "This is to remind you of your appointment with us on Wednesday, March 4, 2026 at 9:30 am:"
                            "\n\nYear end\n\n"
                            "Please let us know in good time if the date does not suit you.\n\n"
                            "Yours sincerely,\nReed & Partners\n555-0100\n");
    const Rows row = rows();
    EXPECT_TRUE(row.boolean("NotificationSent"));
    EXPECT_EQ(row.field("SentDate"), Variant(at(8)));
    EXPECT_EQ(row.text("Recipient"), "ann@client.example");
    EXPECT_EQ(row.integer("Attempts"), 1);
    EXPECT_EQ(row.text("MessageID"), message.messageID);
    EXPECT_EQ(row.integer("ContactIDNum"), contact);
    EXPECT_EQ(state(), DeliveryState::sent);

    EXPECT_THAT(run(), IsEmpty());
    EXPECT_THAT(mail.messages, SizeIs(1));
}

TEST_F(NotificationDeliveryTest, TriesAgainLaterAndLaterAndKeepsTheReason)
{
    addAppointment(email);
    mail.answers = {{Outcome::failed, "no route"}, {Outcome::failed, "451 busy"}};
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::failed));
    EXPECT_EQ(rows().text("LastError"), "no route");
    EXPECT_EQ(rows().integer("Attempts"), 1);
    EXPECT_EQ(rows().field("NextAttemptDate"), Variant(at(8, 5)));

    present = at(8, 4);
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::later));
    present = at(8, 5);
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::failed));
    EXPECT_EQ(rows().text("LastError"), "451 busy");
    EXPECT_EQ(rows().integer("Attempts"), 2);
    EXPECT_EQ(rows().field("NextAttemptDate"), Variant(at(8, 25)));

    present = at(8, 25);
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::sent));
    EXPECT_EQ(rows().text("LastError"), "");
    ASSERT_THAT(mail.messages, SizeIs(3));
    EXPECT_EQ(mail.messages[0].messageID, mail.messages[2].messageID) << "so that two copies are known for one";
}

TEST_F(NotificationDeliveryTest, TheClientWhoGotItIsOnRecord)
{
    addAppointment(email);
    const auto other =
        addRow(*database, "Companies", {{"CompanyName", "Granite Ltd."}, {"Email", "info@granite.example"}});
    change("Appointments", "ContactIDNum", "-1");
    change("Appointments", "CompanyIDNum", std::to_string(other));
    EXPECT_EQ(deliverOne().recipient, "info@granite.example");
    EXPECT_EQ(mail.messages.front().to.name, "Granite Ltd.");
    EXPECT_EQ(rows().integer("CompanyIDNum"), other);
    EXPECT_EQ(rows().integer("ContactIDNum"), -1);
}

TEST_F(NotificationDeliveryTest, AServerThatIsNotThereIsTriedOnceInARun)
{
    addAppointment(email);
    addAppointment(email | AutoNotifyService::phone);
    mail.answers = {{Outcome::unreachable, "no route"}};
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::failed, DeliveryStep::later, DeliveryStep::byHand));
    EXPECT_THAT(mail.messages, SizeIs(1));
    EXPECT_EQ(rows("NotificationType = 1").integer("Attempts"), 1);
    EXPECT_TRUE(rows("DeliveryState <> 0").isEmpty());
    present = at(8, 5);
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::sent, DeliveryStep::sent, DeliveryStep::byHand));
}

TEST_F(NotificationDeliveryTest, AFailureOfOneMessageLeavesTheOthers)
{
    addAppointment(email);
    addAppointment(email);
    mail.answers = {{Outcome::failed, "550 nobody of that name"}};
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::failed, DeliveryStep::sent));
}

TEST_F(NotificationDeliveryTest, DeliversUnderTheLockAlone)
{
    addAppointment(email);
    const DeliveryLock second(folder.file("lock"));
    EXPECT_THROW(delivery().run(second), RunTimeError);
    EXPECT_THAT(mail.messages, IsEmpty());
}

TEST_F(NotificationDeliveryTest, TheAttemptIsOnRecordBeforeItBegins)
{
    bool isSecure = false;
    addAppointment(email);
    mail.whileSending = [&] {
        EXPECT_EQ(state(), DeliveryState::sending);
        EXPECT_EQ(rows().text("MessageID"), mail.messages.back().messageID);
        EXPECT_EQ(rows().integer("Attempts"), 1);
        EXPECT_TRUE(isSecure);
    };
    secureRecord = [&] { isSecure = state() == DeliveryState::sending; };
    run();
    EXPECT_THAT(mail.messages, SizeIs(1));
}

TEST_F(NotificationDeliveryTest, AnAttemptThatNobodyEndedIsLookedAtAndNeverRepeated)
{
    addAppointment(email);
    mail.whileSending = [] { throw std::runtime_error("the process dies here"); };
    EXPECT_THROW(deliver(), std::runtime_error);
    mail.whileSending = nullptr;

    present = at(8, 14);
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::later)) << "another process may be at it";
    present = at(8, 15);
    for (int repeat = 0; repeat < 2; ++repeat)
        EXPECT_THAT(run(), ElementsAre(DeliveryStep::unknown));
    EXPECT_THAT(mail.messages, SizeIs(1));
    EXPECT_EQ(state(), DeliveryState::unknown);
    EXPECT_EQ(rows().text("LastError"), "an attempt was begun and not ended");
}

TEST_F(NotificationDeliveryTest, AnUnknownOutcomeIsForAPersonToSettle)
{
    addAppointment(email);
    mail.answers = {{Outcome::unknown, "the connection broke"}};
    const std::vector<Delivery> first = deliver();
    ASSERT_THAT(first, SizeIs(1));
    EXPECT_EQ(first[0].step, DeliveryStep::unknown);
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::unknown));
    EXPECT_THAT(mail.messages, SizeIs(1));

    EXPECT_EQ(delivery().tryAgain(first[0].id), Settlement::done);
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::sent));
    EXPECT_THAT(mail.messages, SizeIs(2));
    EXPECT_EQ(mail.messages[0].messageID, mail.messages[1].messageID) << "so that two copies are known for one";
    EXPECT_EQ(delivery().tryAgain(first[0].id), Settlement::sentAlready);
    EXPECT_EQ(delivery().markSent(99), Settlement::noSuch);
}

TEST_F(NotificationDeliveryTest, SwitchingTheChannelOffAndOnDoesNotRepeatAnUnknownOne)
{
    const std::int32_t id = addAppointment(email);
    mail.answers = {{Outcome::unknown, "the connection broke"}};
    run();
    clsCalendarItem item;
    item.calendarItemType(enumLocalCalendarAppointmentItem);
    item.itemID(id);
    ASSERT_TRUE(item.loadCalendarItem());
    for (const std::uint8_t channels : {std::uint8_t{0}, email}) {
        item.notifyType(channels);
        item.notifiedDate(Date::of(2026, 3, 2));
        ASSERT_TRUE(item.saveCalendarItem());
    }
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::unknown));
    EXPECT_THAT(mail.messages, SizeIs(1));
}

TEST_F(NotificationDeliveryTest, AnUnknownOneThatArrivedIsMarked)
{
    addAppointment(email);
    mail.answers = {{Outcome::unknown, "the connection broke"}};
    const std::int32_t id = deliverOne().id;
    EXPECT_EQ(delivery().markSent(id), Settlement::done);
    EXPECT_EQ(delivery().markSent(id), Settlement::sentAlready);
    EXPECT_THAT(run(), IsEmpty());
}

TEST_F(NotificationDeliveryTest, AnItemDeletedWhileItsMessageIsOnItsWayLeavesNothing)
{
    const std::int32_t id = addAppointment(email);
    mail.whileSending = [&] { deleteAppointment(id); };
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::sent));
    EXPECT_TRUE(rows().isEmpty());
}

TEST_F(NotificationDeliveryTest, WhatChangesDuringARunCounts)
{
    const std::int32_t first = addAppointment(email);
    const std::int32_t second = addAppointment(email, contact, at(9));
    const std::int32_t third = addAppointment(email);
    addAppointment(email);
    ASSERT_LT(first, second);
    mail.whileSending = [&] {
        if (mail.messages.size() > 1)
            return;
        present = at(9);
        deleteAppointment(third);
        change("Contacts", "BusinessEmail", "ann@new.example");
    };
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::sent, DeliveryStep::tooLate, DeliveryStep::sent));
    ASSERT_THAT(mail.messages, SizeIs(2));
    EXPECT_EQ(mail.messages[1].to.address, "ann@new.example");
}

TEST_F(NotificationDeliveryTest, AMarkOfAPersonDuringTheAttemptHolds)
{
    addAppointment(email);
    mail.answers = {{Outcome::failed, "no route"}};
    mail.whileSending = [&] {
        const std::int32_t id = rows().integer("ClientNotificationID");
        EXPECT_EQ(delivery().markSent(id), Settlement::beingSent);
        EXPECT_EQ(delivery().tryAgain(id), Settlement::beingSent);
        present = at(9);
        EXPECT_EQ(delivery().markSent(id), Settlement::done);
    };
    run();
    EXPECT_EQ(state(), DeliveryState::sent);
}

TEST_F(NotificationDeliveryTest, FaxesAndCallsAreListedUntilSomebodyMadeThem)
{
    addAppointment(AutoNotifyService::fax | AutoNotifyService::phone);
    const std::vector<Delivery> list = deliver();
    ASSERT_THAT(list, SizeIs(2));
    EXPECT_EQ(list[0].step, DeliveryStep::byHand);
    EXPECT_EQ(list[0].recipient, "555-0102");
    EXPECT_EQ(list[0].person, "Ann Stone");
    EXPECT_EQ(list[1].step, DeliveryStep::byHand);
    EXPECT_EQ(list[1].recipient, "555-0103");
    EXPECT_EQ(list[1].reason, "");
    EXPECT_EQ(delivery().markSent(list[0].id), Settlement::done);
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::byHand));
}

TEST_F(NotificationDeliveryTest, WritesALetterOnce)
{
    addAppointment(AutoNotifyService::letter);
    const std::vector<Delivery> list = deliver();
    ASSERT_THAT(list, SizeIs(1));
    EXPECT_EQ(list[0].step, DeliveryStep::sent);
    std::ifstream file(list[0].recipient);
    const std::string letter{std::istreambuf_iterator<char>(file), {}};
    EXPECT_THAT(letter, HasSubstr("<p class=\"client\">Ann Stone<br>\n1 Hill St<br>\nElora</p>"));
    EXPECT_THAT(letter, HasSubstr("Reed &amp; Partners"));
    EXPECT_THAT(run(), IsEmpty());
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(letters), {}), 1);
}

TEST_F(NotificationDeliveryTest, ALetterThatCannotBeWrittenIsTriedAgain)
{
    std::ofstream(letters) << "a file where the folder should be";
    addAppointment(AutoNotifyService::letter);
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::failed));
    std::filesystem::remove(letters);
    present = at(8, 5);
    EXPECT_THAT(run(), ElementsAre(DeliveryStep::sent));
}

TEST_F(NotificationDeliveryTest, WithoutMeansEverythingWaits)
{
    addAppointment(email | AutoNotifyService::letter);
    NotificationDelivery bare(database, {});
    const std::vector<Delivery> list = bare.run(lock);
    ASSERT_THAT(list, SizeIs(2));
    EXPECT_EQ(list[0].step, DeliveryStep::later);
    EXPECT_EQ(list[0].reason, "no mail server is set");
    EXPECT_EQ(list[1].step, DeliveryStep::byHand);
    EXPECT_TRUE(rows("DeliveryState <> 0").isEmpty());
}

TEST_F(NotificationDeliveryTest, DoesNothingWithoutAConnection)
{
    addAppointment(email);
    database->close();
    EXPECT_THAT(run(), IsEmpty());
}

/// Takes the whole process along while the message is on its way.
class DyingTransport : public MailTransport {
public:
    MailResult send(const MailMessage&) override
    {
        raise(SIGKILL);
        return {};
    }
};

TEST(DyingDeliveryTest, AProcessThatDiesWhileItSendsLeavesAnUnknownOutcomeAndNoLock)
{
    const TemporaryFolder folder;
    const std::string file = folder.file("firm.db");
    Date present = Date::of(2026, 3, 2, 8);
    const ClockOverride clock([&] { return present; });
    {
        const auto database = SqliteDatabase::create(file);
        addRow(*database, "Contacts", {{"DisplayName", "Ann Stone"}, {"BusinessEmail", "ann@client.example"}});
        addRow(*database, "Appointments", {{"ContactIDNum", "1"}, {"DateFrom", "2026-03-04"}});
        addRow(*database, "ClientNotification",
               {{"AppointmentNum", "1"}, {"NotificationType", "1"}, {"NotificationDate", "2026-03-02"}});
    }
    const MailAddress firm{"Reed & Partners", "office@firm.example"};
    const pid_t child = fork();
    if (child == 0) {
        DyingTransport mail;
        NotificationDelivery(SqliteDatabase::open(file), {&mail, firm}).run(DeliveryLock::ofDatabase(file));
        _exit(EXIT_FAILURE);
    }
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status));

    const DeliveryLock lock = DeliveryLock::ofDatabase(file);
    test::ScriptedTransport mail;
    NotificationDelivery next(SqliteDatabase::open(file), {&mail, firm});
    EXPECT_EQ(next.run(lock).at(0).step, DeliveryStep::later);
    present = present.addSeconds(15 * 60);
    EXPECT_EQ(next.run(lock).at(0).step, DeliveryStep::unknown);
    EXPECT_THAT(mail.messages, IsEmpty());
}

} // namespace
} // namespace qncal::host
