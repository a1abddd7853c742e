#pragma once

#include "store/LazyPlaces.h"
#include "store/NewRecord.h"
#include "store/Row.h"
#include "utilities/Variant.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace qncal::host {

/// One open record set: its places, its current record, and the record being added.
///
/// Nothing is read before it is asked for. The caller sees to it that buffered writes of other record sets have
/// reached the engine before a call.
class RecordCursor {
public:
    void open(std::shared_ptr<SelectPlan> plan, const dialect::Literals& literals, bool updatable,
              StoreStatistics& statistics);
    void close();

    bool hasRecords();
    bool isEOF();
    bool moveNext();
    bool movePrevious();
    std::int64_t count();
    std::int64_t position();
    bool setPosition(std::int64_t position);
    bool find(std::string_view field, std::string_view value);

    Variant field(std::string_view name);
    std::vector<std::string> fieldNames() const { return plan().fieldNames(); }

    /// A write to the current record, which may be put off.
    struct Write {
        StoreTable* table = nullptr;
        std::int64_t key = 0;
        std::uint16_t column = 0; ///< of the table
        std::size_t place = 0;    ///< of the record set
        StoredValue value;        ///< lies in the text or in the record set until its next call
    };
    /// Finds out what a write means and converts its text; nothing is changed.
    Write planWrite(std::string_view name, std::string_view text);
    /// Reads the current record again unless the database is as it was when it was read. Throws when it is gone.
    void confirmRow();
    /// Puts the value into the copy of the current record; false when it holds that value already.
    bool putWrite(const Write& write);
    StoredValue currentValue(std::size_t place) const { return row_.value(place); }
    /// The copy, which holds values still to be written, counts as fresh.
    void keepRow() { rowVersion_ = version(); }
    /// The record set's own write has reached the database: the copy is fresh as far as it can tell.
    void acceptOwnWrite();

    bool isAdding() const { return newRecord_.isOpen(); }
    void beginRecord();
    void setNewField(std::string_view name, std::string_view value);
    void storeRecord();
    bool deleteRecord();
    /// Learns which records have been deleted; the tables are about to forget them.
    void settleDeletions() { places_.settleDeletions(); }

private:
    static constexpr std::ptrdiff_t beforeFirst = -1;

    SelectPlan& plan() const { return places_.plan(); }
    bool isByKey() const { return plan().parts().byKey; }
    std::size_t requireColumn(std::string_view name);
    const PlanColumn& requireTableColumn(std::string_view name, std::size_t& place);
    std::uint64_t version() const;
    void requireUpdatable() const;

    void start();
    void settle();
    std::size_t index() const { return static_cast<std::size_t>(index_); }
    bool isAtRecord() { return places_.list().isLive(index()) && readRow(); }
    void leaveRow();
    bool readRow();
    void noteRowVersions();
    bool isRowFresh() const { return rowLoaded_ && (!isByKey() || rowVersion_ == version()); }
    void requireRow();
    StoredValue value(std::size_t place) const;
    void putIntoRow(std::size_t place, const StoredValue& value);
    bool findPlace(std::size_t column, const StoredValue& wanted);
    bool findByWalk(std::size_t column, const StoredValue& wanted);

    LazyPlaces places_;
    StoreStatistics* statistics_ = nullptr;
    bool updatable_ = false;

    std::ptrdiff_t index_ = 0; ///< of the current place; the number of places when past the last
    /// The keys of a current record that was found or added, while its place is not known yet.
    std::vector<std::int64_t> unplacedKeys_;
    bool isUnplaced_ = false;

    Row row_;
    std::vector<std::int64_t> rowKeys_;
    bool rowLoaded_ = false;
    std::uint64_t rowVersion_ = 0;     ///< of the tables as this store wrote them
    std::uint32_t rowDataVersion_ = 0; ///< of the database, whoever wrote
    std::size_t lastColumn_ = 0;

    NewRecord newRecord_;
    std::string buffer_;
};

} // namespace qncal::host
