#include "services/personNames.h"

#include "utilities/text.h"

namespace qncal::host {

namespace {

void splitDisplayName(PersonNames& names)
{
    if (!names.first.empty() || !names.last.empty() || names.display.find(',') != std::string::npos)
        return;
    const std::size_t space = names.display.rfind(' ');
    if (space == std::string::npos)
        return;
    names.first = trimmed(std::string_view(names.display).substr(0, space));
    names.last = names.display.substr(space + 1);
}

std::string_view lastWord(std::string_view text) { return text.substr(text.rfind(' ') + 1); }

} // namespace

std::string contactAndSpouseName(PersonNames names)
{
    names.spouse = trimmed(names.spouse);
    splitDisplayName(names);
    const bool known = !names.first.empty() && !names.last.empty();
    std::string alone = known && names.display.empty() ? names.first + " " + names.last : names.display;
    if (names.spouse.empty())
        return alone;
    if (known && names.spouse.find(' ') == std::string::npos)
        return names.first + " and " + names.spouse + " " + names.last;
    if (known && equalsNoCase(lastWord(names.spouse), names.last))
        return names.first + " and " + names.spouse;
    return alone.empty() ? names.spouse : alone + " and " + names.spouse;
}

} // namespace qncal::host
