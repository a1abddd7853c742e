#pragma once

#include "core/DatabaseService.h"
#include "core/enumerations.h"
#include "utilities/Date.h"

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qncal::host::icalendar {

/// Which item of the database an item of a file is: by the UID and the occurrence that its notes keep, or, for the
/// UIDs that an export made up, by the item's own number.
class KnownItems {
public:
    /// `domain` ends the UIDs that an export of this database makes up.
    KnownItems(DatabaseService& database, std::string domain);

    /// One user's row of an occurrence.
    struct Wanted {
        enumLocalCalendarItemType kind = enumLocalCalendarUnknownItem;
        std::string uid;
        /// The value of RECURRENCE-ID, empty without.
        std::string occurrence;
        std::int32_t userID = -1;
        std::string subject;
        Date day;
    };
    struct Row {
        std::int32_t id = -1;
        std::int32_t userID = -1;
        std::int32_t series = 0;
        std::int32_t group = 0;
        /// Known by the number that its UID is made of; its notes keep no UID.
        bool isMadeUp = false;
    };
    /// None when the item is new. An item is found once.
    std::optional<Row> take(const Wanted& wanted);
    /// The items of a UID that were not taken: what an earlier file had and this one has not.
    std::vector<std::int32_t> leftOf(enumLocalCalendarItemType kind, const std::string& uid) const;

private:
    using Key = std::pair<std::int32_t, std::string>;
    static Key keyOf(enumLocalCalendarItemType kind, const std::string& uid, const std::string& occurrence);
    void readKind(enumLocalCalendarItemType kind);
    std::optional<Row> findMadeUp(const Wanted& wanted);

    DatabaseService& database_;
    std::string domain_;
    std::map<Key, std::vector<Row>> rows_;
    std::set<std::pair<std::int32_t, std::int32_t>> taken_;
};

/// "appointment-12@domain": the UID of an item that no file gave one.
std::string madeUpUID(enumLocalCalendarItemType kind, std::int32_t id, std::string_view domain);

/// Free numbers for series or groups. A number above 0 that a file names is kept where it is free.
class FreeNumbers {
public:
    /// `column` is `RepeatNum` or `UserGroupNum`.
    FreeNumbers(DatabaseService& database, std::string column) : database_(database), column_(std::move(column)) {}

    std::int32_t next(enumLocalCalendarItemType kind);
    /// The same number for every row that has this number in the file.
    std::int32_t forFileNumber(enumLocalCalendarItemType kind, std::int32_t fileNumber);

private:
    std::set<std::int32_t>& used(enumLocalCalendarItemType kind);

    DatabaseService& database_;
    std::string column_;
    std::map<std::int32_t, std::set<std::int32_t>> used_;
    std::map<std::pair<std::int32_t, std::int32_t>, std::int32_t> ofFile_;
};

} // namespace qncal::host::icalendar
