#pragma once

#include "core/ErrorControlService.h"

#include <memory>
#include <string_view>
#include <utility>

namespace qncal {

/// Hands every call on to another error control. Override an operation to change it, or `beforeCall` to see or refuse
/// them all: what it throws goes to the caller in place of the call.
class ForwardingErrorControlService : public ErrorControlService {
public:
    explicit ForwardingErrorControlService(std::shared_ptr<ErrorControlService> target) : target_(std::move(target)) {}
    const std::shared_ptr<ErrorControlService>& target() const { return target_; }

    void enterRoutine(std::string_view label) override
    {
        beforeCall("enterRoutine");
        target_->enterRoutine(label);
    }
    void leaveRoutine() override
    {
        beforeCall("leaveRoutine");
        target_->leaveRoutine();
    }
    void setError(const ErrorState& error) override
    {
        beforeCall("setError");
        target_->setError(error);
    }
    void reportError() override
    {
        beforeCall("reportError");
        target_->reportError();
    }
    std::int16_t getErrorAction() override
    {
        beforeCall("getErrorAction");
        return target_->getErrorAction();
    }

protected:
    virtual void beforeCall(std::string_view /*operation*/) {}

private:
    std::shared_ptr<ErrorControlService> target_;
};

} // namespace qncal
