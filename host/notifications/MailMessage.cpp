#include "notifications/MailMessage.h"

#include "notifications/controlCharacters.h"
#include "utilities/RunTimeError.h"
#include "utilities/dateText.h"
#include "utilities/utf8.h"

#include <algorithm>
#include <cstdlib>
#include <ctime>

namespace qncal::host {

namespace {

constexpr std::string_view lineEnd = "\r\n";
/// Longer header texts are folded, which encoded words do by themselves.
constexpr std::size_t longestPlainText = 60;

std::string base64(std::string_view bytes)
{
    constexpr std::string_view digits = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); i += 3) {
        std::uint32_t group = 0;
        for (std::size_t j = 0; j < 3; ++j)
            group = group << 8 | (i + j < bytes.size() ? static_cast<unsigned char>(bytes[i + j]) : 0u);
        for (std::size_t j = 0; j < 4; ++j)
            text += i + j <= bytes.size() ? digits[group >> (18 - 6 * j) & 0x3F] : '=';
    }
    return text;
}

bool isPlain(std::string_view text)
{
    return text.size() <= longestPlainText && text.find("=?") == std::string_view::npos
           && std::ranges::none_of(text, [](char c) { return static_cast<unsigned char>(c) >= 0x7F; });
}

/// What is no UTF-8 becomes U+FFFD: the message says that it is.
std::string wellFormed(std::string_view text)
{
    constexpr std::string_view replacement = "\xEF\xBF\xBD";
    std::string formed;
    while (!text.empty()) {
        const Utf8Character character = decodeUtf8(text);
        formed += character.valid ? text.substr(0, character.length) : replacement;
        text.remove_prefix(character.length);
    }
    return formed;
}

/// The header lines end where this system says, so no text may bring an end of its own.
std::string onOneLine(std::string_view text)
{
    std::string line = wellFormed(text);
    blankControlCharacters(line);
    return line;
}

/// RFC 2047: words that fill a line of 76 characters, none of which splits a code point.
std::string encodedWords(std::string_view text)
{
    constexpr std::size_t bytesInWord = 39;
    std::string words;
    while (!text.empty()) {
        std::size_t size = std::min(bytesInWord, text.size());
        while (size < text.size() && size > 1 && (static_cast<unsigned char>(text[size]) & 0xC0) == 0x80)
            --size;
        words += (words.empty() ? "=?UTF-8?B?" : "\r\n =?UTF-8?B?") + base64(text.substr(0, size)) + "?=";
        text.remove_prefix(size);
    }
    return words;
}

std::string headerText(std::string_view text)
{
    std::string line = onOneLine(text);
    return isPlain(line) ? line : encodedWords(line);
}

std::string headerName(std::string_view name)
{
    const std::string line = onOneLine(name);
    if (!isPlain(line))
        return encodedWords(line);
    std::string quoted = "\"";
    for (const char c : line) {
        if (c == '"' || c == '\\')
            quoted += '\\';
        quoted += c;
    }
    return quoted + '"';
}

const std::string& checked(const std::string& address)
{
    if (!isMailAddress(address))
        throw RunTimeError(errorNumber::invalidProcedureCall, "'" + onOneLine(address) + "' is no e-mail address");
    return address;
}

std::string mailbox(const MailAddress& address)
{
    const std::string bare = "<" + checked(address.address) + ">";
    return address.name.empty() ? bare : headerName(address.name) + "\r\n " + bare;
}

/// "+0100": how local time stood to universal time at that moment.
std::string zoneText(Date date)
{
    const CivilDate day = date.civilDate();
    const CivilTime time = date.civilTime();
    std::tm parts{};
    parts.tm_year = day.year - 1900;
    parts.tm_mon = day.month - 1;
    parts.tm_mday = day.day;
    parts.tm_hour = time.hour;
    parts.tm_min = time.minute;
    parts.tm_sec = time.second;
    parts.tm_isdst = -1;
    std::mktime(&parts);
    const long minutes = std::labs(parts.tm_gmtoff) / 60;
    const std::string digits = std::to_string(10000 + minutes / 60 * 100 + minutes % 60);
    return (parts.tm_gmtoff < 0 ? "-" : "+") + digits.substr(1);
}

/// Line ends of any kind become CR LF.
std::string networkLines(std::string_view text)
{
    std::string lines;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isPair = text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n';
        if (isPair)
            ++i;
        if (text[i] == '\r' || text[i] == '\n')
            lines += lineEnd;
        else
            lines += text[i];
    }
    return lines;
}

/// In base64 no line is too long, none begins with a dot, and every byte arrives.
std::string bodyText(const std::string& body)
{
    constexpr std::size_t lineLength = 76;
    const std::string encoded = base64(networkLines(wellFormed(body)));
    std::string text;
    for (std::size_t i = 0; i < encoded.size(); i += lineLength)
        text += encoded.substr(i, lineLength) + std::string(lineEnd);
    return text;
}

} // namespace

bool isMailAddress(std::string_view text)
{
    constexpr std::string_view separators = "<>()[]\\,;:\"";
    constexpr std::size_t longest = 254;
    const std::size_t at = text.find('@');
    return text.size() <= longest && at != std::string_view::npos && at > 0 && at + 1 < text.size()
           && text.find('@', at + 1) == std::string_view::npos && std::ranges::all_of(text, [&](char c) {
                  return c > ' ' && c < '\x7F' && separators.find(c) == std::string_view::npos;
              });
}

std::string mailText(const MailMessage& message)
{
    std::string text;
    const auto header = [&](std::string_view name, const std::string& value) {
        text += std::string(name) + ": " + value + std::string(lineEnd);
    };
    header("Date", formatDate(message.date, "ddd, d mmm yyyy hh:nn:ss ") + zoneText(message.date));
    header("From", mailbox(message.from));
    header("To", mailbox(message.to));
    header("Message-ID", "<" + checked(message.messageID) + ">");
    header("Subject", headerText(message.subject));
    header("Auto-Submitted", "auto-generated");
    header("MIME-Version", "1.0");
    header("Content-Type", "text/plain; charset=UTF-8");
    header("Content-Transfer-Encoding", "base64");
    return text + std::string(lineEnd) + bodyText(message.body);
}

} // namespace qncal::host
