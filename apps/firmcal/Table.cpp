#include "firmcal/Table.h"

#include <algorithm>
#include <ostream>

namespace qncal::firmcal {

namespace {

bool startsCodePoint(char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; }

std::string onOneLine(std::string_view text)
{
    std::string line;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n')
            continue;
        line += static_cast<unsigned char>(text[i]) < ' ' ? ' ' : text[i];
    }
    return line;
}

std::string shortened(std::string text, std::size_t limit)
{
    if (limit == 0 || codePointCount(text) <= limit)
        return text;
    return std::string(firstCodePoints(text, limit - 1)) + "…";
}

} // namespace

std::size_t codePointCount(std::string_view text)
{
    return static_cast<std::size_t>(std::ranges::count_if(text, startsCodePoint));
}

std::string_view firstCodePoints(std::string_view text, std::size_t count)
{
    std::size_t end = 0;
    for (; end < text.size(); ++end) {
        if (startsCodePoint(text[end]) && count-- == 0)
            break;
    }
    return text.substr(0, end);
}

void Table::add(std::vector<std::string> cells)
{
    cells.resize(columns_.size());
    for (std::string& cell : cells)
        cell = shortened(onOneLine(cell), cellLimit_);
    rows_.push_back(std::move(cells));
}

void Table::print(std::ostream& out) const
{
    const std::vector<std::size_t> columnWidths = widths(true);
    std::vector<std::string> headers;
    std::vector<std::string> dashes;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        headers.push_back(columns_[i].header);
        dashes.emplace_back(columnWidths[i], '-');
    }
    printLine(out, headers, columnWidths);
    printLine(out, dashes, columnWidths);
    for (const std::vector<std::string>& row : rows_)
        printLine(out, row, columnWidths);
}

void Table::printRows(std::ostream& out, std::string_view indent) const
{
    const std::vector<std::size_t> columnWidths = widths(false);
    for (const std::vector<std::string>& row : rows_) {
        out << indent;
        printLine(out, row, columnWidths);
    }
}

std::vector<std::size_t> Table::widths(bool withHeaders) const
{
    std::vector<std::size_t> result(columns_.size(), 0);
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        if (withHeaders)
            result[i] = codePointCount(columns_[i].header);
        for (const std::vector<std::string>& row : rows_)
            result[i] = std::max(result[i], codePointCount(row[i]));
    }
    return result;
}

void Table::printLine(std::ostream& out, const std::vector<std::string>& cells,
                      const std::vector<std::size_t>& columnWidths) const
{
    std::string line;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        if (columnWidths[i] == 0)
            continue;
        const std::string padding(columnWidths[i] - codePointCount(cells[i]), ' ');
        if (!line.empty())
            line += "  ";
        line += columns_[i].align == Align::right ? padding + cells[i] : cells[i] + padding;
    }
    line.erase(line.find_last_not_of(' ') + 1);
    out << line << '\n';
}

} // namespace qncal::firmcal
