#include "qt/windows/ColourSchemePageWidget.h"

#include "controls/ListView.h"
#include "controls/TextBox.h"
#include "controls/captionedControls.h"
#include "controls/rangeControls.h"
#include "qt/formControls.h"
#include "qt/widgets/ColourButton.h"

#include <QGridLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTreeWidget>

namespace qncal::host {

ColourSchemePageWidget::ColourSchemePageWidget(Form& form, QWidget* parent) : QWidget(parent)
{
    auto* schemes = newWidget<QTreeWidget, ListView>(form, "lvSchemes", *this);
    schemes->header()->setStretchLastSection(true);
    schemes->setMinimumWidth(fontMetrics().averageCharWidth() * 26);

    auto* listButtons = new QHBoxLayout;
    listButtons->addWidget(newWidget<QPushButton, CommandButton>(form, "cmdAddScheme", *this));
    listButtons->addWidget(newWidget<QPushButton, CommandButton>(form, "cmdDeleteScheme", *this));
    listButtons->addStretch();
    auto* saveRow = new QHBoxLayout;
    saveRow->addStretch();
    saveRow->addWidget(newWidget<QPushButton, CommandButton>(form, "cmdSaveScheme", *this));

    auto* details = new QVBoxLayout;
    details->addLayout(newFields(form));
    details->addSpacing(fontMetrics().height() / 2);
    details->addWidget(newWidget<QLabel, Label>(form, "lblTitleBar(0)", *this));
    details->addWidget(newPreview(form));
    details->addStretch();

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setColumnMinimumWidth(1, fontMetrics().height() / 2);
    layout->addWidget(schemes, 0, 0);
    layout->addLayout(details, 0, 2);
    layout->addLayout(listButtons, 1, 0);
    layout->addLayout(saveRow, 1, 2);
    layout->setColumnStretch(0, 2);
    layout->setColumnStretch(2, 3);
}

QGridLayout* ColourSchemePageWidget::newFields(Form& form)
{
    auto* fields = new QGridLayout;
    fields->setColumnStretch(1, 1);
    auto* name = newWidget<QLineEdit, TextBox>(form, "txtSchemeName", *this);
    // The page has no caption for the name.
    auto* nameLabel = new QLabel(tr("Scheme &name:"), this);
    nameLabel->setBuddy(name);
    fields->addWidget(nameLabel, 0, 0);
    fields->addWidget(name, 0, 1);
    for (int index = 0; index <= 3; ++index) {
        const std::string place = "(" + std::to_string(index) + ")";
        auto* colour = newWidget<ColourButton, ColourPicker>(form, "cpBackColour" + place, *this);
        fields->addWidget(newLabelFor(*colour, form, "lblColour" + place, *this), index + 1, 0);
        fields->addWidget(colour, index + 1, 1, Qt::AlignLeft);
    }
    return fields;
}

/// A sample of an item as the calendar draws it: the title bar above the text, in one frame.
QWidget* ColourSchemePageWidget::newPreview(Form& form)
{
    auto* frame = new QFrame(this);
    frame->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    auto* titleBar = newWidget<QLabel, Label>(form, "lblTitleBar(1)", *frame);
    titleBar->setMargin(fontMetrics().height() / 4);
    QFont bold = titleBar->font();
    bold.setBold(true);
    titleBar->setFont(bold);
    auto* text = newWidget<QPlainTextEdit, TextBox>(form, "txtApptPreview", *frame);
    text->setFrameShape(QFrame::NoFrame);
    text->setFixedHeight(fontMetrics().lineSpacing() * 4);

    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->setSpacing(0);
    layout->addWidget(titleBar);
    layout->addWidget(text);
    return frame;
}

} // namespace qncal::host
