#include "apps/firmcal/CommandLine.h"

#include "controls/DialogHost.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace qncal::firmcal::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

using DialogCommandTest = EmptyDatabaseTest;

TEST_F(DialogCommandTest, ListsTheDialogs)
{
    EXPECT_THAT(output({"dialog"}), HasSubstr("frmSelectStartTime  asks for a start time\n"));
    EXPECT_EQ(nlohmann::ordered_json::parse(output({"dialog", "--json"}))[0]["name"], "frmSelectStartTime");
}

TEST_F(DialogCommandTest, PrintsWhatStandsOnADialog)
{
    succeed({"fields", "set", "status2", "--kind", "task", "--name", "Waiting", "--icon", "4"});
    const std::string options = output({"dialog", "frmApptStatusOptions", "--kind", "task", "--number", "2", "--show"});
    EXPECT_THAT(options, StartsWith("frmApptStatusOptions  \"Task Check Box Options\"\n"));
    EXPECT_THAT(options, HasSubstr("  txtField  TextBox  \"Waiting\""));
    const std::string names = output({"dialog", "frmchangeapptstatusfields", "--kind", "task"});
    EXPECT_THAT(names, StartsWith("frmChangeApptStatusFields  \"Task Status Fields\"\n"));
    EXPECT_THAT(names, HasSubstr("  txtField(2)  TextBox  \"Waiting\""));
    EXPECT_EQ(dialogHost(), nullptr) << "the dialogs of the program's own thread are left as they were";
}

TEST_F(DialogCommandTest, EveryListedDialogCanBeShown)
{
    for (const auto& dialog : nlohmann::ordered_json::parse(output({"dialog", "--json"}))) {
        const std::string name = dialog["name"];
        const auto form = nlohmann::ordered_json::parse(output({"dialog", name, "--show", "--json"}));
        EXPECT_EQ(form["form"], name);
        EXPECT_FALSE(form["controls"].empty()) << name;
    }
}

TEST_F(DialogCommandTest, ChangesNothing)
{
    for (const char* name : {"frmApptCustomFields", "frmApptStatusOptions"})
        succeed({"dialog", name});
    EXPECT_EQ(rows("SELECT CustomFieldsID FROM CustomFields;"), "");
}

TEST_F(DialogCommandTest, SaysWhatIsWrong)
{
    EXPECT_EQ(run({"dialog", "frmNone"}).err, "firmcal: there is no dialog 'frmNone'; 'firmcal dialog' lists them\n");
    EXPECT_EQ(run({"dialog", "--show"}).status, 2);
    EXPECT_EQ(run({"dialog", "frmApptStatusOptions", "--number", "6"}).status, 2);
}

} // namespace
} // namespace qncal::firmcal::test
