#include "qt/widgets/RichTextToolBar.h"

#include "qt/richTextFormat.h"
#include "qt/widgets/RichTextEdit.h"

#include <QComboBox>
#include <QEvent>
#include <QPainter>
#include <QToolButton>

namespace qncal::host {

namespace {

constexpr int iconSide = 16;

/// Lines of text as they stand under an alignment: one that fills the width, one that does not, in turn.
QIcon alignmentIcon(Qt::Alignment alignment, const QColor& ink)
{
    constexpr int shortLine = 8;
    constexpr qreal density = 3;
    QPixmap pixmap(QSize(iconSide, iconSide) * density);
    pixmap.setDevicePixelRatio(density);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setPen(QPen(ink, 1.4, Qt::SolidLine, Qt::FlatCap));
    for (int line = 0; line < 4; ++line) {
        const bool isFull = line % 2 == 0 || alignment == Qt::AlignJustify;
        const int width = isFull ? iconSide - 2 : shortLine;
        const int space = iconSide - 2 - width;
        const int x = 1 + (alignment == Qt::AlignRight ? space : alignment == Qt::AlignHCenter ? space / 2 : 0);
        const qreal y = 3 + line * 3.4;
        painter.drawLine(QPointF(x, y), QPointF(x + width, y));
    }
    return pixmap;
}

/// Names that every word processor knows; a text keeps the name of a font that this machine lacks.
constexpr const char* fontNames[] = {standardFont, "Arial",  "Calibri",         "Courier New", "Georgia",
                                     "Segoe UI",   "Tahoma", "Times New Roman", "Verdana"};
constexpr int fontSizes[] = {8, 9, 10, 11, 12, 14, 16, 18, 24, 36};

} // namespace

RichTextToolBar::RichTextToolBar(RichTextEdit& edit, QWidget* parent)
    : QToolBar(parent), edit_(&edit), fonts_(addList("fontName", tr("Font"), QKeySequence("Ctrl+Shift+F"))),
      sizes_(addList("fontSize", tr("Font size"), QKeySequence("Ctrl+Shift+P")))
{
    using Formats = RichTextActions;
    setAccessibleName(tr("Text format"));
    setIconSize(QSize(iconSide, iconSide));
    for (const char* name : fontNames)
        fonts_->addItem(name);
    for (const int size : fontSizes)
        sizes_->addItem(QString::number(size), size);
    addSeparator();
    addButton(Formats::bold, "B");
    addButton(Formats::italic, "I");
    addButton(Formats::underline, "U");
    addButton(Formats::colour, tr("Colour…"));
    addSeparator();
    const QColor ink = palette().color(QPalette::ButtonText);
    addButton(Formats::left, alignmentIcon(Qt::AlignLeft, ink));
    addButton(Formats::centre, alignmentIcon(Qt::AlignHCenter, ink));
    addButton(Formats::right, alignmentIcon(Qt::AlignRight, ink));
    addButton(Formats::justify, alignmentIcon(Qt::AlignJustify, ink));
    addSeparator();
    addButton(Formats::bullets, tr("• List"));
    addButton(Formats::outdent, "⇤");
    addButton(Formats::indent, "⇥");
    connect(fonts_, &QComboBox::textActivated, edit_, [this](const QString& name) {
        edit_->formats().setFontFamily(name);
        edit_->setFocus();
    });
    connect(sizes_, &QComboBox::activated, edit_, [this] {
        edit_->formats().setFontSize(sizes_->currentData().toInt());
        edit_->setFocus();
    });
    connect(edit_, &QTextEdit::currentCharFormatChanged, this, &RichTextToolBar::showFont);
    showFont();
    edit_->installEventFilter(this);
    followText();
}

bool RichTextToolBar::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
    case QEvent::EnabledChange:
    case QEvent::ReadOnlyChange:
        if (watched == edit_)
            followText();
        break;
    default:
        break;
    }
    return QToolBar::eventFilter(watched, event);
}

void RichTextToolBar::followText()
{
    // A bar without a window would become one of its own.
    if (!isWindow())
        setVisible(!edit_->isHidden() && edit_->isEnabled() && !edit_->isReadOnly());
}

void RichTextToolBar::addButton(RichTextActions::Format format, const QString& face)
{
    QAction* action = edit_->formats().action(format);
    action->setIconText(face);
    QToolButton* button = buttonOf(action);
    QFont font = button->font();
    font.setBold(format == RichTextActions::bold);
    font.setItalic(format == RichTextActions::italic);
    font.setUnderline(format == RichTextActions::underline);
    button->setFont(font);
}

void RichTextToolBar::addButton(RichTextActions::Format format, const QIcon& icon)
{
    QAction* action = edit_->formats().action(format);
    action->setIcon(icon);
    buttonOf(action);
}

QToolButton* RichTextToolBar::buttonOf(QAction* action)
{
    auto* button = new QToolButton(this);
    button->setDefaultAction(action);
    button->setObjectName("format:" + action->objectName());
    button->setAccessibleName(action->text());
    button->setFocusPolicy(Qt::NoFocus);
    button->setIconSize(iconSize());
    addWidget(button);
    return button;
}

QComboBox* RichTextToolBar::addList(const QString& name, const QString& title, const QKeySequence& keys)
{
    auto* list = new QComboBox(this);
    list->setObjectName(name);
    list->setAccessibleName(title);
    list->setToolTip(title + " (" + keys.toString(QKeySequence::NativeText) + ")");
    list->setFocusPolicy(Qt::ClickFocus);
    addWidget(list);
    auto* go = new QAction(title, edit_);
    go->setShortcut(keys);
    go->setShortcutContext(Qt::WidgetShortcut);
    connect(go, &QAction::triggered, list, [list] {
        list->setFocus(Qt::ShortcutFocusReason);
        list->showPopup();
    });
    edit_->addAction(go);
    return list;
}

void RichTextToolBar::showFont()
{
    const QTextCharFormat format = edit_->currentCharFormat();
    const QString family = format.fontFamilies().toStringList().value(0, standardFont);
    if (fonts_->findText(family) < 0)
        fonts_->addItem(family);
    fonts_->setCurrentText(family);
    const qreal size = format.fontPointSize();
    sizes_->setCurrentIndex(sizes_->findData(size > 0 ? qRound(size) : qRound(edit_->font().pointSizeF())));
}

} // namespace qncal::host
