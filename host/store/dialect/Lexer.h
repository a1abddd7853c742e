#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace qncal::host::dialect {

enum class TokenKind : std::uint8_t {
    end,
    name,       ///< a bare word: keyword or name
    quotedName, ///< [a name]
    number,     ///< 12, 1.5, 2e3, never signed
    text,       ///< 'a text' or "a text"
    date,       ///< #a date, a time, or both#
    symbol,     ///< one or two characters of punctuation
};

/// A piece of the SQL text. `body` leaves brackets, quotes and hash marks out; doubled quotes still stand doubled.
struct Token {
    TokenKind kind = TokenKind::end;
    std::size_t offset = 0;
    std::string_view body;
    std::string_view whole;

    bool isLiteral() const { return kind == TokenKind::number || kind == TokenKind::text || kind == TokenKind::date; }
};

/// Cuts SQL text into tokens without allocating; the text must outlive the tokens.
class Lexer {
public:
    explicit Lexer(std::string_view sql) : sql_(sql) {}
    /// Throws `RunTimeError` for a literal that is not closed and for a character of no use.
    Token next();

private:
    Token take(TokenKind kind, std::size_t start, std::size_t bodyStart, std::size_t bodyEnd);
    Token quoted(TokenKind kind, char closing, bool doubling);
    Token number();

    std::string_view sql_;
    std::size_t at_ = 0;
};

/// The text of a text literal, its doubled quotes made single.
void unquote(const Token& literal, std::string& text);

/// Throws `RunTimeError` that tells what is wrong and where: line, column and the text from there on.
[[noreturn]] void failAt(std::string_view sql, std::size_t offset, const std::string& what);

} // namespace qncal::host::dialect
