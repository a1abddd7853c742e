#pragma once

#include "controls/ListTarget.h"
#include "controls/ListView.h"
#include "controls/RichTextBox.h"
#include "controls/RichTextTarget.h"
#include "controls/listControls.h"

namespace qncal {

/// A list box or combo box of a dialog as a target. The dialog keeps the control, which outlives the target.
class RowListTarget : public ListTarget {
public:
    explicit RowListTarget(RowList& list) : list_(list) {}
    void addLine(std::string_view text, std::int32_t itemData) override { list_.addItem(std::string(text), itemData); }
    void clear() override { list_.clear(); }
    /// A control model shows each change at once.
    void refresh() override {}

private:
    RowList& list_;
};

/// The first column of a list view as a target, as above.
class ListViewTarget : public ListTarget {
public:
    explicit ListViewTarget(ListView& list) : list_(list) {}
    void addLine(std::string_view text, std::int32_t itemData) override
    {
        list_.addRow({{std::string(text)}, itemData, false});
    }
    void clear() override { list_.clear(); }
    void refresh() override {}

private:
    ListView& list_;
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
