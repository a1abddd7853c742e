#include "services/WindowRegistry.h"

#include "controls/Form.h"
#include "utilities/RunTimeError.h"

#include <string>

namespace qncal::host {

bool WindowRegistry::isRegistered(std::int32_t key)
{
    const auto found = entries_.find(key);
    if (found == entries_.end())
        return false;
    current_ = &found->second;
    return true;
}

void WindowRegistry::addKey(std::int32_t key) { current_ = &entries_.try_emplace(key, key).first->second; }

FormRegistryEntry& WindowRegistry::currentEntry()
{
    if (!current_)
        throw RunTimeError(errorNumber::objectNotSet, "No window is registered");
    return *current_;
}

void WindowRegistry::remove(std::int32_t key)
{
    const auto found = entries_.find(key);
    if (found == entries_.end())
        return;
    if (current_ == &found->second)
        current_ = nullptr;
    entries_.erase(found);
}

Form& WindowRegistry::Entry::existingForm() const
{
    if (!form_)
        throw RunTimeError(errorNumber::objectNotSet, "Window " + std::to_string(key_) + " has no form");
    return *form_;
}

void WindowRegistry::Entry::initialize()
{
    confirmed_ = false;
    existingForm().Form_Load();
}

void WindowRegistry::Entry::show(bool modal)
{
    Form& form = existingForm();
    if (modal)
        form.showModal();
    else
        form.show();
}

void WindowRegistry::Entry::hide() { existingForm().hide(); }

void WindowRegistry::Entry::bringToFront() { existingForm().bringToFront(); }

} // namespace qncal::host
