#pragma once

#include "controls/Control.h"
#include "utilities/Date.h"

#include <algorithm>

namespace qncal {

/// A whole number between two bounds. A change raises Change.
class RangeControl : public Control {
public:
    using Control::Control;
    std::string valueText() const override { return std::to_string(value_); }
    std::int32_t minimum() const { return minimum_; }
    std::int32_t maximum() const { return maximum_; }
    /// The value is brought inside the new bounds.
    void bounds(std::int32_t minimum, std::int32_t maximum)
    {
        store(minimum_, minimum);
        store(maximum_, std::max(minimum, maximum));
        value(value_);
    }
    std::int32_t value() const { return value_; }
    void value(std::int32_t value)
    {
        if (store(value_, std::clamp(value, minimum_, maximum_)))
            raise(Change);
    }
    std::int32_t smallChange() const { return smallChange_; }
    void smallChange(std::int32_t step) { store(smallChange_, step); }
    std::function<void()> Change;

private:
    std::int32_t minimum_ = 0;
    std::int32_t maximum_ = 100;
    std::int32_t value_ = 0;
    std::int32_t smallChange_ = 1;
};

/// A pair of arrows beside a number. The arrows raise UpClick and DownClick besides Change.
class UpDown : public RangeControl {
public:
    using RangeControl::RangeControl;
    const char* kind() const override { return "UpDown"; }
    void up()
    {
        value(value() + smallChange());
        raise(UpClick);
    }
    void down()
    {
        value(value() - smallChange());
        raise(DownClick);
    }
    std::function<void()> UpClick;
    std::function<void()> DownClick;
};

class ScrollBar : public RangeControl {
public:
    using RangeControl::RangeControl;
    const char* kind() const override { return "ScrollBar"; }
    std::int32_t largeChange() const { return largeChange_; }
    void largeChange(std::int32_t step) { store(largeChange_, step); }
    /// While the thumb is dragged, behind each Change.
    std::function<void()> Scroll;

private:
    std::int32_t largeChange_ = 10;
};

/// A date picker or a time picker. With a check box it may hold no value.
class DateTimePicker : public Control {
public:
    enum class Format { date, time };

    using Control::Control;
    const char* kind() const override { return "DateTimePicker"; }
    std::string valueText() const override { return hasValue_ ? defaultDateText(value_) : std::string(); }

    Format format() const { return format_; }
    void format(Format format) { store(format_, format); }
    /// The pattern shown, such as "hh:nn am/pm"; the toolkit's own when empty.
    const std::string& customFormat() const { return customFormat_; }
    void customFormat(std::string pattern) { store(customFormat_, std::move(pattern)); }
    bool hasCheckBox() const { return checkBox_; }
    void checkBox(bool checkBox) { store(checkBox_, checkBox); }

    bool hasValue() const { return hasValue_; }
    const Date& value() const { return value_; }
    /// Takes a value, and checks the box where there is one.
    void value(Date value)
    {
        const bool checkedNow = store(hasValue_, true);
        if (store(value_, value) || checkedNow)
            raise(Change);
    }
    /// Unchecks the box; only for a picker that has one.
    void clearValue()
    {
        if (checkBox_ && store(hasValue_, false))
            raise(Change);
    }

    std::function<void()> Change;
    /// The calendar is about to drop down.
    std::function<void()> DropDown;
    /// The calendar that dropped down was closed.
    std::function<void()> CloseUp;

private:
    Format format_ = Format::date;
    std::string customFormat_;
    Date value_;
    bool hasValue_ = true;
    bool checkBox_ = false;
};

class ColourPicker : public Control {
public:
    using Control::Control;
    const char* kind() const override { return "ColourPicker"; }
    std::string valueText() const override { return std::to_string(colour_); }
    Colour colour() const { return colour_; }
    void colour(Colour colour)
    {
        if (store(colour_, colour))
            raise(Change);
    }
    std::function<void()> Change;

private:
    Colour colour_ = 0;
};

} // namespace qncal
