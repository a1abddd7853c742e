#include "store/NewRecord.h"

#include "store/columnValue.h"

namespace qncal::host {

void NewRecord::begin(StoreTable& table)
{
    const std::int64_t key = table.takeKey();
    values_ = table.defaults();
    values_.set(0, {StoredValue::Kind::integer, key});
    isSet_.assign(values_.size(), false);
    isSet_[0] = true;
    table_ = &table;
}

void NewRecord::set(std::size_t column, std::string_view text)
{
    values_.set(column, storedForColumn(table_->schema(), table_->column(column), text, buffer_));
    isSet_[column] = true;
}

std::int64_t NewRecord::store()
{
    changes_.clear();
    for (std::size_t column = 0; column < isSet_.size(); ++column)
        if (isSet_[column])
            changes_.emplace_back(static_cast<std::uint16_t>(column), values_.value(column));
    table_->insert(changes_);
    table_ = nullptr;
    return values_.value(0).integer;
}

} // namespace qncal::host
