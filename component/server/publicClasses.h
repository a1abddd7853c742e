#pragma once

#include "server/Guid.h"

#include <memory>
#include <span>
#include <string_view>

namespace qncal {

/// A class that a host may create by its id.
struct PublicClass {
    std::string_view name;
    /// The id as text, the form in which the registration file holds it.
    std::string_view idText;
    Guid id;
    std::shared_ptr<void> (*create)();
};

std::span<const PublicClass> publicClasses();

} // namespace qncal
