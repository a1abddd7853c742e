#include "core/readColour.h"

#include "utilities/readableValue.h"

namespace qncal {

void readColour(const RecordSet& row, std::string_view column, std::int32_t& target)
{
    target = integerIn(row.field(column)).value_or(target);
}

} // namespace qncal
