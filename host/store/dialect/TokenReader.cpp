#include "store/dialect/TokenReader.h"

#include "utilities/text.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace qncal::host::dialect {

namespace {

constexpr std::array reservedWords{"SELECT", "DISTINCT", "TOP",  "FROM", "WHERE", "GROUP", "BY",   "HAVING", "ORDER",
                                   "INNER",  "LEFT",     "JOIN", "ON",   "AS",    "AND",   "OR",   "NOT",    "LIKE",
                                   "IN",     "BETWEEN",  "IS",   "NULL", "ASC",   "DESC",  "TRUE", "FALSE",  "OUTER"};
/// Deep enough for any real statement, shallow enough for the stack.
constexpr int deepestNesting = 200;

bool isReserved(std::string_view name)
{
    return std::ranges::any_of(reservedWords, [name](const char* word) { return equalsNoCase(name, word); });
}

} // namespace

TokenReader::TokenReader(std::string_view sql) : sql_(sql), lexer_(sql) { advance(); }

TokenReader::Nesting::Nesting(TokenReader& reader) : reader_(reader)
{
    if (++reader_.nesting_ > deepestNesting)
        reader_.fail("nested too deeply");
}

void TokenReader::advance()
{
    if (token_.isLiteral())
        ++literals_;
    token_ = lexer_.next();
}

bool TokenReader::isWord(std::string_view word) const
{
    return token_.kind == TokenKind::name && equalsNoCase(token_.body, word);
}

bool TokenReader::isSymbol(std::string_view symbol) const
{
    return token_.kind == TokenKind::symbol && token_.body == symbol;
}

bool TokenReader::isName() const
{
    return token_.kind == TokenKind::quotedName || (token_.kind == TokenKind::name && !isReserved(token_.body));
}

bool TokenReader::acceptWord(std::string_view word)
{
    const bool found = isWord(word);
    if (found)
        advance();
    return found;
}

bool TokenReader::acceptSymbol(std::string_view symbol)
{
    const bool found = isSymbol(symbol);
    if (found)
        advance();
    return found;
}

void TokenReader::expectWord(const std::string& word)
{
    if (!acceptWord(word))
        fail(word + " expected");
}

void TokenReader::expectSymbol(const std::string& symbol)
{
    if (!acceptSymbol(symbol))
        fail(symbol + " expected");
}

std::string TokenReader::expectName(const char* what)
{
    if (!isName())
        fail(std::string(what) + " expected");
    return takeBody();
}

std::string TokenReader::expectColumnName()
{
    return token_.kind == TokenKind::name ? takeBody() : expectName("a column name");
}

std::int64_t TokenReader::expectWholeNumber()
{
    std::int64_t number = 0;
    const char* const end = token_.body.data() + token_.body.size();
    const auto [read, error] = std::from_chars(token_.body.data(), end, number);
    if (token_.kind != TokenKind::number || error != std::errc{} || read != end)
        fail("a whole number expected");
    advance();
    return number;
}

std::string TokenReader::takeBody()
{
    std::string body(token_.body);
    advance();
    return body;
}

} // namespace qncal::host::dialect
