#pragma once

#include "utilities/Variant.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace qncal {

/// How the value of a merge field is written, by the numbers of the catalogue's data type column.
enum class MergeDataType : std::int16_t { text = 1, date = 2, time = 3, currency = 4, yesNo = 5, hours = 6 };

/// A text of a row: either a view of a text that lives as long as the program, or a text of its own.
/// A fixed text costs no allocation. Lists are built of hundreds of these, most of them fixed, so that they are
/// small and only moved.
class FieldText {
public:
    FieldText() = default;
    /// The viewed text must outlive every row that holds it.
    static FieldText fixed(std::string_view text) { return FieldText(text, nullptr); }
    static FieldText owned(std::string text) { return FieldText({}, std::make_unique<std::string>(std::move(text))); }

    std::string_view view() const { return own_ ? std::string_view(*own_) : fixed_; }
    std::string str() const { return std::string(view()); }

private:
    FieldText(std::string_view fixed, std::unique_ptr<std::string> own) : fixed_(fixed), own_(std::move(own)) {}
    std::string_view fixed_;
    std::unique_ptr<std::string> own_;
};

/// One merge field.
struct FieldListRow {
    std::int32_t key = 0;
    FieldText databaseField;
    FieldText displayName;
    FieldText category;
    MergeDataType dataType = MergeDataType::text;
    FieldText sampleText;
    std::int16_t maximumLength = -1; ///< in characters; -1 where none applies
};

/// A keyed row table with a current row: the catalogue of merge fields.
///
/// Texts compare without regard to ASCII case, and of two equal values the first row is found. Rows keep the
/// order in which they were added. A search for a display name costs the same on a short and on a long list.
class FieldListCollection {
public:
    /// The columns by their numbers. The key is not a column, see `getCurrentKey`.
    enum Column : std::int16_t {
        databaseField = 1,
        displayName = 2,
        category = 3,
        dataType = 4,
        sampleText = 5,
        maximumLength = 6,
    };

    std::int32_t getCount() const { return static_cast<std::int32_t>(rows_.size()); }
    void clearRows();
    /// Appends a row, which becomes current.
    void addRow(FieldListRow row);
    /// Makes the row with the key current; False, and the current row stays, when there is none.
    bool moveToKey(std::int32_t key);
    /// The position from 0 of the first row whose column holds the value, which becomes current;
    /// -1, and the current row stays, when there is none. A number compares by its decimal text.
    std::int32_t findInColumn(std::int16_t column, std::string_view value);
    /// The position of the first row at or after `from` with this display name, -1 when there is none.
    /// The current row stays.
    std::int32_t positionOfDisplayName(std::string_view name, std::int32_t from = 0);
    /// True when a display name holds the byte.
    bool displayNamesHold(char byte);
    /// A column of the current row. No current row, or no such column, is run-time error 5.
    Variant getColumn(std::int16_t column) const;
    std::int32_t getCurrentKey() const { return current().key; }

    /// The current row; none is run-time error 5.
    const FieldListRow& current() const;
    /// All rows in order; valid until the next change of the collection.
    std::span<const FieldListRow> rows() const { return rows_; }
    /// Makes room for the rows of a list at once.
    void reserve(std::size_t count) { rows_.reserve(count); }

private:
    std::int32_t findWithoutIndex(std::string_view name, std::int32_t from) const;
    void indexDisplayNames();
    void forgetSearches();

    /// So many searches are cheaper without an index.
    static constexpr int searchesWithoutIndex = 12;

    std::vector<FieldListRow> rows_;
    std::int32_t current_ = -1;
    /// Open-addressing hash table of row positions by display name, -1 free; empty until it is needed.
    std::vector<std::int32_t> nameIndex_;
    int searches_ = 0;
    /// The answers of `displayNamesHold` so far.
    std::vector<std::pair<char, bool>> heldBytes_;
};

} // namespace qncal
