#include "controls/TextBox.h"
#include "qt/bindings/ControlBinding.h"
#include "qt/bindings/bindings.h"
#include "qt/convert.h"

#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>

#include <limits>

namespace qncal::host {

namespace {

/// A selection in 16-bit units; the caret stands at its end.
struct Selection {
    qsizetype start = 0;
    qsizetype length = 0;
    friend bool operator==(const Selection&, const Selection&) = default;
};

QString textOf(const QLineEdit& edit) { return edit.text(); }
QString textOf(const QPlainTextEdit& edit) { return edit.toPlainText(); }

void setText(QLineEdit& edit, const QString& text) { edit.setText(text); }
void setText(QPlainTextEdit& edit, const QString& text) { edit.setPlainText(text); }

Selection selectionOf(const QLineEdit& edit)
{
    if (edit.hasSelectedText())
        return {edit.selectionStart(), edit.selectedText().size()};
    return {edit.cursorPosition(), 0};
}
Selection selectionOf(const QPlainTextEdit& edit)
{
    const QTextCursor cursor = edit.textCursor();
    return {cursor.selectionStart(), cursor.selectionEnd() - cursor.selectionStart()};
}

void select(QLineEdit& edit, Selection selection)
{
    if (selection.length > 0)
        edit.setSelection(static_cast<int>(selection.start), static_cast<int>(selection.length));
    else
        edit.setCursorPosition(static_cast<int>(selection.start));
}
void select(QPlainTextEdit& edit, Selection selection)
{
    QTextCursor cursor = edit.textCursor();
    cursor.setPosition(static_cast<int>(selection.start));
    cursor.setPosition(static_cast<int>(selection.start + selection.length), QTextCursor::KeepAnchor);
    edit.setTextCursor(cursor);
}

template <class Edit>
class TextBoxBinding : public BindingOf<TextBox, Edit> {
public:
    TextBoxBinding(TextBox& control, Edit& widget) : BindingOf<TextBox, Edit>(control, widget)
    {
        if constexpr (std::is_same_v<Edit, QLineEdit>) {
            widget.setMaxLength(std::numeric_limits<int>::max());
        } else {
            widget.setTabChangesFocus(true);
            this->watch(*widget.viewport());
        }
        QObject::connect(&widget, &Edit::textChanged, this, [this] { this->fromUser([this] { edited(); }); });
        QObject::connect(&widget, &Edit::selectionChanged, this, [this] { this->fromUser([this] { caretMoved(); }); });
        QObject::connect(&widget, &Edit::cursorPositionChanged, this,
                         [this] { this->fromUser([this] { caretMoved(); }); });
        this->start();
    }

protected:
    void show() override
    {
        const TextBox& box = this->model();
        Edit& edit = this->view();
        QString text = toQt(box.text());
        if constexpr (std::is_same_v<Edit, QPlainTextEdit>)
            text.replace("\r\n", "\n");
        if (textOf(edit) != text)
            setText(edit, text);
        edit.setReadOnly(box.isReadOnly());
        const qsizetype begin = unitsOfCharacters(text, box.selStart());
        const qsizetype end = unitsOfCharacters(text, box.selStart() + box.selLength());
        if (const Selection wanted{begin, end - begin}; selectionOf(edit) != wanted)
            select(edit, wanted);
    }

    void doubleClicked() override
    {
        if (this->model().DblClick)
            this->model().DblClick();
    }

private:
    void edited()
    {
        cutToLimit();
        takeSelectionOver();
        QString text = textOf(this->view());
        // A text keeps the line ends that it came with.
        if (this->model().text().find("\r\n") != std::string::npos)
            text.replace("\n", "\r\n");
        this->model().text(fromQt(text));
    }

    void caretMoved()
    {
        // The caret moves before the text is told to have changed.
        if (charactersOfUnits(textOf(this->view()), std::numeric_limits<qsizetype>::max())
            == charactersOfUnits(toQt(this->model().text()), std::numeric_limits<qsizetype>::max()))
            takeSelectionOver();
    }

    void takeSelectionOver()
    {
        this->takeOver([this] {
            const QString text = textOf(this->view());
            const Selection selection = selectionOf(this->view());
            const std::int32_t start = charactersOfUnits(text, selection.start);
            this->model().selStart(start);
            this->model().selLength(charactersOfUnits(text, selection.start + selection.length) - start);
        });
    }

    /// Takes out of what was typed or pasted before the caret as much as there is no room for. A text that code
    /// has made longer may stay and be shortened.
    void cutToLimit()
    {
        const std::int32_t limit = this->model().maxLength();
        QString text = textOf(this->view());
        constexpr auto all = std::numeric_limits<qsizetype>::max();
        const std::int32_t length = charactersOfUnits(text, all);
        const std::int32_t before = charactersOfUnits(toQt(this->model().text()), all);
        if (limit <= 0 || length <= limit || length <= before)
            return;
        const qsizetype caret = selectionOf(this->view()).start;
        const std::int32_t kept = std::max(charactersOfUnits(text, caret) - (length - std::max(limit, before)), 0);
        const qsizetype cut = unitsOfCharacters(text, kept);
        text.remove(cut, caret - cut);
        const QSignalBlocker blocker(&this->view());
        setText(this->view(), text);
        select(this->view(), {cut, 0});
    }
};

} // namespace

void bind(TextBox& control, QLineEdit& widget) { new TextBoxBinding<QLineEdit>(control, widget); }

void bind(TextBox& control, QPlainTextEdit& widget) { new TextBoxBinding<QPlainTextEdit>(control, widget); }

} // namespace qncal::host
