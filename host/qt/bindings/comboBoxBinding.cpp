#include "controls/listControls.h"
#include "qt/bindings/ControlBinding.h"
#include "qt/bindings/bindings.h"
#include "qt/convert.h"

#include <QComboBox>
#include <QLineEdit>

#include <algorithm>

namespace qncal::host {

namespace {

class ComboBoxBinding : public BindingOf<ComboBox, QComboBox> {
public:
    ComboBoxBinding(ComboBox& control, QComboBox& widget) : BindingOf(control, widget)
    {
        widget.setInsertPolicy(QComboBox::NoInsert);
        connect(&widget, &QComboBox::activated, this, [this](int row) { fromUser([=, this] { model().pick(row); }); });
        start();
    }

protected:
    void show() override
    {
        showEditable();
        showRows();
        if (view().currentIndex() != model().listIndex())
            view().setCurrentIndex(model().listIndex());
        if (view().isEditable())
            showText();
    }

private:
    void showEditable()
    {
        if (view().isEditable() == model().isEditable())
            return;
        view().setEditable(model().isEditable());
        if (QLineEdit* edit = view().lineEdit()) {
            // Only a form that asks for it completes what is typed, through the model.
            view().setCompleter(nullptr);
            connect(edit, &QLineEdit::textEdited, this,
                    [this](const QString& text) { fromUser([&, this] { typed(text); }); });
            connect(edit, &QLineEdit::selectionChanged, this, [this] { fromUser([this] { caretMoved(); }); });
            connect(edit, &QLineEdit::cursorPositionChanged, this, [this] { fromUser([this] { caretMoved(); }); });
        }
    }

    void showRows()
    {
        QComboBox& box = view();
        const auto& rows = model().rows();
        // Long lists grow row by row: only what differs costs anything.
        const auto same = std::mismatch(rows.begin(), rows.end(), shownRows_.begin(), shownRows_.end()).first;
        while (box.count() > static_cast<int>(rows.size()))
            box.removeItem(box.count() - 1);
        for (int index = static_cast<int>(same - rows.begin()); index < static_cast<int>(rows.size()); ++index) {
            const ListRow& row = rows[static_cast<std::size_t>(index)];
            if (index == box.count())
                box.addItem({});
            box.setItemText(index, toQt(row.text));
            box.setItemData(index, row.itemData);
        }
        shownRows_ = rows;
    }

    void showText()
    {
        QLineEdit& edit = *view().lineEdit();
        const QString text = toQt(model().text());
        if (edit.text() != text)
            edit.setText(text);
        const auto start = static_cast<int>(unitsOfCharacters(text, model().selStart()));
        const auto end = static_cast<int>(unitsOfCharacters(text, model().selStart() + model().selLength()));
        if (end > start)
            edit.setSelection(start, end - start);
        else
            edit.setCursorPosition(start);
    }

    void typed(const QString& text)
    {
        const std::int32_t caret = charactersOfUnits(text, view().lineEdit()->cursorPosition());
        model().text(fromQt(text));
        // What a handler has put in its place has the caret at its end.
        if (control() && toQt(model().text()) == text)
            model().select(caret, 0);
    }

    void caretMoved()
    {
        const QLineEdit& edit = *view().lineEdit();
        const QString text = edit.text();
        if (text != toQt(model().text()))
            return;
        const int start = edit.hasSelectedText() ? edit.selectionStart() : edit.cursorPosition();
        const std::int32_t first = charactersOfUnits(text, start);
        const std::int32_t last = charactersOfUnits(text, start + edit.selectedText().size());
        takeOver([=, this] { model().select(first, last - first); });
    }

    std::vector<ListRow> shownRows_;
};

} // namespace

void bind(ComboBox& control, QComboBox& widget) { new ComboBoxBinding(control, widget); }

} // namespace qncal::host
