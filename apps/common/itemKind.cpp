#include "common/itemKind.h"

#include "common/Failure.h"
#include "core/calendarItemKinds.h"
#include "utilities/text.h"

namespace qncal::firmcal {

enumLocalCalendarItemType readKind(std::string_view text)
{
    for (const enumLocalCalendarItemType kind : allKinds) {
        if (equalsNoCase(text, kindWord(kind)) || equalsNoCase(text, kindNoun(kind))
            || equalsNoCase(text, kindWord(kind).substr(0, 1)))
            return kind;
    }
    throw UsageError("no kind '" + std::string(text) + "' (appointment, task, docket)");
}

std::string_view kindNoun(enumLocalCalendarItemType kind)
{
    return kind == enumLocalCalendarDocketItem ? "time entry" : kindWord(kind);
}

std::string kindNounPlural(enumLocalCalendarItemType kind)
{
    return kind == enumLocalCalendarDocketItem ? "time entries" : std::string(kindNoun(kind)) + "s";
}

std::string_view kindWord(enumLocalCalendarItemType kind) { return calendarItemKind(kind).typeName; }

} // namespace qncal::firmcal
