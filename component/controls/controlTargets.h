#pragma once

#include "controls/ListTarget.h"
#include "controls/RichTextBox.h"
#include "controls/RichTextTarget.h"
#include "controls/listControls.h"

namespace qncal {

/// A list box of a dialog as a target. The dialog keeps the control, which outlives the target.
class ListBoxTarget : public ListTarget {
public:
    explicit ListBoxTarget(ListBox& listBox) : listBox_(listBox) {}
    void addLine(std::string_view text, std::int32_t itemData) override
    {
        listBox_.addItem(std::string(text), itemData);
    }
    void clear() override { listBox_.clear(); }
    /// A control model shows each change at once.
    void refresh() override {}

private:
    ListBox& listBox_;
};

/// A rich text box of a dialog as a target. The dialog keeps the control, which outlives the target.
class RichTextBoxTarget : public RichTextTarget {
public:
    explicit RichTextBoxTarget(RichTextBox& richTextBox) : richTextBox_(richTextBox) {}
    Variant SelStart() const override { return richTextBox_.selStart(); }
    void insertText(std::string_view text, std::int32_t position) override { richTextBox_.insertText(position, text); }

private:
    RichTextBox& richTextBox_;
};

} // namespace qncal
