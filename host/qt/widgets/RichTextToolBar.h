#pragma once

#include "qt/widgets/RichTextActions.h"

#include <QToolBar>

class QComboBox;
class QToolButton;

namespace qncal::host {

class RichTextEdit;

/// The formats of a rich text: font and size, styles, colour, alignment, bullets and indents. Beside its text in a
/// window it is shown only while the text is and can be edited. The Tab key passes it by, since every button has a key
/// of its own; Ctrl+Shift+F goes to the fonts and Ctrl+Shift+P to the sizes.
class RichTextToolBar : public QToolBar {
    Q_OBJECT

public:
    explicit RichTextToolBar(RichTextEdit& edit, QWidget* parent = nullptr);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void followText();
    void addButton(RichTextActions::Format format, const QString& face);
    void addButton(RichTextActions::Format format, const QIcon& icon);
    QToolButton* buttonOf(QAction* action);
    QComboBox* addList(const QString& name, const QString& title, const QKeySequence& keys);
    void showFont();

    RichTextEdit* edit_;
    QComboBox* fonts_;
    QComboBox* sizes_;
};

} // namespace qncal::host
