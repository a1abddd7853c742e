#pragma once

#include <benchmark/benchmark.h>

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

} // namespace qncal::bench
