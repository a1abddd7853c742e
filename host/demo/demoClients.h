#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace qncal::host {

class DemoRandom;
class HostEnvironment;
struct DemoOptions;

/// The people and companies that the calendar of the invented firm is about, by their keys.
struct DemoPeople {
    std::vector<std::int32_t> users;
    std::vector<std::int32_t> companies;
    std::vector<std::int32_t> contacts;
};

/// Stores the firm, its employees, and its clients with links and default contacts.
DemoPeople addDemoPeople(HostEnvironment& host, const DemoOptions& options, DemoRandom& random);

} // namespace qncal::host
