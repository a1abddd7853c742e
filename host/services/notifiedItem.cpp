#include "services/notifiedItem.h"

#include "core/calendarItemKinds.h"
#include "services/Rows.h"
#include "utilities/RunTimeError.h"

namespace qncal::host {

std::string_view itemColumn(std::int32_t kind)
{
    const std::string_view column = calendarItemKind(static_cast<enumLocalCalendarItemType>(kind)).notificationColumn;
    if (column.empty())
        throw RunTimeError(errorNumber::invalidProcedureCall,
                           "No notifications for items of kind " + std::to_string(kind));
    return column;
}

std::optional<NotifiedItem> readNotifiedItem(DatabaseService& database, enumLocalCalendarItemType kind, std::int32_t id)
{
    const CalendarItemKind& names = calendarItemKind(kind);
    const std::string table(names.tableName);
    const Rows row = Rows::read(database, "SELECT " + table + ".* FROM " + table + " WHERE "
                                              + std::string(names.fieldName) + "=" + std::to_string(id) + ";");
    if (row.isEmpty())
        return std::nullopt;
    NotifiedItem item{
        kind, id, row.text("Subject"), noDate, {row.integer("CompanyIDNum"), row.integer("ContactIDNum")}};
    const Variant day = row.field("DateFrom");
    const Variant time = row.field("TimeFrom");
    if (!day.isNull())
        item.start = Date::of(day.toDate().civilDate(), time.isNull() ? CivilTime{} : time.toDate().civilTime());
    return item;
}

} // namespace qncal::host
