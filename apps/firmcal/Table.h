#pragma once

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>
#include <vector>

namespace qncal::firmcal {

/// Rows of text in aligned columns. Widths count code points; line breaks in a cell print as a blank.
class Table {
public:
    enum class Align : std::uint8_t { left, right };
    struct Column {
        std::string header;
        Align align = Align::left;
    };

    explicit Table(std::vector<Column> columns) : columns_(std::move(columns)) {}
    /// Missing cells print empty; more cells than columns are not allowed.
    void add(std::vector<std::string> cells);
    bool isEmpty() const { return rows_.empty(); }
    std::size_t rowCount() const { return rows_.size(); }
    /// Cuts longer cells, the last code point becoming "…"; 0 for no limit.
    void limitCells(std::size_t codePoints) { cellLimit_ = codePoints; }

    /// The headers, a line of dashes, and the rows; no blanks at the ends of lines.
    void print(std::ostream& out) const;
    /// The rows alone, each after `indent`.
    void printRows(std::ostream& out, std::string_view indent) const;

private:
    std::vector<std::size_t> widths(bool withHeaders) const;
    void printLine(std::ostream& out, const std::vector<std::string>& cells,
                   const std::vector<std::size_t>& widths) const;

    std::vector<Column> columns_;
    std::vector<std::vector<std::string>> rows_;
    std::size_t cellLimit_ = 0;
};

/// How many code points a UTF-8 text has.
std::size_t codePointCount(std::string_view text);
/// The first code points of a UTF-8 text.
std::string_view firstCodePoints(std::string_view text, std::size_t count);

} // namespace qncal::firmcal
