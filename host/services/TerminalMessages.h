#pragma once

#include "core/MessageDialogService.h"

#include <cstdint>
#include <deque>
#include <iosfwd>

namespace qncal::host {

/// Messages and questions on a terminal.
///
/// A question is answered, in this order, by the next scripted answer, by the fixed answer, by the person at the
/// terminal, or else by No, which is then said. The streams must outlive the object.
class TerminalMessages : public MessageDialogService {
public:
    enum class Mode : std::uint8_t {
        ask,        ///< somebody sits at the terminal
        yes,        ///< every question is answered Yes
        no,         ///< every question is answered No
        unattended, ///< nobody is there: No, and a line that says so
    };

    TerminalMessages(std::istream& in, std::ostream& out, Mode mode) : in_(in), out_(out), mode_(mode) {}

    void setMode(Mode mode) { mode_ = mode; }
    /// Answers one later question: `answerYes` or `answerNo`. Scripted answers are used up in order.
    void scriptAnswer(std::int16_t answer) { scripted_.push_back(answer); }

    void showMessage(std::string_view text, std::int16_t style, Form* owner, std::int32_t fixed1, std::int32_t fixed2,
                     std::int32_t fixed3, std::int32_t fixed4, std::string_view caption, std::int32_t fixed5) override;
    std::int16_t askQuestion(std::string_view text, std::int16_t style, Form* owner, std::int32_t fixed1,
                             std::int32_t fixed2, std::int32_t fixed3, std::int32_t fixed4, std::string_view caption,
                             std::int32_t fixed5) override;

private:
    std::int16_t askPerson();
    std::int16_t answered(std::int16_t answer, std::string_view remark = {});

    std::istream& in_;
    std::ostream& out_;
    Mode mode_;
    std::deque<std::int16_t> scripted_;
};

} // namespace qncal::host
