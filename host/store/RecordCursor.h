#pragma once

#include "store/PlaceList.h"
#include "store/Row.h"
#include "store/SelectPlan.h"
#include "store/StoreStatistics.h"
#include "store/dialect/shape.h"
#include "utilities/Variant.h"

#include <cstdint>
#include <memory>
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
    void open(std::shared_ptr<SelectPlan> plan, const dialect::ShapedText& text, bool updatable,
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
    std::vector<std::string> fieldNames() const { return plan_->fieldNames(); }

    /// A write to a record of the database that the store may put off; its value stands in the current row.
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

    bool isAdding() const { return adding_; }
    void beginRecord();
    void setNewField(std::string_view name, std::string_view value);
    void storeRecord();
    bool deleteRecord();

private:
    static constexpr std::ptrdiff_t beforeFirst = -1;

    const PlanColumn& columnOf(std::size_t place) const { return plan_->parts().columns[place]; }
    std::size_t requireColumn(std::string_view name);
    std::uint64_t version() const;
    void requireUpdatable() const;

    void start();
    void settle();
    bool hasPlace(std::size_t index);
    void loadMore();
    void loadAll();
    void noteDeletions();
    bool isAtPlace() const { return index_ >= 0 && static_cast<std::size_t>(index_) < places_.size(); }
    void leaveRow();
    bool readRow();
    void requireRow();
    bool findByWalk(std::size_t column, const StoredValue& value);
    Variant newField(std::size_t place) const;

    std::shared_ptr<SelectPlan> plan_;
    dialect::ShapedText text_;
    StoreStatistics* statistics_ = nullptr;
    bool updatable_ = false;

    PlaceList places_;
    bool started_ = false;  ///< the first record has been looked for
    bool complete_ = false; ///< all places are known
    std::ptrdiff_t index_ = 0;
    /// A current record that was found or added, whose place is not known yet.
    bool detached_ = false;
    std::vector<std::int64_t> detachedKeys_;
    std::size_t deletionsSeen_ = 0;

    Row row_;
    std::vector<std::int64_t> rowKeys_;
    bool rowLoaded_ = false;
    std::uint64_t rowVersion_ = 0;
    std::vector<Row> copies_; ///< all records, when the plan is not by key
    std::size_t lastColumn_ = 0;

    bool adding_ = false;
    Row newRow_; ///< by table column
    std::vector<bool> newSet_;
    std::string buffer_;
};

} // namespace qncal::host
