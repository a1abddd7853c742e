#include "firmcal/databaseCheck.h"

#include "support/ComponentTest.h"
#include "support/DatabaseThatFailsLate.h"
#include "support/SpoiltDatabase.h"

namespace qncal::firmcal {
namespace {

class DatabaseCheckTest : public test::ComponentTest {};

TEST_F(DatabaseCheckTest, ARepairThatIsNotStoredIsNotCounted)
{
    addRow("Tasks", {{"RepeatNum", "4"}});
    test::DatabaseThatFailsLate failing(database);
    EXPECT_THROW(checkRows(failing, true), RunTimeError);
    EXPECT_NO_THROW(checkRows(failing, false)) << "nothing is written";
}

TEST_F(DatabaseCheckTest, AnEmptiedCellThatIsNotStoredIsNotCounted)
{
    addRow("Tasks", {});
    const auto spoilt = std::make_shared<test::SpoiltDatabase>(database);
    spoilt->cells["BackColour"] = Variant("red");
    test::DatabaseThatFailsLate failing(spoilt);
    EXPECT_THROW(checkRows(failing, true), RunTimeError);
}

TEST_F(DatabaseCheckTest, ChecksNameTheItemsInThePlural)
{
    std::vector<std::string> checks;
    for (const CheckResult& result : checkRows(*database, false))
        checks.push_back(result.check);
    EXPECT_THAT(checks, testing::Contains("time entries of clients that are gone"));
    EXPECT_THAT(checks, testing::Contains("tasks of clients that are gone"));
}

} // namespace
} // namespace qncal::firmcal
