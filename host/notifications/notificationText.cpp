#include "notifications/notificationText.h"

#include "utilities/dateText.h"

#include <array>

namespace qncal::host {

namespace {

struct KindWords {
    std::string_view noun;
    std::string_view sentence;
};

/// By kind of item: appointment, task, time entry.
constexpr std::array<KindWords, 3> kindWords{{
    {"Appointment", "This is to remind you of your appointment with us on "},
    {"Task", "This is to remind you of the following work that is due on "},
    {"Work", "This is to tell you of the following work on "},
}};

std::string escaped(std::string_view text)
{
    std::string html;
    for (const char c : text) {
        switch (c) {
        case '&':
            html += "&amp;";
            break;
        case '<':
            html += "&lt;";
            break;
        case '>':
            html += "&gt;";
            break;
        default:
            html += c;
        }
    }
    return html;
}

/// Lines as one block of a document.
std::string block(std::string_view style, const std::vector<std::string>& lines)
{
    std::string html = "<p class=\"" + std::string(style) + "\">";
    std::string_view separator;
    for (const std::string& line : lines) {
        html += std::string(separator) + escaped(line);
        separator = "<br>\n";
    }
    return html + "</p>\n";
}

std::vector<std::string> joined(const std::string& first, const std::vector<std::string>& rest)
{
    std::vector<std::string> lines;
    if (!first.empty())
        lines.push_back(first);
    lines.insert(lines.end(), rest.begin(), rest.end());
    return lines;
}

} // namespace

NotificationText notificationText(const NotifiedItem& item, const Correspondent& client, const Correspondent& firm)
{
    const KindWords& words = kindWords.at(static_cast<std::size_t>(item.kind));
    const std::string day = formatDate(item.start, "dddd, mmmm d, yyyy");
    const std::string time = item.start.hasTime() ? formatDate(item.start, " \"at\" h:nn am/pm") : std::string();
    const std::string& addressed = client.person.empty() ? client.name : client.person;

    NotificationText text;
    text.subject = std::string(words.noun) + " on " + day;
    text.greeting = "Dear " + (addressed.empty() ? "client" : addressed) + ",";
    text.paragraphs = {std::string(words.sentence) + day + time + (item.subject.empty() ? "." : ":")};
    if (!item.subject.empty())
        text.paragraphs.push_back(item.subject);
    text.paragraphs.emplace_back("Please let us know in good time if the date does not suit you.");
    text.signature = {"Yours sincerely,"};
    for (const std::string& line : {firm.name, firm.phone, firm.email}) {
        if (!line.empty())
            text.signature.push_back(line);
    }
    return text;
}

std::string plainText(const NotificationText& text)
{
    std::string plain = text.greeting + "\n";
    for (const std::string& paragraph : text.paragraphs)
        plain += "\n" + paragraph + "\n";
    plain += "\n";
    for (const std::string& line : text.signature)
        plain += line + "\n";
    return plain;
}

std::string letterDocument(const NotificationText& text, const Correspondent& client, const Correspondent& firm,
                           Date date)
{
    std::string html = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n<title>"
                       + escaped(text.subject)
                       + "</title>\n<style>\n"
                         "@page { size: letter; margin: 25mm; }\n"
                         "body { font: 11pt/1.4 serif; max-width: 165mm; margin: 0 auto; }\n"
                         ".firm { text-align: right; margin-bottom: 20mm; }\n"
                         ".client { margin-bottom: 15mm; }\n"
                         ".subject { font-weight: bold; margin: 10mm 0; }\n"
                         ".signature { margin-top: 12mm; }\n"
                         "</style>\n</head>\n<body>\n";
    html += block("firm", joined(firm.name, firm.address));
    html += block("client", joined(client.name, client.address));
    html += block("date", {formatDate(date, "mmmm d, yyyy")});
    html += block("subject", {text.subject});
    html += block("text", {text.greeting});
    for (const std::string& paragraph : text.paragraphs)
        html += block("text", {paragraph});
    html += block("signature", text.signature);
    return html + "</body>\n</html>\n";
}

} // namespace qncal::host
