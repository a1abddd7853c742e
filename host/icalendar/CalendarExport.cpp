#include "icalendar/CalendarExport.h"

#include "core/calendarItemKinds.h"
#include "icalendar/itemComponent.h"
#include "services/Rows.h"
#include "utilities/RunTimeError.h"

#include <algorithm>
#include <map>
#include <ostream>
#include <tuple>

namespace qncal::host::icalendar {

namespace {

struct ItemPlace {
    enumLocalCalendarItemType kind = enumLocalCalendarUnknownItem;
    std::int32_t id = -1;
    Date date;
    Date time;
};

/// In the order of the calendar.
std::vector<ItemPlace> placesOf(DatabaseService& database, const ExportOptions& options)
{
    std::vector<ItemPlace> places;
    for (const enumLocalCalendarItemType kind : options.kinds) {
        const std::string key(calendarItemKind(kind).fieldName);
        std::string conditions;
        const auto restrict = [&](const std::string& condition) {
            conditions += (conditions.empty() ? " WHERE " : " AND ") + condition;
        };
        if (options.from)
            restrict("DateFrom>=#" + database.getSQLDate(*options.from) + "#");
        if (options.to)
            restrict("DateFrom<=#" + database.getSQLDate(*options.to) + "#");
        for (Rows rows = Rows::read(database, "SELECT " + key + ", UserIDNum, DateFrom, TimeFrom FROM "
                                                  + std::string(calendarItemKind(kind).tableName) + conditions + ";");
             !rows.atEnd(); rows.moveNext()) {
            if (!options.users.empty()
                && std::ranges::find(options.users, rows.integer("UserIDNum")) == options.users.end())
                continue;
            const auto date = [&](std::string_view column) {
                const Variant value = rows.field(column);
                return value.isNull() ? Date() : value.toDate();
            };
            places.push_back({kind, rows.integer(key), date("DateFrom").dateOnly(), date("TimeFrom").timeOnly()});
        }
    }
    std::ranges::sort(places, {}, [](const ItemPlace& place) {
        return std::tuple(place.date.serial(), place.time.serial(), place.kind, place.id);
    });
    return places;
}

struct Written {
    ItemComponent component;
    std::vector<RowOwner> owners;
};

/// Rows of one group that say the same are one component.
class GroupMerger {
public:
    void add(const clsCalendarItem& item, ItemComponent component)
    {
        if (item.UserGroupNum() > 0) {
            std::string key = std::to_string(item.UserGroupNum()) + component.name;
            for (const auto& lines : {component.lines, component.children}) {
                for (const std::string& line : lines)
                    key += "\n" + line;
            }
            const auto [place, isNew] = places_.try_emplace(std::move(key), written_.size());
            std::vector<RowOwner>* owners = isNew ? nullptr : &written_[place->second].owners;
            if (owners && std::ranges::find(*owners, item.userIDNum(), &RowOwner::userID) == owners->end()) {
                owners->push_back({item.userIDNum(), item.RepeatNum()});
                return;
            }
        }
        written_.push_back({std::move(component), {{item.userIDNum(), item.RepeatNum()}}});
    }
    const std::vector<Written>& written() const { return written_; }

private:
    std::vector<Written> written_;
    std::map<std::string, std::size_t> places_;
};

} // namespace

ExportReport exportCalendar(HostEnvironment& host, const ExportOptions& options, std::ostream& out,
                            const ExportProgress& progress)
{
    const People people(host);
    TimeZones zones{std::string()};
    const std::vector<ItemPlace> places = placesOf(host.database(), options);
    GroupMerger merger;
    ExportReport report;
    for (const ItemPlace& place : places) {
        clsCalendarItem item;
        item.calendarItemType(place.kind);
        item.itemID(place.id);
        if (!item.loadCalendarItem())
            throw RunTimeError(errorNumber::internalError, "item " + std::to_string(place.id) + " cannot be read");
        merger.add(item, componentOf(item, people, zones));
        if (progress)
            progress(++report.items, static_cast<int>(places.size()));
        else
            ++report.items;
    }
    const auto write = [&](const std::string& line) { out << foldedLine(line); };
    for (const char* line : {"BEGIN:VCALENDAR", "VERSION:2.0", "PRODID:-//firmcal//firmcal 1.0//EN"})
        write(line);
    for (const Written& written : merger.written()) {
        for (const std::string& line : linesOf(written.component, written.owners, people))
            write(line);
        ++report.components;
    }
    write("END:VCALENDAR");
    return report;
}

} // namespace qncal::host::icalendar
