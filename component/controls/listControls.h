#pragma once

#include "controls/Control.h"

#include <string>
#include <vector>

namespace qncal {

/// A line of a list with the number that code keeps behind it.
struct ListRow {
    std::string text;
    std::int32_t itemData = 0;
    friend bool operator==(const ListRow&, const ListRow&) = default;
};

/// Rows with one selected, none at -1. Shared by list box and combo box.
class RowList : public Control {
public:
    using Control::Control;

    const std::vector<ListRow>& rows() const { return rows_; }
    std::int32_t listCount() const { return static_cast<std::int32_t>(rows_.size()); }
    void addItem(std::string text, std::int32_t itemData = 0);
    /// Inserts before the row of that index.
    void insertItem(std::int32_t index, std::string text, std::int32_t itemData = 0);
    void removeItem(std::int32_t index);
    void clear();
    /// -1 when the index is outside of the list.
    std::int32_t itemData(std::int32_t index) const;
    std::string list(std::int32_t index) const;

    std::int32_t listIndex() const { return listIndex_; }
    /// Selects a row; any index outside of the list selects none. A change raises Click.
    void listIndex(std::int32_t index);
    /// The row's number of the selected row, -1 when none is selected.
    std::int32_t selectedItemData() const { return itemData(listIndex_); }
    /// Selects the first row with that number; none and False when there is no such row.
    bool selectItemData(std::int32_t itemData);

    std::function<void()> Click;
    std::function<void()> DblClick;

protected:
    /// Called after another row was selected, before Click.
    virtual void rowSelected() {}

private:
    std::vector<ListRow> rows_;
    std::int32_t listIndex_ = -1;
};

class ListBox : public RowList {
public:
    using RowList::RowList;
    const char* kind() const override { return "ListBox"; }
    std::string valueText() const override { return list(listIndex()); }
};

/// A list with a text. An editable one takes any text; otherwise the text is that of the selected row.
class ComboBox : public RowList {
public:
    using RowList::RowList;
    const char* kind() const override { return "ComboBox"; }
    std::string valueText() const override { return text_; }

    const std::string& text() const { return text_; }
    /// Sets the text. An editable box takes any, a fixed one only that of a row, which it selects.
    void text(std::string text);
    bool isEditable() const { return editable_; }
    void editable(bool editable) { store(editable_, editable); }
    /// What the user typed: the text is completed from the first row that begins with it, without regard to
    /// case, and the completion is marked as selected, so that the next key replaces it. The row itself is not
    /// selected until the typed text is all of it.
    void autoComplete(std::string typed);
    /// For a KeyPress event: types the character into the text and completes it. A character taken becomes 0;
    /// control characters, and any with the caret inside of the text, are left to the toolkit.
    void autoCompleteKey(std::int32_t& keyAscii);
    /// The caret, or the marked part of the text, in characters: what was completed or what the user marked.
    std::int32_t selStart() const { return selStart_; }
    std::int32_t selLength() const { return selLength_; }
    void select(std::int32_t start, std::int32_t length);

    std::function<void()> Change;

protected:
    void rowSelected() override;

private:
    void caretToEndOf(std::string_view text);

    std::string text_;
    std::int32_t selStart_ = 0;
    std::int32_t selLength_ = 0;
    bool editable_ = true;
};

} // namespace qncal
