#include "controls/richTextStream.h"

#include "controls/RichTextWalker.h"
#include "utilities/utf8.h"

#include <array>
#include <cstdio>
#include <utility>

namespace qncal {

namespace {

/// Hands each visible character to a function, which answers False to stop.
template <class Visit>
class TextWalker : public RichTextWalker {
public:
    TextWalker(std::string_view stream, Visit visit) : RichTextWalker(stream), visit_(std::move(visit)) {}

protected:
    bool visibleCharacter(char32_t character, std::size_t offset) override { return visit_(character, offset); }

private:
    Visit visit_;
};

} // namespace

bool isRichTextStream(std::string_view text) { return text.starts_with("{\\rtf"); }

std::string visibleTextOf(std::string_view richText)
{
    if (!isRichTextStream(richText))
        return std::string(richText);
    std::string text;
    TextWalker(richText, [&](char32_t c, std::size_t) {
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
    const std::size_t end = TextWalker(richText, [&](char32_t, std::size_t offset) {
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
