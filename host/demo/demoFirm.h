#pragma once

#include <cstdint>
#include <functional>

namespace qncal::host {

class HostEnvironment;

/// How large the invented firm is, and which of all possible ones.
struct DemoOptions {
    std::uint32_t seed = 1;
    int employees = 6;
    int companies = 40;
    int contacts = 120;
    int items = 600;
};

/// Told as items are made: how many, and out of how many.
using DemoProgress = std::function<void(int done, int total)>;

/// Fills an empty database with an invented accounting firm: employees, clients with links and default contacts,
/// the statutory holidays of this and the next year, colour schemes, labels of status and custom fields, and items
/// of all three kinds from two months ago to two months ahead, made through `clsCalendarItem`. Country and province
/// are the host's; the same seed, region and day give the same firm. Throws `RunTimeError` when a row cannot be
/// stored.
void fillDemoFirm(HostEnvironment& host, const DemoOptions& options, const DemoProgress& progress = {});

} // namespace qncal::host
