#pragma once

#include "controls/Control.h"

namespace qncal {

/// Plain text, one line or many. Positions count characters (code points) from 0.
class TextBox : public Control {
public:
    using Control::Control;
    const char* kind() const override { return "TextBox"; }
    std::string valueText() const override { return text_; }

    const std::string& text() const { return text_; }
    void text(std::string text)
    {
        if (store(text_, std::move(text)))
            raise(Change);
    }
    /// The most characters that a user can type; 0 for no limit. Code may set more.
    std::int32_t maxLength() const { return maxLength_; }
    void maxLength(std::int32_t characters) { store(maxLength_, characters); }
    bool isReadOnly() const { return readOnly_; }
    void readOnly(bool readOnly) { store(readOnly_, readOnly); }
    bool isMultiLine() const { return multiLine_; }
    void multiLine(bool multiLine) { store(multiLine_, multiLine); }
    std::int32_t selStart() const { return selStart_; }
    void selStart(std::int32_t position) { store(selStart_, position); }
    std::int32_t selLength() const { return selLength_; }
    void selLength(std::int32_t length) { store(selLength_, length); }

    std::function<void()> Change;
    std::function<void()> DblClick;

private:
    std::string text_;
    std::int32_t maxLength_ = 0;
    std::int32_t selStart_ = 0;
    std::int32_t selLength_ = 0;
    bool readOnly_ = false;
    bool multiLine_ = false;
};

} // namespace qncal
