#pragma once

#include "controls/Control.h"

#include <string>
#include <vector>

namespace qncal {

/// A table of texts with a number behind each row; one row is selected, or none.
class ListView : public Control {
public:
    struct Column {
        std::string title;
        /// In twips, fifteen to a pixel at 96 dots per inch.
        std::int32_t width = 1440;
        friend bool operator==(const Column&, const Column&) = default;
    };
    struct Row {
        std::vector<std::string> cells;
        std::int32_t itemData = 0;
        bool checked = false;
        friend bool operator==(const Row&, const Row&) = default;
    };

    using Control::Control;
    const char* kind() const override { return "ListView"; }
    std::string valueText() const override;

    const std::vector<Column>& columns() const { return columns_; }
    void addColumn(std::string title, std::int32_t width = 1440);
    const std::vector<Row>& rows() const { return rows_; }
    std::int32_t rowCount() const { return static_cast<std::int32_t>(rows_.size()); }
    /// Adds at the end, or in a sorted list behind the rows that sort before it or alike.
    void addRow(Row row);
    /// In the column that the list is sorted by, another text ends the sorting; the rows keep their places.
    void setCell(std::int32_t row, std::int32_t column, std::string text);
    /// Removing the selected row, by either, selects none.
    void removeRow(std::int32_t row);
    void clear();

    std::int32_t selectedRow() const { return selectedRow_; }
    /// A change raises Click; an index outside of the rows selects none.
    void selectedRow(std::int32_t row);
    std::int32_t selectedItemData() const;
    /// The first row with that number from the top, -1 when there is none.
    std::int32_t findItemData(std::int32_t itemData) const;

    bool hasCheckBoxes() const { return checkBoxes_; }
    void checkBoxes(bool checkBoxes) { store(checkBoxes_, checkBoxes); }
    bool isChecked(std::int32_t row) const;
    void checked(std::int32_t row, bool checked);

    /// -1 unsorted. Sorting compares cells without regard to case and keeps the selected row selected.
    std::int32_t sortColumn() const { return sortColumn_; }
    bool isAscending() const { return ascending_; }
    void sort(std::int32_t column, bool ascending = true);
    /// Whether a click on a column's title sorts; a list in an order of its own does without.
    bool headingsSort() const { return headingsSort_; }
    void headingsSort(bool headingsSort) { store(headingsSort_, headingsSort); }
    /// What a click on a column's title does: raises ColumnClick, then sorts by it, or turns the order round.
    void clickColumn(std::int32_t column);

    std::function<void()> Click;
    std::function<void()> DblClick;
    std::function<void(std::int32_t column)> ColumnClick;
    std::function<void(std::int32_t row)> ItemCheck;

private:
    bool sortsBefore(const Row& a, const Row& b) const;

    std::vector<Column> columns_;
    std::vector<Row> rows_;
    std::int32_t selectedRow_ = -1;
    std::int32_t sortColumn_ = -1;
    bool ascending_ = true;
    bool checkBoxes_ = false;
    bool headingsSort_ = true;
};

} // namespace qncal
