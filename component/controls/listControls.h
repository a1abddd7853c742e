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
    /// Removing the selected row, by either, selects none.
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
    /// Called after another row was selected, or none, before Click.
    virtual void rowSelected() {}
    /// Called after the last row was taken by `clear`.
    virtual void cleared() {}
    /// Selects without an event; True when another row was selected before.
    bool storeIndex(std::int32_t index) { return store(listIndex_, index); }
    void raiseClick() const { raise(Click); }

private:
    void selectionChanged();

    std::vector<ListRow> rows_;
    std::int32_t listIndex_ = -1;
};

class ListBox : public RowList {
public:
    using RowList::RowList;
    const char* kind() const override { return "ListBox"; }
    std::string valueText() const override { return list(listIndex()); }
};

/// A list with a text. An editable one takes any text; otherwise the text is that of the selected row. In both the
/// text decides what is selected: a row that reads so, or none.
class ComboBox : public RowList {
public:
    using RowList::RowList;
    const char* kind() const override { return "ComboBox"; }
    std::string valueText() const override { return text_; }

    const std::string& text() const { return text_; }
    /// Sets the text and selects the first row that reads so, none when there is none; a selected row that reads so
    /// already stays. A fixed box is left without a text when no row reads so. A change of the text raises Change, a
    /// row that comes to be selected Click.
    void text(std::string text);
    /// What a user does who picks a row from the open list: selects it, and raises Click even when it was the selected
    /// one already. An index outside of the list is ignored.
    void pick(std::int32_t index);
    bool isEditable() const { return editable_; }
    void editable(bool editable) { store(editable_, editable); }
    /// What the user typed: the text is completed from the first row that begins with it, without regard to
    /// case, and the completion is marked, so that the next key replaces it. That row is selected.
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
    void cleared() override;

private:
    std::int32_t rowReading(const std::string& text) const;
    /// The text alone, with the caret at its end; True when it was another one.
    bool takeText(std::string text);
    void showText(std::string text);

    std::string text_;
    std::int32_t selStart_ = 0;
    std::int32_t selLength_ = 0;
    bool editable_ = true;
};

} // namespace qncal
