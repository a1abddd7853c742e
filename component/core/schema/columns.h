#pragma once

#include "core/schema.h"

#include <array>
#include <cstddef>

/// What the table definitions of this folder are written with.

namespace qncal::schema {

constexpr Column column(std::string_view name, ColumnType type) { return {name, type}; }

/// Five columns that differ in their number alone. A macro, because joining literals is the one way to such names at
/// compile time that leaves them readable here.
#define QNCAL_FIVE_COLUMNS(name, type)                                                                                 \
    column(name "1", type), column(name "2", type), column(name "3", type), column(name "4", type),                    \
        column(name "5", type)

/// One array out of several column lists, in their order. A boolean that states no default starts as False.
template <std::size_t... Sizes>
consteval auto columns(const Column (&... lists)[Sizes])
{
    std::array<Column, (Sizes + ...)> all{};
    std::size_t count = 0;
    const auto append = [&](const auto& list) {
        for (const Column& entry : list) {
            all[count] = entry;
            if (entry.type == ColumnType::boolean && entry.defaultValue.empty())
                all[count].defaultValue = "0";
            ++count;
        }
    };
    (append(lists), ...);
    return all;
}

} // namespace qncal::schema
