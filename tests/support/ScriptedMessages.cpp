#include "support/ScriptedMessages.h"

#include <gtest/gtest.h>

namespace qncal::test {

ScriptedMessages::~ScriptedMessages()
{
    for (const Expected& expected : expected_)
        ADD_FAILURE() << (expected.isQuestion ? "question" : "message") << " never came: " << expected.text;
}

void ScriptedMessages::showMessage(std::string_view text, std::int16_t, Form*, std::int32_t, std::int32_t, std::int32_t,
                                   std::int32_t, std::string_view, std::int32_t)
{
    meet(text, false);
}

std::int16_t ScriptedMessages::askQuestion(std::string_view text, std::int16_t, Form*, std::int32_t, std::int32_t,
                                           std::int32_t, std::int32_t, std::string_view, std::int32_t)
{
    return meet(text, true);
}

std::int16_t ScriptedMessages::meet(std::string_view text, bool isQuestion)
{
    if (expected_.empty() || expected_.front().isQuestion != isQuestion || expected_.front().text != text) {
        ADD_FAILURE() << "unexpected " << (isQuestion ? "question: " : "message: ") << text;
        return answerNo;
    }
    const std::int16_t answer = expected_.front().answer;
    expected_.pop_front();
    return answer;
}

} // namespace qncal::test
