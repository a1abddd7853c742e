#include "common/openDatabase.h"

#include "common/Failure.h"
#include "store/SqliteDatabase.h"
#include "support/ComponentTest.h"

namespace qncal::firmcal {
namespace {

std::string failureOf(const std::string& file)
{
    try {
        openDatabase(file);
    } catch (const Failure& failure) {
        return failure.what();
    }
    return {};
}

TEST(OpenDatabaseTest, NeedsAFileThatExists)
{
    EXPECT_EQ(failureOf(""), "no database given; use --database FILE or set FIRMCAL_DATABASE");
    EXPECT_EQ(failureOf("/no/such/firm.db"),
              "there is no file /no/such/firm.db; 'firmcal init' and 'firmcal demo' make databases");
}

class LocaleOfTest : public test::ComponentTest {};

TEST_F(LocaleOfTest, HasTheRegionOfTheDatabase)
{
    host::Locale::Values quebec;
    quebec.province = host::provinceFromText("QC")->code;
    host::storeRegion(*database, quebec);
    EXPECT_EQ(localeOf(*database).province, quebec.province);
    EXPECT_EQ(localeOf(*database).productName, "firmcal");
}

} // namespace
} // namespace qncal::firmcal
