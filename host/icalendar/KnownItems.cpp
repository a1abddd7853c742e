#include "icalendar/KnownItems.h"

#include "core/calendarItemKinds.h"
#include "icalendar/notesBlock.h"
#include "services/Rows.h"
#include "utilities/text.h"

#include <charconv>

namespace qncal::host::icalendar {

namespace {

/// "appointment", from the name of the key column.
std::string wordOf(enumLocalCalendarItemType kind)
{
    std::string_view name = calendarItemKind(kind).fieldName;
    name.remove_suffix(std::string_view("ID").size());
    return lowerAscii(name);
}

KnownItems::Row rowOf(const Rows& rows, const std::string& key)
{
    return {rows.integer(key), rows.integer("UserIDNum"), rows.integer("RepeatNum", 0),
            rows.integer("UserGroupNum", 0)};
}

} // namespace

std::string madeUpUID(enumLocalCalendarItemType kind, std::int32_t id, std::string_view domain)
{
    return wordOf(kind) + "-" + std::to_string(id) + "@" + std::string(domain);
}

KnownItems::KnownItems(DatabaseService& database, std::string domain) : database_(database), domain_(std::move(domain))
{
    for (const auto kind : {enumLocalCalendarAppointmentItem, enumLocalCalendarTaskItem, enumLocalCalendarDocketItem})
        readKind(kind);
}

KnownItems::Key KnownItems::keyOf(enumLocalCalendarItemType kind, const std::string& uid, const std::string& occurrence)
{
    return {kind, uid + "\n" + occurrence};
}

void KnownItems::readKind(enumLocalCalendarItemType kind)
{
    const std::string table(calendarItemKind(kind).tableName);
    const std::string key(calendarItemKind(kind).fieldName);
    for (Rows rows =
             Rows::read(database_, "SELECT " + key + ", UserIDNum, RepeatNum, UserGroupNum, TextBody FROM " + table
                                       + " WHERE TextBody LIKE '%" + database_.getSQLText(blockMark) + "%';");
         !rows.atEnd(); rows.moveNext()) {
        const CalendarComponent kept = keptComponent(readNotes(rows.text("TextBody")));
        if (const ContentLine* uid = kept.find("UID"))
            rows_[keyOf(kind, std::string(uid->value()), kept.textOf("RECURRENCE-ID"))].push_back(rowOf(rows, key));
    }
}

std::optional<KnownItems::Row> KnownItems::take(const Wanted& wanted)
{
    if (const auto known = rows_.find(keyOf(wanted.kind, wanted.uid, wanted.occurrence)); known != rows_.end()) {
        for (const Row& row : known->second) {
            if (row.userID == wanted.userID && taken_.insert({wanted.kind, row.id}).second)
                return row;
        }
    }
    auto own = findMadeUp(wanted);
    if (!own || !taken_.insert({wanted.kind, own->id}).second)
        return std::nullopt;
    own->isMadeUp = true;
    return own;
}

std::vector<std::int32_t> KnownItems::leftOf(enumLocalCalendarItemType kind, const std::string& uid) const
{
    std::vector<std::int32_t> left;
    const Key first = keyOf(kind, uid, {});
    for (auto known = rows_.lower_bound(first);
         known != rows_.end() && known->first.first == kind && known->first.second.starts_with(first.second); ++known) {
        for (const Row& row : known->second) {
            if (!taken_.contains({kind, row.id}))
                left.push_back(row.id);
        }
    }
    return left;
}

std::optional<KnownItems::Row> KnownItems::findMadeUp(const Wanted& wanted)
{
    const std::string start = wordOf(wanted.kind) + "-";
    if (!wanted.uid.starts_with(start) || !wanted.uid.ends_with("@" + domain_))
        return std::nullopt;
    std::int32_t id = -1;
    std::from_chars(wanted.uid.data() + start.size(), wanted.uid.data() + wanted.uid.size(), id);
    if (madeUpUID(wanted.kind, id, domain_) != wanted.uid)
        return std::nullopt;

    const std::string table(calendarItemKind(wanted.kind).tableName);
    const std::string key(calendarItemKind(wanted.kind).fieldName);
    const std::string columns =
        "SELECT " + key + ", UserIDNum, RepeatNum, UserGroupNum, DateFrom, Subject, TextBody FROM " + table + " WHERE ";
    const Rows named = Rows::read(database_, columns + key + "=" + std::to_string(id) + ";");
    if (named.atEnd() || named.field("DateFrom").isNull())
        return std::nullopt;
    // An item that a file gave its UID goes by that one alone.
    if (keptComponent(readNotes(named.text("TextBody"))).find("UID"))
        return std::nullopt;
    // Another firm of the same name may have an item of this number: so much must be the same.
    const Date day = named.field("DateFrom").toDate().dateOnly();
    if (day != wanted.day && named.text("Subject") != wanted.subject)
        return std::nullopt;
    if (named.integer("UserIDNum") == wanted.userID)
        return rowOf(named, key);
    // The other users of a group stand in the same component.
    if (named.integer("UserGroupNum", 0) <= 0)
        return std::nullopt;
    const Rows ofGroup = Rows::read(database_, columns + "UserGroupNum=" + std::to_string(named.integer("UserGroupNum"))
                                                   + " AND UserIDNum=" + std::to_string(wanted.userID)
                                                   + " AND DateFrom=#" + database_.getSQLDate(day) + "#;");
    return ofGroup.atEnd() ? std::nullopt : std::optional(rowOf(ofGroup, key));
}

std::set<std::int32_t>& FreeNumbers::used(enumLocalCalendarItemType kind)
{
    const auto [place, isNew] = used_.try_emplace(kind);
    if (isNew) {
        const std::string table(calendarItemKind(kind).tableName);
        for (Rows rows = Rows::read(database_, "SELECT " + table + "." + column_ + " FROM " + table + " GROUP BY "
                                                   + table + "." + column_ + ";");
             !rows.atEnd(); rows.moveNext())
            place->second.insert(rows.integer(column_, 0));
    }
    return place->second;
}

std::int32_t FreeNumbers::next(enumLocalCalendarItemType kind)
{
    std::set<std::int32_t>& taken = used(kind);
    // 0 stands for no series and no group.
    std::int32_t number = 1;
    while (taken.contains(number))
        ++number;
    taken.insert(number);
    return number;
}

std::int32_t FreeNumbers::forFileNumber(enumLocalCalendarItemType kind, std::int32_t fileNumber)
{
    if (const auto known = ofFile_.find({kind, fileNumber}); known != ofFile_.end())
        return known->second;
    const bool isFree = fileNumber > 0 && used(kind).insert(fileNumber).second;
    return ofFile_[{kind, fileNumber}] = isFree ? fileNumber : next(kind);
}

} // namespace qncal::host::icalendar
