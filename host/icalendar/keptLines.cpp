#include "icalendar/keptLines.h"

#include "icalendar/itemFields.h"
#include "utilities/text.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <string_view>

namespace qncal::host::icalendar {

namespace {

/// A picture inside of a calendar file has no place in the notes.
constexpr std::size_t longestKept = 64U << 10U;

constexpr std::string_view times[] = {"DTSTART", "DTEND", "DUE", "DURATION", "RRULE", "RDATE", "EXDATE", "EXRULE"};
constexpr std::string_view bookkeeping[] = {"CREATED", "LAST-MODIFIED", "SEQUENCE"};
constexpr std::string_view ownLines[] = {kindProperty,  userProperty,   companyProperty, contactProperty,
                                         groupProperty, periodProperty, richTextProperty};

struct Default {
    std::string_view property;
    std::string_view value;
};
/// What a file says, or does not say, to the same effect.
constexpr Default defaults[] = {{"CLASS", "PUBLIC"}, {"TRANSP", "OPAQUE"}, {"PRIORITY", "0"}, {"SEQUENCE", "0"}};

bool isOneOf(const ContentLine& line, const auto& names)
{
    return std::ranges::any_of(names, [&](std::string_view name) { return line.is(name); });
}

bool isDefault(const ContentLine& line)
{
    return std::ranges::any_of(defaults, [&](const Default& known) {
        return line.is(known.property) && !line.hasParameters() && equalsNoCase(line.value(), known.value);
    });
}

/// What `People` and the item's own columns hold, and an export writes anew.
bool isCarried(const ContentLine& line)
{
    return line.is("UID") || line.is("RECURRENCE-ID") || line.is("DTSTAMP") || isOneOf(line, ownLines)
           || findItemField(line.name()) || (line.is("CLASS") && equalsNoCase(line.value(), "PRIVATE"))
           || (line.is("ATTENDEE") && !line.parameter(idParameter).empty());
}

bool startsWith(std::string_view text, std::string_view start)
{
    return equalsNoCase(text.substr(0, start.size()), start);
}

} // namespace

KeptLines keptLinesOf(const CalendarComponent& component, bool timesAreExact, bool alarmIsExact)
{
    KeptLines kept;
    const auto keep = [&](const ContentLine& line, std::string text) {
        if (text.size() > longestKept) {
            kept.lost.push_back(line);
            return false;
        }
        kept.lines.push_back(std::move(text));
        return true;
    };
    for (const ContentLine& line : component.lines) {
        if (line.name().empty()) {
            kept.lost.push_back(line);
            continue;
        }
        if (isCarried(line) || isDefault(line))
            continue;
        if (isOneOf(line, times)) {
            if (!timesAreExact)
                keep(line, std::string(originalPrefix) + line.text);
        } else if (line.is("SUMMARY") || line.is("DESCRIPTION")) {
            // A language or another form of the text is in the parameters; a second line is more than a column holds.
            if (line.hasParameters() || component.find(line.name()) != &line)
                keep(line, std::string(originalPrefix) + line.text);
        } else if (keep(line, line.text) && !isOneOf(line, bookkeeping) && !startsWith(line.name(), ownPrefix)) {
            kept.remarkable.push_back(line);
        }
    }
    for (const CalendarComponent& child : component.children) {
        if (!child.is("VALARM") || !alarmIsExact)
            std::ranges::move(child.text(), std::back_inserter(kept.lines));
    }
    return kept;
}

std::string uidOf(const CalendarComponent& component)
{
    if (const ContentLine* line = component.find("UID"); line && !trimmed(line->value()).empty())
        return std::string(trimmed(line->value()));
    // FNV-1a over all lines but the moment of the export, which is another one each time.
    std::uint64_t hash = 0xcbf29ce484222325U;
    const auto mix = [&](std::string_view text) {
        for (const char c : text)
            hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3U;
    };
    for (const std::string& line : component.text()) {
        if (!ContentLine{line}.is("DTSTAMP"))
            mix(line + "\n");
    }
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (int shift = 60; shift >= 0; shift -= 4)
        text += digits[(hash >> shift) & 0xFU];
    return text + "@without-uid.firmcal";
}

} // namespace qncal::host::icalendar
