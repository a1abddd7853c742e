#include "utilities/codePoints.h"

namespace qncal {

namespace {

/// Bytes of the character at the front of a text that is not empty; 1 where none is well formed.
/// The ranges are those of table 3-7, "Well-Formed UTF-8 Byte Sequences", of the Unicode standard.
std::size_t characterLength(std::string_view text)
{
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned lead = byte(0);
    std::size_t length = 1;
    unsigned low = 0x80;
    unsigned high = 0xBF;
    if (lead >= 0xC2 && lead <= 0xDF) {
        length = 2;
    } else if (lead >= 0xE0 && lead <= 0xEF) {
        length = 3;
        low = lead == 0xE0 ? 0xA0 : low;
        high = lead == 0xED ? 0x9F : high;
    } else if (lead >= 0xF0 && lead <= 0xF4) {
        length = 4;
        low = lead == 0xF0 ? 0x90 : low;
        high = lead == 0xF4 ? 0x8F : high;
    }
    if (length == 1 || text.size() < length || byte(1) < low || byte(1) > high)
        return 1;
    for (std::size_t i = 2; i < length; ++i)
        if (byte(i) < 0x80 || byte(i) > 0xBF)
            return 1;
    return length;
}

} // namespace

std::size_t countCodePoints(std::string_view text)
{
    std::size_t count = 0;
    for (; !text.empty(); ++count)
        text.remove_prefix(characterLength(text));
    return count;
}

std::string_view truncatedToCodePoints(std::string_view text, std::size_t count)
{
    std::size_t end = 0;
    for (; count > 0 && end < text.size(); --count)
        end += characterLength(text.substr(end));
    return text.substr(0, end);
}

} // namespace qncal
