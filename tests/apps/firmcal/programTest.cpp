#include "apps/firmcal/CommandLine.h"

namespace qncal::firmcal::test {
namespace {

class HelpTest : public CommandLineTest, public testing::WithParamInterface<std::vector<std::string>> {};

TEST_P(HelpTest, HelpsOnEveryLevelAndNeedsNoDatabase)
{
    std::vector<std::string> arguments = GetParam();
    arguments.emplace_back("--help");
    const std::string help = output(arguments);
    EXPECT_NE(help.find("Usage: firmcal"), std::string::npos) << help;
    EXPECT_NE(help.find("  firmcal "), std::string::npos) << "an example or a list of commands\n" << help;
}

INSTANTIATE_TEST_SUITE_P(
    All, HelpTest,
    testing::Values(std::vector<std::string>{}, std::vector<std::string>{"init"}, std::vector<std::string>{"demo"},
                    std::vector<std::string>{"item", "add"}, std::vector<std::string>{"item", "show"},
                    std::vector<std::string>{"item", "list"}, std::vector<std::string>{"item", "set"},
                    std::vector<std::string>{"item", "delete"}, std::vector<std::string>{"item", "archive"},
                    std::vector<std::string>{"item", "fields"}, std::vector<std::string>{"agenda"},
                    std::vector<std::string>{"client", "list"}, std::vector<std::string>{"client", "show"},
                    std::vector<std::string>{"user", "list"}, std::vector<std::string>{"sql"},
                    std::vector<std::string>{"doctor"}, std::vector<std::string>{"remind"},
                    std::vector<std::string>{"notify"}, std::vector<std::string>{"scheme", "list"},
                    std::vector<std::string>{"scheme", "add"}, std::vector<std::string>{"scheme", "set"},
                    std::vector<std::string>{"scheme", "delete"}, std::vector<std::string>{"fields", "show"},
                    std::vector<std::string>{"fields", "set"}, std::vector<std::string>{"dialog"}),
    [](const testing::TestParamInfo<std::vector<std::string>>& tested) {
        std::string name = "Program";
        for (const std::string& word : tested.param)
            name += "_" + word;
        return name;
    });

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
