#include "apps/firmcal/CommandLine.h"

#include "firmcal/Program.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sstream>
#include <utility>

namespace qncal::firmcal::test {

namespace {

const std::filesystem::path goldenFolder = std::filesystem::path(QNCAL_SOURCE_DIR) / "tests/apps/firmcal/golden";

} // namespace

std::vector<std::string> splitWords(const std::string& line)
{
    std::vector<std::string> words;
    std::string word;
    bool isQuoted = false;
    bool isWord = false;
    for (const char c : line) {
        if (c == '"') {
            isQuoted = !isQuoted;
            isWord = true;
        } else if (c == ' ' && !isQuoted) {
            if (isWord)
                words.push_back(std::exchange(word, {}));
            isWord = false;
        } else {
            word += c;
            isWord = true;
        }
    }
    if (isWord)
        words.push_back(word);
    return words;
}

CommandLineTest::CommandLineTest()
{
    const testing::TestInfo& test = *testing::UnitTest::GetInstance()->current_test_info();
    std::string name = std::string(test.test_suite_name()) + "." + test.name();
    for (char& c : name) {
        if (c == '/')
            c = '_';
    }
    folder_ = std::filesystem::path(testing::TempDir()) / ("firmcal." + name);
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
}

CommandLineTest::~CommandLineTest() { std::filesystem::remove_all(folder_); }

Outcome CommandLineTest::run(std::vector<std::string> arguments) const
{
    return runWith(std::move(arguments), {}, false);
}

Outcome CommandLineTest::runAtTerminal(std::vector<std::string> arguments, const std::string& input) const
{
    return runWith(std::move(arguments), input, true);
}

Outcome CommandLineTest::runWith(std::vector<std::string> arguments, const std::string& input, bool terminal) const
{
    // A later --database or --now of the test's own would not be allowed twice.
    const auto lacks = [&](const char* option) { return std::ranges::find(arguments, option) == arguments.end(); };
    if (lacks("--now"))
        arguments.insert(arguments.begin(), {"--now", "2026-03-02T09:00"});
    if (lacks("--database"))
        arguments.insert(arguments.begin(), {"--database", database()});
    std::istringstream in(input);
    std::ostringstream out;
    std::ostringstream err;
    Outcome outcome;
    outcome.status = firmcal::run(arguments, {in, out, err, terminal, terminal, terminal});
    outcome.out = out.str();
    outcome.err = err.str();
    return outcome;
}

std::string CommandLineTest::output(const std::vector<std::string>& arguments) const
{
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.err, "");
    return outcome.out;
}

std::vector<std::string> CommandLineTest::commands(const std::string& group) const
{
    const std::string help = output(splitWords(group + " --help"));
    const std::size_t list = help.find("\nSubcommands:\n");
    if (list == std::string::npos)
        return {group};
    std::vector<std::string> found;
    std::istringstream lines(help.substr(list + 1));
    std::string line;
    std::getline(lines, line);
    while (std::getline(lines, line) && line.starts_with("  ")) {
        // A long description goes on in lines that are indented further.
        if (line[2] == ' ')
            continue;
        const std::string name = line.substr(2, line.find(' ', 2) - 2);
        for (std::string& command : commands(group.empty() ? name : group + " " + name))
            found.push_back(std::move(command));
    }
    return found;
}

std::string CommandLineTest::rows(const std::string& sql) const
{
    std::string lines;
    for (const auto& record : nlohmann::ordered_json::parse(output({"sql", sql, "--json"})))
        lines += record.dump() + "\n";
    return lines;
}

void CommandLineTest::expectGolden(const std::string& name, const std::string& text)
{
    const std::filesystem::path file = goldenFolder / name;
    if (const char* rewrite = std::getenv("QNCAL_REWRITE"); rewrite && rewrite[0] == '1') {
        std::filesystem::create_directories(goldenFolder);
        std::ofstream(file, std::ios::binary) << text;
        FAIL() << file << " has been rewritten; run again without QNCAL_REWRITE";
    }
    std::ifstream stored(file, std::ios::binary);
    const std::string expected{std::istreambuf_iterator<char>(stored), {}};
    EXPECT_EQ(text, expected) << "rewrite with QNCAL_REWRITE=1";
}

} // namespace qncal::firmcal::test
