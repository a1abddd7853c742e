#include "templates/fieldSubstitution.h"

#include "templates/dateFormatKeywords.h"
#include "templates/richTextReplacement.h"
#include "utilities/replaceText.h"
#include "utilities/text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <memory_resource>
#include <vector>

namespace qncal {

namespace {

constexpr auto npos = std::string_view::npos;

/// The turn of a row, and within a date row of a keyword, in the walk over the list.
using Turn = std::int64_t;
constexpr Turn turnsOfRow = 16;
constexpr std::size_t usualExpressions = 32;
constexpr Turn noTurn = std::numeric_limits<Turn>::max();
static_assert(dateFormatKeywords.size() <= turnsOfRow);

Turn turnOf(std::int32_t position, std::size_t keyword = 0)
{
    return position * turnsOfRow + static_cast<Turn>(keyword);
}
std::int32_t positionOf(Turn turn) { return static_cast<std::int32_t>(turn / turnsOfRow); }
std::size_t keywordOf(Turn turn) { return static_cast<std::size_t>(turn % turnsOfRow); }

bool endsWithNoCase(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && equalsNoCase(text.substr(text.size() - end.size()), end);
}

/// An expression in the text whose turn is still to come.
struct Expression {
    std::size_t begin;
    std::size_t end; ///< past the closing delimiter
    Turn turn;
    std::int32_t value = -1; ///< which value takes its place; -1 while it stays
};

/// All expressions of one turn, as a range of indices in the order of the text.
struct Group {
    Turn turn;
    std::size_t first;
    std::size_t last;
};

constexpr std::size_t bytesOfUsualPass =
    usualExpressions * (sizeof(Expression) + sizeof(std::uint32_t) + sizeof(Group) + sizeof(std::string));

/// Rather than search the text for every row of the list, a round finds the expressions that stand in the text
/// and takes them in the order of their rows. A round ends early where a replacement may have made an expression
/// that was not there before; the next one looks at the text again, from the row after.
class Pass {
public:
    Pass(std::string& text, const DelimiterPair& pair, FieldListCollection& list, bool blankBefore,
         const FieldValueSource& valueOf)
        : text_(text), pair_(pair), list_(list), blankBefore_(blankBefore), valueOf_(valueOf)
    {
        expressions_.reserve(usualExpressions);
        byTurn_.reserve(usualExpressions);
        groups_.reserve(usualExpressions);
        values_.reserve(usualExpressions);
    }

    bool run()
    {
        for (Turn from = 0; from != noTurn;)
            from = round(from);
        return replaced_;
    }

private:
    Turn round(Turn from);
    void findExpressions(Turn from);
    void groupExpressions();
    Turn nextTurn(std::string_view content, Turn from) const;
    Turn nextRowWithDelimiterInName(Turn from) const;
    bool hasType(std::int32_t position, bool date) const;

    std::optional<std::string> valueAt(Turn turn) const;
    void postpone(std::size_t groupIndex);
    char characterBefore(std::size_t expressionIndex) const;
    bool mayMakeExpression(std::string_view value) const;
    void apply();
    Turn mergeRowDirectly(Turn turn);

    std::string& text_;
    const DelimiterPair& pair_;
    FieldListCollection& list_;
    const bool blankBefore_;
    const FieldValueSource& valueOf_;
    bool replaced_ = false;

    /// Room on the stack for the expressions of a usual template: a merge then allocates for its texts alone.
    std::array<std::byte, bytesOfUsualPass> room_;
    std::pmr::monotonic_buffer_resource memory_{room_.data(), room_.size()};
    std::pmr::vector<Expression> expressions_{&memory_};
    std::pmr::vector<std::uint32_t> byTurn_{&memory_};
    std::pmr::vector<Group> groups_{&memory_};
    std::pmr::vector<std::string> values_{&memory_};
    /// Taking an expression out may join what stands around it to a new one.
    bool fragile_ = false;
};

Turn Pass::round(Turn from)
{
    const Turn irregular = nextRowWithDelimiterInName(from);
    findExpressions(from);
    groupExpressions();
    values_.clear();
    Turn next = noTurn;
    for (std::size_t i = 0; i < groups_.size() && groups_[i].turn < irregular; ++i) {
        std::optional<std::string> value = valueAt(groups_[i].turn);
        if (!value) {
            postpone(i);
            continue;
        }
        if (blankBefore_ && needsBlankAfter(characterBefore(byTurn_[groups_[i].first])))
            value->insert(0, 1, ' ');
        const bool lookAgain = fragile_ || mayMakeExpression(*value);
        for (std::size_t member = groups_[i].first; member < groups_[i].last; ++member)
            expressions_[byTurn_[member]].value = static_cast<std::int32_t>(values_.size());
        values_.push_back(std::move(*value));
        if (lookAgain) {
            next = groups_[i].turn + 1;
            break;
        }
    }
    apply();
    if (next == noTurn && irregular != noTurn)
        return mergeRowDirectly(irregular);
    return next;
}

void Pass::findExpressions(Turn from)
{
    expressions_.clear();
    fragile_ = false;
    std::size_t opened = npos;
    bool strayOpen = false;
    for (DelimiterPosition half = findDelimiter(text_, pair_, 0); half.at != npos;
         half = findDelimiter(text_, pair_, half.at + pair_.open.size())) {
        if (half.isOpen) {
            strayOpen = strayOpen || opened != npos;
            opened = half.at;
            continue;
        }
        if (opened == npos) {
            // What stands between a stray opening and a stray closing delimiter may become a name.
            fragile_ = fragile_ || strayOpen;
            continue;
        }
        const std::size_t name = opened + pair_.open.size();
        const Turn turn = nextTurn(std::string_view(text_).substr(name, half.at - name), from);
        if (turn != noTurn) {
            expressions_.push_back({opened, half.at + pair_.close.size(), turn});
            fragile_ = fragile_ || endsWithinDelimiter(std::string_view(text_).substr(0, opened), pair_);
        }
        opened = npos;
    }
}

void Pass::groupExpressions()
{
    byTurn_.resize(expressions_.size());
    for (std::uint32_t i = 0; i < byTurn_.size(); ++i)
        byTurn_[i] = i;
    std::sort(byTurn_.begin(), byTurn_.end(), [this](std::uint32_t a, std::uint32_t b) {
        return expressions_[a].turn != expressions_[b].turn ? expressions_[a].turn < expressions_[b].turn : a < b;
    });
    groups_.clear();
    for (std::size_t i = 0; i < byTurn_.size(); ++i) {
        const Turn turn = expressions_[byTurn_[i]].turn;
        if (groups_.empty() || groups_.back().turn != turn)
            groups_.push_back({turn, i, i});
        groups_.back().last = i + 1;
    }
}

/// The first turn at or after `from` that merges an expression of this content.
Turn Pass::nextTurn(std::string_view content, Turn from) const
{
    const auto firstRow = [&](std::string_view name, Turn earliest, bool date) {
        auto row = list_.positionOfDisplayName(name, positionOf(earliest));
        while (row >= 0 && !hasType(row, date))
            row = list_.positionOfDisplayName(name, row + 1);
        return row;
    };
    Turn turn = noTurn;
    if (const auto row = firstRow(content, from + turnsOfRow - 1, false); row >= 0)
        turn = turnOf(row);
    if (content.size() < 2 || content.front() != '(' || content.back() != ')')
        return turn;
    const std::string_view inner = content.substr(1, content.size() - 2);
    for (std::size_t i = 0; i < dateFormatKeywords.size(); ++i) {
        const std::string_view keyword = dateFormatKeywords[i].keyword;
        if (!endsWithNoCase(inner, keyword) || !inner.substr(0, inner.size() - keyword.size()).ends_with(", "))
            continue;
        const std::string_view name = inner.substr(0, inner.size() - keyword.size() - 2);
        const Turn earliest = keywordOf(from) > i ? from + turnsOfRow : from;
        if (const auto row = firstRow(name, earliest, true); row >= 0)
            turn = std::min(turn, turnOf(row, i));
    }
    return turn;
}

bool Pass::hasType(std::int32_t position, bool date) const
{
    return (list_.rows()[static_cast<std::size_t>(position)].dataType == MergeDataType::date) == date;
}

/// A name that holds a delimiter of its own, as a firm's label may, is not found between two of them.
Turn Pass::nextRowWithDelimiterInName(Turn from) const
{
    if (!list_.displayNamesHold(pair_.open.front()))
        return noTurn;
    const auto rows = list_.rows();
    for (auto i = static_cast<std::size_t>(positionOf(from + turnsOfRow - 1)); i < rows.size(); ++i) {
        if (findDelimiter(rows[i].displayName.view(), pair_, 0).at != npos)
            return turnOf(static_cast<std::int32_t>(i));
    }
    return noTurn;
}

std::optional<std::string> Pass::valueAt(Turn turn) const
{
    const std::int32_t position = positionOf(turn);
    if (position >= list_.getCount()) // an event that ran meanwhile has rebuilt the list
        return std::nullopt;
    return valueOf_(position, hasType(position, true) ? std::string(dateFormatKeywords[keywordOf(turn)].fieldFormat)
                                                      : std::string());
}

/// The row has no value: a later row of the same name gets its turn.
void Pass::postpone(std::size_t groupIndex)
{
    Group group = groups_[groupIndex];
    const Expression& sample = expressions_[byTurn_[group.first]];
    const std::size_t name = sample.begin + pair_.open.size();
    const std::size_t length = sample.end - pair_.close.size() - name;
    group.turn = nextTurn(std::string_view(text_).substr(name, length), group.turn + 1);
    if (group.turn == noTurn)
        return;
    const auto place = std::upper_bound(groups_.begin() + static_cast<std::ptrdiff_t>(groupIndex) + 1, groups_.end(),
                                        group.turn, [](Turn turn, const Group& other) { return turn < other.turn; });
    groups_.insert(place, group);
}

/// The character that stands before an expression once the values of this round are in; a blank at the beginning.
char Pass::characterBefore(std::size_t expressionIndex) const
{
    std::size_t at = expressions_[expressionIndex].begin;
    for (std::size_t i = expressionIndex; i > 0 && expressions_[i - 1].end == at; --i) {
        const std::int32_t value = expressions_[i - 1].value;
        if (value < 0)
            break;
        if (const std::string& before = values_[static_cast<std::size_t>(value)]; !before.empty())
            return before.back();
        at = expressions_[i - 1].begin;
    }
    return at == 0 ? ' ' : text_[at - 1];
}

bool Pass::mayMakeExpression(std::string_view value) const
{
    // Both halves of a pair begin with the same byte, which most values do not hold.
    return value.find(pair_.open.front()) != npos
           && (findDelimiter(value, pair_, 0).at != npos || endsWithinDelimiter(value, pair_));
}

void Pass::apply()
{
    if (values_.empty())
        return;
    std::string result;
    result.reserve(text_.size());
    std::size_t copied = 0;
    for (const Expression& expression : expressions_) {
        if (expression.value < 0)
            continue;
        result.append(text_, copied, expression.begin - copied);
        result.append(values_[static_cast<std::size_t>(expression.value)]);
        copied = expression.end;
    }
    result.append(text_, copied);
    text_ = std::move(result);
    replaced_ = true;
}

Turn Pass::mergeRowDirectly(Turn turn)
{
    const std::int32_t position = positionOf(turn);
    if (position >= list_.getCount())
        return noTurn;
    const bool date = hasType(position, true);
    const std::string name = list_.rows()[static_cast<std::size_t>(position)].displayName.str();
    const std::size_t formats = date ? dateFormatKeywords.size() : 1;
    for (std::size_t i = 0; i < formats; ++i) {
        std::string wanted = date ? "(" + name + ", " + std::string(dateFormatKeywords[i].keyword) + ")" : name;
        wanted.insert(0, pair_.open).append(pair_.close);
        if (findNoCase(text_, wanted) == npos)
            continue;
        const auto value = valueAt(turnOf(position, i));
        if (!value)
            continue;
        if (blankBefore_)
            replaceInRichText(text_, wanted, *value);
        else
            replaceNoCase(text_, wanted, *value);
        replaced_ = true;
    }
    return turnOf(position + 1);
}

} // namespace

bool substituteFields(std::string& text, const DelimiterPair& pair, FieldListCollection& list, bool blankBefore,
                      const FieldValueSource& valueOf)
{
    return Pass(text, pair, list, blankBefore, valueOf).run();
}

} // namespace qncal
