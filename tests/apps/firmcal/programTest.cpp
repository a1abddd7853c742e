#include "apps/firmcal/CommandLine.h"

#include <algorithm>

namespace qncal::firmcal::test {
namespace {

TEST_F(CommandLineTest, EveryCommandHelpsWithAnExampleAndNeedsNoDatabase)
{
    const std::vector<std::string> known = commands();
    ASSERT_NE(std::ranges::find(known, "item add"), known.end()) << "the walk over the commands finds some";
    for (const std::string& command : known) {
        const std::string help = output(splitWords(command + " --help"));
        EXPECT_NE(help.find("Usage: firmcal " + command), std::string::npos) << help;
        const std::size_t examples = help.find("\nExample");
        ASSERT_NE(examples, std::string::npos) << help;
        EXPECT_NE(help.find(command, examples), std::string::npos) << help;
    }
}

TEST_F(CommandLineTest, EveryGroupOfCommandsListsThem)
{
    EXPECT_NE(output({"--help"}).find("  firmcal "), std::string::npos);
    EXPECT_NE(output({"item", "--help"}).find("'firmcal item COMMAND --help' tells about a command."),
              std::string::npos);
}

TEST_F(CommandLineTest, InitMakesAnEmptyDatabaseThatKeepsTheRegion)
{
    EXPECT_EQ(output({"init", database(), "--province", "QC"}), "Made " + database() + "\n");
    EXPECT_EQ(rows("SELECT CountryCode, ProvinceCode FROM GlobalGeneralSettings"),
              "{\"CountryCode\":1,\"ProvinceCode\":8}\n");
}

TEST_F(CommandLineTest, DemoIsTheSameForTheSameSeedRegionAndDay)
{
    const auto agendaOf = [&](const std::string& name, std::vector<std::string> options) {
        const std::string file = (folder() / name).string();
        options.insert(options.begin(), {"demo", file, "--items", "100"});
        succeed(options);
        return output({"agenda", "--days", "30", "--database", file});
    };
    const std::string first = agendaOf("a.db", {"--seed", "5"});
    EXPECT_EQ(agendaOf("b.db", {"--seed", "5"}), first);
    EXPECT_NE(agendaOf("c.db", {"--seed", "6"}), first);
}

TEST_F(CommandLineTest, DemoSaysWhatItMade)
{
    EXPECT_EQ(output({"demo", "--items", "100"}),
              "Made " + database() + " with 6 users, 40 companies, 120 contacts and 100 items.\nTry: firmcal -d "
                  + database() + " agenda --week\n");
}

TEST_F(CommandLineTest, DemoShowsProgressOnATerminalAlone)
{
    const Outcome outcome = runAtTerminal({"demo", database(), "--items", "100"}, "");
    EXPECT_EQ(outcome.status, 0);
    EXPECT_NE(outcome.err.find("\rMaking items: 100 of 100\n"), std::string::npos);
}

TEST_F(CommandLineTest, ErrorsOfTheComponentGoToTheErrorLogWithTheirRoutines)
{
    succeed({"init", database()});
    const std::string log = (folder() / "errors.log").string();
    succeed({"agenda", "--error-log", log});
    EXPECT_TRUE(std::filesystem::exists(log));
    EXPECT_EQ(run({"agenda", "--error-log", "/nonexistent/folder/errors.log"}).err,
              "firmcal: Cannot write the log file /nonexistent/folder/errors.log\n");
}

} // namespace
} // namespace qncal::firmcal::test
