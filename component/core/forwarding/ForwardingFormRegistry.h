#pragma once

#include "core/FormRegistry.h"

#include <map>
#include <memory>
#include <string_view>
#include <utility>

namespace qncal {

/// Hands every call on to another registry of windows, and those on its entries as well. Override an operation to
/// change it, or `beforeCall` to see or refuse them all: what it throws goes to the caller in place of the call.
/// An entry that was given out lives as long as this object.
class ForwardingFormRegistry : public FormRegistry {
public:
    explicit ForwardingFormRegistry(std::shared_ptr<FormRegistry> target) : target_(std::move(target)) {}
    const std::shared_ptr<FormRegistry>& target() const { return target_; }

    bool isRegistered(std::int32_t key) override
    {
        beforeCall("isRegistered");
        return target_->isRegistered(key);
    }
    void addKey(std::int32_t key) override
    {
        beforeCall("addKey");
        target_->addKey(key);
    }
    FormRegistryEntry& currentEntry() override
    {
        beforeCall("currentEntry");
        FormRegistryEntry& entry = target_->currentEntry();
        return entries_.try_emplace(&entry, *this, entry).first->second;
    }

protected:
    virtual void beforeCall(std::string_view /*operation*/) {}

private:
    class Entry : public FormRegistryEntry {
    public:
        Entry(ForwardingFormRegistry& registry, FormRegistryEntry& target) : registry_(registry), target_(target) {}

        std::int32_t key() const override { return (registry_.beforeCall("key"), target_.key()); }
        void key(std::int32_t key) override { (registry_.beforeCall("key"), target_.key(key)); }
        std::shared_ptr<Form> form() const override { return (registry_.beforeCall("form"), target_.form()); }
        void form(std::shared_ptr<Form> form) override
        {
            registry_.beforeCall("form");
            target_.form(std::move(form));
        }
        void initialize() override { (registry_.beforeCall("initialize"), target_.initialize()); }
        void show(bool modal) override { (registry_.beforeCall("show"), target_.show(modal)); }
        void hide() override { (registry_.beforeCall("hide"), target_.hide()); }
        void bringToFront() override { (registry_.beforeCall("bringToFront"), target_.bringToFront()); }
        bool confirmed() const override { return (registry_.beforeCall("confirmed"), target_.confirmed()); }
        void confirmed(bool confirmed) override { (registry_.beforeCall("confirmed"), target_.confirmed(confirmed)); }

    private:
        ForwardingFormRegistry& registry_;
        FormRegistryEntry& target_;
    };

    std::shared_ptr<FormRegistry> target_;
    std::map<FormRegistryEntry*, Entry> entries_;
};

} // namespace qncal
