#include "store/schemaDocument.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace qncal::host {
namespace {

const std::filesystem::path committed = std::filesystem::path(QNCAL_SOURCE_DIR) / "docs/database-tables.md";

std::string contents(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

TEST(SchemaDocumentTest, IsWhatTheDocumentationHolds)
{
    const std::string document = schemaDocument();
    if (const char* rewrite = std::getenv("QNCAL_REWRITE"); rewrite && rewrite[0] == '1') {
        std::ofstream(committed, std::ios::binary) << document;
        // A run that rewrites what it compares with proves nothing.
        FAIL() << committed << " has been rewritten; run again without QNCAL_REWRITE";
    }
    // Not EXPECT_EQ, whose difference of two long texts would bury the advice.
    EXPECT_TRUE(contents(committed) == document)
        << committed << " is out of date; run with QNCAL_REWRITE=1, look at the difference and commit it";
}

TEST(SchemaDocumentTest, ShowsTypesDefaultsAndIndexes)
{
    const std::string document = schemaDocument();
    for (const char* line : {
             "\n## Appointments\n",
             "\n| `AppointmentID` | key |  |\n",
             "\n| `Remind` | boolean | 0 |\n",
             "\n| `UserIDNum` | id | -1 |\n",
             "\nIndexes: `UserIDNum` with `DateFrom`, `DateFrom` with `TimeFrom`.\n",
             "\nIndexes: `HolidayDate`.\n",
         })
        EXPECT_NE(document.find(line), std::string::npos) << line;
}

} // namespace
} // namespace qncal::host
