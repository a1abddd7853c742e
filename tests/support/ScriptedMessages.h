#pragma once

#include "core/MessageDialogService.h"

#include <deque>
#include <string>

namespace qncal::test {

/// A message service that expects what it is told to expect, in that order: any other message or question fails the
/// test, and so does one that never came. An unexpected question is answered No.
class ScriptedMessages : public MessageDialogService {
public:
    ~ScriptedMessages() override;

    void expectMessage(std::string text) { expected_.push_back({std::move(text), false, answerNo}); }
    void expectQuestion(std::string text, std::int16_t answer) { expected_.push_back({std::move(text), true, answer}); }

    void showMessage(std::string_view text, std::int16_t style, Form* owner, std::int32_t fixed1, std::int32_t fixed2,
                     std::int32_t fixed3, std::int32_t fixed4, std::string_view caption, std::int32_t fixed5) override;
    std::int16_t askQuestion(std::string_view text, std::int16_t style, Form* owner, std::int32_t fixed1,
                             std::int32_t fixed2, std::int32_t fixed3, std::int32_t fixed4, std::string_view caption,
                             std::int32_t fixed5) override;

private:
    struct Expected {
        std::string text;
        bool isQuestion;
        std::int16_t answer;
    };
    std::int16_t meet(std::string_view text, bool isQuestion);

    std::deque<Expected> expected_;
};

} // namespace qncal::test
