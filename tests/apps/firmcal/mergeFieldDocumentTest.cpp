#include "firmcal/mergeFieldDocument.h"

#include "utilities/Clock.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace qncal::firmcal::test {
namespace {

const std::filesystem::path committed = std::filesystem::path(QNCAL_SOURCE_DIR) / "docs/template-fields.md";

std::string contents(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

class MergeFieldDocumentTest : public testing::Test {
protected:
    /// The samples are of the year in which the document is made.
    ClockOverride clock{Date::of(2026, 3, 2)};
};

TEST_F(MergeFieldDocumentTest, IsWhatTheDocumentationHolds)
{
    const std::string document = mergeFieldDocument();
    if (const char* rewrite = std::getenv("QNCAL_REWRITE"); rewrite && rewrite[0] == '1') {
        std::ofstream(committed, std::ios::binary) << document;
        // A run that rewrites what it compares with proves nothing.
        FAIL() << committed << " has been rewritten; run again without QNCAL_REWRITE";
    }
    // Not EXPECT_EQ, whose difference of two long texts would bury the advice.
    EXPECT_TRUE(contents(committed) == document)
        << committed << " is out of date; run with QNCAL_REWRITE=1, look at the difference and commit it";
}

TEST_F(MergeFieldDocumentTest, TellsWhereAFieldIsListed)
{
    const std::string document = mergeFieldDocument();
    for (const char* line : {
             "\n## Task Info\n",
             "\n| `«Company Name»` | text | Maple Leaf Bakery Ltd. |  |\n",
             "\n| `«Postal Code»` | text | K1A 0B1 | Canada |\n",
             "\n| `«State»` | text | Illinois | United States |\n",
             "\n| `«HST Number»` | text | 123456789RT0001 | ON, BC, NB, NL, NS |\n",
             "\n| `«NEQ Number»` | text | 1123456789 | QC |\n",
             "\n| `«PST Number»` | text | 1234-5678 | Canada but QC |\n",
             "\n| `«(Task Due Date, mmmm d yyyy)»` | date | Apr 30, 2026 |  |\n",
         })
        EXPECT_NE(document.find(line), std::string::npos) << line;
}

} // namespace
} // namespace qncal::firmcal::test
