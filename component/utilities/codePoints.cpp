#include "utilities/codePoints.h"

#include "utilities/utf8.h"

namespace qncal {

std::size_t codePointCount(std::string_view text)
{
    std::size_t count = 0;
    for (; !text.empty(); ++count)
        text.remove_prefix(decodeUtf8(text).length);
    return count;
}

std::size_t byteOffsetOf(std::string_view text, std::int32_t characters)
{
    std::size_t offset = 0;
    for (std::int32_t i = 0; i < characters && offset < text.size(); ++i)
        offset += decodeUtf8(text.substr(offset)).length;
    return offset;
}

} // namespace qncal
