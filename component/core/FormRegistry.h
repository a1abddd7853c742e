#pragma once

#include <cstdint>
#include <memory>

namespace qncal {

class Form;

/// One open window in the host's registry. The entry owns a share of its form.
class FormRegistryEntry {
public:
    virtual ~FormRegistryEntry() = default;
    virtual std::int32_t key() const = 0;
    virtual void key(std::int32_t key) = 0;
    virtual std::shared_ptr<Form> form() const = 0;
    virtual void form(std::shared_ptr<Form> form) = 0;
    /// Prepares the form for its first showing: calls its `Form_Load`, once.
    virtual void initialize() = 0;
    /// Shows the form; returns at once for a modeless one, when it is hidden for a modal one.
    virtual void show(bool modal) = 0;
    virtual void hide() = 0;
    virtual void bringToFront() = 0;
    /// How the form was left: True confirmed, False cancelled.
    virtual bool confirmed() const = 0;
    virtual void confirmed(bool confirmed) = 0;
};

/// Host contract: the registry of open windows by fixed form key.
class FormRegistry {
public:
    static constexpr std::int32_t searchDialogKey = 5;
    static constexpr std::int32_t editorKey = 13;
    static constexpr std::int32_t duplicateWizardKey = 29;

    virtual ~FormRegistry() = default;
    /// True when the key has an entry, which then becomes the current one.
    virtual bool isRegistered(std::int32_t key) = 0;
    /// Adds an entry for the key and makes it the current one.
    virtual void addKey(std::int32_t key) = 0;
    /// The entry last found or added. It is an error to ask when there is none.
    virtual FormRegistryEntry& currentEntry() = 0;
};

} // namespace qncal
