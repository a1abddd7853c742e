#pragma once

#include <string>
#include <string_view>

namespace qncal::test {

/// Compares a text with a file of the source tree, character for character. With QNCAL_REWRITE=1 the file is written
/// anew unless the test has failed already, and the test fails since it has proved nothing.
void expectGolden(const std::string& path, const std::string& text);

/// What turns one list of lines into another, in order: "- line" for a line that goes, "+ line" for one that comes.
std::string lineDifference(std::string_view from, std::string_view to);

} // namespace qncal::test
