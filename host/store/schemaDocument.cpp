#include "store/schemaDocument.h"

#include "core/schema.h"

namespace qncal::host {

namespace {

std::string_view typeName(schema::ColumnType type)
{
    using enum schema::ColumnType;
    switch (type) {
    case key:
        return "key";
    case id:
        return "id";
    case integer:
        return "integer";
    case real:
        return "real";
    case currency:
        return "currency";
    case text:
        return "text";
    case memo:
        return "memo";
    case boolean:
        return "boolean";
    case date:
        return "date";
    case time:
        return "time";
    case colour:
        return "colour";
    }
    return {};
}

std::string quoted(std::string_view name) { return '`' + std::string(name) + '`'; }

std::string indexText(const schema::Index& index)
{
    std::string text = quoted(index.first);
    for (const std::string_view next : {index.second, index.third})
        text += next.empty() ? std::string() : " with " + quoted(next);
    return text;
}

std::string tableText(const schema::Table& table)
{
    std::string text = "\n## " + std::string(table.name) + "\n\n" + std::string(table.purpose) + ".\n\n";
    text += "| Column | Type | Default |\n|---|---|---|\n";
    for (const schema::Column& column : table.columns)
        text += "| " + quoted(column.name) + " | " + std::string(typeName(column.type)) + " | "
                + std::string(column.defaultValue) + " |\n";
    std::string_view separator = "\nIndexes: ";
    for (const schema::Index& index : table.indexes) {
        text += std::string(separator) + indexText(index);
        separator = ", ";
    }
    return table.indexes.empty() ? text : text + ".\n";
}

} // namespace

std::string schemaDocument()
{
    std::string text =
        "# Tables of the database\n\n"
        "Made from the schema in `component/core/schema/`; run `hostTests` with `QNCAL_REWRITE=1` "
        "after a change there.\n\n"
        "Schema version "
        + std::to_string(schema::version) + ", " + std::to_string(schema::tables().size())
        + " tables. The key of a table is an autonumber. An id is -1 or null for none. A column without a default "
          "starts as null.\n";
    for (const schema::Table& table : schema::tables())
        text += tableText(table);
    return text;
}

} // namespace qncal::host
