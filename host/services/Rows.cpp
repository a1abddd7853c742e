#include "services/Rows.h"

namespace qncal::host {

Rows::Rows(DatabaseService& database, std::string_view sql, std::int32_t lock)
    : database_(database), handle_(database.openRecordset(sql, DatabaseService::cursorType, lock, true, {}, true))
{
}

Rows::~Rows()
{
    try {
        database_.closeRecordset(handle_);
    } catch (...) { // a handle that an error left open disturbs nobody
    }
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

} // namespace qncal::host
