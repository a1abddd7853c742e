#include "store/RecordCopies.h"

#include "utilities/text.h"

namespace qncal::host {

bool equalValues(const StoredValue& a, const StoredValue& b)
{
    using Kind = StoredValue::Kind;
    if (a.kind == Kind::text || b.kind == Kind::text)
        return a.kind == b.kind && equalsNoCase(a.text, b.text);
    const auto number = [](const StoredValue& value) {
        return value.kind == Kind::integer ? static_cast<double>(value.integer) : value.real;
    };
    return a.kind != Kind::null && b.kind != Kind::null && number(a) == number(b);
}

void RecordCopies::clear()
{
    values_.clear();
    numbers_.clear();
    count_ = 0;
}

void RecordCopies::load(SqliteStatement& statement, std::size_t columns)
{
    clear();
    columns_ = columns;
    std::size_t count = 0;
    for (; statement.step(); ++count)
        for (std::size_t column = 0; column < columns; ++column)
            values_.append(statement.value(static_cast<int>(column)));
    count_ = count;
}

std::optional<std::size_t> RecordCopies::find(std::size_t column, const StoredValue& wanted) const
{
    if (wanted.kind != StoredValue::Kind::integer) {
        for (std::size_t record = 0; record < count_; ++record)
            if (equalValues(value(record, column), wanted))
                return record;
        return std::nullopt;
    }
    auto [entry, isNew] = numbers_.try_emplace(column);
    auto& firsts = entry->second;
    if (isNew)
        for (std::size_t record = 0; record < count_; ++record)
            if (const StoredValue number = value(record, column); number.kind == StoredValue::Kind::integer)
                firsts.try_emplace(number.integer, record);
    const auto found = firsts.find(wanted.integer);
    return found == firsts.end() ? std::nullopt : std::optional(found->second);
}

} // namespace qncal::host
