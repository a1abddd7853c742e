#pragma once

#include <benchmark/benchmark.h>
#include <malloc.h>

#include <algorithm>
#include <cstddef>
#include <sstream>
#include <string_view>

namespace qncal::bench {

/// Declares what the running benchmark is measured against: the benchmark `baseline` of the same run, and the
/// highest ratio of the two median times that is meant to hold. `./bench` prints the pair in one line.
inline void compareWith(benchmark::State& state, std::string_view baseline, double atMost)
{
    std::ostringstream label;
    label << "at most " << atMost << " x " << baseline;
    state.SetLabel(label.str());
}

/// The heap that work holds at its highest point, for `./bench` to print and compare like a time: started before the
/// work, noted while it holds most. Noting costs more than the work itself may, so it is kept out of timed loops.
class HeapUse {
public:
    HeapUse() : before_(inUse()) {}
    void note() { highest_ = std::max(highest_, inUse()); }
    void report(benchmark::State& state) const
    {
        state.counters["heap"] = static_cast<double>(highest_ > before_ ? highest_ - before_ : 0);
    }

private:
    static std::size_t inUse()
    {
        const auto heap = mallinfo2();
        return heap.uordblks + heap.hblkhd;
    }
    std::size_t before_;
    std::size_t highest_ = 0;
};

} // namespace qncal::bench
