#pragma once

#include "notifications/MailMessage.h"

#include <chrono>
#include <cstdint>
#include <iosfwd>
#include <string>

namespace qncal::host {

/// How the firm's mail server is reached.
struct SmtpSettings {
    enum class Security : std::uint8_t {
        none,
        startTls, ///< an ordinary connection that is encrypted before anything is said; without it nothing is sent
        tls,      ///< encrypted from the first byte
    };

    std::string server;
    /// 0 for the usual one: 25 without encryption, 587 with STARTTLS, 465 with TLS.
    std::uint16_t port = 0;
    Security security = Security::startTls;
    /// Empty for a server that asks for none.
    std::string user;
    std::string password;
    MailAddress from;
    /// Certificates to trust instead of the system's; empty for those.
    std::string certificates;
    /// For the whole of an attempt; the server must bid welcome within half a minute. Servers may look at a message for
    /// minutes before they take it, and one that is given up then has an unknown outcome.
    std::chrono::milliseconds timeout = std::chrono::minutes(5);
    /// With as much again for the farewell it is below the time after which an attempt counts as left behind, see
    /// `isUnderWay`.
    static constexpr std::chrono::seconds longestTimeout = std::chrono::minutes(7);
};

/// Takes the settings that a file states, one "name = value" a line, # before remarks: server, port,
/// security (none, starttls, tls), user, password, from, fromName, certificates, timeout (seconds).
/// Throws `RunTimeError` 5 with the line's number for anything else.
void readSmtpSettings(std::istream& file, SmtpSettings& settings);

/// Takes the settings that environment variables state: FIRMCAL_SMTP_SERVER, _PORT, _SECURITY, _USER, _PASSWORD,
/// _FROM, _FROM_NAME, _CERTIFICATES, _TIMEOUT. Throws `RunTimeError` 5 that names the variable.
void readSmtpEnvironment(SmtpSettings& settings);

/// Throws `RunTimeError` 5 that says what is missing or wrong: no server, no sender, a user without a password or the
/// other way round, a password that would cross a network in the clear.
void checkSmtpSettings(const SmtpSettings& settings);

} // namespace qncal::host
