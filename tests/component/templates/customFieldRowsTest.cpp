#include "MergeEngineTest.h"

#include "support/RecordingDatabase.h"

namespace qncal::test {
namespace {

class CustomFieldRowsTest : public MergeEngineTest {};

TEST_F(CustomFieldRowsTest, LabelsNameTheCustomFields)
{
    addRow("CustomFields", {{"ApptCustomName1", "Room"},
                            {"ApptCustomName2", "Parking:"},
                            {"ApptCustomName3", "Custom 3"},
                            {"ApptCustomName4", "Custom 1:"}});
    build(5);
    EXPECT_EQ(fieldOf("Room"), "ApptCustom1");
    EXPECT_EQ(fieldOf("Parking"), "ApptCustom2");
    EXPECT_EQ(fieldOf("Custom Appt Field 3"), "ApptCustom3");
    EXPECT_EQ(fieldOf("Custom Appt Field 1"), "ApptCustom4");
    EXPECT_EQ(fieldOf("Custom Appt Field 5"), "ApptCustom5");
}

TEST_F(CustomFieldRowsTest, ALabelThatIsEmptyOnceItsColonIsCutIsNone)
{
    addRow("CustomFields", {{"ApptCustomName1", ":"}, {"ApptCustomName2", ""}, {"ApptCustomName3", "Room:"}});
    build(5);
    EXPECT_EQ(fieldOf("Custom Appt Field 1"), "ApptCustom1");
    EXPECT_EQ(fieldOf("Custom Appt Field 2"), "ApptCustom2");
    EXPECT_EQ(fieldOf("Room"), "ApptCustom3");
}

TEST_F(CustomFieldRowsTest, TheFirmsLabelsGetAPrefixAndItsFallbackNamesHaveOne)
{
    addRow("CustomAddressFields", {{"CompanyLabel1", "Fax 2"}, {"CompanyLabel2", "Custom 2"}});
    build(1);
    EXPECT_EQ(fieldOf("Fax 2"), "CompanyCustom1");
    EXPECT_EQ(fieldOf("Company Custom Field 2"), "CompanyCustom2");
    EXPECT_EQ(fieldOf("Your Fax 2"), "FirmCustom1");
    EXPECT_EQ(fieldOf("Your Company Custom Field 2"), "FirmCustom2");
}

struct CustomGroupCase {
    const char* name;
    std::int32_t listType;
    const char* table;
    std::string labelColumn;
    std::string databaseField;
    std::string fallbackName;
    std::string sample;
    std::string labelPrefix;
};

class CustomGroupTest : public MergeEngineTestWith<CustomGroupCase> {
protected:
    void expectFiveRows(const std::string& name)
    {
        for (int i = 1; i <= 5; ++i) {
            const std::string number = std::to_string(i);
            ASSERT_TRUE(hasField(name + number));
            const FieldListRow& row = engine.FieldList()->current();
            EXPECT_EQ(row.databaseField.view(), GetParam().databaseField + number);
            EXPECT_EQ(row.sampleText.view(), GetParam().sample + number);
            EXPECT_EQ(row.dataType, MergeDataType::text);
        }
    }
};

TEST_P(CustomGroupTest, TakesTheFallbackNamesWithoutARecord)
{
    build(GetParam().listType);
    expectFiveRows(GetParam().fallbackName);
}

TEST_P(CustomGroupTest, TakesTheFallbackNamesWithoutAConnection)
{
    database->close();
    build(GetParam().listType);
    expectFiveRows(GetParam().fallbackName);
}

TEST_P(CustomGroupTest, TakesTheLabelsOfTheRecord)
{
    std::vector<std::string> columns;
    for (int i = 1; i <= 5; ++i)
        columns.push_back(GetParam().labelColumn + std::to_string(i));
    Values values;
    for (int i = 1; i <= 5; ++i)
        values.emplace_back(columns[static_cast<std::size_t>(i - 1)], "My label " + std::to_string(i));
    addRow(GetParam().table, values);
    build(GetParam().listType);
    expectFiveRows(GetParam().labelPrefix + "My label ");
}

INSTANTIATE_TEST_SUITE_P(
    Groups, CustomGroupTest,
    testing::Values(CustomGroupCase{"Client", 2, "CustomFields", "CustomName", "ClientCustom", "Custom Field ",
                                    "Custom Info ", ""},
                    CustomGroupCase{"Contact", 3, "CustomAddressFields", "ContactLabel", "ContactCustom",
                                    "Contact Custom Field ", "Contact Custom Info ", ""},
                    CustomGroupCase{"Company", 1, "CustomAddressFields", "CompanyLabel", "CompanyCustom",
                                    "Company Custom Field ", "Company Custom Info ", ""},
                    CustomGroupCase{"Appointment", 5, "CustomFields", "ApptCustomName", "ApptCustom",
                                    "Custom Appt Field ", "Custom Appt Info ", ""},
                    CustomGroupCase{"Schedule", 8, "CustomFields", "RemittanceLabel", "ScheduleCustom",
                                    "Custom Task Field ", "Custom Task Info ", ""},
                    CustomGroupCase{"Task", 8, "CustomFields", "TaskCustomName", "TaskCustom",
                                    "Custom Task Calendar Field ", "Custom Task Info ", ""},
                    CustomGroupCase{"TimeEntry", 6, "CustomFields", "DocketCustomName", "DocketCustom",
                                    "Custom Time Entry Field ", "Custom Time Entry Info ", ""},
                    CustomGroupCase{"Firm", 4, "CustomAddressFields", "CompanyLabel", "FirmCustom",
                                    "Your Company Custom Field ", "Company Custom Info ", "Your "}),
    rowName);

TEST_F(CustomFieldRowsTest, AnAppointmentsListAsksForItsLabelsAndNothingElse)
{
    const auto log = std::make_shared<RecordingDatabase>(database);
    serviceRegistry().database = log;
    build(5);
    EXPECT_TRUE(log->open.empty());
    EXPECT_EQ(log->openedSql(),
              (std::vector<std::string>{
                  "SELECT ApptCustomName1, ApptCustomName2, ApptCustomName3, ApptCustomName4, ApptCustomName5 "
                  "FROM CustomFields;",
                  "SELECT CompanyLabel1, CompanyLabel2, CompanyLabel3, CompanyLabel4, CompanyLabel5 "
                  "FROM CustomAddressFields;",
                  "SELECT CustomName1, CustomName2, CustomName3, CustomName4, CustomName5 FROM CustomFields;",
                  "SELECT ContactLabel1, ContactLabel2, ContactLabel3, ContactLabel4, ContactLabel5 "
                  "FROM CustomAddressFields;",
                  "SELECT CompanyLabel1, CompanyLabel2, CompanyLabel3, CompanyLabel4, CompanyLabel5 "
                  "FROM CustomAddressFields;"}));
}

} // namespace
} // namespace qncal::test
