#pragma once

#include "core/LocaleService.h"

#include <memory>
#include <string_view>
#include <utility>

namespace qncal {

/// Hands every call on to another locale service. Override an operation to change it, or `beforeCall` to see or refuse
/// them all: what it throws goes to the caller in place of the call.
class ForwardingLocaleService : public LocaleService {
public:
    explicit ForwardingLocaleService(std::shared_ptr<LocaleService> target) : target_(std::move(target)) {}
    const std::shared_ptr<LocaleService>& target() const { return target_; }

    std::int32_t getCountryCode() override
    {
        beforeCall("getCountryCode");
        return target_->getCountryCode();
    }
    std::int32_t getProvinceCode() override
    {
        beforeCall("getProvinceCode");
        return target_->getProvinceCode();
    }
    std::string getProductName() override
    {
        beforeCall("getProductName");
        return target_->getProductName();
    }
    std::int32_t getRightsLevel() override
    {
        beforeCall("getRightsLevel");
        return target_->getRightsLevel();
    }
    std::int32_t getSignedInUserID() override
    {
        beforeCall("getSignedInUserID");
        return target_->getSignedInUserID();
    }

protected:
    virtual void beforeCall(std::string_view /*operation*/) {}

private:
    std::shared_ptr<LocaleService> target_;
};

} // namespace qncal
