#include "controls/listControls.h"

#include "utilities/codePoints.h"
#include "utilities/text.h"
#include "utilities/utf8.h"

#include <algorithm>
#include <utility>

namespace qncal {

void RowList::addItem(std::string text, std::int32_t itemData) { insertItem(listCount(), std::move(text), itemData); }

void RowList::insertItem(std::int32_t index, std::string text, std::int32_t itemData)
{
    index = std::clamp(index, 0, listCount());
    rows_.insert(rows_.begin() + index, {std::move(text), itemData});
    if (listIndex_ >= index)
        ++listIndex_;
    updated.raise();
}

void RowList::removeItem(std::int32_t index)
{
    if (index < 0 || index >= listCount())
        return;
    rows_.erase(rows_.begin() + index);
    const bool wasSelected = listIndex_ == index;
    if (wasSelected)
        listIndex_ = -1;
    else if (listIndex_ > index)
        --listIndex_;
    updated.raise();
    if (wasSelected)
        selectionChanged();
}

void RowList::clear()
{
    const bool wasSelected = std::exchange(listIndex_, -1) >= 0;
    if (!rows_.empty()) {
        rows_.clear();
        updated.raise();
    }
    cleared();
    if (wasSelected)
        raise(Click);
}

std::int32_t RowList::itemData(std::int32_t index) const
{
    return index >= 0 && index < listCount() ? rows_[static_cast<std::size_t>(index)].itemData : -1;
}

std::string RowList::list(std::int32_t index) const
{
    return index >= 0 && index < listCount() ? rows_[static_cast<std::size_t>(index)].text : std::string();
}

void RowList::listIndex(std::int32_t index)
{
    if (index < 0 || index >= listCount())
        index = -1;
    if (store(listIndex_, index))
        selectionChanged();
}

void RowList::selectionChanged()
{
    rowSelected();
    raise(Click);
}

bool RowList::selectItemData(std::int32_t itemData)
{
    const auto found =
        std::find_if(rows_.begin(), rows_.end(), [=](const ListRow& row) { return row.itemData == itemData; });
    listIndex(found == rows_.end() ? -1 : static_cast<std::int32_t>(found - rows_.begin()));
    return found != rows_.end();
}

void ComboBox::text(std::string text)
{
    const std::int32_t row = rowReading(text);
    // Both are in place before either event.
    const bool textChanged = takeText(editable_ ? std::move(text) : list(row));
    const bool rowChanged = storeIndex(row);
    if (textChanged) {
        updated.raise();
        raise(Change);
    }
    // That no row is selected any more is told by Change: nothing was clicked.
    if (rowChanged && row >= 0)
        raiseClick();
}

std::int32_t ComboBox::rowReading(const std::string& text) const
{
    if (listIndex() >= 0 && list(listIndex()) == text)
        return listIndex();
    const auto found = std::find_if(rows().begin(), rows().end(), [&](const ListRow& row) { return row.text == text; });
    return found == rows().end() ? -1 : static_cast<std::int32_t>(found - rows().begin());
}

void ComboBox::pick(std::int32_t index)
{
    if (index < 0 || index >= listCount())
        return;
    if (index == listIndex())
        raiseClick();
    else
        listIndex(index);
}

void ComboBox::autoComplete(std::string typed)
{
    const auto typedLength = static_cast<std::int32_t>(countCodePoints(typed));
    for (std::int32_t index = 0; index < listCount() && !typed.empty(); ++index) {
        const std::string& row = rows()[static_cast<std::size_t>(index)].text;
        if (row.size() < typed.size() || !equalsNoCase(std::string_view(row).substr(0, typed.size()), typed))
            continue;
        text(row);
        select(typedLength, static_cast<std::int32_t>(countCodePoints(row)) - typedLength);
        return;
    }
    text(std::move(typed));
    select(typedLength, 0);
}

void ComboBox::autoCompleteKey(std::int32_t& keyAscii)
{
    constexpr std::int32_t firstPrintable = 32;
    if (keyAscii < firstPrintable || selStart_ + selLength_ < static_cast<std::int32_t>(countCodePoints(text_)))
        return;
    std::string typed = text_;
    if (selLength_ > 0)
        typed = truncatedToCodePoints(text_, static_cast<std::size_t>(selStart_));
    appendUtf8(typed, static_cast<char32_t>(keyAscii));
    keyAscii = 0;
    autoComplete(std::move(typed));
}

void ComboBox::select(std::int32_t start, std::int32_t length)
{
    if (selStart_ == start && selLength_ == length)
        return;
    selStart_ = start;
    selLength_ = length;
    updated.raise();
}

void ComboBox::rowSelected()
{
    // What was typed stays when no row is selected any more.
    if (listIndex() >= 0 || !editable_)
        showText(list(listIndex()));
}

void ComboBox::cleared() { showText({}); }

void ComboBox::showText(std::string text)
{
    if (!takeText(std::move(text)))
        return;
    updated.raise();
    raise(Change);
}

bool ComboBox::takeText(std::string text)
{
    if (text_ == text)
        return false;
    selStart_ = static_cast<std::int32_t>(countCodePoints(text));
    selLength_ = 0;
    text_ = std::move(text);
    return true;
}

} // namespace qncal
