#include "notifications/SmtpTransport.h"

#include "host/store/StoreFactory.h"
#include "support/SmtpServer.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>

namespace qncal::host {
namespace {

using test::SmtpServer;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;
using Outcome = MailResult::Outcome;
using Security = SmtpSettings::Security;

class SmtpTransportTest : public testing::Test {
protected:
    static SmtpSettings settingsFor(const SmtpServer& server)
    {
        SmtpSettings settings;
        settings.server = "127.0.0.1";
        settings.port = server.port();
        settings.security = Security::none;
        settings.from = {"Firm", "office@firm.example"};
        return settings;
    }
    static MailMessage message()
    {
        return {{"Firm", "office@firm.example"}, {"Zoë", "zoe@client.example"},   "Grüße",
                ".\n.dots stay\nText\n",         "notification-1.x@firm.example", Date::of(2026, 3, 2, 9)};
    }
    MailResult sendTo(const std::string& mode, std::chrono::milliseconds timeout)
    {
        const SmtpServer server(mode, folder.path());
        SmtpSettings settings = settingsFor(server);
        settings.timeout = timeout;
        return SmtpTransport(settings).send(message());
    }

    TemporaryFolder folder;
};

TEST_F(SmtpTransportTest, DeliversTheMessage)
{
    const SmtpServer server("good", folder.path());
    const MailResult result = SmtpTransport(settingsFor(server)).send(message());
    EXPECT_EQ(result.outcome, Outcome::sent) << result.reason;
    EXPECT_EQ(result.reason, "");
    ASSERT_THAT(server.messages(), SizeIs(1));
    EXPECT_THAT(server.messages()[0], HasSubstr("X-Envelope: office@firm.example ['zoe@client.example']\r\n"));
    EXPECT_THAT(server.messages()[0], HasSubstr(mailText(message())));
}

TEST_F(SmtpTransportTest, SignsIn)
{
    const SmtpServer server("auth", folder.path());
    SmtpSettings settings = settingsFor(server);
    EXPECT_EQ(SmtpTransport(settings).send(message()).outcome, Outcome::failed);
    settings.user = "firm";
    settings.password = "wrong";
    const MailResult refused = SmtpTransport(settings).send(message());
    EXPECT_EQ(refused.outcome, Outcome::unreachable);
    EXPECT_THAT(refused.reason, HasSubstr("refuses the user or the password"));
    settings.password = "secret";
    const MailResult result = SmtpTransport(settings).send(message());
    EXPECT_EQ(result.outcome, Outcome::sent) << result.reason;
    EXPECT_THAT(server.messages(), SizeIs(1));
}

class EncryptedTransportTest : public SmtpTransportTest {
protected:
    void SetUp() override
    {
        const std::string command = "openssl req -x509 -newkey rsa:2048 -nodes -days 36500 -subj /CN=127.0.0.1 "
                                    "-addext subjectAltName=IP:127.0.0.1 -keyout "
                                    + key + " -out " + certificate + " 2>/dev/null";
        ASSERT_EQ(std::system(command.c_str()), 0);
    }
    SmtpSettings signedIn(const SmtpServer& server) const
    {
        SmtpSettings settings = settingsFor(server);
        settings.user = "firm";
        settings.password = "secret";
        settings.certificates = certificate;
        return settings;
    }

    std::string certificate = folder.file("certificate.pem");
    std::string key = folder.file("key.pem");
};

TEST_F(EncryptedTransportTest, EncryptsBeforeItSignsIn)
{
    for (const auto& [mode, security] : {std::pair("startTls", Security::startTls), std::pair("tls", Security::tls)}) {
        const SmtpServer server(mode, folder.path() / mode, {certificate, key});
        SmtpSettings settings = signedIn(server);
        EXPECT_NE(SmtpTransport(settings).send(message()).outcome, Outcome::sent) << mode << " without encryption";
        settings.security = security;
        const MailResult result = SmtpTransport(settings).send(message());
        EXPECT_EQ(result.outcome, Outcome::sent) << mode << ": " << result.reason;
        EXPECT_THAT(server.messages(), SizeIs(1)) << mode;
    }
}

TEST_F(EncryptedTransportTest, TrustsOnlyTheCertificatesItIsGiven)
{
    for (const auto& [mode, security] : {std::pair("startTls", Security::startTls), std::pair("tls", Security::tls)}) {
        const SmtpServer server(mode, folder.path() / mode, {certificate, key});
        SmtpSettings settings = signedIn(server);
        settings.security = security;
        settings.certificates.clear();
        EXPECT_EQ(SmtpTransport(settings).send(message()).outcome, Outcome::unreachable) << mode;
        settings.certificates = folder.file("none.pem");
        EXPECT_EQ(SmtpTransport(settings).send(message()).outcome, Outcome::unreachable) << mode;
        EXPECT_THAT(server.messages(), SizeIs(0)) << mode;
    }
}

TEST_F(SmtpTransportTest, SaysNoPasswordToAServerThatOffersNoEncryption)
{
    const SmtpServer server("tellPassword", folder.path());
    SmtpSettings settings = settingsFor(server);
    settings.user = "firm";
    settings.password = "secret";
    settings.security = Security::startTls;
    EXPECT_EQ(SmtpTransport(settings).send(message()).outcome, Outcome::unreachable);
    EXPECT_THAT(server.commands(), HasSubstr("EHLO"));
    EXPECT_THAT(server.commands(), Not(HasSubstr("AUTH")));
    EXPECT_THAT(server.commands(), Not(HasSubstr("MAIL")));
}

TEST_F(SmtpTransportTest, SendsNothingToAServerThatCannotEncrypt)
{
    const SmtpServer server("good", folder.path());
    SmtpSettings settings = settingsFor(server);
    settings.user = "firm";
    settings.password = "secret";
    for (const Security security : {Security::startTls, Security::tls}) {
        settings.security = security;
        EXPECT_EQ(SmtpTransport(settings).send(message()).outcome, Outcome::unreachable);
    }
    EXPECT_THAT(server.messages(), SizeIs(0));
}

TEST_F(SmtpTransportTest, SaysThatNobodyListens)
{
    SmtpSettings settings;
    {
        const SmtpServer server("good", folder.path());
        settings = settingsFor(server);
    }
    const MailResult result = SmtpTransport(settings).send(message());
    EXPECT_EQ(result.outcome, Outcome::unreachable);
    EXPECT_THAT(result.reason, HasSubstr("127.0.0.1"));
}

TEST_F(SmtpTransportTest, NoReasonRepeatsThePassword)
{
    const SmtpServer server("tellPassword", folder.path());
    SmtpSettings settings = settingsFor(server);
    settings.user = "firm";
    settings.password = "secret";
    const MailResult result = SmtpTransport(settings).send(message());
    EXPECT_EQ(result.outcome, Outcome::unreachable);
    EXPECT_THAT(result.reason, HasSubstr("refuses the user or the password"));
    EXPECT_THAT(result.reason, Not(HasSubstr("secret")));
    EXPECT_THAT(result.reason, Not(HasSubstr("AGZpcm0Ac2VjcmV0")));
}

TEST_F(SmtpTransportTest, ARecipientsNameWithLineBreaksBringsNoOtherRecipient)
{
    const SmtpServer server("good", folder.path());
    MailMessage odd = message();
    odd.to.name = "Zoe\r\nBcc: all@client.example\r\n\r\nbody";
    EXPECT_EQ(SmtpTransport(settingsFor(server)).send(odd).outcome, Outcome::sent);
    ASSERT_THAT(server.messages(), SizeIs(1));
    EXPECT_THAT(server.messages()[0], HasSubstr("X-Envelope: office@firm.example ['zoe@client.example']\r\n"));
    EXPECT_THAT(server.messages()[0], Not(HasSubstr("\nBcc:")));
}

TEST_F(SmtpTransportTest, RefusesUnsafeAddressesBeforeItConnects)
{
    const SmtpServer server("good", folder.path());
    MailMessage unsafe = message();
    unsafe.to.address = "zoe@client.example>\r\nRCPT TO:<all@client.example";
    const MailResult result = SmtpTransport(settingsFor(server)).send(unsafe);
    EXPECT_EQ(result.outcome, Outcome::failed);
    EXPECT_EQ(result.reason.find_first_of("\r\n"), std::string::npos);
    EXPECT_THAT(server.messages(), SizeIs(0));
}

struct BadServerRow {
    const char* mode;
    Outcome outcome;
    const char* words;
    /// A server that never gives an answer is given up after that many milliseconds; the others answer at once.
    int timeout = 30000;
};

class BadSmtpServerTest : public SmtpTransportTest, public testing::WithParamInterface<BadServerRow> {};

TEST_P(BadSmtpServerTest, HasTheOutcomeThatIsCertain)
{
    const MailResult result = sendTo(GetParam().mode, std::chrono::milliseconds(GetParam().timeout));
    EXPECT_EQ(result.outcome, GetParam().outcome) << result.reason;
    EXPECT_THAT(result.reason, HasSubstr(GetParam().words));
    EXPECT_NE(result.reason, "");
    EXPECT_TRUE(std::ranges::all_of(result.reason, [](char c) { return c >= ' ' && c < '\x7F'; })) << result.reason;
}

INSTANTIATE_TEST_SUITE_P(
    Servers, BadSmtpServerTest,
    testing::Values(BadServerRow{"refuse", Outcome::unreachable, "554 5.3.2 no mail here"},
                    BadServerRow{"refuseGreeting", Outcome::unreachable, "504 5.7.1 not from here"},
                    BadServerRow{"close", Outcome::unreachable, ""},
                    BadServerRow{"hang", Outcome::unreachable, "", 400},
                    BadServerRow{"garbage", Outcome::unreachable, "", 400},
                    BadServerRow{"refuseRecipient", Outcome::failed,
                                 "the mail server said: 550 5.1.1 nobody of that name"},
                    BadServerRow{"busy", Outcome::failed, "the mail server said: 451 4.7.1 come back later"},
                    BadServerRow{"hangAtRecipient", Outcome::unreachable, "", 3000},
                    BadServerRow{"garbageAtRecipient", Outcome::unreachable, "", 3000},
                    BadServerRow{"closeBeforeMessage", Outcome::failed, ""},
                    BadServerRow{"refuseData", Outcome::failed, "452 4.3.1 no room"},
                    BadServerRow{"closeInMessage", Outcome::unknown, ""},
                    BadServerRow{"refuseMessage", Outcome::failed, "554 5.7.1 not this one"},
                    BadServerRow{"postponeMessage", Outcome::failed, "451 4.3.0 try again"},
                    BadServerRow{"closeAfterMessage", Outcome::unknown, ""},
                    BadServerRow{"silentAfterMessage", Outcome::unknown, "", 3000},
                    BadServerRow{"garbageAfterMessage", Outcome::unknown, "", 3000}),
    [](const auto& row) { return row.param.mode; });

TEST_F(SmtpTransportTest, AServerThatHangsAtTheFarewellHasTheMessage)
{
    EXPECT_EQ(sendTo("hangAtFarewell", std::chrono::seconds(1)).outcome, Outcome::sent);
}

/// Larger than what the system takes over at once, so that the message is certainly not out.
TEST_F(SmtpTransportTest, AConnectionThatClosesInALongMessageHasFailed)
{
    const SmtpServer server("closeInMessage", folder.path());
    MailMessage large = message();
    large.body.assign(20'000'000, 'x');
    const MailResult result = SmtpTransport(settingsFor(server)).send(large);
    EXPECT_EQ(result.outcome, Outcome::failed) << result.reason;
}

} // namespace
} // namespace qncal::host
