#include "notifications/SmtpSettings.h"

#include "utilities/RunTimeError.h"
#include "utilities/text.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <istream>
#include <limits>

namespace qncal::host {

namespace {

[[noreturn]] void refuse(const std::string& why) { throw RunTimeError(errorNumber::invalidProcedureCall, why); }

int numberIn(const std::string& value, int highest)
{
    int number = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    if (error != std::errc() || end != value.data() + value.size() || number < 1 || number > highest)
        refuse("'" + value + "' is no number from 1 to " + std::to_string(highest));
    return number;
}

SmtpSettings::Security securityIn(const std::string& value)
{
    if (equalsNoCase(value, "none"))
        return SmtpSettings::Security::none;
    if (equalsNoCase(value, "starttls"))
        return SmtpSettings::Security::startTls;
    if (equalsNoCase(value, "tls"))
        return SmtpSettings::Security::tls;
    refuse("'" + value + "' is no security (none, starttls, tls)");
}

struct Setting {
    std::string_view name;
    const char* variable;
    void (*set)(SmtpSettings& settings, const std::string& value);
};

constexpr Setting knownSettings[] = {
    {"server", "FIRMCAL_SMTP_SERVER",
     [](SmtpSettings& settings, const std::string& value) { settings.server = value; }},
    {"port", "FIRMCAL_SMTP_PORT",
     [](SmtpSettings& settings, const std::string& value) {
         settings.port = static_cast<std::uint16_t>(numberIn(value, std::numeric_limits<std::uint16_t>::max()));
     }},
    {"security", "FIRMCAL_SMTP_SECURITY",
     [](SmtpSettings& settings, const std::string& value) { settings.security = securityIn(value); }},
    {"user", "FIRMCAL_SMTP_USER", [](SmtpSettings& settings, const std::string& value) { settings.user = value; }},
    {"password", "FIRMCAL_SMTP_PASSWORD",
     [](SmtpSettings& settings, const std::string& value) { settings.password = value; }},
    {"from", "FIRMCAL_SMTP_FROM",
     [](SmtpSettings& settings, const std::string& value) { settings.from.address = value; }},
    {"fromName", "FIRMCAL_SMTP_FROM_NAME",
     [](SmtpSettings& settings, const std::string& value) { settings.from.name = value; }},
    {"certificates", "FIRMCAL_SMTP_CERTIFICATES",
     [](SmtpSettings& settings, const std::string& value) { settings.certificates = value; }},
    {"timeout", "FIRMCAL_SMTP_TIMEOUT",
     [](SmtpSettings& settings, const std::string& value) {
         settings.timeout =
             std::chrono::seconds(numberIn(value, static_cast<int>(SmtpSettings::longestTimeout.count())));
     }},
};

void readLine(std::string_view line, SmtpSettings& settings)
{
    const std::string_view content = trimmed(line);
    if (content.empty() || content.front() == '#')
        return;
    const std::size_t equals = content.find('=');
    if (equals == std::string_view::npos)
        refuse("a line is 'name = value'");
    const std::string_view name = trimmed(content.substr(0, equals));
    for (const Setting& setting : knownSettings) {
        if (equalsNoCase(setting.name, name))
            return setting.set(settings, std::string(trimmed(content.substr(equals + 1))));
    }
    refuse("there is no setting '" + std::string(name) + "'");
}

bool isThisMachine(const std::string& server)
{
    return server == "localhost" || server == "127.0.0.1" || server == "::1" || server == "[::1]";
}

/// "mail.firm.example", or an address; no part of a URL besides.
bool isServerName(const std::string& server)
{
    const bool isIPv6 = std::ranges::count(server, ':') > 1;
    return std::ranges::none_of(server, [&](char c) {
        return static_cast<unsigned char>(c) <= ' ' || std::string_view("/@?#%\\\"<>").find(c) != std::string_view::npos
               || (!isIPv6 && std::string_view("[]:").find(c) != std::string_view::npos);
    });
}

} // namespace

void readSmtpSettings(std::istream& file, SmtpSettings& settings)
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    std::string line;
    for (int number = 1; std::getline(file, line); ++number) {
        if (number == 1 && line.starts_with(byteOrderMark))
            line.erase(0, byteOrderMark.size());
        try {
            readLine(line, settings);
        } catch (const RunTimeError& error) {
            refuse("line " + std::to_string(number) + ": " + error.what());
        }
    }
}

void readSmtpEnvironment(SmtpSettings& settings)
{
    for (const Setting& setting : knownSettings) {
        const char* value = std::getenv(setting.variable);
        if (!value)
            continue;
        try {
            setting.set(settings, value);
        } catch (const RunTimeError& error) {
            refuse(std::string(setting.variable) + ": " + error.what());
        }
    }
}

void checkSmtpSettings(const SmtpSettings& settings)
{
    if (settings.server.empty())
        refuse("no mail server is set (server)");
    if (!isServerName(settings.server))
        refuse("'" + settings.server + "' is no name of a server; the port is a setting of its own");
    if (!isMailAddress(settings.from.address))
        refuse(settings.from.address.empty() ? "no sender's address is set (from)"
                                             : "the sender's '" + settings.from.address + "' is no e-mail address");
    if (settings.user.empty() != settings.password.empty())
        refuse(settings.user.empty() ? "there is a password, and no user" : "the user has no password (password)");
    if (!settings.password.empty() && settings.security == SmtpSettings::Security::none
        && !isThisMachine(settings.server))
        refuse("a password goes to " + settings.server + " with starttls or tls alone");
}

} // namespace qncal::host
