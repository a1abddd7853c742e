#pragma once

#include <cstdint>

class QKeyEvent;

namespace qncal::host {

/// The key's number as KeyUp events carry it: letters and digits by their capital character, the other keys by
/// the numbers of the virtual-key table; 0 for a key that has none.
std::int32_t keyCodeOf(const QKeyEvent& key);

} // namespace qncal::host
