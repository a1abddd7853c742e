#include "services/TerminalMessages.h"

#include "utilities/text.h"

#include <istream>
#include <ostream>
#include <string>

namespace qncal::host {

namespace {

/// The component separates lines with carriage return and line feed; a terminal wants the line feed alone.
std::string terminalText(std::string_view text)
{
    std::string result;
    for (const char c : text) {
        if (c != '\r')
            result += c;
    }
    return result;
}

} // namespace

void TerminalMessages::showMessage(std::string_view text, std::int16_t, Form*, std::int32_t, std::int32_t, std::int32_t,
                                   std::int32_t, std::string_view, std::int32_t)
{
    out_ << terminalText(text) << '\n' << std::flush;
}

std::int16_t TerminalMessages::askQuestion(std::string_view text, std::int16_t, Form*, std::int32_t, std::int32_t,
                                           std::int32_t, std::int32_t, std::string_view, std::int32_t)
{
    out_ << terminalText(text) << " [y/N] " << std::flush;
    if (!scripted_.empty()) {
        const std::int16_t answer = scripted_.front();
        scripted_.pop_front();
        return answered(answer);
    }
    switch (mode_) {
    case Mode::yes:
        return answered(answerYes);
    case Mode::no:
        return answered(answerNo);
    case Mode::ask:
        return askPerson();
    case Mode::unattended:
        break;
    }
    return answered(answerNo, " (nobody to ask; --yes or --no answers questions)");
}

std::int16_t TerminalMessages::askPerson()
{
    std::string line;
    while (std::getline(in_, line)) {
        const std::string answer = lowerAscii(trimmed(line));
        if (answer == "y" || answer == "yes")
            return answerYes;
        if (answer.empty() || answer == "n" || answer == "no")
            return answerNo;
        out_ << "Please answer yes or no. [y/N] " << std::flush;
    }
    return answered(answerNo, " (end of input)");
}

std::int16_t TerminalMessages::answered(std::int16_t answer, std::string_view remark)
{
    out_ << (answer == answerYes ? "Yes" : "No") << remark << '\n' << std::flush;
    return answer;
}

} // namespace qncal::host
