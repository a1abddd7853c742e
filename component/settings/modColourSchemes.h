#pragma once

#include "controls/listControls.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace qncal::modColourSchemes {

/// The colour columns of `ColourSchemes`, in the order in which they are read, written and shown.
inline constexpr std::array<std::string_view, 4> colourColumns{"TitleBackColour", "TitleForeColour", "BackColour",
                                                               "ForeColour"};

/// The SELECT of the given columns, of the schemes of a kind in the order of their names.
std::string schemesOfKind(std::string_view columns, std::int32_t schemeType);

/// Fills the list with "<No Scheme Selected>" (item data -1) and the schemes of a kind by name (item data: the
/// scheme's number); a scheme whose name is null is left out.
void populateColourSchemes(RowList& list, std::int32_t schemeType);

} // namespace qncal::modColourSchemes
