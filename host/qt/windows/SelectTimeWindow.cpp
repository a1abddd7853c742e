#include "qt/windows/SelectTimeWindow.h"

#include "controls/captionedControls.h"
#include "controls/listControls.h"
#include "controls/rangeControls.h"
#include "qt/widgets/DateTimeEdit.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>

namespace qncal::host {

SelectTimeWindow::SelectTimeWindow(Form& form, QWidget* parent) : FormWindow(form, parent)
{
    auto* time = add<DateTimeEdit, DateTimePicker>("dtpTime");
    auto* quarterHour = add<QComboBox, ComboBox>("cboField");
    quarterHour->setMaxVisibleItems(12);

    auto* fields = new QGridLayout;
    fields->setColumnStretch(1, 1);
    fields->addWidget(addLabelFor(time, "Label0"), 0, 0);
    fields->addWidget(time, 0, 1);
    fields->addWidget(addLabelFor(quarterHour, "Label1"), 1, 0);
    fields->addWidget(quarterHour, 1, 1);

    auto* layout = new QVBoxLayout(this);
    layout->addLayout(fields);
    layout->addStretch();
    layout->addLayout(addButtons({"cmdOpts(0)", "cmdOpts(1)"}));
    finish();
}

} // namespace qncal::host
