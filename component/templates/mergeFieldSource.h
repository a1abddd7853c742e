#pragma once

#include "templates/MergeRecordSets.h"

#include <string>
#include <string_view>

namespace qncal {

/// Where the fields of a category come from.
struct MergeFieldSource {
    std::string_view category;
    MergeRecord record;
    std::int32_t MergeItemIDs::*id;
    /// The column by which the row of the id is found in the record set.
    std::string_view keyColumn;
};

/// None for an unknown category.
const MergeFieldSource* findMergeFieldSource(std::string_view category);

/// For the name of a field that shows a province's two letters, which is no column: the field becomes the column
/// of the whole province, and the result is True.
bool becomesProvinceColumn(std::string& field, MergeRecord record);

} // namespace qncal
