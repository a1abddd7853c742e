#include "component/templates/plainSubstitution.h"

#include "templates/dateFormatKeywords.h"
#include "utilities/dateText.h"

#include <cctype>

namespace qncal::test {

namespace {

constexpr auto npos = std::string::npos;

char lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

bool standsAt(const std::string& text, std::size_t at, const std::string& wanted)
{
    if (text.size() - at < wanted.size())
        return false;
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        if (lower(text[at + i]) != lower(wanted[i]))
            return false;
    }
    return true;
}

std::size_t find(const std::string& text, const std::string& wanted, std::size_t from = 0)
{
    for (std::size_t at = from; at < text.size(); ++at) {
        if (standsAt(text, at, wanted))
            return at;
    }
    return npos;
}

void replaceEach(std::string& text, const std::string& wanted, const std::string& replacement)
{
    std::string result;
    std::size_t at = 0;
    while (at < text.size()) {
        if (standsAt(text, at, wanted)) {
            result += replacement;
            at += wanted.size();
        } else {
            result += text[at++];
        }
    }
    text = result;
}

void replaceByRule(std::string& text, const std::string& wanted, const std::string& replacement, bool richText)
{
    if (!richText) {
        replaceEach(text, wanted, replacement);
        return;
    }
    const std::size_t first = find(text, wanted);
    if (first == npos)
        return;
    if (first == 0 || text[first - 1] == ' ')
        replaceEach(text, wanted, replacement);
    else
        replaceEach(text, wanted, " " + replacement);
}

std::string expression(const DelimiterPair& pair, const std::string& content)
{
    return std::string(pair.open) + content + std::string(pair.close);
}

bool removeSpans(std::string& text, const DelimiterPair& pair)
{
    bool removed = false;
    for (;;) {
        const std::size_t open = find(text, std::string(pair.open));
        if (open == npos)
            return removed;
        const std::size_t close = find(text, std::string(pair.close), open + pair.open.size());
        if (close == npos)
            return removed;
        const std::string span = text.substr(open, close + pair.close.size() - open);
        std::string rest;
        std::size_t copied = 0;
        for (std::size_t at = text.find(span); at != npos; at = text.find(span, copied)) {
            rest += text.substr(copied, at - copied);
            copied = at + span.size();
        }
        text = rest + text.substr(copied);
        removed = true;
    }
}

} // namespace

bool plainPass(std::string& text, const DelimiterPair& pair, const std::vector<PlainField>& fields, bool richText,
               const PlainValue& valueOf)
{
    bool replaced = false;
    const auto tryOne = [&](const std::string& wanted, std::size_t field, const std::string& format) {
        if (find(text, wanted) == npos)
            return;
        if (const auto value = valueOf(field, format)) {
            replaceByRule(text, wanted, *value, richText);
            replaced = true;
        }
    };
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (!fields[i].isDate) {
            tryOne(expression(pair, fields[i].name), i, "");
            continue;
        }
        for (const DateFormatKeyword& format : dateFormatKeywords)
            tryOne(expression(pair, "(" + fields[i].name + ", " + std::string(format.keyword) + ")"), i,
                   std::string(format.fieldFormat));
    }
    return replaced;
}

void plainTodaysDate(std::string& text, const DelimiterPair& pair, bool richText, Date today)
{
    for (const DateFormatKeyword& format : dateFormatKeywords) {
        const std::string wanted = expression(pair, "(Todays Date, " + std::string(format.keyword) + ")");
        if (find(text, wanted) != npos)
            replaceByRule(text, wanted, formatDate(today, format.todayFormat), richText);
    }
}

bool plainMerge(std::string& text, const std::vector<PlainField>& fields, bool richText, Date today,
                const PlainValue& valueOf)
{
    plainTodaysDate(text, plainDelimiters, richText, today);
    if (plainPass(text, plainDelimiters, fields, richText, valueOf))
        return true;
    plainTodaysDate(text, richDelimiters, richText, today);
    plainPass(text, richDelimiters, fields, richText, valueOf);
    return false;
}

void plainBlanking(std::string& text, bool plainOnesMerged)
{
    if (!removeSpans(text, plainDelimiters) && !plainOnesMerged)
        removeSpans(text, richDelimiters);
}

} // namespace qncal::test
