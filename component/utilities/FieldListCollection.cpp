#include "utilities/FieldListCollection.h"

#include "utilities/RunTimeError.h"
#include "utilities/hashNoCase.h"
#include "utilities/text.h"

#include <algorithm>
#include <bit>

namespace qncal {

namespace {

constexpr std::int32_t freeSlot = -1;

bool holds(const FieldListRow& row, std::int16_t column, std::string_view value)
{
    switch (column) {
    case FieldListCollection::databaseField:
        return equalsNoCase(row.databaseField.view(), value);
    case FieldListCollection::category:
        return equalsNoCase(row.category.view(), value);
    case FieldListCollection::dataType:
        return std::to_string(static_cast<int>(row.dataType)) == value;
    case FieldListCollection::sampleText:
        return equalsNoCase(row.sampleText.view(), value);
    case FieldListCollection::maximumLength:
        return std::to_string(row.maximumLength) == value;
    default:
        throw RunTimeError(errorNumber::invalidProcedureCall, "No column " + std::to_string(column));
    }
}

} // namespace

void FieldListCollection::clearRows()
{
    rows_.clear();
    forgetSearches();
    current_ = -1;
}

void FieldListCollection::addRow(FieldListRow row)
{
    rows_.push_back(std::move(row));
    forgetSearches();
    current_ = getCount() - 1;
}

bool FieldListCollection::moveToKey(std::int32_t key)
{
    // The catalogue numbers its rows 1, 2, 3 ..., so the guess is nearly always right.
    if (key >= 1 && key <= getCount() && rows_[static_cast<std::size_t>(key - 1)].key == key) {
        current_ = key - 1;
        return true;
    }
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        if (rows_[i].key == key) {
            current_ = static_cast<std::int32_t>(i);
            return true;
        }
    }
    return false;
}

std::int32_t FieldListCollection::findInColumn(std::int16_t column, std::string_view value)
{
    std::int32_t position = -1;
    if (column == displayName) {
        position = positionOfDisplayName(value);
    } else {
        for (std::size_t i = 0; i < rows_.size() && position < 0; ++i) {
            if (holds(rows_[i], column, value))
                position = static_cast<std::int32_t>(i);
        }
    }
    if (position >= 0)
        current_ = position;
    return position;
}

Variant FieldListCollection::getColumn(std::int16_t column) const
{
    const FieldListRow& row = current();
    switch (column) {
    case databaseField:
        return row.databaseField.str();
    case displayName:
        return row.displayName.str();
    case category:
        return row.category.str();
    case dataType:
        return static_cast<std::int32_t>(row.dataType);
    case sampleText:
        return row.sampleText.str();
    case maximumLength:
        return static_cast<std::int32_t>(row.maximumLength);
    default:
        throw RunTimeError(errorNumber::invalidProcedureCall, "No column " + std::to_string(column));
    }
}

const FieldListRow& FieldListCollection::current() const
{
    if (current_ < 0)
        throw RunTimeError(errorNumber::invalidProcedureCall, "The field list has no current row");
    return rows_[static_cast<std::size_t>(current_)];
}

std::int32_t FieldListCollection::positionOfDisplayName(std::string_view name, std::int32_t from)
{
    if (nameIndex_.empty()) {
        if (++searches_ <= searchesWithoutIndex || rows_.empty())
            return findWithoutIndex(name, from);
        indexDisplayNames();
    }
    const std::size_t mask = nameIndex_.size() - 1;
    for (std::size_t slot = hashNoCase(name) & mask;; slot = (slot + 1) & mask) {
        const std::int32_t position = nameIndex_[slot];
        if (position == freeSlot)
            return -1;
        const std::string_view here = rows_[static_cast<std::size_t>(position)].displayName.view();
        if (position >= from && (here == name || equalsNoCase(here, name))) // most names come in their own case
            return position;
    }
}

std::int32_t FieldListCollection::findWithoutIndex(std::string_view name, std::int32_t from) const
{
    for (std::int32_t position = std::max(from, 0); position < getCount(); ++position) {
        if (equalsNoCase(rows_[static_cast<std::size_t>(position)].displayName.view(), name))
            return position;
    }
    return -1;
}

bool FieldListCollection::displayNamesHold(char byte)
{
    for (const auto& [asked, held] : heldBytes_) {
        if (asked == byte)
            return held;
    }
    const bool held = std::ranges::any_of(
        rows_, [byte](const FieldListRow& row) { return row.displayName.view().find(byte) != std::string_view::npos; });
    heldBytes_.emplace_back(byte, held);
    return held;
}

void FieldListCollection::forgetSearches()
{
    nameIndex_.clear();
    heldBytes_.clear();
    searches_ = 0;
}

void FieldListCollection::indexDisplayNames()
{
    nameIndex_.assign(std::bit_ceil(rows_.size() * 2), freeSlot);
    const std::size_t mask = nameIndex_.size() - 1;
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        std::size_t slot = hashNoCase(rows_[i].displayName.view()) & mask;
        while (nameIndex_[slot] != freeSlot)
            slot = (slot + 1) & mask; // an equal name stays behind the first in its chain
        nameIndex_[slot] = static_cast<std::int32_t>(i);
    }
}

} // namespace qncal
