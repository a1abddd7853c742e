#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

namespace qncal::host {

/// The places of a record set in their order, each with the keys that identify its record.
///
/// A place whose record was deleted through the record set itself closes up: later records move up by one. A
/// record deleted by someone else leaves its place behind, so that saved positions stay right.
class PlaceList {
public:
    void clear(std::size_t keyWidth);
    void append(std::span<const std::int64_t> keys);

    std::size_t size() const { return states_.size(); }
    std::span<const std::int64_t> keys(std::size_t index) const
    {
        return std::span(keys_).subspan(index * width_, width_);
    }
    bool isLive(std::size_t index) const { return states_[index] == State::live; }
    bool isClosed(std::size_t index) const { return states_[index] == State::closed; }
    void close(std::size_t index);
    void markGone(std::size_t index);
    /// Marks the places whose record has one of the deleted records of a table, `table` being its place among the
    /// keys.
    void markGone(std::span<const std::int64_t> deleted, std::size_t table);

    /// Records that are still there, as far as known.
    std::size_t liveCount() const { return size() - closed_.size() - gone_; }
    /// Position of an index, from 1; of `size()` the position past the last.
    std::int64_t position(std::size_t index) const;
    /// Index of a position; `size()` for one past the last.
    std::size_t index(std::int64_t position) const;
    std::optional<std::size_t> find(std::span<const std::int64_t> keys) const;

private:
    enum class State : std::uint8_t { live, gone, closed };

    std::size_t width_ = 1;
    std::vector<std::int64_t> keys_;
    std::vector<State> states_;
    std::vector<std::size_t> closed_; ///< the closed indexes, ascending
    std::size_t gone_ = 0;
    bool ascending_ = true; ///< one key to a place, each greater than the one before
    /// Places by first key, as far as they were looked for, for lists in another order.
    mutable std::unordered_map<std::int64_t, std::size_t> byKey_;
    mutable std::size_t inByKey_ = 0;
};

} // namespace qncal::host
