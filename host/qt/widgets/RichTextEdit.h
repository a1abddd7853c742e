#pragma once

#include "qt/widgets/RichTextActions.h"

#include <QTextEdit>

#include <string>
#include <string_view>

namespace qncal::host {

/// Edits rich text as far as streams of it can say it: what is pasted comes in as plain text, or as rich text when it
/// is offered as a stream.
class RichTextEdit : public QTextEdit {
    Q_OBJECT

public:
    explicit RichTextEdit(QWidget* parent = nullptr);

    void setRichText(std::string_view stream);
    std::string richText() const;

    RichTextActions& formats() const { return *formats_; }

protected:
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;
    QMimeData* createMimeDataFromSelection() const override;

private:
    RichTextActions* formats_;
};

} // namespace qncal::host
