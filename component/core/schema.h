#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace qncal::schema {

/// The database schema as one table of tables: every table and column that the component or its reference host
/// touches. The DDL, the conversion of values and the documentation are made from it. The tables stand by theme in
/// `core/schema/`.

enum class ColumnType : std::uint8_t {
    key,      ///< autonumber, the table's primary key
    id,       ///< 32-bit integer, -1 or null for none
    integer,  ///< 32-bit integer
    real,     ///< 64-bit real
    currency, ///< an amount of money, 64-bit real
    text,     ///< short text
    memo,     ///< long text, possibly rich text
    boolean,
    date,   ///< a day, or a day with a time
    time,   ///< a time of day
    colour, ///< 32-bit integer, red in the low byte
};

struct Column {
    std::string_view name;
    ColumnType type;
    /// An SQL literal ("0", "-1"); empty for none, the column then starts as Null. A boolean always has one.
    std::string_view defaultValue = {};
};

/// A secondary index over one column, or over two or three in their order.
struct Index {
    std::string_view first;
    std::string_view second = {};
    std::string_view third = {};
};

struct Table {
    std::string_view name;
    std::span<const Column> columns;
    /// One sentence without a full stop.
    std::string_view purpose;
    std::span<const Index> indexes = {};
};

/// Raised by one whenever a table, a column or an index is added.
inline constexpr std::int32_t version = 2;

/// In the order of their documentation; each table has exactly one key column, its first.
std::span<const Table> tables();
/// By name without regard to ASCII case, through a hash index; none when unknown.
const Table* findTable(std::string_view name);
/// As `findTable`. The table must be one of `tables()` or a copy of one.
const Column* findColumn(const Table& table, std::string_view name);

} // namespace qncal::schema
