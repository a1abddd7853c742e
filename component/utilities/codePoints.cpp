#include "utilities/codePoints.h"

#include "utilities/utf8.h"

namespace qncal {

std::size_t countCodePoints(std::string_view text)
{
    std::size_t count = 0;
    for (; !text.empty(); ++count)
        text.remove_prefix(decodeUtf8(text).length);
    return count;
}

std::string_view truncatedToCodePoints(std::string_view text, std::size_t count)
{
    std::size_t length = 0;
    for (; count > 0 && length < text.size(); --count)
        length += decodeUtf8(text.substr(length)).length;
    return text.substr(0, length);
}

} // namespace qncal
