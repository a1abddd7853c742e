#include "controls/ListView.h"

#include "utilities/text.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace qncal {

std::string ListView::valueText() const
{
    if (selectedRow_ < 0)
        return {};
    const auto& cells = rows_[static_cast<std::size_t>(selectedRow_)].cells;
    return cells.empty() ? std::string() : cells.front();
}

void ListView::addColumn(std::string title, std::int32_t width)
{
    columns_.push_back({std::move(title), width});
    updated.raise();
}

void ListView::addRow(Row row)
{
    const auto place = sortColumn_ < 0
                           ? rows_.end()
                           : std::upper_bound(rows_.begin(), rows_.end(), row,
                                              [this](const Row& a, const Row& b) { return sortsBefore(a, b); });
    if (selectedRow_ >= place - rows_.begin())
        ++selectedRow_;
    rows_.insert(place, std::move(row));
    updated.raise();
}

void ListView::setCell(std::int32_t row, std::int32_t column, std::string text)
{
    if (row < 0 || row >= rowCount() || column < 0)
        return;
    auto& cells = rows_[static_cast<std::size_t>(row)].cells;
    if (cells.size() <= static_cast<std::size_t>(column))
        cells.resize(static_cast<std::size_t>(column) + 1);
    if (store(cells[static_cast<std::size_t>(column)], std::move(text)) && column == sortColumn_)
        store(sortColumn_, -1);
}

void ListView::removeRow(std::int32_t row)
{
    if (row < 0 || row >= rowCount())
        return;
    rows_.erase(rows_.begin() + row);
    const bool wasSelected = selectedRow_ == row;
    if (wasSelected)
        selectedRow_ = -1;
    else if (selectedRow_ > row)
        --selectedRow_;
    updated.raise();
    if (wasSelected)
        raise(Click);
}

void ListView::clear()
{
    if (rows_.empty())
        return;
    rows_.clear();
    const bool wasSelected = std::exchange(selectedRow_, -1) >= 0;
    updated.raise();
    if (wasSelected)
        raise(Click);
}

void ListView::selectedRow(std::int32_t row)
{
    if (row < 0 || row >= rowCount())
        row = -1;
    if (store(selectedRow_, row))
        raise(Click);
}

std::int32_t ListView::selectedItemData() const
{
    return selectedRow_ < 0 ? -1 : rows_[static_cast<std::size_t>(selectedRow_)].itemData;
}

std::int32_t ListView::findItemData(std::int32_t itemData) const
{
    const auto found =
        std::find_if(rows_.begin(), rows_.end(), [=](const Row& row) { return row.itemData == itemData; });
    return found == rows_.end() ? -1 : static_cast<std::int32_t>(found - rows_.begin());
}

bool ListView::isChecked(std::int32_t row) const
{
    return row >= 0 && row < rowCount() && rows_[static_cast<std::size_t>(row)].checked;
}

void ListView::checked(std::int32_t row, bool checked)
{
    if (row < 0 || row >= rowCount() || !store(rows_[static_cast<std::size_t>(row)].checked, checked))
        return;
    if (ItemCheck)
        ItemCheck(row);
}

bool ListView::sortsBefore(const Row& a, const Row& b) const
{
    const auto column = static_cast<std::size_t>(sortColumn_);
    const auto cell = [column](const Row& row) {
        return column < row.cells.size() ? std::string_view(row.cells[column]) : std::string_view();
    };
    const int compared = compareNoCase(cell(a), cell(b));
    return ascending_ ? compared < 0 : compared > 0;
}

void ListView::sort(std::int32_t column, bool ascending)
{
    sortColumn_ = std::max(column, -1);
    ascending_ = ascending;
    std::vector<std::int32_t> order(rows_.size());
    std::iota(order.begin(), order.end(), 0);
    if (sortColumn_ >= 0)
        std::stable_sort(order.begin(), order.end(), [this](std::int32_t a, std::int32_t b) {
            return sortsBefore(rows_[static_cast<std::size_t>(a)], rows_[static_cast<std::size_t>(b)]);
        });
    std::vector<Row> sorted;
    sorted.reserve(rows_.size());
    std::int32_t selected = -1;
    for (const std::int32_t from : order) {
        if (from == selectedRow_)
            selected = static_cast<std::int32_t>(sorted.size());
        sorted.push_back(std::move(rows_[static_cast<std::size_t>(from)]));
    }
    rows_ = std::move(sorted);
    selectedRow_ = selected;
    updated.raise();
}

void ListView::clickColumn(std::int32_t column)
{
    if (ColumnClick)
        ColumnClick(column);
    if (headingsSort_)
        sort(column, column != sortColumn_ || !ascending_);
}

} // namespace qncal
