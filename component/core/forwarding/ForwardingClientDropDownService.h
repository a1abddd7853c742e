#pragma once

#include "core/ClientDropDownService.h"

#include <memory>
#include <string_view>
#include <utility>

namespace qncal {

/// Hands every call on to another client service. Override an operation to change it, or `beforeCall` to see or refuse
/// them all: what it throws goes to the caller in place of the call.
class ForwardingClientDropDownService : public ClientDropDownService {
public:
    explicit ForwardingClientDropDownService(std::shared_ptr<ClientDropDownService> target) : target_(std::move(target))
    {
    }
    const std::shared_ptr<ClientDropDownService>& target() const { return target_; }

    std::shared_ptr<FormRegistry> getFormRegistry() override
    {
        beforeCall("getFormRegistry");
        return target_->getFormRegistry();
    }
    std::vector<UserEntry> getUsers() override
    {
        beforeCall("getUsers");
        return target_->getUsers();
    }
    std::string getUserName(std::int32_t userID) override
    {
        beforeCall("getUserName");
        return target_->getUserName(userID);
    }
    std::string getCompanyName(std::int32_t companyID) override
    {
        beforeCall("getCompanyName");
        return target_->getCompanyName(companyID);
    }
    std::string getContactName(std::int32_t contactID) override
    {
        beforeCall("getContactName");
        return target_->getContactName(contactID);
    }
    std::string getContactAndSpouseName(std::int32_t contactID) override
    {
        beforeCall("getContactAndSpouseName");
        return target_->getContactAndSpouseName(contactID);
    }
    Variant getClientListField(ClientKind kind, std::int32_t id, std::string_view fieldName) override
    {
        beforeCall("getClientListField");
        return target_->getClientListField(kind, id, fieldName);
    }

protected:
    virtual void beforeCall(std::string_view /*operation*/) {}

private:
    std::shared_ptr<ClientDropDownService> target_;
};

} // namespace qncal
