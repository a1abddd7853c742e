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
    closed_ = gone_ = 0;
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
    if (states_[index] == State::gone)
        --gone_;
    if (states_[index] != State::closed)
        ++closed_;
    states_[index] = State::closed;
}

void PlaceList::markGone(std::size_t index)
{
    if (states_[index] != State::live)
        return;
    states_[index] = State::gone;
    ++gone_;
}

void PlaceList::markGone(std::span<const std::int64_t> deleted)
{
    if (ascending_) {
        for (const std::int64_t key : deleted)
            if (const auto index = find(std::span(&key, 1)))
                markGone(*index);
        return;
    }
    const std::unordered_set<std::int64_t> keys(deleted.begin(), deleted.end());
    for (std::size_t index = 0; index < size(); ++index)
        if (keys.contains(keys_[index * width_]))
            markGone(index);
}

std::int64_t PlaceList::position(std::size_t index) const
{
    const auto end = states_.begin() + static_cast<std::ptrdiff_t>(index);
    const std::ptrdiff_t closedBefore = closed_ == 0 ? 0 : std::count(states_.begin(), end, State::closed);
    return static_cast<std::int64_t>(index) - closedBefore + 1;
}

std::size_t PlaceList::index(std::int64_t position) const
{
    if (closed_ == 0)
        return std::min(static_cast<std::size_t>(position - 1), size());
    std::size_t index = 0;
    for (; index < size(); ++index)
        if (states_[index] != State::closed && --position == 0)
            break;
    return index;
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
