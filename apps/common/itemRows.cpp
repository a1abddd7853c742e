#include "common/itemRows.h"

#include "common/valueText.h"
#include "core/calendarItemKinds.h"
#include "services/ClientDropDown.h"
#include "services/Rows.h"
#include "utilities/readableValue.h"

#include <algorithm>
#include <tuple>

namespace qncal::firmcal {

namespace {

std::string conditionsOf(DatabaseService& database, const ItemFilter& filter)
{
    std::string conditions;
    const auto add = [&](const std::string& condition) {
        conditions += (conditions.empty() ? " WHERE " : " AND ") + condition;
    };
    const auto date = [&](Date value) { return "#" + database.getSQLDate(value) + "#"; };
    if (filter.from)
        add("DateFrom>=" + date(*filter.from));
    if (filter.to)
        add("DateFrom<=" + date(*filter.to));
    if (filter.userID)
        add("UserIDNum=" + std::to_string(*filter.userID));
    if (filter.companyID)
        add("CompanyIDNum=" + std::to_string(*filter.companyID));
    if (filter.contactID)
        add("ContactIDNum=" + std::to_string(*filter.contactID));
    if (!filter.subject.empty())
        add("Subject LIKE '%" + database.getSQLText(filter.subject) + "%'");
    return conditions;
}

Date dateOf(const host::Rows& rows, std::string_view field)
{
    const Variant value = rows.field(field);
    return value.isNull() ? Date() : value.toDate();
}

ItemRow rowOf(enumLocalCalendarItemType kind, const std::string& key, const host::Rows& rows)
{
    ItemRow row;
    row.kind = kind;
    row.id = rows.integer(key);
    row.date = dateOf(rows, "DateFrom").dateOnly();
    row.timeFrom = dateOf(rows, "TimeFrom").timeOnly();
    row.timeTo = dateOf(rows, "TimeTo").timeOnly();
    row.subject = rows.text("Subject");
    row.userID = rows.integer("UserIDNum");
    row.companyID = rows.integer("CompanyIDNum");
    row.contactID = rows.integer("ContactIDNum");
    for (std::size_t i = 0; i < row.statuses.size(); ++i)
        row.statuses[i] = booleanIn(rows.field("Status" + std::to_string(i + 1))).value_or(false);
    row.backColour = integerIn(rows.field("BackColour"));
    row.foreColour = integerIn(rows.field("ForeColour"));
    row.titleBackColour = integerIn(rows.field("TitleBackColour"));
    return row;
}

void readItemsOf(enumLocalCalendarItemType kind, DatabaseService& database, const ItemFilter& filter,
                 std::vector<ItemRow>& items)
{
    const CalendarItemKind& names = calendarItemKind(kind);
    const std::string table = filter.archived ? archiveTable(names.tableName) : std::string(names.tableName);
    const std::string key = filter.archived ? archiveKey(names.fieldName) : std::string(names.fieldName);
    const std::string columns =
        key
        + ", DateFrom, TimeFrom, TimeTo, Subject, UserIDNum, CompanyIDNum, ContactIDNum, "
          "Status1, Status2, Status3, Status4, Status5, BackColour, ForeColour, TitleBackColour";
    const std::string sql = "SELECT " + columns + " FROM " + table + conditionsOf(database, filter) + ";";
    for (host::Rows rows = host::Rows::read(database, sql); !rows.atEnd(); rows.moveNext())
        items.push_back(rowOf(kind, key, rows));
}

} // namespace

std::vector<ItemRow> readItems(DatabaseService& database, const ItemFilter& filter)
{
    std::vector<ItemRow> items;
    for (const enumLocalCalendarItemType kind : filter.kinds)
        readItemsOf(kind, database, filter, items);
    std::ranges::stable_sort(items, {}, [](const ItemRow& row) {
        return std::tuple(row.date.serial(), row.timeFrom.serial(), row.kind, row.id);
    });
    return items;
}

std::string timesText(const ItemRow& row) { return timeText(row.timeFrom) + "-" + timeText(row.timeTo); }

std::string clientName(host::ClientDropDown& clients, std::int32_t companyID, std::int32_t contactID)
{
    if (companyID >= 0)
        return clients.getCompanyName(companyID);
    return contactID >= 0 ? clients.getContactName(contactID) : std::string();
}

} // namespace qncal::firmcal
