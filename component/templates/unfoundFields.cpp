#include "templates/unfoundFields.h"

#include "utilities/text.h"

#include <algorithm>
#include <set>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace qncal {

namespace {

constexpr auto npos = std::string_view::npos;

/// When something was removed: the number of its removal, from 0.
using Step = std::ptrdiff_t;
constexpr Step never = -1;

/// Tells pieces apart by their length and end, so that a long one need not be read to be told from others.
struct PieceHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view piece) const
    {
        constexpr std::size_t readBytes = 24;
        const std::string_view end = piece.substr(piece.size() - std::min(piece.size(), readBytes));
        return std::hash<std::string_view>{}(end) ^ piece.size();
    }
};

struct PieceEqual {
    using is_transparent = void;
    bool operator()(std::string_view a, std::string_view b) const { return a == b; }
};

/// The removal as one walk over the text.
///
/// That a piece goes everywhere tells only where expressions nest: a closing delimiter with several opening ones
/// before it may have been the end of an earlier removal that began at an inner one. So the walk keeps the pieces
/// that were removed and asks at each closing delimiter for the earliest removal that took what ends there. What
/// one removal has joined, only a later one can have taken.
class Removal {
public:
    Removal(const std::string& text, const DelimiterPair& pair) : text_(text), pair_(pair), width_(pair.open.size())
    {
        result_.reserve(text.size());
    }

    std::string run()
    {
        for (std::size_t at = 0; at < text_.size();) {
            std::size_t end = at + bytesThatCompleteDelimiter(at);
            if (end == at) {
                const std::size_t next = findDelimiter(text_, pair_, at).at;
                end = next == npos ? text_.size() : next + width_;
            }
            result_.append(text_, at, end - at);
            at = end;
            takeDelimiter();
        }
        return std::move(result_);
    }

    bool removedAnything() const { return steps_ > 0; }

private:
    /// An opening delimiter in the result, and the latest removal after it.
    struct Opening {
        std::size_t at;
        Step joinedAt;
    };
    /// A place in the result where something was removed.
    struct Cut {
        std::size_t at;
        Step step;
    };

    bool isDelimiter(std::string_view half) const
    {
        return equalsNoCase(half, pair_.open) || equalsNoCase(half, pair_.close);
    }

    /// Right after a cut, what stands before it and after it may make a delimiter.
    std::size_t bytesThatCompleteDelimiter(std::size_t at) const
    {
        if (cuts_.empty() || cuts_.back().at != result_.size())
            return 0;
        for (std::size_t before = std::min(width_ - 1, result_.size()); before > 0; --before) {
            const std::size_t after = width_ - before;
            if (isDelimiter(result_.substr(result_.size() - before).append(text_, at, after)))
                return after;
        }
        return 0;
    }

    void takeDelimiter()
    {
        if (result_.size() < width_)
            return;
        const std::size_t at = result_.size() - width_;
        const std::string_view half = std::string_view(result_).substr(at);
        if (equalsNoCase(half, pair_.open))
            openings_.push_back({at, latestCutAfter(at)});
        else if (!openings_.empty() && equalsNoCase(half, pair_.close))
            close();
    }

    Step latestCutAfter(std::size_t at) const
    {
        Step latest = never;
        for (std::size_t i = cuts_.size(); i > 0 && cuts_[i - 1].at > at; --i)
            latest = std::max(latest, cuts_[i - 1].step);
        return latest;
    }

    void close()
    {
        std::size_t opening = 0;
        Step step = openings_.size() == 1 ? removalOf(openings_[0]) : earliestRemoval(opening);
        if (step == never) {
            opening = 0;
            step = steps_++;
            const auto piece = removals_.try_emplace(result_.substr(openings_[0].at)).first;
            piece->second.push_back(step);
            lengths_.insert(piece->first.size());
        }
        cut(openings_[opening].at, step);
        openings_.resize(opening);
        if (!openings_.empty())
            openings_.back().joinedAt = std::max(openings_.back().joinedAt, step);
    }

    /// The first removal of what stands from the opening to the end of the result since it came to stand so.
    Step removalOf(const Opening& opening) const
    {
        const auto piece = removals_.find(std::string_view(result_).substr(opening.at));
        if (piece == removals_.end())
            return never;
        const auto step = std::upper_bound(piece->second.begin(), piece->second.end(), opening.joinedAt);
        return step == piece->second.end() ? never : *step;
    }

    /// The same among all openings; `which` becomes the one that it took.
    Step earliestRemoval(std::size_t& which) const
    {
        Step earliest = never;
        Step joinedAt = never;
        std::size_t i = openings_.size();
        for (const std::size_t length : lengths_) {
            if (length > result_.size())
                break;
            const std::size_t from = result_.size() - length;
            for (; i > 0 && openings_[i - 1].at >= from; --i)
                joinedAt = std::max(joinedAt, openings_[i - 1].joinedAt);
            if (i == openings_.size() || openings_[i].at != from)
                continue;
            const Step step = removalOf({from, joinedAt});
            if (step != never && (earliest == never || step < earliest)) {
                earliest = step;
                which = i;
            }
        }
        return earliest;
    }

    void cut(std::size_t from, Step step)
    {
        result_.resize(from);
        for (; !cuts_.empty() && cuts_.back().at >= from; cuts_.pop_back()) {
            if (cuts_.back().at == from)
                step = std::max(step, cuts_.back().step);
        }
        cuts_.push_back({from, step});
    }

    const std::string& text_;
    const DelimiterPair& pair_;
    const std::size_t width_;
    std::string result_;
    std::vector<Opening> openings_;
    std::vector<Cut> cuts_;
    std::unordered_map<std::string, std::vector<Step>, PieceHash, PieceEqual> removals_;
    std::set<std::size_t> lengths_;
    Step steps_ = 0;
};

} // namespace

bool removeExpressions(std::string& text, const DelimiterPair& pair)
{
    if (findDelimiter(text, pair, 0).at == npos)
        return false;
    Removal removal(text, pair);
    std::string result = removal.run();
    if (removal.removedAnything())
        text = std::move(result);
    return removal.removedAnything();
}

} // namespace qncal
