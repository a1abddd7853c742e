#pragma once

#include <QAction>
#include <QObject>

#include <array>

class QTextCharFormat;
class QTextCursor;
class QTextEdit;

namespace qncal::host {

/// What a user can do to the format of a text, as actions with their keys. They act on what is selected, or on what
/// is typed next; on a read-only text they do nothing.
class RichTextActions : public QObject {
    Q_OBJECT

public:
    enum Format { bold, italic, underline, colour, bullets, left, centre, right, justify, outdent, indent };
    static constexpr std::size_t formatCount = indent + 1;

    /// The edit owns the actions and knows their keys.
    explicit RichTextActions(QTextEdit& edit);

    QAction* action(Format format) const { return actions_[format]; }
    void setFontFamily(const QString& family);
    /// In points.
    void setFontSize(qreal size);

private:
    void add(Format format);
    void perform(Format format, bool on);
    void applyToSelection(const QTextCharFormat& format);
    template <class Change>
    void changeParagraphs(Change change);
    void setBullet(QTextCursor& paragraph, bool on);
    void shiftParagraph(QTextCursor& paragraph, int steps);
    void pickColour();
    void showFormatAtCaret();

    QTextEdit* edit_;
    std::array<QAction*, formatCount> actions_{};
};

} // namespace qncal::host
