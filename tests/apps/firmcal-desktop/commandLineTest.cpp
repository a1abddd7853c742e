#include "firmcal-desktop/commandLine.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <sstream>

namespace qncal::desktop {
namespace {

struct CommandLineTest : testing::Test {
    CommandLineTest() { unsetenv("FIRMCAL_DATABASE"); }
    ~CommandLineTest() override { unsetenv("FIRMCAL_DATABASE"); }

    std::variant<Options, int> read(const std::vector<std::string>& arguments)
    {
        return readCommandLine(arguments, out, err);
    }
    std::ostringstream out;
    std::ostringstream err;
};

TEST_F(CommandLineTest, TakesDatabaseAndUser)
{
    const auto read = this->read({"--database", "firm.db", "-u", "Maya Singh"});
    ASSERT_TRUE(std::holds_alternative<Options>(read));
    EXPECT_EQ(std::get<Options>(read).database, "firm.db");
    EXPECT_EQ(std::get<Options>(read).user, "Maya Singh");
}

TEST_F(CommandLineTest, TheEnvironmentNamesTheDatabase)
{
    setenv("FIRMCAL_DATABASE", "other.db", 1);
    EXPECT_EQ(std::get<Options>(read({})).database, "other.db");
}

TEST_F(CommandLineTest, HelpAndVersionArePrinted)
{
    EXPECT_EQ(std::get<int>(read({"--help"})), 0);
    EXPECT_NE(out.str().find("--database"), std::string::npos);
    out.str({});
    EXPECT_EQ(std::get<int>(read({"--version"})), 0);
    EXPECT_EQ(out.str().find("firmcal-desktop "), 0u);
    EXPECT_EQ(err.str(), "");
}

TEST_F(CommandLineTest, AWrongCommandLineIsToldInOneLine)
{
    EXPECT_EQ(std::get<int>(read({"--colour", "red"})), 2);
    EXPECT_NE(err.str().find("firmcal-desktop: "), std::string::npos);
    EXPECT_NE(err.str().find("; see 'firmcal-desktop --help'\n"), std::string::npos);
    EXPECT_EQ(out.str(), "");
}

} // namespace
} // namespace qncal::desktop
