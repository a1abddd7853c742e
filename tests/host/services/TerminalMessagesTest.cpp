#include "services/TerminalMessages.h"

#include "support/rowName.h"

#include <gtest/gtest.h>

#include <sstream>

namespace qncal::host {
namespace {

using Mode = TerminalMessages::Mode;
constexpr std::int16_t yes = MessageDialogService::answerYes;
constexpr std::int16_t no = MessageDialogService::answerNo;

struct Terminal {
    explicit Terminal(Mode mode, const std::string& input = {}) : in(input), messages(in, out, mode) {}
    std::int16_t ask() { return service.askQuestion("Sure?", 3, nullptr); }

    std::istringstream in;
    std::ostringstream out;
    TerminalMessages messages;
    MessageDialogService& service = messages;
};

TEST(TerminalMessages, ShowsAMessageWithTheLineEndsOfATerminal)
{
    Terminal terminal(Mode::ask);
    terminal.service.showMessage("First\r\nsecond", 3, nullptr);
    EXPECT_EQ(terminal.out.str(), "First\nsecond\n");
}

struct Answer {
    const char* name;
    Mode mode;
    const char* input;
    std::int16_t expected;
    const char* output;
};

class TerminalAnswerTest : public testing::TestWithParam<Answer> {};

TEST_P(TerminalAnswerTest, AnswersTheQuestion)
{
    const Answer& answer = GetParam();
    Terminal terminal(answer.mode, answer.input);
    EXPECT_EQ(terminal.ask(), answer.expected);
    EXPECT_EQ(terminal.out.str(), std::string("Sure? [y/N] ") + answer.output);
}

INSTANTIATE_TEST_SUITE_P(
    All, TerminalAnswerTest,
    testing::Values(Answer{"FixedYes", Mode::yes, "", yes, "Yes\n"}, Answer{"FixedNo", Mode::no, "y\n", no, "No\n"},
                    Answer{"NobodyThere", Mode::unattended, "y\n", no,
                           "No (nobody to ask; --yes or --no answers questions)\n"},
                    Answer{"PersonSaysYes", Mode::ask, " YES \n", yes, ""},
                    Answer{"PersonSaysY", Mode::ask, "y\n", yes, ""}, Answer{"PersonSaysNo", Mode::ask, "no\n", no, ""},
                    Answer{"PersonPressesReturn", Mode::ask, "\n", no, ""},
                    Answer{"PersonIsAskedAgain", Mode::ask, "perhaps\ny\n", yes, "Please answer yes or no. [y/N] "},
                    Answer{"InputHasEnded", Mode::ask, "", no, "No (end of input)\n"}),
    qncal::test::rowName);

TEST(TerminalMessages, ScriptedAnswersComeFirstAndInOrder)
{
    Terminal terminal(Mode::no);
    terminal.messages.scriptAnswer(yes);
    terminal.messages.scriptAnswer(no);
    terminal.messages.setMode(Mode::yes);
    EXPECT_EQ(terminal.ask(), yes);
    EXPECT_EQ(terminal.ask(), no);
    EXPECT_EQ(terminal.ask(), yes);
}

} // namespace
} // namespace qncal::host
