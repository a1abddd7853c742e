#include "store/NewRecord.h"

#include "store/columnValue.h"
#include "store/storeError.h"

namespace qncal::host {

void NewRecord::begin(StoreTable& table)
{
    const std::int64_t key = table.takeKey();
    values_ = table.defaults();
    values_.set(0, {StoredValue::Kind::integer, key});
    isSet_.assign(values_.size(), false);
    isSet_[0] = true;
    isKeyChosen_ = false;
    table_ = &table;
}

void NewRecord::set(std::size_t column, std::string_view text)
{
    values_.set(column, storedForColumn(table_->schema(), table_->column(column), text, buffer_));
    isSet_[column] = true;
    isKeyChosen_ = isKeyChosen_ || column == 0;
}

std::int64_t NewRecord::store()
{
    changes_.clear();
    for (std::size_t column = 0; column < isSet_.size(); ++column)
        if (isSet_[column])
            changes_.emplace_back(static_cast<std::uint16_t>(column), values_.value(column));
    try {
        table_->insert(changes_);
    } catch (const RunTimeError& error) {
        if (error.number() == storeError::duplicateKey && !isKeyChosen_)
            replaceTakenKey();
        throw;
    }
    table_ = nullptr;
    return values_.value(0).integer;
}

void NewRecord::replaceTakenKey()
{
    const std::int64_t taken = values_.value(0).integer;
    const std::int64_t key = table_->takeKey();
    values_.set(0, {StoredValue::Kind::integer, key});
    throw RunTimeError(storeError::duplicateKey, "Somebody else has stored a record with the key "
                                                     + std::to_string(taken) + "; the new record has the key "
                                                     + std::to_string(key) + " from now on");
}

} // namespace qncal::host
