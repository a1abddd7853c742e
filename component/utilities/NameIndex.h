#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qncal {

/// Finds a name's place in a list without regard to ASCII case; of equal names the first.
class NameIndex {
public:
    void add(std::string_view name);
    std::optional<std::size_t> find(std::string_view name) const;
    std::size_t size() const { return names_.size(); }
    const std::string& name(std::size_t place) const { return names_[place]; }

private:
    void insert(std::size_t place);
    void grow();

    std::vector<std::string> names_;
    std::vector<std::uint32_t> slots_; ///< place + 1, 0 for a free slot; a power of two in size
};

} // namespace qncal
