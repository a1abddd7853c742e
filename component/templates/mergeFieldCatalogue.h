#pragma once

#include "templates/customFieldGroups.h"
#include "utilities/FieldListCollection.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace qncal {

/// The blocks that a list is made of.
enum class MergeFieldBlock : std::uint8_t {
    appointment,
    task,
    timeEntry,
    company,
    contactName,
    accounting,
    software,
    moreContact,
    firm,
};

/// Every country but Canada takes the rows of the United States.
enum class RegionCondition : std::uint8_t { any, unitedStates, canada };
/// The list for the assignment of a single field differs from all other uses.
enum class UseCondition : std::uint8_t { any, singleField, notSingleField };
enum class ProvinceCondition : std::uint8_t { any, ontario, quebec, outsideQuebec };

/// One row of the catalogue: a field and the conditions under which it is listed.
///
/// A display name or sample may hold one of the words {salesTax}, {secondSalesTax}, {corpTax}, {workersBoard}
/// (see `RegionWords`) and {year}, the current year.
struct MergeFieldEntry {
    MergeFieldBlock block;
    std::string_view displayName;
    std::string_view databaseField;
    std::string_view category;
    MergeDataType type;
    std::string_view sample;
    std::int16_t maximumLength;
    RegionCondition region = RegionCondition::any;
    UseCondition use = UseCondition::any;
    ProvinceCondition province = ProvinceCondition::any;
    /// The line in the pick list where it differs from the display name.
    std::string_view listText = {};
    /// Set on the entry that stands for the five rows of a custom group.
    CustomFieldGroup customGroup = CustomFieldGroup::none;
    /// Known before any list is built, since every list asks it of every row.
    bool nameHoldsWord = displayName.find('{') != std::string_view::npos;
    bool sampleHoldsWord = sample.find('{') != std::string_view::npos;
};

/// The rows of a block in the order of the list.
std::span<const MergeFieldEntry> mergeFieldEntries(MergeFieldBlock block);

} // namespace qncal
