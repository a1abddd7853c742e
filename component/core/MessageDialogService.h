#pragma once

#include <cstdint>
#include <string_view>

namespace qncal {

class Form;

/// Host contract: message and question boxes. Both return when the user has answered.
/// `owner` is the dialog in front, or none; it stays the caller's. The tail of fixed values
/// (0, 0, 101, 0, no caption, 0) belongs to the contract and carries nothing for the component.
class MessageDialogService {
public:
    static constexpr std::int16_t informationStyle = 3;
    static constexpr std::int16_t answerYes = 0;
    static constexpr std::int16_t answerNo = 1;

    virtual ~MessageDialogService() = default;
    virtual void showMessage(std::string_view text, std::int16_t style, Form* owner, std::int32_t fixed1 = 0,
                             std::int32_t fixed2 = 0, std::int32_t fixed3 = 101, std::int32_t fixed4 = 0,
                             std::string_view caption = {}, std::int32_t fixed5 = 0) = 0;
    /// The answer: `answerYes` or `answerNo`.
    virtual std::int16_t askQuestion(std::string_view text, std::int16_t style, Form* owner, std::int32_t fixed1 = 0,
                                     std::int32_t fixed2 = 0, std::int32_t fixed3 = 101, std::int32_t fixed4 = 0,
                                     std::string_view caption = {}, std::int32_t fixed5 = 0) = 0;
};

} // namespace qncal
