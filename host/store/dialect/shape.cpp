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

void ShapedText::read(std::string_view sql)
{
    shape_.clear();
    count_ = 0;
    Lexer lexer(sql);
    for (Token token = lexer.next(); token.kind != TokenKind::end; token = lexer.next()) {
        if (!token.isLiteral()) {
            shape_.append(token.whole);
            shape_ += ' ';
            continue;
        }
        if (count_ == literals_.size())
            literals_.emplace_back();
        Literal& literal = literals_[count_++];
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
