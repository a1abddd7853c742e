#include "notifications/SmtpTransport.h"

#include <algorithm>
#include <array>
#include <curl/curl.h>
#include <exception>
#include <memory>

namespace qncal::host {

namespace {

using Outcome = MailResult::Outcome;
using Security = SmtpSettings::Security;

struct CloseCurl {
    void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
    void operator()(curl_slist* list) const { curl_slist_free_all(list); }
};
using Handle = std::unique_ptr<CURL, CloseCurl>;
using List = std::unique_ptr<curl_slist, CloseCurl>;

/// The message on its way out. From its last byte on the server may have it.
struct Outgoing {
    std::string text;
    std::size_t handedOver = 0;

    bool isOut() const { return handedOver == text.size(); }
    static std::size_t read(char* buffer, std::size_t size, std::size_t count, void* self)
    {
        auto& outgoing = *static_cast<Outgoing*>(self);
        const std::size_t part = std::min(size * count, outgoing.text.size() - outgoing.handedOver);
        outgoing.text.copy(buffer, part, outgoing.handedOver);
        outgoing.handedOver += part;
        return part;
    }
};

std::string urlOf(const SmtpSettings& settings)
{
    const bool tls = settings.security == Security::tls;
    const int usualPort = tls ? 465 : settings.security == Security::startTls ? 587 : 25;
    return (tls ? "smtps://" : "smtp://") + settings.server + ":"
           + std::to_string(settings.port != 0 ? settings.port : usualPort);
}

void configure(CURL* handle, const SmtpSettings& settings)
{
    curl_easy_setopt(handle, CURLOPT_URL, urlOf(settings).c_str());
    curl_easy_setopt(handle, CURLOPT_PROTOCOLS_STR, "smtp,smtps");
    curl_easy_setopt(handle, CURLOPT_PROXY, "");
    curl_easy_setopt(handle, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(handle, CURLOPT_TIMEOUT_MS, static_cast<long>(settings.timeout.count()));
    if (settings.security == Security::startTls)
        curl_easy_setopt(handle, CURLOPT_USE_SSL, static_cast<long>(CURLUSESSL_ALL));
    if (!settings.certificates.empty())
        curl_easy_setopt(handle, CURLOPT_CAINFO, settings.certificates.c_str());
    if (!settings.user.empty()) {
        curl_easy_setopt(handle, CURLOPT_USERNAME, settings.user.c_str());
        curl_easy_setopt(handle, CURLOPT_PASSWORD, settings.password.c_str());
    }
}

/// Refused in so many words, after the message was out: the code is no longer that of the go-ahead before it.
bool isRefusal(long serverCode) { return serverCode >= 400; }

MailResult failure(std::string reason)
{
    std::ranges::replace_if(
        reason, [](char c) { return static_cast<unsigned char>(c) < ' '; }, ' ');
    return {Outcome::failed, std::move(reason)};
}

MailResult attempt(const SmtpSettings& settings, const MailMessage& message)
{
    checkSmtpSettings(settings);
    Outgoing outgoing{mailText(message)};
    const Handle handle(curl_easy_init());
    const List recipients(curl_slist_append(nullptr, ("<" + message.to.address + ">").c_str()));
    if (!handle || !recipients)
        return failure("out of memory");
    std::array<char, CURL_ERROR_SIZE> words{};
    configure(handle.get(), settings);
    const std::string sender = "<" + settings.from.address + ">";
    curl_easy_setopt(handle.get(), CURLOPT_MAIL_FROM, sender.c_str());
    curl_easy_setopt(handle.get(), CURLOPT_MAIL_RCPT, recipients.get());
    curl_easy_setopt(handle.get(), CURLOPT_UPLOAD, 1L);
    curl_easy_setopt(handle.get(), CURLOPT_READFUNCTION, &Outgoing::read);
    curl_easy_setopt(handle.get(), CURLOPT_READDATA, &outgoing);
    curl_easy_setopt(handle.get(), CURLOPT_ERRORBUFFER, words.data());

    const CURLcode code = curl_easy_perform(handle.get());
    if (code == CURLE_OK)
        return {Outcome::sent, {}};
    long serverCode = 0;
    curl_easy_getinfo(handle.get(), CURLINFO_RESPONSE_CODE, &serverCode);
    MailResult result = failure(words[0] != '\0' ? words.data() : curl_easy_strerror(code));
    if (isRefusal(serverCode))
        result.reason += " (the server answered " + std::to_string(serverCode) + ")";
    else if (outgoing.isOut())
        result.outcome = Outcome::unknown;
    return result;
}

} // namespace

MailResult SmtpTransport::send(const MailMessage& message)
{
    try {
        return attempt(settings_, message);
    } catch (const std::exception& error) {
        return failure(error.what());
    }
}

} // namespace qncal::host
