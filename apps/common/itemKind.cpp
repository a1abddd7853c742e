#include "common/itemKind.h"

#include "core/calendarItemKinds.h"

namespace qncal::firmcal {

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
