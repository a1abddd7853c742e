#include "notifications/SmtpTransport.h"

#include <algorithm>
#include <array>
#include <curl/curl.h>
#include <exception>
#include <memory>
#include <string_view>

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

constexpr bool isPrintable(char c) { return c >= ' ' && c < '\x7F'; }

bool isRefusal(std::string_view answer) { return answer.starts_with('4') || answer.starts_with('5'); }

/// The talk with the server: the message on its way out, and what the server says, as far as it is text. From the
/// message's last byte on the server may have it.
struct Talk {
    std::string text;
    std::size_t handedOver = 0;
    bool hasServerSpoken = false;
    /// By which the server refused what it was asked last, for now or for good.
    std::string refusal;
    /// The server's word on the message.
    std::string verdict;

    bool isOut() const { return handedOver == text.size(); }
    static std::size_t handOver(char* buffer, std::size_t size, std::size_t count, void* self)
    {
        auto& talk = *static_cast<Talk*>(self);
        const std::size_t part = std::min(size * count, talk.text.size() - talk.handedOver);
        talk.text.copy(buffer, part, talk.handedOver);
        talk.handedOver += part;
        return part;
    }
    // Not const, as the library calls it.
    static std::size_t listen(char* line, std::size_t size, std::size_t count, void* self)
    {
        constexpr std::size_t longestAnswer = 200;
        auto& talk = *static_cast<Talk*>(self);
        std::string answer(line, std::min(size * count, longestAnswer));
        std::erase_if(answer, [](char c) { return !isPrintable(c); });
        talk.hasServerSpoken = true;
        if (talk.isOut() && talk.verdict.empty())
            talk.verdict = answer;
        constexpr std::string_view farewell = "221";
        if (isRefusal(answer))
            talk.refusal = std::move(answer);
        else if (!answer.starts_with(farewell))
            talk.refusal.clear();
        return size * count;
    }
};

std::string urlOf(const SmtpSettings& settings)
{
    const bool tls = settings.security == Security::tls;
    const int usualPort = tls ? 465 : settings.security == Security::startTls ? 587 : 25;
    const bool isBareIPv6 = settings.server.find(':') != std::string::npos && settings.server.front() != '[';
    return (tls ? "smtps://" : "smtp://") + (isBareIPv6 ? "[" + settings.server + "]" : settings.server) + ":"
           + std::to_string(settings.port != 0 ? settings.port : usualPort);
}

void configure(CURL* handle, const SmtpSettings& settings)
{
    using namespace std::chrono;
    constexpr milliseconds longestWelcome = seconds(30);
    curl_easy_setopt(handle, CURLOPT_URL, urlOf(settings).c_str());
    curl_easy_setopt(handle, CURLOPT_PROTOCOLS_STR, "smtp,smtps");
    curl_easy_setopt(handle, CURLOPT_PROXY, "");
    curl_easy_setopt(handle, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(handle, CURLOPT_TIMEOUT_MS, static_cast<long>(settings.timeout.count()));
    curl_easy_setopt(handle, CURLOPT_CONNECTTIMEOUT_MS,
                     static_cast<long>(std::min(settings.timeout, longestWelcome).count()));
    // The farewell after the message is bounded by this one alone.
    curl_easy_setopt(handle, CURLOPT_SERVER_RESPONSE_TIMEOUT,
                     static_cast<long>(ceil<seconds>(settings.timeout).count()));
    if (settings.security == Security::startTls)
        curl_easy_setopt(handle, CURLOPT_USE_SSL, static_cast<long>(CURLUSESSL_ALL));
    if (!settings.certificates.empty())
        curl_easy_setopt(handle, CURLOPT_CAINFO, settings.certificates.c_str());
    if (!settings.user.empty()) {
        curl_easy_setopt(handle, CURLOPT_USERNAME, settings.user.c_str());
        curl_easy_setopt(handle, CURLOPT_PASSWORD, settings.password.c_str());
    }
}

/// What goes wrong with a server that has not begun to talk goes wrong for every message, and so does this.
bool isTroubleOfServer(CURLcode code)
{
    switch (code) {
    case CURLE_WEIRD_SERVER_REPLY:
    case CURLE_REMOTE_ACCESS_DENIED:
    case CURLE_OPERATION_TIMEDOUT:
    case CURLE_SSL_CONNECT_ERROR:
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_SSL_CACERT_BADFILE:
    case CURLE_USE_SSL_FAILED:
    case CURLE_LOGIN_DENIED:
        return true;
    default:
        return false;
    }
}

std::string reasonOf(CURLcode code, const Talk& talk, std::string_view words)
{
    std::string reason(words.empty() ? std::string_view(curl_easy_strerror(code)) : words);
    std::erase_if(reason, [](char c) { return !isPrintable(c); });
    // A server may repeat what it was told, and there it was told the password.
    if (code == CURLE_LOGIN_DENIED)
        return "the mail server refuses the user or the password: " + reason;
    return talk.refusal.empty() ? reason : reason + "; the mail server said: " + talk.refusal;
}

MailResult resultOf(CURLcode code, const Talk& talk, std::string_view words)
{
    constexpr std::string_view taken = "250";
    if (code == CURLE_OK || talk.verdict.starts_with(taken))
        return {Outcome::sent, {}};
    Outcome outcome = Outcome::failed;
    if (talk.isOut())
        outcome = isRefusal(talk.verdict) ? Outcome::failed : Outcome::unknown;
    else if (!talk.hasServerSpoken || isTroubleOfServer(code))
        outcome = Outcome::unreachable;
    return {outcome, reasonOf(code, talk, words)};
}

MailResult attempt(const SmtpSettings& settings, const MailMessage& message)
{
    checkSmtpSettings(settings);
    Talk talk{mailText(message)};
    const Handle handle(curl_easy_init());
    const List recipients(curl_slist_append(nullptr, ("<" + message.to.address + ">").c_str()));
    if (!handle || !recipients)
        return {Outcome::failed, "out of memory"};
    std::array<char, CURL_ERROR_SIZE> words{};
    configure(handle.get(), settings);
    const std::string sender = "<" + settings.from.address + ">";
    curl_easy_setopt(handle.get(), CURLOPT_MAIL_FROM, sender.c_str());
    curl_easy_setopt(handle.get(), CURLOPT_MAIL_RCPT, recipients.get());
    curl_easy_setopt(handle.get(), CURLOPT_UPLOAD, 1L);
    curl_easy_setopt(handle.get(), CURLOPT_READFUNCTION, &Talk::handOver);
    curl_easy_setopt(handle.get(), CURLOPT_READDATA, &talk);
    curl_easy_setopt(handle.get(), CURLOPT_HEADERFUNCTION, &Talk::listen);
    curl_easy_setopt(handle.get(), CURLOPT_HEADERDATA, &talk);
    curl_easy_setopt(handle.get(), CURLOPT_ERRORBUFFER, words.data());
    const CURLcode code = curl_easy_perform(handle.get());
    return resultOf(code, talk, words.data());
}

} // namespace

MailResult SmtpTransport::send(const MailMessage& message)
{
    try {
        return attempt(settings_, message);
    } catch (const std::exception& error) {
        return {Outcome::failed, error.what()};
    }
}

} // namespace qncal::host
