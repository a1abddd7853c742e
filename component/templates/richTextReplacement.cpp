#include "templates/richTextReplacement.h"

#include "utilities/replaceText.h"

namespace qncal {

bool replaceInRichText(std::string& text, std::string_view wanted, std::string_view replacement)
{
    const std::size_t first = findNoCase(text, wanted);
    if (first == std::string::npos)
        return false;
    const bool blank = needsBlankAfter(first == 0 ? ' ' : text[first - 1]);
    return replaceNoCase(text, wanted, blank ? " " + std::string(replacement) : std::string(replacement));
}

std::string withParagraphMarks(std::string value, bool wordWrap)
{
    replaceNoCase(value, "\r\n", wordWrap ? "\\par \r\n" : ", \r\n");
    return value;
}

} // namespace qncal
