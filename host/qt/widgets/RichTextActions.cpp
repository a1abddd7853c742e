#include "qt/widgets/RichTextActions.h"

#include "controls/DialogHost.h"
#include "qt/convert.h"
#include "qt/richTextFormat.h"

#include <QCoreApplication>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextList>

#include <algorithm>

namespace qncal::host {

namespace {

struct Description {
    const char* text;
    const char* keys;
    bool isCheckable;
};

/// In the order of `Format`.
constexpr std::array<Description, RichTextActions::formatCount> descriptions{{
    {QT_TRANSLATE_NOOP("RichTextActions", "Bold"), "Ctrl+B", true},
    {QT_TRANSLATE_NOOP("RichTextActions", "Italic"), "Ctrl+I", true},
    {QT_TRANSLATE_NOOP("RichTextActions", "Underline"), "Ctrl+U", true},
    {QT_TRANSLATE_NOOP("RichTextActions", "Text colour"), "Ctrl+Shift+C", false},
    {QT_TRANSLATE_NOOP("RichTextActions", "Bullets"), "Ctrl+Shift+L", true},
    {QT_TRANSLATE_NOOP("RichTextActions", "Align left"), "Ctrl+L", true},
    {QT_TRANSLATE_NOOP("RichTextActions", "Centre"), "Ctrl+E", true},
    {QT_TRANSLATE_NOOP("RichTextActions", "Align right"), "Ctrl+R", true},
    {QT_TRANSLATE_NOOP("RichTextActions", "Justify"), "Ctrl+J", true},
    {QT_TRANSLATE_NOOP("RichTextActions", "Less indent"), "Ctrl+Shift+M", false},
    {QT_TRANSLATE_NOOP("RichTextActions", "More indent"), "Ctrl+M", false},
}};

Qt::Alignment alignmentOf(RichTextActions::Format format)
{
    switch (format) {
    case RichTextActions::centre:
        return Qt::AlignHCenter;
    case RichTextActions::right:
        return Qt::AlignRight;
    case RichTextActions::justify:
        return Qt::AlignJustify;
    default:
        return Qt::AlignLeft;
    }
}

constexpr qreal deepestIndent = 12 * halfInch;

} // namespace

RichTextActions::RichTextActions(QTextEdit& edit) : QObject(&edit), edit_(&edit)
{
    for (std::size_t format = 0; format < formatCount; ++format)
        add(static_cast<Format>(format));
    connect(edit_, &QTextEdit::currentCharFormatChanged, this, &RichTextActions::showFormatAtCaret);
    connect(edit_, &QTextEdit::cursorPositionChanged, this, &RichTextActions::showFormatAtCaret);
    showFormatAtCaret();
}

void RichTextActions::add(Format format)
{
    const Description& description = descriptions[format];
    const QString text = QCoreApplication::translate("RichTextActions", description.text);
    auto* action = new QAction(text, edit_);
    action->setObjectName(description.text);
    action->setShortcut(QKeySequence(description.keys));
    action->setShortcutContext(Qt::WidgetShortcut);
    action->setCheckable(description.isCheckable);
    action->setToolTip(text + " (" + action->shortcut().toString(QKeySequence::NativeText) + ")");
    connect(action, &QAction::triggered, this, [this, format](bool on) {
        if (!edit_->isReadOnly())
            perform(format, on);
        showFormatAtCaret();
    });
    edit_->addAction(action);
    actions_[format] = action;
}

void RichTextActions::perform(Format format, bool on)
{
    QTextCharFormat characters;
    switch (format) {
    case bold:
        characters.setFontWeight(on ? QFont::Bold : QFont::Normal);
        break;
    case italic:
        characters.setFontItalic(on);
        break;
    case underline:
        characters.setFontUnderline(on);
        break;
    case colour:
        pickColour();
        return;
    case bullets:
        changeParagraphs([&](QTextCursor& paragraph) { setBullet(paragraph, on); });
        return;
    case left:
    case centre:
    case right:
    case justify:
        edit_->setAlignment(alignmentOf(format));
        return;
    case outdent:
    case indent:
        changeParagraphs([&](QTextCursor& paragraph) { shiftParagraph(paragraph, format == indent ? 1 : -1); });
        return;
    }
    applyToSelection(characters);
}

void RichTextActions::setFontFamily(const QString& family)
{
    QTextCharFormat format;
    format.setFontFamilies({family});
    applyToSelection(format);
}

void RichTextActions::setFontSize(qreal size)
{
    QTextCharFormat format;
    format.setFontPointSize(size);
    applyToSelection(format);
}

void RichTextActions::applyToSelection(const QTextCharFormat& format)
{
    if (!edit_->isReadOnly())
        edit_->mergeCurrentCharFormat(format);
}

/// Hands a cursor in every paragraph that is selected to the change, as one step of undo.
template <class Change>
void RichTextActions::changeParagraphs(Change change)
{
    QTextCursor selection = edit_->textCursor();
    selection.beginEditBlock();
    QTextBlock paragraph = edit_->document()->findBlock(selection.selectionStart());
    const QTextBlock end = edit_->document()->findBlock(selection.selectionEnd()).next();
    for (; paragraph.isValid() && paragraph != end; paragraph = paragraph.next()) {
        QTextCursor at(paragraph);
        change(at);
    }
    selection.endEditBlock();
}

void RichTextActions::setBullet(QTextCursor& paragraph, bool on)
{
    QTextList* list = paragraph.currentList();
    if (list && !on)
        list->remove(paragraph.block());
    QTextBlockFormat format = paragraph.blockFormat();
    format.setIndent(0);
    format.setLeftMargin(on ? bulletIndent / twipsPerPixel : 0);
    format.setTextIndent(0);
    if (on)
        format.setProperty(bulletIndentProperty, -bulletIndent);
    else
        format.clearProperty(bulletIndentProperty);
    paragraph.setBlockFormat(format);
    if (!on || list)
        return;
    QTextListFormat discs;
    discs.setStyle(QTextListFormat::ListDisc);
    discs.setIndent(0);
    paragraph.createList(discs);
}

void RichTextActions::shiftParagraph(QTextCursor& paragraph, int steps)
{
    QTextBlockFormat format = paragraph.blockFormat();
    format.setLeftMargin(std::clamp(format.leftMargin() + steps * halfInch, 0.0, deepestIndent));
    paragraph.setBlockFormat(format);
}

void RichTextActions::pickColour()
{
    const auto host = dialogHost();
    if (!host)
        return;
    const QTextCharFormat current = edit_->currentCharFormat();
    const bool isSet = current.hasProperty(QTextFormat::ForegroundBrush);
    const auto picked = host->pickColour(isSet ? fromQtColour(current.foreground().color()) : 0);
    if (!picked)
        return;
    QTextCharFormat format;
    format.setForeground(toQtColour(*picked));
    applyToSelection(format);
}

void RichTextActions::showFormatAtCaret()
{
    const QTextCharFormat characters = edit_->currentCharFormat();
    action(bold)->setChecked(characters.fontWeight() > QFont::Medium);
    action(italic)->setChecked(characters.fontItalic());
    action(underline)->setChecked(characters.fontUnderline());
    action(bullets)->setChecked(edit_->textCursor().currentList() != nullptr);
    const Qt::Alignment alignment = edit_->alignment() & Qt::AlignHorizontal_Mask;
    for (const Format format : {left, centre, right, justify})
        action(format)->setChecked(alignment == alignmentOf(format));
}

} // namespace qncal::host
