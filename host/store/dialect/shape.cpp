#include "store/dialect/shape.h"

#include "store/dateStorage.h"
#include "store/dialect/Lexer.h"

#include <charconv>

namespace qncal::host::dialect {

namespace {

void readNumber(std::string_view sql, const Token& token, Literal& literal)
{
    const char* const last = token.body.data() + token.body.size();
    if (const auto [end, error] = std::from_chars(token.body.data(), last, literal.integer);
        error == std::errc{} && end == last) {
        literal.kind = Literal::Kind::integer;
        return;
    }
    literal.kind = Literal::Kind::real;
    if (const auto [end, error] = std::from_chars(token.body.data(), last, literal.real);
        error != std::errc{} || end != last)
        failAt(sql, token.offset, "a number out of range");
}

void readDate(std::string_view sql, const Token& token, Literal& literal)
{
    const auto date = readDateText(token.body);
    if (!date)
        failAt(sql, token.offset, "no such date or time");
    literal.kind = Literal::Kind::date;
    literal.date = *date;
}

} // namespace

Literal& Literals::append()
{
    if (count_ == list_.size())
        list_.emplace_back();
    return list_[count_++];
}

void Literals::assign(const Literals& other)
{
    clear();
    for (std::size_t i = 0; i < other.size(); ++i)
        append() = other[i];
}

void ShapedText::read(std::string_view sql)
{
    shape_.clear();
    literals_.clear();
    Lexer lexer(sql);
    for (Token token = lexer.next(); token.kind != TokenKind::end; token = lexer.next()) {
        if (!token.isLiteral()) {
            shape_.append(token.whole);
            shape_ += ' ';
            continue;
        }
        Literal& literal = literals_.append();
        // The kind of a literal is part of the shape, its value is not.
        if (token.kind == TokenKind::number) {
            readNumber(sql, token, literal);
            shape_ += "0 ";
        } else if (token.kind == TokenKind::date) {
            readDate(sql, token, literal);
            shape_ += "# ";
        } else {
            unquote(token, literal.text);
            literal.kind = Literal::Kind::text;
            shape_ += "' ";
        }
    }
}

} // namespace qncal::host::dialect
