#pragma once

#include <filesystem>
#include <string>

namespace qncal::host {

/// Writes a document under a name that nobody sees before it is whole; makes the folder where it is missing.
/// Gives what went wrong, nothing when it is written.
std::string writeLetterFile(const std::filesystem::path& file, const std::string& document);

} // namespace qncal::host
