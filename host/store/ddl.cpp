#include "store/ddl.h"

#include "store/storeError.h"
#include "utilities/NameIndex.h"

namespace qncal::host {

namespace {

const char* typeText(schema::ColumnType type)
{
    switch (type) {
    case schema::ColumnType::key:
        return "INTEGER PRIMARY KEY AUTOINCREMENT";
    case schema::ColumnType::real:
    case schema::ColumnType::currency:
        return "REAL";
    case schema::ColumnType::text:
    case schema::ColumnType::memo:
        return "TEXT COLLATE NOCASE";
    case schema::ColumnType::date:
    case schema::ColumnType::time:
        return "TEXT";
    default:
        return "INTEGER";
    }
}

std::string columnText(const schema::Column& column)
{
    std::string text = quotedName(column.name) + " " + typeText(column.type);
    if (!column.defaultValue.empty())
        text += " DEFAULT " + std::string(column.defaultValue);
    return text;
}

NameIndex columnsInFile(SqliteConnection& connection, const schema::Table& table)
{
    NameIndex names;
    SqliteStatement statement = connection.prepare("SELECT name FROM pragma_table_info(?1)");
    statement.bind(1, table.name);
    while (statement.step())
        names.add(statement.text(0));
    return names;
}

std::string createIndexText(const schema::Table& table, const schema::Index& index)
{
    std::string name = std::string(table.name) + "_" + std::string(index.first);
    std::string columns = quotedName(index.first);
    for (const std::string_view next : {index.second, index.third}) {
        if (next.empty())
            continue;
        name += "_" + std::string(next);
        columns += ", " + quotedName(next);
    }
    return "CREATE INDEX IF NOT EXISTS " + quotedName(name) + " ON " + quotedName(table.name) + " (" + columns + ")";
}

void addMissing(SqliteConnection& connection, const schema::Table& table)
{
    const NameIndex present = columnsInFile(connection, table);
    if (present.size() == 0)
        connection.execute(createTableText(table));
    for (const schema::Column& column : table.columns) {
        if (present.size() > 0 && !present.find(column.name))
            connection.execute("ALTER TABLE " + quotedName(table.name) + " ADD COLUMN " + columnText(column));
    }
    for (const schema::Index& index : table.indexes)
        connection.execute(createIndexText(table, index));
}

bool isUpToDate(SqliteConnection& connection, std::int32_t version)
{
    return connection.queryInteger("PRAGMA application_id") == applicationId
           && connection.queryInteger("PRAGMA user_version") == version;
}

void requireOurs(SqliteConnection& connection, std::int32_t version)
{
    const std::int64_t fileVersion = connection.queryInteger("PRAGMA user_version");
    const std::int64_t fileId = connection.queryInteger("PRAGMA application_id");
    const bool isNew = fileId == 0 && connection.queryInteger("SELECT COUNT(*) FROM sqlite_master") == 0;
    if (!isNew && fileId != applicationId)
        throw RunTimeError(storeError::cannotOpen, "The file is a database of another program");
    if (fileVersion > version)
        throw RunTimeError(storeError::cannotOpen, "The database has version " + std::to_string(fileVersion)
                                                       + ", this program knows versions up to "
                                                       + std::to_string(version));
}

} // namespace

std::string createTableText(const schema::Table& table)
{
    std::string columns;
    for (const schema::Column& column : table.columns)
        columns += (columns.empty() ? "" : ",\n    ") + columnText(column);
    return "CREATE TABLE " + quotedName(table.name) + " (\n    " + columns + "\n)";
}

void prepareSchema(SqliteConnection& connection, std::span<const schema::Table> tables, std::int32_t version)
{
    if (isUpToDate(connection, version))
        return;
    // What the file is counts under the lock: another program may be at the same work, or further.
    SqliteTransaction transaction(connection);
    if (isUpToDate(connection, version))
        return;
    requireOurs(connection, version);
    for (const schema::Table& table : tables)
        addMissing(connection, table);
    connection.execute("PRAGMA application_id = " + std::to_string(applicationId));
    connection.execute("PRAGMA user_version = " + std::to_string(version));
    transaction.commit();
}

} // namespace qncal::host
