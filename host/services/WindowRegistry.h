#pragma once

#include "core/FormRegistry.h"

#include <map>

namespace qncal::host {

/// The registry of open windows, kept in memory. A form is shown through the thread's dialog host.
class WindowRegistry : public FormRegistry {
public:
    bool isRegistered(std::int32_t key) override;
    void addKey(std::int32_t key) override;
    FormRegistryEntry& currentEntry() override;

    /// Forgets a window; its form is freed unless somebody else holds it.
    void remove(std::int32_t key);

private:
    class Entry : public FormRegistryEntry {
    public:
        explicit Entry(std::int32_t key) : key_(key) {}
        std::int32_t key() const override { return key_; }
        void key(std::int32_t key) override { key_ = key; }
        std::shared_ptr<Form> form() const override { return form_; }
        void form(std::shared_ptr<Form> form) override { form_ = std::move(form); }
        void initialize() override;
        void show(bool modal) override;
        void hide() override;
        void bringToFront() override;
        bool confirmed() const override { return confirmed_; }
        void confirmed(bool confirmed) override { confirmed_ = confirmed; }

    private:
        Form& existingForm() const;

        std::int32_t key_;
        std::shared_ptr<Form> form_;
        bool confirmed_ = false;
    };

    std::map<std::int32_t, Entry> entries_;
    Entry* current_ = nullptr;
};

} // namespace qncal::host
