#pragma once

#include "notifications/MailTransport.h"
#include "notifications/SmtpSettings.h"

namespace qncal::host {

/// Sends over SMTP, one connection for each message. No environment variable for proxies is heeded.
class SmtpTransport : public MailTransport {
public:
    explicit SmtpTransport(SmtpSettings settings) : settings_(std::move(settings)) {}
    MailResult send(const MailMessage& message) override;

private:
    SmtpSettings settings_;
};

} // namespace qncal::host
