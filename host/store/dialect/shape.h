#pragma once

#include "utilities/Date.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qncal::host::dialect {

/// The value of one literal of an SQL text.
struct Literal {
    enum class Kind : std::uint8_t { integer, real, text, date };
    Kind kind = Kind::integer;
    std::int64_t integer = 0;
    double real = 0;
    Date date;
    std::string text;
};

/// The literals of an SQL text in their order. Keeps the memory of longer lists for the next text.
class Literals {
public:
    void clear() { count_ = 0; }
    Literal& append();
    /// Copies without giving memory back.
    void assign(const Literals& other);

    std::size_t size() const { return count_; }
    const Literal& operator[](std::size_t index) const { return list_[index]; }

private:
    std::vector<Literal> list_; ///< the first `count_` hold
    std::size_t count_ = 0;
};

/// An SQL text taken apart into its shape, which is the text with every literal and all spacing made alike, and
/// the values of its literals. One shape is parsed and prepared once, whatever the values.
class ShapedText {
public:
    /// Throws `RunTimeError` for a text that cannot be cut into tokens or a date that is none.
    void read(std::string_view sql);

    const std::string& shape() const { return shape_; }
    const Literals& literals() const { return literals_; }

private:
    std::string shape_;
    Literals literals_;
};

} // namespace qncal::host::dialect
