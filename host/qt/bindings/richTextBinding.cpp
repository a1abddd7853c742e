#include "controls/RichTextBox.h"
#include "qt/bindings/ControlBinding.h"
#include "qt/bindings/bindings.h"
#include "qt/convert.h"
#include "qt/richTextReader.h"
#include "qt/widgets/RichTextEdit.h"

namespace qncal::host {

namespace {

class RichTextBinding : public BindingOf<RichTextBox, RichTextEdit> {
public:
    RichTextBinding(RichTextBox& control, RichTextEdit& widget) : BindingOf(control, widget)
    {
        watch(*widget.viewport());
        connect(&widget, &QTextEdit::textChanged, this, [this] { fromUser([this] { edited(); }); });
        connect(&widget, &QTextEdit::selectionChanged, this, [this] { fromUser([this] { caretMoved(); }); });
        connect(&widget, &QTextEdit::cursorPositionChanged, this, [this] { fromUser([this] { caretMoved(); }); });
        start();
    }

protected:
    void show() override
    {
        if (shownStream_ != model().textRTF()) {
            shownStream_ = model().textRTF();
            view().setRichText(shownStream_);
        }
        view().setReadOnly(model().isReadOnly());
        const QString text = visibleText(*view().document());
        const auto start = static_cast<int>(unitsOfCharacters(text, model().selStart()));
        const auto end = static_cast<int>(unitsOfCharacters(text, model().selStart() + model().selLength()));
        QTextCursor cursor = view().textCursor();
        if (cursor.selectionStart() == start && cursor.selectionEnd() == end)
            return;
        cursor.setPosition(start);
        cursor.setPosition(end, QTextCursor::KeepAnchor);
        view().setTextCursor(cursor);
    }

private:
    void edited()
    {
        shownStream_ = view().richText();
        takeSelectionOver();
        model().textRTF(shownStream_);
    }

    /// The caret moves before the text is told to have changed.
    void caretMoved()
    {
        if (!view().document()->isModified() || view().document()->revision() == shownRevision_)
            takeSelectionOver();
    }

    void takeSelectionOver()
    {
        shownRevision_ = view().document()->revision();
        takeOver([this] {
            const QString text = visibleText(*view().document());
            const QTextCursor cursor = view().textCursor();
            const std::int32_t start = charactersOfUnits(text, cursor.selectionStart());
            model().selStart(start);
            model().selLength(charactersOfUnits(text, cursor.selectionEnd()) - start);
        });
    }

    std::string shownStream_;
    int shownRevision_ = -1;
};

} // namespace

void bind(RichTextBox& control, RichTextEdit& widget) { new RichTextBinding(control, widget); }

} // namespace qncal::host
