#include "qt/widgets/RichTextEdit.h"

#include "controls/DialogHost.h"
#include "qt/convert.h"
#include "qt/richTextFormat.h"
#include "qt/richTextReader.h"
#include "qt/richTextWriter.h"

#include <QAction>
#include <QMimeData>
#include <QTextBlock>
#include <QTextDocumentFragment>
#include <QTextList>

namespace qncal::host {

namespace {

constexpr const char* streamType = "text/rtf";
/// Half an inch.
constexpr qreal tabStop = 720 / twipsPerPixel;

} // namespace

RichTextEdit::RichTextEdit(QWidget* parent)
    : QTextEdit(parent), bold_(addFormat(tr("Bold"), QKeySequence::Bold, true)),
      italic_(addFormat(tr("Italic"), QKeySequence::Italic, true)),
      underline_(addFormat(tr("Underline"), QKeySequence::Underline, true)),
      bullets_(addFormat(tr("Bullets"), QKeySequence("Ctrl+Shift+L"), true)),
      colour_(addFormat(tr("Text colour"), {}, false))
{
    setTabStopDistance(tabStop);
    setTabChangesFocus(true);
    connect(bold_, &QAction::triggered, this, [this](bool on) {
        QTextCharFormat format;
        format.setFontWeight(on ? QFont::Bold : QFont::Normal);
        applyToSelection(format);
    });
    connect(italic_, &QAction::triggered, this, [this](bool on) {
        QTextCharFormat format;
        format.setFontItalic(on);
        applyToSelection(format);
    });
    connect(underline_, &QAction::triggered, this, [this](bool on) {
        QTextCharFormat format;
        format.setFontUnderline(on);
        applyToSelection(format);
    });
    connect(bullets_, &QAction::triggered, this, &RichTextEdit::setBullets);
    connect(colour_, &QAction::triggered, this, &RichTextEdit::pickColour);
    connect(this, &QTextEdit::currentCharFormatChanged, this, &RichTextEdit::showFormatAtCaret);
    connect(this, &QTextEdit::cursorPositionChanged, this, &RichTextEdit::showFormatAtCaret);
}

QAction* RichTextEdit::addFormat(const QString& text, const QKeySequence& key, bool checkable)
{
    auto* action = new QAction(text, this);
    action->setObjectName(text);
    action->setShortcut(key);
    action->setShortcutContext(Qt::WidgetShortcut);
    action->setCheckable(checkable);
    action->setToolTip(key.isEmpty() ? text : text + " (" + key.toString(QKeySequence::NativeText) + ")");
    addAction(action);
    return action;
}

void RichTextEdit::setRichText(std::string_view stream) { readRichText(stream, *document()); }

std::string RichTextEdit::richText() const { return writeRichText(*document()); }

void RichTextEdit::setPointSize(qreal size)
{
    QTextCharFormat format;
    format.setFontPointSize(size);
    applyToSelection(format);
}

void RichTextEdit::applyToSelection(const QTextCharFormat& format)
{
    if (!isReadOnly())
        mergeCurrentCharFormat(format);
}

void RichTextEdit::setBullets(bool on)
{
    if (isReadOnly())
        return;
    QTextCursor cursor = textCursor();
    cursor.beginEditBlock();
    QTextBlock block = document()->findBlock(cursor.selectionStart());
    const QTextBlock end = document()->findBlock(cursor.selectionEnd()).next();
    for (; block.isValid() && block != end; block = block.next()) {
        QTextCursor at(block);
        if (QTextList* list = block.textList(); list && !on)
            list->remove(block);
        QTextBlockFormat format = block.blockFormat();
        format.setIndent(0);
        format.setLeftMargin(on ? bulletIndent / twipsPerPixel : 0);
        format.setTextIndent(0);
        if (on)
            format.setProperty(bulletIndentProperty, -bulletIndent);
        else
            format.clearProperty(bulletIndentProperty);
        at.setBlockFormat(format);
        if (!on || block.textList())
            continue;
        QTextListFormat bullets;
        bullets.setStyle(QTextListFormat::ListDisc);
        bullets.setIndent(0);
        at.createList(bullets);
    }
    cursor.endEditBlock();
}

void RichTextEdit::pickColour()
{
    const auto host = dialogHost();
    if (!host || isReadOnly())
        return;
    const QTextCharFormat current = currentCharFormat();
    const bool isSet = current.hasProperty(QTextFormat::ForegroundBrush);
    const auto picked = host->pickColour(isSet ? fromQtColour(current.foreground().color()) : 0);
    if (!picked)
        return;
    QTextCharFormat format;
    format.setForeground(toQtColour(*picked));
    applyToSelection(format);
}

void RichTextEdit::showFormatAtCaret()
{
    const QTextCharFormat format = currentCharFormat();
    bold_->setChecked(format.fontWeight() > QFont::Medium);
    italic_->setChecked(format.fontItalic());
    underline_->setChecked(format.fontUnderline());
    bullets_->setChecked(textCursor().currentList() != nullptr);
}

bool RichTextEdit::canInsertFromMimeData(const QMimeData* source) const
{
    return source->hasText() || source->hasFormat(streamType);
}

void RichTextEdit::insertFromMimeData(const QMimeData* source)
{
    if (!source->hasFormat(streamType)) {
        insertPlainText(source->text());
        return;
    }
    QTextDocument pasted;
    readRichText(source->data(streamType).toStdString(), pasted);
    textCursor().insertFragment(QTextDocumentFragment(&pasted));
}

QMimeData* RichTextEdit::createMimeDataFromSelection() const
{
    QTextDocument copied;
    QTextCursor(&copied).insertFragment(textCursor().selection());
    auto* copy = new QMimeData;
    copy->setText(textCursor().selection().toPlainText());
    copy->setData(streamType, QByteArray::fromStdString(writeRichText(copied)));
    return copy;
}

} // namespace qncal::host
