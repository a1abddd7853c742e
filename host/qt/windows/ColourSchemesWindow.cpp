#include "qt/windows/ColourSchemesWindow.h"

#include "qt/windows/ColourSchemePageWidget.h"

#include <QVBoxLayout>

namespace qncal::host {

ColourSchemesWindow::ColourSchemesWindow(Form& form, QWidget* parent) : FormWindow(form, parent)
{
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new ColourSchemePageWidget(form, this));
    finish();
}

} // namespace qncal::host
