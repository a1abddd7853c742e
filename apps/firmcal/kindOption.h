#pragma once

#include "core/enumerations.h"

#include <CLI/App.hpp>

#include <string>
#include <string_view>

namespace qncal::firmcal {

/// The option `--kind`.
CLI::Option* addKindOption(CLI::App& command, std::string& kind);
/// "appointment", "task", "docket"; also "time entry" and the first letters. Throws `UsageError` for others.
enumLocalCalendarItemType readKind(std::string_view text);

} // namespace qncal::firmcal
