#pragma once

#include "templates/mergeFieldCatalogue.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace qncal {

/// One block of a list and the header lines that go before it.
struct MergeFieldListStep {
    MergeFieldBlock block;
    bool blankLineBefore;
    std::string_view header;
    /// Listed only when a company is set.
    bool needsCompany = false;
};

/// The blocks of a list type in order; none for an unknown type. The firm's own block follows every list.
std::span<const MergeFieldListStep> mergeFieldListPlan(std::int32_t listType);

} // namespace qncal
