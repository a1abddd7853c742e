#include "controls/listControls.h"
#include "qt/bindings/ControlBinding.h"
#include "qt/bindings/bindings.h"
#include "qt/convert.h"

#include <QComboBox>
#include <QLineEdit>

namespace qncal::host {

namespace {

class ComboBoxBinding : public BindingOf<ComboBox, QComboBox> {
public:
    ComboBoxBinding(ComboBox& control, QComboBox& widget) : BindingOf(control, widget)
    {
        widget.setInsertPolicy(QComboBox::NoInsert);
        connect(&widget, &QComboBox::activated, this, [this](int row) { fromUser([=, this] { picked(row); }); });
        connect(&widget, &QComboBox::editTextChanged, this,
                [this](const QString& text) { fromUser([&, this] { typed(text); }); });
        start();
    }

protected:
    void show() override
    {
        QComboBox& box = view();
        if (box.isEditable() != model().isEditable()) {
            box.setEditable(model().isEditable());
            // The model completes what is typed.
            box.setCompleter(nullptr);
        }
        showRows();
        if (box.currentIndex() != model().listIndex())
            box.setCurrentIndex(model().listIndex());
        if (box.isEditable())
            showText(toQt(model().text()));
    }

private:
    void showRows()
    {
        QComboBox& box = view();
        const auto& rows = model().rows();
        const int count = static_cast<int>(rows.size());
        while (box.count() > count)
            box.removeItem(box.count() - 1);
        for (int index = 0; index < count; ++index) {
            const ListRow& row = rows[static_cast<std::size_t>(index)];
            if (index == box.count())
                box.addItem({});
            if (const QString text = toQt(row.text); box.itemText(index) != text)
                box.setItemText(index, text);
            box.setItemData(index, row.itemData);
        }
    }

    /// What code completes behind the caret stays selected, so that the next key replaces it.
    void showText(const QString& text)
    {
        QLineEdit& edit = *view().lineEdit();
        const QString shown = edit.text();
        if (shown == text)
            return;
        const QString kept = shown.left(edit.cursorPosition()) + pending_;
        edit.setText(text);
        if (edit.hasFocus() && !kept.isEmpty() && text.startsWith(kept, Qt::CaseInsensitive))
            edit.setSelection(static_cast<int>(text.size()), static_cast<int>(kept.size() - text.size()));
    }

    void picked(int row)
    {
        model().listIndex(row);
        // The row was selected already while another text stood in the box.
        if (control() && model().isEditable() && row == model().listIndex())
            model().text(model().list(row));
    }

    void typed(const QString& text)
    {
        const QLineEdit& edit = *view().lineEdit();
        const QString before = toQt(model().text());
        const bool grewAtEnd = edit.cursorPosition() == text.size() && text.size() > lastTyped_.size()
                               && text.startsWith(lastTyped_) && !text.isEmpty();
        lastTyped_ = text;
        if (grewAtEnd)
            model().autoComplete(fromQt(text));
        else
            model().text(fromQt(text));
    }

    QString lastTyped_;
    QString pending_;
};

} // namespace

void bind(ComboBox& control, QComboBox& widget) { new ComboBoxBinding(control, widget); }

} // namespace qncal::host
