#include "store/Row.h"

namespace qncal::host {

void Row::clear()
{
    cells_.clear();
    texts_.clear();
}

void Row::readFrom(const SqliteStatement& statement, int count)
{
    clear();
    cells_.reserve(static_cast<std::size_t>(count));
    for (int column = 0; column < count; ++column)
        append(statement.value(column));
}

void Row::append(const StoredValue& value) { cells_.push_back(cellOf(value)); }
void Row::set(std::size_t place, const StoredValue& value) { cells_[place] = cellOf(value); }

Row::Cell Row::cellOf(const StoredValue& value)
{
    Cell cell;
    cell.kind = value.kind;
    switch (value.kind) {
    case StoredValue::Kind::integer:
        cell.integer = value.integer;
        break;
    case StoredValue::Kind::real:
        cell.real = value.real;
        break;
    case StoredValue::Kind::text:
        cell.offset = texts_.size();
        cell.length = static_cast<std::uint32_t>(value.text.size());
        texts_.append(value.text);
        break;
    default:
        break;
    }
    return cell;
}

StoredValue Row::value(std::size_t place) const
{
    const Cell& cell = cells_[place];
    switch (cell.kind) {
    case StoredValue::Kind::integer:
        return {cell.kind, cell.integer};
    case StoredValue::Kind::real:
        return {cell.kind, 0, cell.real};
    case StoredValue::Kind::text:
        return {cell.kind, 0, 0, std::string_view(texts_).substr(cell.offset, cell.length)};
    default:
        return {};
    }
}

} // namespace qncal::host
