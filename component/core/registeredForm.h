#pragma once

#include "core/FormRegistry.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace qncal {

class Form;

/// The registry's entry for a fixed form key, made current. The first call for a key creates the form, gives it
/// to the registry and lets the entry initialise it; a later call reaches the form already there.
/// Each call on the registry is a statement of the routine it stands in.
FormRegistryEntry& registeredForm(std::int32_t key, const std::function<std::shared_ptr<Form>()>& create);

} // namespace qncal
