#include "firmcal/databaseCheck.h"

#include "common/itemKind.h"
#include "core/calendarItemKinds.h"
#include "core/schema.h"
#include "services/Rows.h"
#include "store/SqliteConnection.h"
#include "utilities/readableValue.h"

#include <functional>
#include <map>
#include <optional>
#include <span>
#include <unordered_set>

namespace qncal::firmcal {

namespace {

using host::Rows;
using Keys = std::unordered_set<std::int32_t>;

/// A column that holds the key of a row in another table.
struct Reference {
    std::string_view column;
    std::string_view table;
    std::string_view key;
};

constexpr Reference reminderReferences[]{{"AppointmentIDNum", "Appointments", "AppointmentID"},
                                         {"TaskIDNum", "Tasks", "TaskID"}};
constexpr Reference notificationReferences[]{{"AppointmentNum", "Appointments", "AppointmentID"},
                                             {"TaskNum", "Tasks", "TaskID"},
                                             {"DocketNum", "Dockets", "DocketID"}};
constexpr Reference linkReferences[]{{"ContactIDNum", "Contacts", "ContactID"},
                                     {"ContactNum", "Contacts", "ContactID"},
                                     {"CompanyNum", "Companies", "CompanyID"}};
constexpr Reference clientReferences[]{{"CompanyIDNum", "Companies", "CompanyID"},
                                       {"ContactIDNum", "Contacts", "ContactID"}};
constexpr Reference userReferences[]{{"UserIDNum", "AccountantEmployeeInfo", "ContactID"}};

bool isValueOf(schema::ColumnType type, const Variant& value)
{
    using schema::ColumnType;
    if (value.isNull())
        return true;
    switch (type) {
    case ColumnType::text:
    case ColumnType::memo:
        return true;
    case ColumnType::boolean:
        return booleanIn(value).has_value();
    case ColumnType::real:
    case ColumnType::currency:
        return value.isNumeric();
    case ColumnType::date:
    case ColumnType::time:
        return !value.isText();
    default:
        return integerIn(value).has_value();
    }
}

std::string allOf(std::string_view table) { return "SELECT * FROM " + std::string(table) + ";"; }

/// None also for a cell that is spoilt: that is found by a check of its own.
std::optional<std::int32_t> numberIn(const Rows& rows, std::string_view column)
{
    return integerIn(rows.field(column));
}

class Checker {
public:
    Checker(DatabaseService& database, bool repair) : database_(database), repair_(repair) {}

    /// Rows of which any reference leads nowhere; they are mended by deleting them.
    void orphans(std::string check, std::string_view table, std::span<const Reference> references)
    {
        walk(std::move(check), table, true, [&](Rows& rows) {
            for (const Reference& reference : references) {
                if (leadsNowhere(rows, reference))
                    return Mending([&rows] { rows.deleteCurrent(); });
            }
            return Mending();
        });
    }

    /// Items of which a reference leads nowhere; it is mended by becoming -1.
    void danglingItems(std::string check, std::string_view table, std::span<const Reference> references, bool canMend)
    {
        walk(std::move(check), table, canMend, [&](Rows& rows) {
            for (const Reference& reference : references) {
                if (leadsNowhere(rows, reference))
                    return Mending([&rows, &reference] { rows.set(reference.column, "-1"); });
            }
            return Mending();
        });
    }

    void seriesOfOne(std::string check, std::string_view table)
    {
        std::map<std::int32_t, int> sizes;
        for (Rows rows = Rows::read(database_, allOf(table)); !rows.atEnd(); rows.moveNext())
            ++sizes[numberIn(rows, "RepeatNum").value_or(0)];
        walk(std::move(check), table, true, [&](Rows& rows) {
            const std::int32_t series = numberIn(rows, "RepeatNum").value_or(0);
            return series > 0 && sizes[series] == 1 ? Mending([&rows] { rows.set("RepeatNum", "0"); }) : Mending();
        });
    }

    void spoiltCells(std::string check)
    {
        CheckResult result{std::move(check)};
        for (const schema::Table& table : schema::tables()) {
            Rows rows = Rows::change(database_, allOf(table.name));
            for (; !rows.atEnd(); rows.moveNext()) {
                for (const schema::Column& column : table.columns)
                    examineCell(rows, table, column, result);
            }
            rows.close();
        }
        results_.push_back(std::move(result));
    }

    std::vector<CheckResult> take() { return std::move(results_); }

private:
    /// Mends the current row; empty for a row that is well.
    using Mending = std::function<void()>;

    void walk(std::string check, std::string_view table, bool canMend, const std::function<Mending(Rows&)>& examine)
    {
        CheckResult result{std::move(check), 0, 0, canMend, {}};
        Rows rows = Rows::change(database_, allOf(table));
        for (; !rows.atEnd(); rows.moveNext()) {
            const Mending mend = examine(rows);
            if (!mend)
                continue;
            ++result.found;
            if (repair_ && canMend) {
                mend();
                ++result.mended;
            }
        }
        rows.close();
        results_.push_back(std::move(result));
    }

    void examineCell(Rows& rows, const schema::Table& table, const schema::Column& column, CheckResult& result) const
    {
        const Variant value = rows.field(column.name);
        if (isValueOf(column.type, value))
            return;
        ++result.found;
        result.places.push_back(std::string(table.name) + "." + std::string(column.name) + " of row "
                                + rows.text(table.columns.front().name) + ": '" + value.toText() + "'");
        if (!repair_)
            return;
        rows.set(column.name, column.type == schema::ColumnType::boolean ? "False" : "");
        ++result.mended;
    }

    bool leadsNowhere(const Rows& rows, const Reference& reference)
    {
        const std::int32_t id = numberIn(rows, reference.column).value_or(-1);
        return id > 0 && !keysOf(reference).contains(id);
    }

    const Keys& keysOf(const Reference& reference)
    {
        const auto [known, isNew] = keys_.try_emplace(std::string(reference.table));
        if (isNew) {
            const std::string key(reference.key);
            for (Rows rows = Rows::read(database_, "SELECT " + key + " FROM " + std::string(reference.table) + ";");
                 !rows.atEnd(); rows.moveNext())
                known->second.insert(rows.integer(key));
        }
        return known->second;
    }

    DatabaseService& database_;
    bool repair_;
    std::map<std::string, Keys, std::less<>> keys_;
    std::vector<CheckResult> results_;
};

} // namespace

std::vector<CheckResult> checkRows(DatabaseService& database, bool repair)
{
    Checker checker(database, repair);
    checker.spoiltCells("cells that hold what their column cannot");
    checker.orphans("reminders of items that are gone", "Reminders", reminderReferences);
    checker.orphans("notifications of items that are gone", "ClientNotification", notificationReferences);
    checker.orphans("links of clients that are gone", "ContactLinks", linkReferences);
    for (const enumLocalCalendarItemType kind : allKinds) {
        const std::string_view table = calendarItemKind(kind).tableName;
        checker.danglingItems(kindNounPlural(kind) + " of clients that are gone", table, clientReferences, true);
        checker.danglingItems(kindNounPlural(kind) + " of users that are gone", table, userReferences, false);
        checker.seriesOfOne("series of one among the " + kindNounPlural(kind), table);
    }
    return checker.take();
}

std::string checkFile(const std::string& file)
{
    constexpr int busyTimeout = 5000;
    host::SqliteConnection connection(file, host::SqliteConnection::Access::readWrite, busyTimeout);
    const std::string verdict = connection.queryText("PRAGMA integrity_check");
    return verdict == "ok" ? std::string() : verdict;
}

} // namespace qncal::firmcal
