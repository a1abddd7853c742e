#include "qt/windows/ColourSchemesWindow.h"

#include "qt/windows/ColourSchemePageWidget.h"

#include <QHBoxLayout>

namespace qncal::host {

ColourSchemesWindow::ColourSchemesWindow(Form& form, QWidget* parent) : FormWindow(form, parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new ColourSchemePageWidget(form, this));
    if (form.findControl("cmdClose"))
        layout->addLayout(addButtons({"cmdClose"}));
    finish();
}

} // namespace qncal::host
