#include "icalendar/notesBlock.h"

#include "controls/richTextStream.h"
#include "utilities/text.h"

#include <algorithm>
#include <cstdint>
#include <optional>

namespace qncal::host::icalendar {

namespace {

constexpr std::string_view endMark = "--- end of iCalendar ---";

/// Takes the next line off a text.
std::string_view takeLine(std::string_view& text)
{
    const std::size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return line.ends_with('\r') ? line.substr(0, line.size() - 1) : line;
}

/// Places in the visible text of notes.
struct Block {
    std::size_t begin = 0;     ///< with the line ends before the first mark
    std::size_t firstLine = 0; ///< behind the first mark
    std::size_t endLine = 0;   ///< the second mark, or the end of the text
    std::size_t end = 0;       ///< behind the second mark and its line end
};

/// Where a line stands that is no more than a mark; from `from` on.
std::size_t findMarkLine(std::string_view text, std::string_view mark, std::size_t from)
{
    std::string_view rest = text.substr(from);
    while (!rest.empty()) {
        const std::size_t at = text.size() - rest.size();
        if (trimmed(takeLine(rest)) == mark)
            return at;
    }
    return std::string_view::npos;
}

std::optional<Block> findBlock(std::string_view text)
{
    Block block;
    block.begin = findMarkLine(text, blockMark, 0);
    if (block.begin == std::string_view::npos)
        return std::nullopt;
    const auto lineEnd = [&](std::size_t at) { return std::min(text.find('\n', at), text.size() - 1) + 1; };
    block.firstLine = lineEnd(block.begin);
    block.endLine = std::min(findMarkLine(text, endMark, block.firstLine), text.size());
    block.end = block.endLine == text.size() ? text.size() : lineEnd(block.endLine);
    // The blank line before the block, and the end of the line before that.
    for (int i = 0; i < 2 && block.begin > 0 && text[block.begin - 1] == '\n'; ++i)
        --block.begin;
    return block;
}

std::int32_t codePointsIn(std::string_view text, std::size_t bytes)
{
    return static_cast<std::int32_t>(std::ranges::count_if(
        text.substr(0, bytes), [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }));
}

std::string plainRichText(const std::string& text)
{
    return text.empty() ? std::string() : streamAround(escapedForStream(text));
}

} // namespace

std::string ItemNotes::description() const { return text + (text.empty() || below.empty() ? "" : "\n") + below; }

ItemNotes readNotes(std::string_view richText)
{
    const std::string visible = visibleTextOf(richText);
    ItemNotes notes;
    const std::optional<Block> block = findBlock(visible);
    notes.text = visible.substr(0, block ? block->begin : visible.size());
    if (block) {
        std::string_view rest = std::string_view(visible).substr(block->firstLine, block->endLine - block->firstLine);
        while (!rest.empty())
            notes.kept.emplace_back(takeLine(rest));
        notes.below = visible.substr(std::min(block->end, visible.size()));
    }
    std::string withoutBlock(richText);
    if (block && isRichTextStream(richText)) {
        const std::size_t begin = streamOffsetOf(richText, codePointsIn(visible, block->begin));
        // Between what stands above and below one line end stays.
        const bool isBetween = block->begin > 0 && !notes.below.empty();
        const std::size_t end = streamOffsetOf(richText, codePointsIn(visible, block->end - (isBetween ? 1 : 0)));
        withoutBlock.erase(begin, end - begin);
    }
    if (isRichTextStream(richText) && withoutBlock != streamAround(escapedForStream(notes.description())))
        notes.formatted = std::move(withoutBlock);
    return notes;
}

std::string notesRichText(const ItemNotes& notes)
{
    const bool isFormatted = !notes.formatted.empty();
    const std::string above = isFormatted ? visibleTextOf(notes.formatted) : notes.text;
    std::string block;
    if (!notes.kept.empty()) {
        block = (above.empty() ? "" : "\n\n") + std::string(blockMark) + "\n";
        for (const std::string& line : notes.kept)
            block += line + "\n";
        block += endMark;
    }
    if (!isFormatted)
        return plainRichText(notes.text + block + (notes.below.empty() ? "" : "\n" + notes.below));
    std::string richText = notes.formatted;
    richText.insert(streamOffsetOf(richText, codePointsIn(above, above.size())), escapedForStream(block));
    return richText;
}

CalendarComponent keptComponent(const ItemNotes& notes)
{
    std::vector<std::string> lines{"BEGIN:X-KEPT"};
    lines.insert(lines.end(), notes.kept.begin(), notes.kept.end());
    lines.emplace_back("END:X-KEPT");
    try {
        return componentOf(lines);
    } catch (const CalendarError&) {
        // Somebody took a BEGIN or END away; the single lines are still good.
        std::erase_if(lines, [](const std::string& line) {
            return ContentLine{line}.is("BEGIN") || ContentLine{line}.is("END");
        });
        lines.insert(lines.begin(), "BEGIN:X-KEPT");
        lines.emplace_back("END:X-KEPT");
        return componentOf(lines);
    }
}

} // namespace qncal::host::icalendar
