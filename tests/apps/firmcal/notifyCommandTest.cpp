#include "apps/firmcal/CommandLine.h"

#include "notifications/DeliveryLock.h"
#include "services/Rows.h"
#include "store/SqliteDatabase.h"
#include "support/SmtpServer.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <fstream>

namespace qncal::firmcal::test {
namespace {

using qncal::test::SmtpServer;
using testing::HasSubstr;
using testing::SizeIs;

class NotifyCommandTest : public EmptyDatabaseTest {
protected:
    void SetUp() override
    {
        EmptyDatabaseTest::SetUp();
        const auto store = host::SqliteDatabase::open(database());
        host::addRow(
            *store, "Contacts",
            {{"DisplayName", "Ann Reed"}, {"BusinessEmail", "ann@client.example"}, {"BusinessPhone_Main", "555-0103"}});
        host::addRow(
            *store, "Appointments",
            {{"Subject", "Year end"}, {"ContactIDNum", "1"}, {"DateFrom", "2026-03-04"}, {"TimeFrom", "09:30:00"}});
        for (const char* channel : {"1", "4", "8"})
            host::addRow(*store, "ClientNotification",
                         {{"AppointmentNum", "1"},
                          {"ContactIDNum", "1"},
                          {"NotificationType", channel},
                          {"NotificationDate", "2026-03-02"}});
    }
    std::string settingsFor(const SmtpServer& server) const
    {
        const std::string file = (folder() / "mail.conf").string();
        std::ofstream(file) << "server = 127.0.0.1\nport = " << server.port()
                            << "\nsecurity = none\nfrom = office@firm.example\nfromName = Reed & Partners\n";
        return file;
    }
    std::string letters() const { return (folder() / "letters").string(); }
    std::string sent() const
    {
        return rows("SELECT NotificationSent FROM ClientNotification ORDER BY ClientNotificationID;");
    }
};

const std::string noneSent =
    "{\"NotificationSent\":false}\n{\"NotificationSent\":false}\n{\"NotificationSent\":false}\n";

TEST_F(NotifyCommandTest, ListsWhatIsDueAndChangesNothing)
{
    const std::string list =
        "ID  State  Channel  To                  Client    Item                                             Reason\n"
        "--  -----  -------  ------------------  --------  -----------------------------------------------  ------\n"
        " 1  due    email    ann@client.example  Ann Reed  appointment 1, Wed, Mar 4, 2026 09:30: Year end\n"
        " 2  to do  phone    555-0103            Ann Reed  appointment 1, Wed, Mar 4, 2026 09:30: Year end\n"
        " 3  due    letter                       Ann Reed  appointment 1, Wed, Mar 4, 2026 09:30: Year end\n";
    EXPECT_EQ(output({"notify"}), list);
    EXPECT_EQ(output({"notify", "--dry-run"}), list);
    EXPECT_EQ(sent(), noneSent);
}

TEST_F(NotifyCommandTest, SendsAndWritesOnceAndListsTheCalls)
{
    const SmtpServer server("good", folder() / "mails");
    const std::vector<std::string> command{"notify",    "--once",  "--smtp", settingsFor(server),
                                           "--letters", letters(), "--json"};
    const auto first = nlohmann::ordered_json::parse(output(command));
    ASSERT_THAT(first, SizeIs(3));
    EXPECT_EQ(first[0]["state"], "sent");
    EXPECT_EQ(first[0]["to"], "ann@client.example");
    EXPECT_EQ(first[1]["state"], "to do");
    EXPECT_EQ(first[1]["channel"], "phone");
    EXPECT_EQ(first[2]["state"], "sent");
    EXPECT_EQ(first[2]["item"]["start"], "2026-03-04T09:30");
    EXPECT_TRUE(std::filesystem::exists(first[2]["to"].get<std::string>()));

    const auto second = nlohmann::ordered_json::parse(output(command));
    ASSERT_THAT(second, SizeIs(1));
    EXPECT_EQ(second[0]["state"], "to do");
    ASSERT_THAT(server.messages(), SizeIs(1));
    EXPECT_THAT(server.messages()[0], HasSubstr("Subject: Appointment on Wednesday, March 4, 2026\r\n"));
}

TEST_F(NotifyCommandTest, SettlesByHand)
{
    EXPECT_EQ(output({"notify", "--done", "2", "3"}), "notification 2 is done\nnotification 3 is done\n");
    EXPECT_EQ(output({"notify", "--again", "1"}), "notification 1 will be tried again\n");
    EXPECT_THAT(nlohmann::ordered_json::parse(output({"notify", "--json"})), SizeIs(1));
    const Outcome twice = run({"notify", "--done", "2"});
    EXPECT_EQ(twice.status, 1);
    EXPECT_EQ(twice.err, "firmcal: notification 2 was sent already\n");
    EXPECT_EQ(run({"notify", "--again", "1", "99"}).err, "firmcal: there is no notification 99\n");
    EXPECT_EQ(run({"notify", "--dry-run", "--done", "1"}).status, 2);
}

TEST_F(NotifyCommandTest, SettlesAllOrNothing)
{
    EXPECT_EQ(run({"notify", "--done", "2", "99"}).err, "firmcal: there is no notification 99\n");
    EXPECT_EQ(sent(), noneSent);
}

TEST_F(NotifyCommandTest, FailsWhileSomethingFailed)
{
    const SmtpServer server("busy", folder() / "mails");
    const Outcome outcome = run({"notify", "--once", "--smtp", settingsFor(server)});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.err, "firmcal: 1 failed and will be tried again; --again ID does so at once\n");
    EXPECT_THAT(outcome.out, HasSubstr("451"));
    const Outcome soon = run({"notify", "--once", "--smtp", settingsFor(server)});
    EXPECT_EQ(soon.status, 0) << "it waits for its next attempt";
    EXPECT_THAT(soon.out, HasSubstr("next attempt Mar 2, 2026 9:05 am"));
}

TEST_F(NotifyCommandTest, NeverRepeatsWhatMayHaveArrived)
{
    const SmtpServer server("closeAfterMessage", folder() / "mails");
    for (int repeat = 0; repeat < 2; ++repeat) {
        const Outcome outcome = run({"notify", "--once", "--smtp", settingsFor(server)});
        EXPECT_EQ(outcome.status, 1);
        EXPECT_EQ(outcome.err, "firmcal: 1 may have been sent or not: settle with --done ID or --again ID\n");
    }
    EXPECT_EQ(rows("SELECT Attempts, DeliveryState FROM ClientNotification WHERE ClientNotificationID=1;"),
              "{\"Attempts\":1,\"DeliveryState\":4}\n");
}

TEST_F(NotifyCommandTest, WithoutAServerEmailsWait)
{
    EXPECT_THAT(output({"notify", "--once"}), HasSubstr("no mail server is set"));
    EXPECT_EQ(sent(), noneSent);
}

TEST_F(NotifyCommandTest, SaysWhatIsWrongWithTheSettings)
{
    const auto errorOf = [&](const std::string& settings) {
        const std::string file = (folder() / "mail.conf").string();
        std::ofstream(file) << settings;
        std::string text = run({"notify", "--once", "--smtp", file}).err;
        if (const std::size_t at = text.find(file); at != std::string::npos)
            text.replace(at, file.size(), "FILE");
        return text;
    };
    EXPECT_EQ(errorOf("server\n"), "firmcal: FILE: line 1: a line is 'name = value'\n");
    EXPECT_EQ(errorOf("server = 127.0.0.1\n"), "firmcal: the mail settings: no sender's address is set (from)\n");
    EXPECT_EQ(errorOf("# nothing\n"), "firmcal: the mail settings: no mail server is set (server)\n");
    EXPECT_EQ(run({"notify", "--smtp", "/none"}).err, "firmcal: the mail settings /none cannot be read\n");
    EXPECT_EQ(run({"notify", "--smtp", "/"}).err, "firmcal: the mail settings / cannot be read\n");
    EXPECT_EQ(run({"notify", "--once", "--dry-run"}).status, 2);
}

TEST_F(NotifyCommandTest, LeavesADatabaseAloneThatAnotherDelivers)
{
    const auto lock = host::DeliveryLock::ofDatabase(database());
    ASSERT_TRUE(lock.isHeld());
    EXPECT_EQ(run({"notify", "--once"}).err, "firmcal: another 'firmcal notify --once' is at work on this database\n");
    EXPECT_EQ(run({"notify"}).status, 0);
    EXPECT_EQ(sent(), noneSent);
}

TEST_F(NotifyCommandTest, SaysWhenTheLockCannotBeHad)
{
    std::filesystem::create_directory(database() + "-notify");
    EXPECT_THAT(run({"notify", "--once"}).err, HasSubstr("the lock of the notifications cannot be had: "));
    EXPECT_EQ(sent(), noneSent);
}

TEST_F(NotifyCommandTest, AnItemThatIsGoneIsNullInJson)
{
    {
        const auto store = host::SqliteDatabase::open(database());
        host::Rows::change(*store, "SELECT Appointments.* FROM Appointments;").deleteCurrent();
    }
    const auto json = nlohmann::ordered_json::parse(output({"notify", "--json"}));
    ASSERT_THAT(json, SizeIs(3));
    EXPECT_TRUE(json[0]["item"].is_null());
    EXPECT_EQ(json[0]["reason"], "the item is gone");
}

} // namespace
} // namespace qncal::firmcal::test
