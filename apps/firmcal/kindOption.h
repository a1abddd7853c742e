#pragma once

#include <CLI/App.hpp>

#include <string>

namespace qncal::firmcal {

/// The option `--kind`.
CLI::Option* addKindOption(CLI::App& command, std::string& kind);

} // namespace qncal::firmcal
