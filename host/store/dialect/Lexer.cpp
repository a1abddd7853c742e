#include "store/dialect/Lexer.h"

#include "store/storeError.h"

#include <array>

namespace qncal::host::dialect {

namespace {

enum CharClass : std::uint8_t { other, blank, letter, digit };

constexpr std::array<CharClass, 256> classify()
{
    std::array<CharClass, 256> classes{};
    for (const char c : {' ', '\t', '\r', '\n'})
        classes[static_cast<unsigned char>(c)] = blank;
    for (unsigned c = 'a'; c <= 'z'; ++c)
        classes[c] = classes[c - 'a' + 'A'] = letter;
    for (unsigned c = '0'; c <= '9'; ++c)
        classes[c] = digit;
    classes['_'] = letter;
    for (unsigned c = 0x80; c < 0x100; ++c)
        classes[c] = letter; // a byte of a multi-byte character
    return classes;
}

constexpr std::array<CharClass, 256> charClasses = classify();

CharClass classOf(char c) { return charClasses[static_cast<unsigned char>(c)]; }

} // namespace

Token Lexer::take(TokenKind kind, std::size_t start, std::size_t bodyStart, std::size_t bodyEnd)
{
    return {kind, start, sql_.substr(bodyStart, bodyEnd - bodyStart), sql_.substr(start, at_ - start)};
}

Token Lexer::next()
{
    while (at_ < sql_.size() && classOf(sql_[at_]) == blank)
        ++at_;
    const std::size_t start = at_;
    if (at_ == sql_.size())
        return take(TokenKind::end, start, start, start);

    const char c = sql_[at_];
    if (classOf(c) == letter) {
        while (at_ < sql_.size() && classOf(sql_[at_]) >= letter)
            ++at_;
        return take(TokenKind::name, start, start, at_);
    }
    const bool digitFollows = at_ + 1 < sql_.size() && classOf(sql_[at_ + 1]) == digit;
    if (classOf(c) == digit || (c == '.' && digitFollows))
        return number();

    const char second = at_ + 1 < sql_.size() ? sql_[at_ + 1] : '\0';
    switch (c) {
    case '[':
        return quoted(TokenKind::quotedName, ']', false);
    case '\'':
        return quoted(TokenKind::text, '\'', true);
    case '"':
        return quoted(TokenKind::text, '"', true);
    case '#':
        return quoted(TokenKind::date, '#', false);
    case '<':
    case '>':
        at_ += (second == '=' || (c == '<' && second == '>')) ? 2 : 1;
        return take(TokenKind::symbol, start, start, at_);
    case '=':
    case '(':
    case ')':
    case ',':
    case '.':
    case ';':
    case '*':
    case '+':
    case '-':
    case '/':
    case '&':
        ++at_;
        return take(TokenKind::symbol, start, start, at_);
    default:
        failAt(sql_, start, "unexpected character");
    }
}

Token Lexer::quoted(TokenKind kind, char closing, bool doubling)
{
    const std::size_t start = at_++;
    for (;;) {
        const std::size_t found = sql_.find(closing, at_);
        if (found == std::string_view::npos)
            failAt(sql_, start, std::string("no closing ") + closing);
        at_ = found + 1;
        if (!doubling || at_ == sql_.size() || sql_[at_] != closing)
            return take(kind, start, start + 1, found);
        ++at_;
    }
}

Token Lexer::number()
{
    const std::size_t start = at_;
    const auto digits = [this] {
        while (at_ < sql_.size() && classOf(sql_[at_]) == digit)
            ++at_;
    };
    digits();
    if (at_ < sql_.size() && sql_[at_] == '.') {
        ++at_;
        digits();
    }
    if (at_ < sql_.size() && (sql_[at_] == 'e' || sql_[at_] == 'E')) {
        const std::size_t sign = at_ + 1 < sql_.size() && (sql_[at_ + 1] == '+' || sql_[at_ + 1] == '-') ? 1 : 0;
        if (at_ + 1 + sign < sql_.size() && classOf(sql_[at_ + 1 + sign]) == digit) {
            at_ += 1 + sign;
            digits();
        }
    }
    if (at_ < sql_.size() && classOf(sql_[at_]) == letter)
        failAt(sql_, start, "a number runs into a name");
    return take(TokenKind::number, start, start, at_);
}

void unquote(const Token& literal, std::string& text)
{
    const char quote = literal.whole.front();
    text.clear();
    for (std::size_t i = 0; i < literal.body.size(); ++i) {
        text += literal.body[i];
        if (literal.body[i] == quote)
            ++i;
    }
}

void failAt(std::string_view sql, std::size_t offset, const std::string& what)
{
    constexpr std::size_t excerptLength = 40;
    std::size_t line = 1;
    std::size_t column = 1;
    for (const char c : sql.substr(0, offset)) {
        ++column;
        if (c == '\n') {
            ++line;
            column = 1;
        }
    }
    const std::string excerpt = offset < sql.size()
                                    ? std::string("near \"") + std::string(sql.substr(offset, excerptLength)) + '"'
                                    : "at the end of the statement";
    throw RunTimeError(storeError::badStatement, "SQL error in line " + std::to_string(line) + ", column "
                                                     + std::to_string(column) + ": " + what + ", " + excerpt);
}

} // namespace qncal::host::dialect
