#pragma once

#include "store/PlaceList.h"
#include "store/RecordCopies.h"
#include "store/Row.h"
#include "store/SelectPlan.h"
#include "store/StoreStatistics.h"
#include "store/dialect/shape.h"

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace qncal::host {

/// The places of a record set, read from the engine as far as they are asked for. No statement stays open between
/// two calls: one that does would hold this connection to the past and its next write would fail.
///
/// A set that is fixed as of its opening reads the rest of its places before the first write to one of its tables.
class LazyPlaces : private TableReader {
public:
    LazyPlaces() = default;
    ~LazyPlaces() override { close(); }
    LazyPlaces(const LazyPlaces&) = delete;
    LazyPlaces& operator=(const LazyPlaces&) = delete;

    void open(std::shared_ptr<SelectPlan> plan, const dialect::Literals& literals, StoreStatistics& statistics);
    void close();

    SelectPlan& plan() const { return *plan_; }
    const dialect::Literals& literals() const { return literals_; }
    PlaceList& list() { return list_; }
    const RecordCopies& copies() const { return copies_; }

    bool isComplete() const { return complete_; }
    /// Finds the first place. True when its record was read along into `row`.
    bool start(Row& row);
    /// True when there is such a place, which may have to be looked for.
    bool has(std::size_t index);
    void loadAll();
    /// True when any record is left that nobody has deleted.
    bool anyLive();
    /// Records of the whole set.
    std::int64_t count();
    /// The place of a record; one that has none gets one at the end.
    std::size_t placeOf(std::span<const std::int64_t> keys);
    /// The first of all known places whose record's column equals the value; not for joins.
    std::optional<std::size_t> find(std::size_t column, const StoredValue& wanted);
    /// Learns which records have been deleted by now.
    void noteDeletions();
    /// As above, and the tables are about to forget them.
    void settleDeletions();

private:
    void beforeWrite() override;
    void stopListening();
    void loadMore();
    void loadCopies();
    void loadKeys();

    std::shared_ptr<SelectPlan> plan_;
    dialect::Literals literals_;
    StoreStatistics* statistics_ = nullptr;
    PlaceList list_;
    RecordCopies copies_;
    std::vector<std::int64_t> block_;
    bool started_ = false;
    bool complete_ = false;                  ///< all places are known
    bool listening_ = false;                 ///< to the tables, for their next write
    std::vector<std::size_t> deletionsSeen_; ///< by table
};

} // namespace qncal::host
