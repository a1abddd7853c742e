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

    /// A write to a record of the database that may be put off; its value stands in the current row.
    struct Write {
        StoreTable* table = nullptr;
        std::int64_t key = 0;
        std::uint16_t column = 0; ///< of the table
        std::size_t place = 0;    ///< of the record set
        bool changes = false;     ///< false when the record holds that value already
    };
    /// Converts the text and puts the value into the current record's copy.
    Write writeField(std::string_view name, std::string_view value);
    StoredValue currentValue(std::size_t place) const { return row_.value(place); }
    /// The copy counts as fresh again: its own write was the last.
    void acceptOwnWrite() { rowVersion_ = version(); }

    bool isAdding() const { return newRecord_.isOpen(); }
    void beginRecord();
    void setNewField(std::string_view name, std::string_view value);
    void storeRecord();
    bool deleteRecord();

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
    std::uint64_t rowVersion_ = 0;
    std::size_t lastColumn_ = 0;

    NewRecord newRecord_;
    std::string buffer_;
};

} // namespace qncal::host
