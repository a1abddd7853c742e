#include "firmcal/itemRows.h"

#include "core/calendarItemKinds.h"
#include "firmcal/itemKind.h"
#include "firmcal/valueText.h"
#include "services/ClientDropDown.h"
#include "services/Rows.h"

#include <nlohmann/json.hpp>

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

void readItemsOf(enumLocalCalendarItemType kind, DatabaseService& database, const ItemFilter& filter,
                 std::vector<ItemRow>& items)
{
    const CalendarItemKind& names = calendarItemKind(kind);
    const std::string table = filter.archived ? archiveTable(names.tableName) : std::string(names.tableName);
    const std::string key = filter.archived ? archiveKey(names.fieldName) : std::string(names.fieldName);
    const std::string columns = key + ", DateFrom, TimeFrom, TimeTo, Subject, UserIDNum, CompanyIDNum, ContactIDNum";
    const std::string sql = "SELECT " + columns + " FROM " + table + conditionsOf(database, filter) + ";";
    for (host::Rows rows = host::Rows::read(database, sql); !rows.atEnd(); rows.moveNext()) {
        items.push_back({kind, rows.integer(key), dateOf(rows, "DateFrom").dateOnly(),
                         dateOf(rows, "TimeFrom").timeOnly(), dateOf(rows, "TimeTo").timeOnly(), rows.text("Subject"),
                         rows.integer("UserIDNum"), rows.integer("CompanyIDNum"), rows.integer("ContactIDNum")});
    }
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

nlohmann::ordered_json rowJson(const ItemRow& row, host::ClientDropDown& clients)
{
    return {{"kind", kindWord(row.kind)},
            {"itemID", row.id},
            {"DateFrom", dayText(row.date)},
            {"TimeFrom", timeText(row.timeFrom)},
            {"TimeTo", timeText(row.timeTo)},
            {"Subject", row.subject},
            {"userIDNum", row.userID},
            {"user", clients.getUserName(row.userID)},
            {"companyIDNum", row.companyID},
            {"contactIDNum", row.contactID},
            {"client", clientName(clients, row.companyID, row.contactID)}};
}

} // namespace qncal::firmcal
