#include "notifications/SmtpSettings.h"

#include "utilities/RunTimeError.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <functional>
#include <sstream>

namespace qncal::host {
namespace {

using Security = SmtpSettings::Security;

SmtpSettings readText(const std::string& text)
{
    SmtpSettings settings;
    std::istringstream file(text);
    readSmtpSettings(file, settings);
    return settings;
}

std::string errorOf(const std::function<void()>& operation)
{
    try {
        operation();
    } catch (const RunTimeError& error) {
        return error.what();
    }
    return "no error";
}

TEST(SmtpSettingsTest, ReadsEveryLineOfAFile)
{
    const SmtpSettings settings = readText("# the firm's server\n"
                                           "server = mail.firm.example\n\n"
                                           "port=2525\n"
                                           "Security = TLS\n"
                                           "user = firm\n"
                                           "password = se cret=\n"
                                           "from = office@firm.example\n"
                                           "fromName = Reed & Partners\n"
                                           "certificates = /etc/firm.pem\n"
                                           "timeout = 20\n");
    EXPECT_EQ(settings.server, "mail.firm.example");
    EXPECT_EQ(settings.port, 2525);
    EXPECT_EQ(settings.security, Security::tls);
    EXPECT_EQ(settings.user, "firm");
    EXPECT_EQ(settings.password, "se cret=");
    EXPECT_EQ(settings.from.address, "office@firm.example");
    EXPECT_EQ(settings.from.name, "Reed & Partners");
    EXPECT_EQ(settings.certificates, "/etc/firm.pem");
    EXPECT_EQ(settings.timeout, std::chrono::seconds(20));
}

TEST(SmtpSettingsTest, ReadsAFileOfAnotherSystem)
{
    const SmtpSettings settings = readText("\xEF\xBB\xBFserver = mail.firm.example\r\nport = 25\r\n");
    EXPECT_EQ(settings.server, "mail.firm.example");
    EXPECT_EQ(settings.port, 25);
}

TEST(SmtpSettingsTest, EncryptsUnlessToldOtherwise)
{
    EXPECT_EQ(readText("server = a\n").security, Security::startTls);
    EXPECT_EQ(readText("security = none\n").security, Security::none);
}

TEST(SmtpSettingsTest, NamesTheLineThatItCannotRead)
{
    EXPECT_EQ(errorOf([] { readText("server = a\nwhat\n"); }), "line 2: a line is 'name = value'");
    EXPECT_EQ(errorOf([] { readText("sever = a\n"); }), "line 1: there is no setting 'sever'");
    EXPECT_EQ(errorOf([] { readText("port = 65536\n"); }), "line 1: '65536' is no number from 1 to 65535");
    EXPECT_EQ(errorOf([] { readText("timeout = soon\n"); }), "line 1: 'soon' is no number from 1 to 420");
    EXPECT_EQ(errorOf([] { readText("security = some\n"); }), "line 1: 'some' is no security (none, starttls, tls)");
}

TEST(SmtpSettingsTest, TheEnvironmentGoesBeforeTheFile)
{
    SmtpSettings settings = readText("server = a\npassword = old\n");
    setenv("FIRMCAL_SMTP_PASSWORD", "new", 1);
    readSmtpEnvironment(settings);
    setenv("FIRMCAL_SMTP_PORT", "x", 1);
    EXPECT_EQ(errorOf([&] { readSmtpEnvironment(settings); }), "FIRMCAL_SMTP_PORT: 'x' is no number from 1 to 65535");
    unsetenv("FIRMCAL_SMTP_PASSWORD");
    unsetenv("FIRMCAL_SMTP_PORT");
    EXPECT_EQ(settings.server, "a");
    EXPECT_EQ(settings.password, "new");
}

TEST(SmtpSettingsTest, ChecksWhatIsNeeded)
{
    const auto check = [](const std::string& text) { return errorOf([&] { checkSmtpSettings(readText(text)); }); };
    EXPECT_EQ(check("server = a\nfrom = b@c\n"), "no error");
    EXPECT_EQ(check("from = b@c\n"), "no mail server is set (server)");
    for (const char* server : {"a/b", "user@a", "a b", "a:25", "a?b", "smtp://a", "[a]"})
        EXPECT_EQ(check("server = " + std::string(server) + "\nfrom = b@c\n"),
                  "'" + std::string(server) + "' is no name of a server; the port is a setting of its own");
    for (const char* server : {"mail.firm.example", "127.0.0.1", "::1", "[::1]"})
        EXPECT_EQ(check("server = " + std::string(server) + "\nfrom = b@c\n"), "no error");
    EXPECT_EQ(check("server = a\nfrom = b@c\nuser = u\n"), "the user has no password (password)");
    EXPECT_EQ(check("server = a\nfrom = b@c\npassword = p\n"), "there is a password, and no user");
    EXPECT_EQ(check("server = a\n"), "no sender's address is set (from)");
    EXPECT_EQ(check("server = a\nfrom = b\n"), "the sender's 'b' is no e-mail address");
}

TEST(SmtpSettingsTest, NoPasswordCrossesANetworkInTheClear)
{
    const auto check = [](const std::string& server) {
        return errorOf([&] {
            checkSmtpSettings(
                readText("server = " + server + "\nfrom = b@c\nuser = u\npassword = x\nsecurity = none\n"));
        });
    };
    EXPECT_EQ(check("mail.firm.example"), "a password goes to mail.firm.example with starttls or tls alone");
    EXPECT_EQ(check("127.0.0.1"), "no error");
}

} // namespace
} // namespace qncal::host
