#include "core/schema.h"

#include "core/schema/accountingTables.h"
#include "core/schema/calendarTables.h"
#include "core/schema/clientTables.h"
#include "core/schema/settingsTables.h"
#include "utilities/NameIndex.h"

#include <array>
#include <optional>
#include <vector>

namespace qncal::schema {

namespace {

template <std::size_t... Sizes>
consteval auto joined(const Table (&... lists)[Sizes])
{
    std::array<Table, (Sizes + ...)> all{};
    std::size_t count = 0;
    const auto append = [&](const auto& list) {
        for (const Table& table : list)
            all[count++] = table;
    };
    (append(lists), ...);
    return all;
}

constexpr auto allTables = joined(calendarTables, settingsTables, clientTables, accountingTables);

/// The places of all tables, and within each of its columns.
struct Directory {
    NameIndex tables;
    std::vector<NameIndex> columns;

    Directory() : columns(allTables.size())
    {
        for (std::size_t i = 0; i < allTables.size(); ++i) {
            tables.add(allTables[i].name);
            for (const Column& column : allTables[i].columns)
                columns[i].add(column.name);
        }
    }
};

const Directory& directory()
{
    static const Directory all;
    return all;
}

} // namespace

std::span<const Table> tables() { return allTables; }

const Table* findTable(std::string_view name)
{
    const auto place = directory().tables.find(name);
    return place ? &allTables[*place] : nullptr;
}

const Column* findColumn(const Table& table, std::string_view name)
{
    const auto owner = directory().tables.find(table.name);
    const auto place = owner ? directory().columns[*owner].find(name) : std::nullopt;
    return place ? &table.columns[*place] : nullptr;
}

} // namespace qncal::schema
