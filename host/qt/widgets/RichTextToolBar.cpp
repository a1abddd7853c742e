#include "qt/widgets/RichTextToolBar.h"

#include "qt/widgets/RichTextEdit.h"

#include <QAction>
#include <QComboBox>
#include <QEvent>
#include <QToolButton>

namespace qncal::host {

RichTextToolBar::RichTextToolBar(RichTextEdit& edit, QWidget* parent) : QToolBar(parent), edit_(&edit)
{
    setAccessibleName(tr("Text format"));
    const auto add = [this](QAction* action, const QString& face, auto decorate) {
        auto* button = new QToolButton(this);
        QFont font = button->font();
        decorate(font);
        action->setIconText(face);
        button->setDefaultAction(action);
        button->setFont(font);
        button->setObjectName("format:" + action->text());
        button->setAccessibleName(action->text());
        button->setFocusPolicy(Qt::NoFocus);
        addWidget(button);
    };
    add(edit.bold(), "B", [](QFont& font) { font.setBold(true); });
    add(edit.italic(), "I", [](QFont& font) { font.setItalic(true); });
    add(edit.underline(), "U", [](QFont& font) { font.setUnderline(true); });
    addSeparator();
    add(edit.colour(), tr("Colour…"), [](QFont&) {});
    add(edit.bullets(), tr("• List"), [](QFont&) {});
    addSeparator();
    addSizes();
}

void RichTextToolBar::addSizes()
{
    sizes_ = new QComboBox(this);
    sizes_->setObjectName("fontSize");
    sizes_->setAccessibleName(tr("Font size"));
    sizes_->setToolTip(tr("Font size"));
    sizes_->setFocusPolicy(Qt::ClickFocus);
    for (const int size : {8, 9, 10, 11, 12, 14, 16, 18, 24, 36})
        sizes_->addItem(QString::number(size), size);
    addWidget(sizes_);
    connect(sizes_, &QComboBox::activated, edit_, [this] {
        edit_->setPointSize(sizes_->currentData().toInt());
        edit_->setFocus();
    });
    connect(edit_, &QTextEdit::currentCharFormatChanged, this, &RichTextToolBar::showSize);
    showSize();
}

void RichTextToolBar::showSize()
{
    const qreal size = edit_->currentCharFormat().fontPointSize();
    sizes_->setCurrentIndex(sizes_->findData(size > 0 ? qRound(size) : qRound(edit_->font().pointSizeF())));
}

} // namespace qncal::host
