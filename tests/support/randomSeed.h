#pragma once

#include <cstdlib>
#include <random>
#include <string>

namespace qncal::test {

/// The seed of a randomised test: a new one for each run, or the one in the environment variable QNCAL_TEST_SEED
/// to repeat a run. The test puts it into a SCOPED_TRACE, so that a failure prints it.
inline unsigned randomSeed()
{
    const char* const given = std::getenv("QNCAL_TEST_SEED");
    return given ? static_cast<unsigned>(std::stoul(given)) : std::random_device{}();
}

} // namespace qncal::test
