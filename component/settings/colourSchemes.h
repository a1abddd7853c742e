#pragma once

#include "controls/listControls.h"
#include "core/RecordSet.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace qncal::modColourSchemes {

/// The colour columns of `ColourSchemes`, in the order in which they are read, written and shown.
inline constexpr std::array<std::string_view, 4> colourColumns{"TitleBackColour", "TitleForeColour", "BackColour",
                                                               "ForeColour"};

/// Fills the list with "<No Scheme Selected>" (item data -1) and the schemes of a kind by name (item data: the
/// scheme's number).
void populateColourSchemes(RowList& list, std::int32_t schemeType);

/// Reads a colour that is stored as a number; a null or any other text leaves the target as it was.
void readColour(const RecordSet& scheme, std::string_view column, std::int32_t& target);

} // namespace qncal::modColourSchemes
