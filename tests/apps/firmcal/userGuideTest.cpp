#include "apps/firmcal/CommandLine.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>

namespace qncal::firmcal::test {
namespace {

std::string contents(const char* document)
{
    std::ifstream file(std::filesystem::path(QNCAL_SOURCE_DIR) / document, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// The command lines of a document's shell examples, without their comments.
std::vector<std::string> examplesOf(const char* document)
{
    std::vector<std::string> examples;
    std::istringstream lines(contents(document));
    bool isShell = false;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("```"))
            isShell = line == "```sh";
        else if (isShell && line.starts_with("firmcal "))
            examples.push_back(line.substr(0, line.find(" #")));
    }
    return examples;
}

/// The commands that the guide's table names.
std::vector<std::string> commandsOfTheGuide()
{
    std::vector<std::string> named;
    const std::string guide = contents("docs/user-guide.md");
    const std::size_t begin = guide.find("\n## The commands\n");
    std::istringstream lines(guide.substr(begin + 1, guide.find("\n## ", begin + 1) - begin));
    for (std::string line; std::getline(lines, line);) {
        if (!line.starts_with("| `"))
            continue;
        const std::string usage = line.substr(3, line.find('`', 3) - 3);
        std::string command;
        for (const std::string& word : splitWords(usage)) {
            if (word.front() >= 'a' && word.front() <= 'z')
                command += (command.empty() ? "" : " ") + word;
        }
        named.push_back(command);
    }
    return named;
}

class UserGuideTest : public CommandLineTest {};

TEST_F(UserGuideTest, NamesEveryCommandAndNoOther)
{
    std::vector<std::string> named = commandsOfTheGuide();
    std::vector<std::string> known = commands();
    std::ranges::sort(named);
    std::ranges::sort(known);
    EXPECT_EQ(named, known);
}

TEST_F(UserGuideTest, ItsExamplesRunInTheirOrder)
{
    const std::vector<std::string> examples = examplesOf("docs/user-guide.md");
    ASSERT_FALSE(examples.empty());
    for (const std::string& example : examples) {
        std::vector<std::string> words = splitWords(example);
        words.erase(words.begin());
        if (const auto option = std::ranges::find(words, "-d"); option != words.end())
            words.erase(option, option + 2);
        else
            std::ranges::replace(words, std::string("firm.db"), database());
        const Outcome outcome = run(words);
        EXPECT_EQ(outcome.status, 0) << example << '\n' << outcome.err;
    }
}

} // namespace
} // namespace qncal::firmcal::test
