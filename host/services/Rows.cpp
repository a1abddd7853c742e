#include "services/Rows.h"

#include "core/schema.h"

namespace qncal::host {

Rows::Rows(DatabaseService& database, std::string_view sql, std::int32_t lock)
    : database_(database), handle_(database.openRecordset(sql, DatabaseService::cursorType, lock, true, {}, true))
{
}

Rows::~Rows()
{
    try {
        close();
    } catch (...) { // nobody is left to tell; a handle that stays open disturbs no later call
    }
}

void Rows::close()
{
    if (handle_ == 0)
        return;
    database_.closeRecordset(handle_);
    handle_ = 0;
}

std::string Rows::text(std::string_view name) const
{
    Variant value = field(name);
    return value.isNull() ? std::string() : std::move(value).toText();
}

std::int32_t Rows::integer(std::string_view name, std::int32_t none) const
{
    const Variant value = field(name);
    return value.isNull() ? none : value.toInteger();
}

bool Rows::boolean(std::string_view name) const
{
    const Variant value = field(name);
    return !value.isNull() && value.toBoolean();
}

std::int32_t addRow(DatabaseService& database, std::string_view table, const std::vector<FieldText>& fields)
{
    const std::string name(table);
    Rows rows = Rows::change(database, "SELECT " + name + ".* FROM " + name + ";");
    rows.addNew();
    for (const auto& [column, text] : fields)
        rows.setNew(column, text);
    const std::int32_t key = rows.integer(schema::findTable(table)->columns.front().name);
    rows.update();
    rows.close();
    return key;
}

} // namespace qncal::host
