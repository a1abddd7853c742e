#pragma once

#include "controls/Control.h"

#include <string_view>

namespace qncal {

/// A text with formats, held as a rich-text stream. Positions count characters of the visible text from 0.
class RichTextBox : public Control {
public:
    using Control::Control;
    const char* kind() const override { return "RichTextBox"; }
    std::string valueText() const override { return text(); }

    /// The stream as it was set or edited; empty when nothing was. A plain text is taken as it stands.
    const std::string& textRTF() const { return textRTF_; }
    void textRTF(std::string richText)
    {
        if (store(textRTF_, std::move(richText)))
            raise(Change);
    }
    /// The visible text, paragraphs ended by line feeds.
    std::string text() const;

    /// The caret, or the start of the selection.
    std::int32_t selStart() const { return selStart_; }
    void selStart(std::int32_t position) { store(selStart_, position); }
    std::int32_t selLength() const { return selLength_; }
    void selLength(std::int32_t length) { store(selLength_, length); }
    /// Puts plain text before the character at that position, in the format found there, and the caret behind it.
    void insertText(std::int32_t position, std::string_view plainText);

    bool isReadOnly() const { return readOnly_; }
    void readOnly(bool readOnly) { store(readOnly_, readOnly); }
    /// Sends the text to a printer; False when there is none or the user cancelled.
    bool print() const;

    std::function<void()> Change;

private:
    std::string textRTF_;
    std::int32_t selStart_ = 0;
    std::int32_t selLength_ = 0;
    bool readOnly_ = false;
};

} // namespace qncal
