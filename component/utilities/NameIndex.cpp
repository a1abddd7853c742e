#include "utilities/NameIndex.h"

#include "utilities/hashNoCase.h"
#include "utilities/text.h"

namespace qncal {

void NameIndex::add(std::string_view name)
{
    names_.emplace_back(name);
    if (names_.size() * 2 > slots_.size())
        grow();
    else
        insert(names_.size() - 1);
}

void NameIndex::insert(std::size_t place)
{
    if (find(names_[place]))
        return;
    std::size_t slot = hashNoCase(names_[place]) & (slots_.size() - 1);
    while (slots_[slot] != 0)
        slot = (slot + 1) & (slots_.size() - 1);
    slots_[slot] = static_cast<std::uint32_t>(place + 1);
}

void NameIndex::grow()
{
    slots_.assign(slots_.empty() ? 16 : slots_.size() * 2, 0);
    for (std::size_t place = 0; place < names_.size(); ++place)
        insert(place);
}

std::optional<std::size_t> NameIndex::find(std::string_view name) const
{
    if (slots_.empty())
        return std::nullopt;
    for (std::size_t slot = hashNoCase(name) & (slots_.size() - 1); slots_[slot] != 0;
         slot = (slot + 1) & (slots_.size() - 1))
        if (equalsNoCase(names_[slots_[slot] - 1], name))
            return slots_[slot] - 1;
    return std::nullopt;
}

} // namespace qncal
