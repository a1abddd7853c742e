#pragma once

#include "controls/Control.h"

#include <memory>
#include <string>
#include <vector>

namespace qncal {

/// Controls of one name, told apart by an index that need not start at 0.
template <class ControlType>
class ControlArray {
public:
    ControlArray(Form& form, const std::string& name, int lowerBound, int upperBound) : lowerBound_(lowerBound)
    {
        for (int index = lowerBound; index <= upperBound; ++index)
            controls_.push_back(std::make_unique<ControlType>(form, name, index));
    }

    int lowerBound() const { return lowerBound_; }
    int upperBound() const { return lowerBound_ + static_cast<int>(controls_.size()) - 1; }

    ControlType& operator()(int index) { return *controls_.at(static_cast<std::size_t>(index - lowerBound_)); }
    const ControlType& operator()(int index) const
    {
        return *controls_.at(static_cast<std::size_t>(index - lowerBound_));
    }

    /// Hands every control with its index to the function.
    template <class Function>
    void forEach(Function function)
    {
        for (int index = lowerBound_; index <= upperBound(); ++index)
            function((*this)(index), index);
    }

private:
    int lowerBound_;
    std::vector<std::unique_ptr<ControlType>> controls_;
};

} // namespace qncal
