#pragma once

#include "firmcal/Streams.h"

#include <string>
#include <vector>

namespace qncal::firmcal {

/// Runs the program with the arguments that follow its name. Errors end as one line on the error stream.
/// The exit status: 0 done, 1 a failure, 2 a wrong command line.
int run(const std::vector<std::string>& arguments, const Streams& streams);

} // namespace qncal::firmcal
