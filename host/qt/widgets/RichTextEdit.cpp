#include "qt/widgets/RichTextEdit.h"

#include "qt/richTextFormat.h"
#include "qt/richTextReader.h"
#include "qt/richTextWriter.h"

#include <QMimeData>
#include <QTextDocumentFragment>

namespace qncal::host {

namespace {

constexpr const char* streamType = "text/rtf";

} // namespace

RichTextEdit::RichTextEdit(QWidget* parent) : QTextEdit(parent), formats_(new RichTextActions(*this))
{
    setTabStopDistance(halfInch);
    setTabChangesFocus(true);
}

void RichTextEdit::setRichText(std::string_view stream) { readRichText(stream, *document()); }

std::string RichTextEdit::richText() const { return writeRichText(*document()); }

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
