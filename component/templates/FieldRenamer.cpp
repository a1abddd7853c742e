#include "templates/FieldRenamer.h"

#include "utilities/replaceText.h"
#include "utilities/text.h"

#include <cassert>

namespace qncal {

namespace {

std::size_t pairOf(char first, char second)
{
    return static_cast<std::size_t>(static_cast<std::uint8_t>(first)) << 8 | static_cast<std::uint8_t>(second);
}

} // namespace

FieldRenamer::FieldRenamer(std::vector<FieldRenaming> lines) : lines_(std::move(lines))
{
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        const auto line = static_cast<Line>(i);
        const std::string_view text = lines_[i].oldText.view();
        assert(text.size() >= 2);
        for (const char first : {lowerAscii(text[0]), upperAscii(text[0])}) {
            firstBytes_.set(static_cast<std::uint8_t>(first));
            for (const char second : {lowerAscii(text[1]), upperAscii(text[1])})
                firstPairs_.set(pairOf(first, second));
        }
        if (text.size() >= prefixLength) {
            buckets_[bucketOf(text)].push_back(line);
        } else {
            shortLines_.push_back(line);
            shortFirstBytes_.set(static_cast<std::uint8_t>(lowerAscii(text[0])));
            shortFirstBytes_.set(static_cast<std::uint8_t>(upperAscii(text[0])));
        }
    }
}

void FieldRenamer::apply(std::string& text) const
{
    for (Line line = firstMatching(text, 0); line != none; line = firstMatching(text, static_cast<Line>(line + 1)))
        replaceNoCase(text, lines_[line].oldText.view(), lines_[line].newText.view());
}

/// The first line at or after `from` whose old text occurs.
FieldRenamer::Line FieldRenamer::firstMatching(std::string_view text, Line from) const
{
    Line first = none;
    const auto look = [&](const std::vector<Line>& place, std::string_view here) {
        for (const Line line : place) {
            const std::string_view oldText = lines_[line].oldText.view();
            if (line >= from && line < first && equalsNoCase(here.substr(0, oldText.size()), oldText))
                first = line;
        }
    };
    for (std::size_t at = 0; at + 1 < text.size(); ++at) {
        if (!firstBytes_[static_cast<std::uint8_t>(text[at])] || !firstPairs_[pairOf(text[at], text[at + 1])])
            continue;
        const std::string_view here = text.substr(at);
        if (shortFirstBytes_[static_cast<std::uint8_t>(text[at])])
            look(shortLines_, here);
        if (here.size() >= prefixLength)
            look(buckets_[bucketOf(here)], here);
    }
    return first;
}

std::size_t FieldRenamer::bucketOf(std::string_view text)
{
    std::uint32_t hash = 2166136261U;
    for (std::size_t i = 0; i < prefixLength; ++i)
        hash = (hash ^ static_cast<std::uint8_t>(lowerAscii(text[i]))) * 16777619U;
    return (hash ^ hash >> 16) % bucketCount;
}

} // namespace qncal
