#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

namespace qncal::firmcal::test {

/// What a run of the program came to.
struct Outcome {
    int status = -1;
    std::string out;
    std::string err;
};

/// The words of a command line; double quotes hold a word together.
std::vector<std::string> splitWords(const std::string& line);

/// Runs the program in-process, on a database file of the test's own, as if it were 9 o'clock on Monday, March 2,
/// 2026, with nobody at the terminal.
class CommandLineTest : public testing::Test {
protected:
    CommandLineTest();
    ~CommandLineTest() override;

    /// `input` is what a person at the terminal types; without it nobody is there.
    Outcome run(std::vector<std::string> arguments) const;
    Outcome runAtTerminal(std::vector<std::string> arguments, const std::string& input) const;
    /// A run that must succeed in silence on the error stream; gives what it printed.
    std::string output(const std::vector<std::string>& arguments) const;
    /// The same for a run whose output is of no interest.
    void succeed(const std::vector<std::string>& arguments) const { output(arguments); }
    /// The rows of a SELECT as JSON text on one line for each record, without the brackets around all.
    std::string rows(const std::string& sql) const;

    /// The commands that can be run, as the help of each level names them: "agenda", "item add".
    std::vector<std::string> commands(const std::string& group = {}) const;

    std::filesystem::path folder() const { return folder_; }
    std::string database() const { return (folder_ / "firm.db").string(); }

    /// Compares with a file of tests/apps/firmcal/golden, or rewrites it, and then fails, under QNCAL_REWRITE=1.
    static void expectGolden(const std::string& name, const std::string& text);

private:
    Outcome runWith(std::vector<std::string> arguments, const std::string& input, bool terminal) const;

    std::filesystem::path folder_;
};

/// With an empty database.
class EmptyDatabaseTest : public CommandLineTest {
protected:
    void SetUp() override { succeed({"init", database()}); }
};

/// With the invented firm of seed 1, in small.
class DemoDatabaseTest : public CommandLineTest {
protected:
    void SetUp() override { succeed({"demo", database(), "--seed", "1", "--items", "200"}); }
};

} // namespace qncal::firmcal::test
