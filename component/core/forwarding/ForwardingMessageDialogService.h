#pragma once

#include "core/MessageDialogService.h"

#include <memory>
#include <string_view>
#include <utility>

namespace qncal {

/// Hands every call on to another message service. Override an operation to change it, or `beforeCall` to see or
/// refuse them all: what it throws goes to the caller in place of the call.
class ForwardingMessageDialogService : public MessageDialogService {
public:
    explicit ForwardingMessageDialogService(std::shared_ptr<MessageDialogService> target) : target_(std::move(target))
    {
    }
    const std::shared_ptr<MessageDialogService>& target() const { return target_; }

    void showMessage(std::string_view text, std::int16_t style, Form* owner, std::int32_t fixed1, std::int32_t fixed2,
                     std::int32_t fixed3, std::int32_t fixed4, std::string_view caption, std::int32_t fixed5) override
    {
        beforeCall("showMessage");
        target_->showMessage(text, style, owner, fixed1, fixed2, fixed3, fixed4, caption, fixed5);
    }
    std::int16_t askQuestion(std::string_view text, std::int16_t style, Form* owner, std::int32_t fixed1,
                             std::int32_t fixed2, std::int32_t fixed3, std::int32_t fixed4, std::string_view caption,
                             std::int32_t fixed5) override
    {
        beforeCall("askQuestion");
        return target_->askQuestion(text, style, owner, fixed1, fixed2, fixed3, fixed4, caption, fixed5);
    }

protected:
    virtual void beforeCall(std::string_view /*operation*/) {}

private:
    std::shared_ptr<MessageDialogService> target_;
};

} // namespace qncal
