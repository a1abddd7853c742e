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

/// An SQL text taken apart into its shape, which is the text with every literal and all spacing made alike, and
/// the values of its literals. One shape is parsed and prepared once, whatever the values.
class ShapedText {
public:
    /// Throws `RunTimeError` for a text that cannot be cut into tokens or a date that is none.
    void read(std::string_view sql);

    const std::string& shape() const { return shape_; }
    std::size_t literalCount() const { return count_; }
    const Literal& literal(std::size_t index) const { return literals_[index]; }

private:
    std::string shape_;
    std::vector<Literal> literals_; ///< the first `count_` hold; the others keep their memory for the next text
    std::size_t count_ = 0;
};

} // namespace qncal::host::dialect
