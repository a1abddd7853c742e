#include "controls/RichTextWalker.h"

#include "utilities/utf8.h"

#include <algorithm>
#include <array>
#include <utility>

namespace qncal {

namespace {

/// Windows code page 1252 from 0x80 to 0x9F; 0 where it has no character.
constexpr std::array<std::uint16_t, 32> cp1252High{0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                                   0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                                   0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                   0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

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
    constexpr std::string_view hidden[] = {"fonttbl", "colortbl", "stylesheet", "info",     "pict",
                                           "object",  "fldinst",  "listtable",  "listtext", "themedata",
                                           "pntext",  "xmlnstbl", "header",     "headerl",  "headerr",
                                           "headerf", "footer",   "footerl",    "footerr",  "footerf"};
    for (const std::string_view destination : hidden)
        if (word == destination)
            return true;
    return false;
}

} // namespace

std::size_t RichTextWalker::walk()
{
    while (running_ && at_ < stream_.size()) {
        const char c = stream_[at_];
        if (c == '{') {
            openGroup();
        } else if (c == '}') {
            closeGroup();
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

void RichTextWalker::openGroup()
{
    ++at_;
    if (groups_.size() > deepestGroup) {
        ++groupsTooDeep_;
        return;
    }
    groups_.push_back(groups_.back());
    groupOpened();
}

void RichTextWalker::closeGroup()
{
    lastClose_ = at_++;
    if (groupsTooDeep_ > 0) {
        --groupsTooDeep_;
    } else if (groups_.size() > 1) {
        groups_.pop_back();
        groupClosed();
    }
}

/// Merged values stand in a stream as UTF-8; a byte that is none is of the code page.
char32_t RichTextWalker::readRawCharacter()
{
    const Utf8Character read = decodeUtf8(stream_.substr(at_));
    if (read.valid) {
        at_ += read.length;
        return read.codePoint;
    }
    return fromCp1252(static_cast<unsigned char>(stream_[at_++]));
}

void RichTextWalker::readControl()
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

void RichTextWalker::readControlWord()
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

void RichTextWalker::applyControlWord(std::string_view word, bool hasParameter, int parameter, std::size_t start)
{
    controlWord(word, hasParameter ? std::optional(parameter) : std::nullopt);
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
void RichTextWalker::utf16Unit(std::uint16_t unit, std::size_t start)
{
    if (unit >= 0xD800 && unit < 0xDC00) {
        highSurrogate_ = unit;
        highSurrogateStart_ = start;
    } else if (unit >= 0xDC00 && unit < 0xE000) {
        const char32_t high = std::exchange(highSurrogate_, char32_t{0});
        character(high ? 0x10000 + ((high - 0xD800) << 10) + (unit - 0xDC00u) : 0xFFFD,
                  high ? highSurrogateStart_ : start);
    } else {
        character(unit, start);
    }
}

void RichTextWalker::character(char32_t c, std::size_t start)
{
    if (skipFallback_ > 0) {
        --skipFallback_;
        return;
    }
    if (groups_.back().hidden)
        hiddenCharacter(c);
    else
        running_ = visibleCharacter(c, start);
}

} // namespace qncal
