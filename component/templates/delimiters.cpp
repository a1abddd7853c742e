#include "templates/delimiters.h"

#include "utilities/text.h"

namespace qncal {

std::string inDelimiters(std::string_view expression, const DelimiterPair& pair)
{
    return std::string(pair.open).append(expression).append(pair.close);
}

DelimiterPosition findDelimiter(std::string_view text, const DelimiterPair& pair, std::size_t from)
{
    // Both halves of a pair begin with the same byte, which is no letter.
    for (std::size_t at = text.find(pair.open.front(), from); at != std::string_view::npos;
         at = text.find(pair.open.front(), at + 1)) {
        const std::string_view here = text.substr(at, pair.open.size());
        if (equalsNoCase(here, pair.open))
            return {at, true};
        if (equalsNoCase(here, pair.close))
            return {at, false};
    }
    return {};
}

bool endsWithinDelimiter(std::string_view text, const DelimiterPair& pair)
{
    for (std::size_t length = 1; length < pair.open.size() && length <= text.size(); ++length) {
        const std::string_view end = text.substr(text.size() - length);
        if (end.front() != pair.open.front())
            continue;
        if (equalsNoCase(end, pair.open.substr(0, length)) || equalsNoCase(end, pair.close.substr(0, length)))
            return true;
    }
    return false;
}

} // namespace qncal
