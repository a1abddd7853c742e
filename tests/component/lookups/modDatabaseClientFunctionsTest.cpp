#include "lookups/modDatabaseClientFunctions.h"

#include "support/ComponentTest.h"
#include "support/RecordingDatabase.h"

namespace qncal::test {

using namespace modDatabaseClientFunctions;

TEST_F(ComponentTest, FirstLinkWithTheMarkIsTheDefaultContact)
{
    addRow("ContactLinks", {{"CompanyNum", "4"}, {"ContactIDNum", "1"}});
    addRow("ContactLinks", {{"CompanyNum", "5"}, {"ContactIDNum", "2"}, {"DefaultContact", "True"}});
    addRow("ContactLinks", {{"CompanyNum", "4"}, {"ContactIDNum", "3"}, {"DefaultContact", "True"}});
    addRow("ContactLinks", {{"CompanyNum", "4"}, {"ContactIDNum", "6"}, {"DefaultContact", "True"}});
    EXPECT_EQ(getDefaultContactIDFromCompanyID(4), 3);
}

TEST_F(ComponentTest, CompanyWithoutAMarkedLinkHasNoDefaultContact)
{
    addRow("ContactLinks", {{"CompanyNum", "4"}, {"ContactIDNum", "1"}, {"DefaultContact", "False"}});
    EXPECT_EQ(getDefaultContactIDFromCompanyID(4), -1);
    EXPECT_EQ(getDefaultContactIDFromCompanyID(5), -1);
}

TEST_F(ComponentTest, DefaultContactIsNotAskedForWithoutAConnection)
{
    const auto recorded = std::make_shared<RecordingDatabase>(database);
    serviceRegistry().database = recorded;
    recorded->connected = false;
    EXPECT_EQ(getDefaultContactIDFromCompanyID(4), -1);
    EXPECT_TRUE(recorded->opened.empty());
}

} // namespace qncal::test
