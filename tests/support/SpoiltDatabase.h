#pragma once

#include "core/forwarding/ForwardingDatabaseService.h"

#include <functional>
#include <map>
#include <string>

namespace qncal::test {

/// A database in which another program has written what the component never would: columns give what is set here,
/// whatever the row holds.
class SpoiltDatabase : public ForwardingDatabaseService {
public:
    using ForwardingDatabaseService::ForwardingDatabaseService;
    std::map<std::string, Variant, std::less<>> cells;

    Variant getField(std::int32_t handle, std::string_view fieldName) override
    {
        const auto cell = cells.find(fieldName);
        return cell == cells.end() ? ForwardingDatabaseService::getField(handle, fieldName) : cell->second;
    }
};

} // namespace qncal::test
