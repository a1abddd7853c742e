#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

namespace qncal::host {

/// Choices that come out the same on every platform for one seed, which the standard distributions do not promise.
class DemoRandom {
public:
    explicit DemoRandom(std::uint32_t seed) : engine_(seed) {}

    /// 0 to count - 1.
    std::size_t below(std::size_t count) { return engine_() % count; }
    int between(int lowest, int highest)
    {
        return lowest + static_cast<int>(below(static_cast<std::size_t>(highest - lowest) + 1));
    }
    bool chance(int percent) { return between(1, 100) <= percent; }
    template <class Values>
    const auto& pick(const Values& values)
    {
        return values[below(std::size(values))];
    }
    template <class Value>
    void shuffle(std::vector<Value>& values)
    {
        for (std::size_t i = values.size(); i > 1; --i)
            std::swap(values[i - 1], values[below(i)]);
    }

private:
    std::mt19937 engine_;
};

} // namespace qncal::host
