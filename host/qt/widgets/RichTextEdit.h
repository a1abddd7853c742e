#pragma once

#include <QTextEdit>

#include <string>
#include <string_view>

class QAction;

namespace qncal::host {

/// Edits rich text as far as streams of it can say it: what is pasted comes in as plain text, or as rich text when it
/// is offered as a stream. Ctrl+B, Ctrl+I and Ctrl+U set bold, italic and underlined.
class RichTextEdit : public QTextEdit {
    Q_OBJECT

public:
    explicit RichTextEdit(QWidget* parent = nullptr);

    void setRichText(std::string_view stream);
    std::string richText() const;

    QAction* bold() const { return bold_; }
    QAction* italic() const { return italic_; }
    QAction* underline() const { return underline_; }
    QAction* bullets() const { return bullets_; }
    QAction* colour() const { return colour_; }
    /// Of what is selected, or of what is typed next.
    void setPointSize(qreal size);

protected:
    bool canInsertFromMimeData(const QMimeData* source) const override;
    void insertFromMimeData(const QMimeData* source) override;
    QMimeData* createMimeDataFromSelection() const override;

private:
    QAction* addFormat(const QString& text, const QKeySequence& key, bool checkable);
    void applyToSelection(const QTextCharFormat& format);
    void setBullets(bool on);
    void pickColour();
    void showFormatAtCaret();

    QAction* bold_;
    QAction* italic_;
    QAction* underline_;
    QAction* bullets_;
    QAction* colour_;
};

} // namespace qncal::host
