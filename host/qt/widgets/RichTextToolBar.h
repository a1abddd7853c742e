#pragma once

#include <QToolBar>

class QComboBox;

namespace qncal::host {

class RichTextEdit;

/// The formats of a rich text: bold, italic, underlined, colour, bullets and the size of the font. Shown only while
/// the text can be edited.
class RichTextToolBar : public QToolBar {
public:
    explicit RichTextToolBar(RichTextEdit& edit, QWidget* parent = nullptr);

private:
    void addSizes();
    void showSize();

    RichTextEdit* edit_;
    QComboBox* sizes_ = nullptr;
};

} // namespace qncal::host
