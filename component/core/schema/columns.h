#pragma once

#include "core/schema.h"

#include <array>
#include <cstddef>

/// What the table definitions of this folder are written with.

/// Five columns that differ in their number alone. A macro, because joining literals is the one way to such names at
/// compile time that leaves them readable here.
#define QNCAL_FIVE_COLUMNS(name, type)                                                                                 \
    Column{name "1", type}, Column{name "2", type}, Column{name "3", type}, Column{name "4", type}, Column             \
    {                                                                                                                  \
        name "5", type                                                                                                 \
    }

namespace qncal::schema {

/// One array out of several column lists, in their order. A boolean that states no default starts as False.
template <std::size_t... Sizes>
consteval auto columns(const Column (&... lists)[Sizes])
{
    std::array<Column, (Sizes + ...)> all{};
    std::size_t count = 0;
    const auto append = [&](const auto& list) {
        for (const Column& column : list) {
            all[count] = column;
            if (column.type == ColumnType::boolean && column.defaultValue.empty())
                all[count].defaultValue = "0";
            ++count;
        }
    };
    (append(lists), ...);
    return all;
}

} // namespace qncal::schema
