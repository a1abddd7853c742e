#include "store/PlaceList.h"

#include <algorithm>
#include <unordered_set>

namespace qncal::host {

void PlaceList::clear(std::size_t keyWidth)
{
    width_ = keyWidth;
    constexpr std::size_t worthKeeping = 4096; // memory of a larger set is not held for the next
    if (keys_.capacity() > worthKeeping) {
        keys_ = {};
        states_ = {};
    }
    keys_.clear();
    states_.clear();
    byKey_.clear();
    inByKey_ = 0;
    closed_.clear();
    gone_ = 0;
    ascending_ = keyWidth == 1;
}

void PlaceList::append(std::span<const std::int64_t> keys)
{
    ascending_ = ascending_ && (keys_.empty() || keys_.back() < keys.front());
    keys_.insert(keys_.end(), keys.begin(), keys.end());
    states_.push_back(State::live);
}

void PlaceList::close(std::size_t index)
{
    if (states_[index] == State::closed)
        return;
    if (states_[index] == State::gone)
        --gone_;
    states_[index] = State::closed;
    closed_.insert(std::ranges::lower_bound(closed_, index), index);
}

void PlaceList::markGone(std::size_t index)
{
    if (states_[index] != State::live)
        return;
    states_[index] = State::gone;
    ++gone_;
}

void PlaceList::markGone(std::span<const std::int64_t> deleted, std::size_t table)
{
    if (ascending_) {
        for (const std::int64_t key : deleted)
            if (const auto index = find(std::span(&key, 1)))
                markGone(*index);
        return;
    }
    const std::unordered_set<std::int64_t> keys(deleted.begin(), deleted.end());
    for (std::size_t index = 0; index < size(); ++index)
        if (keys.contains(keys_[index * width_ + table]))
            markGone(index);
}

std::int64_t PlaceList::position(std::size_t index) const
{
    const auto closedBefore = std::ranges::lower_bound(closed_, index) - closed_.begin();
    return static_cast<std::int64_t>(index) - closedBefore + 1;
}

std::size_t PlaceList::index(std::int64_t position) const
{
    // The closed place number n, from 0, has all before it but n others.
    const auto open = static_cast<std::size_t>(position - 1);
    std::size_t before = 0;
    for (std::size_t after = closed_.size(); before < after;) {
        const std::size_t middle = (before + after) / 2;
        if (closed_[middle] - middle <= open)
            before = middle + 1;
        else
            after = middle;
    }
    return std::min(open + before, size());
}

std::optional<std::size_t> PlaceList::find(std::span<const std::int64_t> keys) const
{
    if (ascending_) {
        const auto found = std::ranges::lower_bound(keys_, keys.front());
        if (found == keys_.end() || *found != keys.front())
            return std::nullopt;
        return static_cast<std::size_t>(found - keys_.begin());
    }
    if (width_ == 1) {
        for (; inByKey_ < size(); ++inByKey_)
            byKey_.insert_or_assign(keys_[inByKey_], inByKey_);
        const auto found = byKey_.find(keys.front());
        return found == byKey_.end() ? std::nullopt : std::optional(found->second);
    }
    for (std::size_t index = 0; index < size(); ++index)
        if (std::ranges::equal(this->keys(index), keys))
            return index;
    return std::nullopt;
}

} // namespace qncal::host
