#pragma once

#include "templates/delimiters.h"
#include "utilities/Date.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace qncal::test {

/// The merge of a template as its rules tell it, step by step and without regard to speed: every row of the list is
/// looked for in the text, one after the other. What the engine gives must be what this gives.

struct PlainField {
    std::string name;
    bool isDate = false;
};

/// The value of the field at that place of the list; nothing leaves its expression in the text.
using PlainValue = std::function<std::optional<std::string>(std::size_t field, const std::string& format)>;

/// One pass over the list. True when anything was replaced.
bool plainPass(std::string& text, const DelimiterPair& pair, const std::vector<PlainField>& fields, bool richText,
               const PlainValue& valueOf);
void plainTodaysDate(std::string& text, const DelimiterPair& pair, bool richText, Date today);
/// Both passes. True when expressions between « and » were replaced.
bool plainMerge(std::string& text, const std::vector<PlainField>& fields, bool richText, Date today,
                const PlainValue& valueOf);
/// Takes out the expressions that are left; those of rich text stay beside plain ones that were merged.
void plainBlanking(std::string& text, bool plainOnesMerged = false);

} // namespace qncal::test
