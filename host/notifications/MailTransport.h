#pragma once

#include "notifications/MailMessage.h"

#include <cstdint>
#include <string>

namespace qncal::host {

/// What became of an attempt to send a message.
struct MailResult {
    enum class Outcome : std::uint8_t {
        sent,
        failed,      ///< certainly not sent: it may be tried again
        unreachable, ///< the same, and any other message would fare alike: the server was not there for us
        unknown,     ///< the connection broke when the message was out and the server's word on it was not in
    };
    Outcome outcome = Outcome::failed;
    /// One line; empty for `sent`.
    std::string reason;
};

/// Host contract: sends one message and says what became of it. Never throws.
class MailTransport {
public:
    virtual ~MailTransport() = default;
    virtual MailResult send(const MailMessage& message) = 0;
};

} // namespace qncal::host
