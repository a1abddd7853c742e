#include "controls/richTextStream.h"

#include "utilities/utf8.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <utility>
#include <vector>

namespace qncal {

namespace {

/// Windows code page 1252 from 0x80 to 0x9F; 0 where it has no character.
constexpr std::array<std::uint16_t, 32> cp1252High{
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0, 0x017D, 0,
    0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0, 0x017E, 0x0178};

char32_t fromCp1252(unsigned char byte)
{
    if (byte < 0x80 || byte >= 0xA0)
        return byte;
    const std::uint16_t mapped = cp1252High[byte - 0x80u];
    return mapped ? mapped : 0xFFFD;
}

int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// Destinations whose content is not visible.
bool isHiddenDestination(std::string_view word)
{
    constexpr std::array<std::string_view, 12> hidden{"fonttbl", "colortbl", "stylesheet", "info", "pict", "object",
                                                      "header", "footer", "fldinst", "listtable", "themedata", "xmlnstbl"};
    for (const std::string_view destination : hidden)
        if (word == destination)
            return true;
    return false;
}

/// Walks a stream and hands on each visible character with the place where it begins.
class StreamWalker {
public:
    /// The function answers False to stop.
    using Visit = std::function<bool(char32_t, std::size_t offset)>;

    StreamWalker(std::string_view stream, Visit visit) : stream_(stream), visit_(std::move(visit)) {}

    /// The offset at which visible text ends: before the last closing brace.
    std::size_t walk();

private:
    struct Group {
        bool hidden = false;
        int fallbackCharacters = 1;
    };

    char32_t readRawCharacter();
    void readControl();
    void readControlWord();
    void applyControlWord(std::string_view word, bool hasParameter, int parameter, std::size_t start);
    void utf16Unit(std::uint16_t unit, std::size_t start);
    void character(char32_t c, std::size_t start);

    std::string_view stream_;
    Visit visit_;
    std::vector<Group> groups_{{}};
    std::size_t at_ = 0;
    std::size_t lastClose_ = std::string_view::npos;
    int skipFallback_ = 0;
    char32_t highSurrogate_ = 0;
    std::size_t highSurrogateStart_ = 0;
    bool running_ = true;
};

std::size_t StreamWalker::walk()
{
    while (running_ && at_ < stream_.size()) {
        const char c = stream_[at_];
        if (c == '{') {
            groups_.push_back(groups_.back());
            ++at_;
        } else if (c == '}') {
            if (groups_.size() > 1)
                groups_.pop_back();
            lastClose_ = at_++;
        } else if (c == '\\') {
            readControl();
        } else if (c == '\r' || c == '\n') {
            ++at_;
        } else {
            const std::size_t start = at_;
            character(readRawCharacter(), start);
        }
    }
    return lastClose_ == std::string_view::npos ? stream_.size() : lastClose_;
}

/// Merged values stand in a stream as UTF-8; a byte that is none is of the code page.
char32_t StreamWalker::readRawCharacter()
{
    const Utf8Character read = decodeUtf8(stream_.substr(at_));
    if (read.valid) {
        at_ += read.length;
        return read.codePoint;
    }
    return fromCp1252(static_cast<unsigned char>(stream_[at_++]));
}

void StreamWalker::readControl()
{
    const std::size_t start = at_++;
    if (at_ >= stream_.size())
        return;
    const char c = stream_[at_];
    if (isLetter(c)) {
        readControlWord();
    } else if (c == '\'') {
        const int high = at_ + 1 < stream_.size() ? hexDigit(stream_[at_ + 1]) : -1;
        const int low = at_ + 2 < stream_.size() ? hexDigit(stream_[at_ + 2]) : -1;
        if (high >= 0 && low >= 0) {
            at_ += 3;
            character(fromCp1252(static_cast<unsigned char>(high * 16 + low)), start);
        } else {
            ++at_;
        }
    } else {
        ++at_;
        if (c == '*')
            groups_.back().hidden = true;
        else if (c == '~')
            character(0xA0, start);
        else if (c == '_')
            character('-', start);
        else if (c == '\r' || c == '\n')
            character('\n', start);
        else if (c == '\\' || c == '{' || c == '}')
            character(static_cast<unsigned char>(c), start);
    }
}

void StreamWalker::readControlWord()
{
    const std::size_t start = at_ - 1;
    const std::size_t wordStart = at_;
    while (at_ < stream_.size() && isLetter(stream_[at_]))
        ++at_;
    const std::string_view word = stream_.substr(wordStart, at_ - wordStart);
    const bool negative = at_ + 1 < stream_.size() && stream_[at_] == '-' && isDigit(stream_[at_ + 1]);
    if (negative)
        ++at_;
    bool hasParameter = false;
    int parameter = 0;
    while (at_ < stream_.size() && isDigit(stream_[at_])) {
        hasParameter = true;
        if (parameter < 100'000'000)
            parameter = parameter * 10 + (stream_[at_] - '0');
        ++at_;
    }
    if (at_ < stream_.size() && stream_[at_] == ' ')
        ++at_;
    applyControlWord(word, hasParameter, negative ? -parameter : parameter, start);
}

void StreamWalker::applyControlWord(std::string_view word, bool hasParameter, int parameter, std::size_t start)
{
    if (isHiddenDestination(word))
        groups_.back().hidden = true;
    else if (word == "par" || word == "line" || word == "sect" || word == "page")
        character('\n', start);
    else if (word == "tab" || word == "cell")
        character('\t', start);
    else if (word == "uc" && hasParameter)
        groups_.back().fallbackCharacters = parameter < 0 ? 0 : parameter;
    else if (word == "u" && hasParameter) {
        skipFallback_ = 0;
        utf16Unit(static_cast<std::uint16_t>(parameter), start);
        skipFallback_ = groups_.back().fallbackCharacters;
    } else if (word == "bin" && hasParameter && parameter > 0)
        at_ = std::min(stream_.size(), at_ + static_cast<std::size_t>(parameter));
    else if (word == "lquote" || word == "rquote")
        character(word == "lquote" ? 0x2018 : 0x2019, start);
    else if (word == "ldblquote" || word == "rdblquote")
        character(word == "ldblquote" ? 0x201C : 0x201D, start);
    else if (word == "bullet")
        character(0x2022, start);
    else if (word == "endash" || word == "emdash")
        character(word == "endash" ? 0x2013 : 0x2014, start);
}

/// Characters beyond 16 bits come as two words, the first of which waits for the second.
void StreamWalker::utf16Unit(std::uint16_t unit, std::size_t start)
{
    if (unit >= 0xD800 && unit < 0xDC00) {
        highSurrogate_ = unit;
        highSurrogateStart_ = start;
    } else if (unit >= 0xDC00 && unit < 0xE000) {
        const char32_t high = std::exchange(highSurrogate_, char32_t{0});
        character(high ? 0x10000 + ((high - 0xD800) << 10) + (unit - 0xDC00u) : 0xFFFD, high ? highSurrogateStart_ : start);
    } else {
        character(unit, start);
    }
}

void StreamWalker::character(char32_t c, std::size_t start)
{
    if (skipFallback_ > 0) {
        --skipFallback_;
        return;
    }
    if (!groups_.back().hidden)
        running_ = visit_(c, start);
}

} // namespace

bool isRichTextStream(std::string_view text) { return text.starts_with("{\\rtf"); }

std::string visibleTextOf(std::string_view richText)
{
    if (!isRichTextStream(richText))
        return std::string(richText);
    std::string text;
    StreamWalker(richText, [&](char32_t c, std::size_t) {
        appendUtf8(text, c);
        return true;
    }).walk();
    // The last paragraph mark ends the text; it does not begin another line.
    if (text.ends_with('\n'))
        text.pop_back();
    return text;
}

std::size_t streamOffsetOf(std::string_view richText, std::int32_t position)
{
    std::int32_t seen = 0;
    std::size_t found = std::string_view::npos;
    const std::size_t end = StreamWalker(richText, [&](char32_t, std::size_t offset) {
        if (seen++ != position)
            return true;
        found = offset;
        return false;
    }).walk();
    return found == std::string_view::npos ? end : found;
}

std::string escapedForStream(std::string_view plainText)
{
    std::string stream;
    stream.reserve(plainText.size());
    std::size_t at = 0;
    while (at < plainText.size()) {
        const auto lead = static_cast<unsigned char>(plainText[at]);
        if (lead < 0x80) {
            const char c = plainText[at++];
            if (c == '\r' && at < plainText.size() && plainText[at] == '\n')
                continue;
            if (c == '\\' || c == '{' || c == '}')
                stream.append({'\\', c});
            else if (c == '\n' || c == '\r')
                stream += "\\par\r\n";
            else if (c == '\t')
                stream += "\\tab ";
            else
                stream += c;
            continue;
        }
        const Utf8Character read = decodeUtf8(plainText.substr(at));
        const char32_t c = read.valid ? read.codePoint : 0xFFFD;
        at += read.length;
        std::array<char, 40> buffer{};
        if (c >= 0xA0 && c <= 0xFF)
            std::snprintf(buffer.data(), buffer.size(), "\\'%02x", static_cast<unsigned>(c));
        else if (c < 0x10000)
            std::snprintf(buffer.data(), buffer.size(), "\\u%d?", static_cast<std::int16_t>(c));
        else
            std::snprintf(buffer.data(), buffer.size(), "\\u%d?\\u%d?",
                          static_cast<std::int16_t>(0xD800 + ((c - 0x10000) >> 10)),
                          static_cast<std::int16_t>(0xDC00 + ((c - 0x10000) & 0x3FF)));
        stream += buffer.data();
    }
    return stream;
}

std::string streamAround(std::string_view body)
{
    std::string stream = "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fnil\\fcharset0 MS Sans Serif;}}\r\n"
                         "\\viewkind4\\uc1\\pard\\f0\\fs17 ";
    stream += body;
    stream += "\\par\r\n}\r\n";
    return stream;
}

} // namespace qncal
