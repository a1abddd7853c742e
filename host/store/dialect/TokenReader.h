#pragma once

#include "store/dialect/Lexer.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace qncal::host::dialect {

/// The token at hand of an SQL text: what it is, and the step to the next one. `accept...` steps when the token is the
/// one named, `expect...` fails when it is not. Words match without regard to case.
class TokenReader {
public:
    explicit TokenReader(std::string_view sql);

    const Token& token() const { return token_; }
    void advance();
    /// How many literals stand before the token at hand.
    std::size_t literalsBefore() const { return literals_; }

    bool isWord(std::string_view word) const;
    bool isSymbol(std::string_view symbol) const;
    /// True for a name in brackets and for a bare word that is not reserved.
    bool isName() const;

    bool acceptWord(std::string_view word);
    bool acceptSymbol(std::string_view symbol);

    void expectWord(const std::string& word);
    void expectSymbol(const std::string& symbol);
    std::string expectName(const char* what);
    /// After a point even a reserved word is a name.
    std::string expectColumnName();
    std::int64_t expectWholeNumber();

    /// Throws `RunTimeError` about the token at hand, or about a place.
    [[noreturn]] void fail(const std::string& what) const { failAt(token_.offset, what); }
    [[noreturn]] void failAt(std::size_t offset, const std::string& what) const { dialect::failAt(sql_, offset, what); }

    /// Guards the recursion of expressions and joins: fails when they are nested too deeply for the stack.
    class Nesting {
    public:
        explicit Nesting(TokenReader& reader);
        ~Nesting() { --reader_.nesting_; }
        Nesting(const Nesting&) = delete;
        Nesting& operator=(const Nesting&) = delete;

    private:
        TokenReader& reader_;
    };

private:
    std::string takeBody();

    std::string_view sql_;
    Lexer lexer_;
    Token token_;
    std::size_t literals_ = 0;
    int nesting_ = 0;
};

} // namespace qncal::host::dialect
