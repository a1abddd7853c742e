#include "support/GoldenFile.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>
#include <vector>

namespace qncal::test {

namespace {

std::vector<std::string> linesOf(std::string_view text)
{
    std::vector<std::string> lines;
    std::istringstream in{std::string(text)};
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

/// Lengths of the longest common subsequences of the lines from each pair of places on.
std::vector<std::vector<std::size_t>> commonLengths(const std::vector<std::string>& a,
                                                    const std::vector<std::string>& b)
{
    std::vector lengths(a.size() + 1, std::vector<std::size_t>(b.size() + 1));
    for (std::size_t i = a.size(); i-- > 0;) {
        for (std::size_t j = b.size(); j-- > 0;)
            lengths[i][j] = a[i] == b[j] ? lengths[i + 1][j + 1] + 1 : std::max(lengths[i + 1][j], lengths[i][j + 1]);
    }
    return lengths;
}

} // namespace

void expectGolden(const std::string& path, const std::string& text)
{
    const char* rewrite = std::getenv("QNCAL_REWRITE");
    if (rewrite && std::string_view(rewrite) == "1") {
        ASSERT_FALSE(testing::Test::HasFailure()) << path << " is not rewritten from a test that fails";
        std::ofstream(path, std::ios::binary) << text;
        FAIL() << path << " has been rewritten; run again without QNCAL_REWRITE";
    }
    std::ifstream file(path, std::ios::binary);
    const std::string golden{std::istreambuf_iterator<char>(file), {}};
    EXPECT_TRUE(golden == text) << path << " differs; run with QNCAL_REWRITE=1, look at the difference and commit it\n"
                                << lineDifference(golden, text);
}

std::string lineDifference(std::string_view from, std::string_view to)
{
    const std::vector<std::string> a = linesOf(from);
    const std::vector<std::string> b = linesOf(to);
    const auto lengths = commonLengths(a, b);
    std::string difference;
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < a.size() || j < b.size()) {
        if (i < a.size() && j < b.size() && a[i] == b[j]) {
            ++i;
            ++j;
        } else if (j == b.size() || (i < a.size() && lengths[i + 1][j] >= lengths[i][j + 1])) {
            difference += "- " + a[i++] + "\n";
        } else {
            difference += "+ " + b[j++] + "\n";
        }
    }
    return difference;
}

} // namespace qncal::test
