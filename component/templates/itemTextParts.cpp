#include "templates/itemTextParts.h"

#include "core/nullText.h"
#include "templates/delimiters.h"
#include "utilities/replaceText.h"

namespace qncal {

namespace {

constexpr std::string_view lineBreak = "\r\n";
constexpr std::string_view companyName = "«Company Name»";
constexpr std::string_view contactName = "«Contact Display Name»";

void exchangeFirst(std::string& text, std::string_view name, std::string_view otherName)
{
    const std::size_t at = findNoCase(text, name);
    if (at != std::string::npos && findNoCase(text, otherName) == std::string::npos)
        text.replace(at, name.size(), otherName);
}

} // namespace

std::string joinedDisplayText(const std::string& before, const std::string& text, const std::string& after)
{
    std::string joined;
    if (!isNullText(before))
        joined.append(before).append(lineBreak);
    joined.append(text);
    if (!after.empty())
        joined.append(lineBreak).append(after);
    return joined;
}

void exchangeClientName(std::string& itemTemplate, std::int32_t companyID, std::int32_t contactID)
{
    if (companyID >= 0 && contactID < 0)
        exchangeFirst(itemTemplate, contactName, companyName);
    else if (contactID >= 0 && companyID < 0)
        exchangeFirst(itemTemplate, companyName, contactName);
}

bool holdsDelimiter(std::string_view text)
{
    return findDelimiter(text, plainDelimiters, 0).at != std::string_view::npos
           || findDelimiter(text, richDelimiters, 0).at != std::string_view::npos;
}

bool holdsExpression(std::string_view text)
{
    return text.find(plainDelimiters.open) != std::string_view::npos
           || text.find(richDelimiters.open) != std::string_view::npos;
}

} // namespace qncal
