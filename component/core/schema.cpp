#include "core/schema.h"

#include "core/schema/accountingTables.h"
#include "core/schema/calendarTables.h"
#include "core/schema/clientTables.h"
#include "core/schema/settingsTables.h"
#include "utilities/text.h"

#include <array>
#include <functional>
#include <unordered_map>

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

/// A table by its name, or a column by its table's first column and its name.
struct Key {
    const Column* owner;
    std::string_view name;

    bool operator==(const Key& other) const { return owner == other.owner && equalsNoCase(name, other.name); }
};

struct KeyHash {
    std::size_t operator()(const Key& key) const
    {
        // FNV-1a over the folded name: no copy of the name is made.
        std::uint64_t hash = 14695981039346656037u;
        for (const char c : key.name)
            hash = (hash ^ static_cast<unsigned char>(lowerAscii(c))) * 1099511628211u;
        return static_cast<std::size_t>(hash ^ std::hash<const Column*>()(key.owner));
    }
};

template <class Value>
using Directory = std::unordered_map<Key, const Value*, KeyHash>;

template <class Value>
const Value* find(const Directory<Value>& directory, const Key& key)
{
    const auto found = directory.find(key);
    return found == directory.end() ? nullptr : found->second;
}

} // namespace

std::span<const Table> tables() { return allTables; }

const Table* findTable(std::string_view name)
{
    static const auto directory = [] {
        Directory<Table> all;
        for (const Table& table : allTables)
            all.emplace(Key{nullptr, table.name}, &table);
        return all;
    }();
    return find(directory, {nullptr, name});
}

const Column* findColumn(const Table& table, std::string_view name)
{
    static const auto directory = [] {
        Directory<Column> all;
        for (const Table& owner : allTables)
            for (const Column& column : owner.columns)
                all.emplace(Key{owner.columns.data(), column.name}, &column);
        return all;
    }();
    return find(directory, {table.columns.data(), name});
}

} // namespace qncal::schema
