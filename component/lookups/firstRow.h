#pragma once

#include "core/RecordSet.h"

#include <string_view>

namespace qncal {

/// A piece of a routine: a failure ends in the routine that called it.
/// Reads one column of the first row into `target`, which stays as it is when the column is null.
/// False when there is no row.
template <class Value>
bool readFirstRow(std::string_view sql, std::string_view column, Value& target)
{
    auto rst = RecordSet::openReadOnly(sql);
    const bool found = rst.hasRecords();
    if (found)
        rst.read(column, target);
    rst.close();
    return found;
}

} // namespace qncal
