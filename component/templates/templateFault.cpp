#include "templates/templateFault.h"

#include "templates/dateFormatKeywords.h"
#include "utilities/RunTimeError.h"
#include "utilities/codePoints.h"

#include <algorithm>

namespace qncal {

namespace {

constexpr auto npos = std::string_view::npos;

/// An expression of more characters has most likely lost its closing delimiter.
constexpr std::size_t longestExpression = 40;

using Kind = TemplateFault::Kind;

std::string_view withoutBlanksAround(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    return first == npos ? std::string_view() : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool isDateFormat(std::string_view format)
{
    return std::ranges::find(dateFormatKeywords, format, &DateFormatKeyword::keyword) != dateFormatKeywords.end();
}

/// Checks what stands between two delimiters.
std::optional<TemplateFault> findExpressionFault(std::string_view expression, const FieldNameTest& isFieldName)
{
    if (expression.starts_with('(')) {
        if (!expression.ends_with(')'))
            return TemplateFault{Kind::closingRoundBracketMissing, {}};
        const std::string_view inner = expression.substr(1, expression.size() - 2);
        const std::size_t comma = inner.find(',');
        if (comma == npos)
            throw RunTimeError(errorNumber::subscriptOutOfRange, "Subscript out of range: a date without a format");
        const std::string_view format = withoutBlanksAround(inner.substr(comma + 1));
        if (!isDateFormat(format))
            return TemplateFault{Kind::dateFormatUnknown, std::string(format)};
        expression = withoutBlanksAround(inner.substr(0, comma));
    } else if (expression.ends_with(')')) {
        return TemplateFault{Kind::openingRoundBracketMissing, {}};
    }
    if (countCodePoints(expression) > longestExpression)
        return TemplateFault{Kind::closingDelimiterMissing, {}};
    if (std::string name(expression); isFieldName && !isFieldName(name))
        return TemplateFault{Kind::fieldNameUnknown, std::move(name)};
    return std::nullopt;
}

} // namespace

std::optional<TemplateFault> findTemplateFault(std::string_view text, const DelimiterPair& pair,
                                               const FieldNameTest& isFieldName)
{
    for (;;) {
        const DelimiterPosition first = findDelimiter(text, pair, 0);
        if (first.at == npos)
            return std::nullopt;
        if (!first.isOpen) {
            // A closing delimiter is a fault only where an opening one follows.
            DelimiterPosition next = first;
            while (next.at != npos && !next.isOpen)
                next = findDelimiter(text, pair, next.at + pair.open.size());
            return next.at == npos ? std::nullopt : std::optional(TemplateFault{Kind::openingDelimiterMissing, {}});
        }
        const std::size_t begin = first.at + pair.open.size();
        DelimiterPosition close = findDelimiter(text, pair, begin);
        while (close.at != npos && close.isOpen)
            close = findDelimiter(text, pair, close.at + pair.open.size());
        if (close.at == npos)
            return TemplateFault{Kind::openingDelimiterMissing, {}};
        if (auto fault = findExpressionFault(text.substr(begin, close.at - begin), isFieldName))
            return fault;
        text.remove_prefix(close.at + pair.close.size());
    }
}

std::string templateFaultMessage(const TemplateFault& fault, std::string_view productName)
{
    switch (fault.kind) {
    case Kind::openingDelimiterMissing:
        return "You are missing your opening brackets, '«' in one of your expressions";
    case Kind::closingRoundBracketMissing:
        return "You are missing the closing round bracket, ')' in one of your date expressions";
    case Kind::dateFormatUnknown:
        return "The date format of: '" + fault.subject + "' is not valid.  Please see help for valid date formats.";
    case Kind::openingRoundBracketMissing:
        return "You are missing the opening round bracket, '(' in one of your date expressions";
    case Kind::closingDelimiterMissing:
        return "You are missing a closing bracket, '»' in one of your expressions.  Make sure you have a bracket "
               "immediately before and after a field."
               "\r\n\r\n"
               "eg. «Company Name»";
    case Kind::fieldNameUnknown:
        break;
    }
    return "The " + std::string(productName) + " Pad did not recognize: «" + fault.subject
           + "» as a valid placeholder field name.";
}

} // namespace qncal
