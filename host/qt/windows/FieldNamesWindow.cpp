#include "qt/windows/FieldNamesWindow.h"

#include "controls/TextBox.h"
#include "controls/captionedControls.h"

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace qncal::host {

FieldNamesWindow::FieldNamesWindow(Form& form, QWidget* parent) : FormWindow(form, parent)
{
    auto* introduction = add<QLabel, Label>("lblIntroduction");
    introduction->setWordWrap(true);

    auto* fields = new QGridLayout;
    fields->setColumnStretch(1, 1);
    for (int index = 1; index <= 5; ++index) {
        const std::string place = "(" + std::to_string(index) + ")";
        auto* name = add<QLineEdit, TextBox>("txtField" + place);
        name->setMinimumWidth(fontMetrics().averageCharWidth() * 28);
        fields->addWidget(addLabelFor(name, "lblCaption" + place), index, 0);
        fields->addWidget(name, index, 1);
        auto* hint = add<QLabel, Label>("lblField" + place);
        hint->setForegroundRole(QPalette::PlaceholderText);
        fields->addWidget(hint, index, 2);
        fields->addWidget(add<QPushButton, CommandButton>("cmdAdvancedOptions" + place), index, 3);
    }

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(introduction);
    layout->addSpacing(layout->spacing());
    layout->addLayout(fields);
    layout->addStretch();
    layout->addLayout(addButtons({"cmdOK", "cmdApply", "cmdCancel"}));
    finish();
}

} // namespace qncal::host
