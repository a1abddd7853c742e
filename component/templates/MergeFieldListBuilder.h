#pragma once

#include "controls/ListTarget.h"
#include "templates/mergeFieldCatalogue.h"
#include "utilities/FieldListCollection.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace qncal {

/// Adds blocks of the catalogue to a field list, and each row's line to a pick list.
///
/// It reads the firm's country at the start of each stretch of rows that depend on it, the province at each
/// row that depends on that, and the user's labels of custom fields from the database while one is connected.
/// Meant for one building of one list, within the caller's routine.
class MergeFieldListBuilder {
public:
    /// `lastKey` is the key given out last and moves on with each row. `listBox` may be none.
    MergeFieldListBuilder(FieldListCollection& list, std::int32_t& lastKey, ListTarget* listBox,
                          std::int32_t mergeFieldListUse)
        : list_(list), lastKey_(lastKey), listBox_(listBox), use_(mergeFieldListUse)
    {
    }

    void addBlock(MergeFieldBlock block);

private:
    using CustomNames = std::array<FieldText, customFieldCount>;

    void addProvinceRow(const MergeFieldEntry& entry);
    void addCustomRows(const MergeFieldEntry& entry);
    /// The labels that the user gave the fields of a group, or its fallback names.
    CustomNames customNames(const CustomFieldTexts& texts);
    bool isForThisUse(UseCondition use) const;
    /// `listText` is the line of the pick list where it is not the display name.
    void addRow(FieldListRow row, std::string_view listText = {});

    FieldListCollection& list_;
    std::int32_t& lastKey_;
    ListTarget* listBox_;
    std::int32_t use_;
};

} // namespace qncal
