#pragma once

#include "templates/delimiters.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace qncal {

/// What a user can get wrong in a template.
struct TemplateFault {
    enum class Kind : std::uint8_t {
        openingDelimiterMissing,
        closingRoundBracketMissing,
        dateFormatUnknown,
        openingRoundBracketMissing,
        closingDelimiterMissing, ///< told by an expression that is too long to be one
        fieldNameUnknown,
    };
    Kind kind;
    /// The date format in the case it was typed in, or the field name; where the message names one.
    std::string subject;
};

using FieldNameTest = std::function<bool(const std::string& name)>;

/// The first fault of a template, none when it is clean. Names are not tested without `isFieldName`.
/// A date expression without a comma is run-time error 9.
std::optional<TemplateFault> findTemplateFault(std::string_view text, const DelimiterPair& pair,
                                               const FieldNameTest& isFieldName);

/// The message about a fault; it names « and » for a rich-text template too.
std::string templateFaultMessage(const TemplateFault& fault, std::string_view productName);

} // namespace qncal
