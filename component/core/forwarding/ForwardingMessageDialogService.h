#pragma once

#include "core/MessageDialogService.h"

#include <memory>
#include <string_view>
#include <utility>

namespace qncal {

/// Hands every call on to another message service. Override an operation to change it, or `beforeCall` to see or refuse
/// them all: what it throws goes to the caller in place of the call.
class ForwardingMessageDialogService : public MessageDialogService {
public:
    explicit ForwardingMessageDialogService(std::shared_ptr<MessageDialogService> target) : target_(std::move(target))
    {
    }
    const std::shared_ptr<MessageDialogService>& target() const { return target_; }

protected:
    virtual void beforeCall(std::string_view /*operation*/) {}

private:
    std::shared_ptr<MessageDialogService> target_;
};

} // namespace qncal
