#pragma once

#include "core/enumerations.h"
#include "templates/clsInsertFieldsInRTB.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace qncal::firmcal {

/// One of the lists of merge fields that a template may be written for.
struct MergeFieldList {
    /// As it is written behind `--kind`.
    std::string_view name;
    /// The value for `clsInsertFieldsInRTB::ListType`.
    std::int32_t type;
    /// The kind of item whose texts the templates are for; unknown for letters.
    enumLocalCalendarItemType kind;
};

std::span<const MergeFieldList> mergeFieldLists();
/// Without regard to case. Throws `UsageError` when there is none of that name.
const MergeFieldList& mergeFieldList(std::string_view name);

/// A merge engine that holds the list's fields for the region of the host in force, and merges sample values.
std::unique_ptr<clsInsertFieldsInRTB> sampleEngine(const MergeFieldList& list);

/// A merge field, ready to be shown.
struct MergeField {
    std::string name;
    /// As it stands in a template: «Company Name», «(Task Due Date, mmmm d yyyy)».
    std::string expression;
    /// "text", "date", "time", "currency", "yes/no", "hours"
    std::string_view type;
    std::string category;
    std::string databaseField;
    /// The sample value as a merge writes it.
    std::string sample;
    /// In characters; -1 where none applies.
    std::int16_t maximumLength = -1;
};

/// The fields under one heading of the pick list.
struct MergeFieldGroup {
    std::string heading;
    std::vector<MergeField> fields;
};

/// The fields of a list in the order and under the headings of the pick list; the firm's own come last.
std::vector<MergeFieldGroup> mergeFieldGroups(const MergeFieldList& list);

} // namespace qncal::firmcal
