#include "core/registeredForm.h"

#include "core/ClientDropDownService.h"
#include "core/FormRegistry.h"
#include "core/ServiceRegistry.h"
#include "core/routineScope.h"
#include "utilities/RunTimeError.h"

namespace qncal {

namespace {

std::shared_ptr<FormRegistry> formRegistry()
{
    auto registry = clientDropDownService().getFormRegistry();
    if (!registry)
        throw RunTimeError(errorNumber::objectNotSet, "Object variable not set: FormRegistry");
    return registry;
}

FormRegistryEntry& currentEntry(FormRegistry& registry)
{
    return statement([&]() -> FormRegistryEntry& { return registry.currentEntry(); });
}

} // namespace

FormRegistryEntry& registeredForm(std::int32_t key, const std::function<std::shared_ptr<Form>()>& create)
{
    const auto registry = statement([] { return formRegistry(); });
    if (!statement([&] { return registry->isRegistered(key); })) {
        const auto form = create();
        statement([&] { registry->addKey(key); });
        FormRegistryEntry& entry = currentEntry(*registry);
        statement([&] { entry.key(key); });
        statement([&] { entry.form(form); });
        statement([&] { entry.initialize(); });
    }
    return currentEntry(*registry);
}

} // namespace qncal
